#pragma once

struct GameState;

/// For a first launch: makes the size of the primary display's desktop the one resolution, and sets
/// AspectMode and LogicalWidth by its shape. Without a display that tells its size nothing changes.
void UseDesktopSize(GameState &State);
