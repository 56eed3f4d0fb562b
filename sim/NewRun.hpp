#pragma once

struct GameState;

/// Starts a run: resets all run data, shows the road, and asks for a save. The high score stays.
void StartNewRun(GameState &State);
