#pragma once

struct GameState;

/// Starts a run: resets all run data, drops the sounds of this frame, shows ScreenPlaying and asks for a
/// save. The high score and the options stay.
void StartNewRun(GameState &State);
