#pragma once

struct GameState;

inline constexpr const char *SaveStateFileName = "SaveState.bin";

/// Writes the high score and the run, if there is one, to the save state. False if it did not reach the
/// user's storage: the old file stays, unless it was storage that failed while it wrote over it.
bool WriteSaveState(const GameState &State);

/// Reads the save state. First HighScore and SaveDelay become 0, HasRunState and SaveRequested false. If
/// there is no file or it is no save state, nothing else changes and the result is false. Otherwise HighScore
/// is the file's; and if the file holds a run, State takes its fields, player and six lists, brought into
/// their ranges, and what has a lane onto its centre. HasRunState is true then, PlayerDying false, DeathTimer
/// and PauseSelection 0, and Screen and both screens to return to are the main menu. Damage costs only what
/// is damaged and what stands behind it.
bool LoadSaveState(GameState &State);
