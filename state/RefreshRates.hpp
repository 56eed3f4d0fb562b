#pragma once

struct GameState;

/// Refills RefreshRates with 0, which stands for automatic, and behind it in fullscreen the rates in Hz that
/// DisplayModes has for the current resolution, ascending. A RefreshRate that is not among them becomes 0.
void RebuildRefreshRates(GameState &State);
