#pragma once

struct GameState;

/// Makes the desktop's own size the one resolution and takes its shape, for a first launch. Without a display
/// that tells its size everything stays as it is.
void UseDesktopSize(GameState &State);
