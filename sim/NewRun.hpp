#pragma once

struct GameState;

/// Starts a run: resets all run data, the pause menu's selection and where options and help lead back to,
/// drops the sounds of this frame, shows ScreenPlaying and asks for a save. The high score and the options
/// stay.
void StartNewRun(GameState &State);
