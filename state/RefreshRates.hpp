#pragma once

struct GameState;

/// Refills RefreshRates with automatic (0) and, in fullscreen, the rates that the display offers at the
/// current resolution. A chosen rate that is not among them becomes automatic.
void RebuildRefreshRates(GameState &State);
