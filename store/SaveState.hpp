#pragma once

struct GameState;

inline constexpr const char *SaveStateFileName = "SaveState.bin";

/// Writes the high score and the run, if there is one, to the save state. False if it did not reach the
/// user's storage; the old file may be lost then.
bool WriteSaveState(const GameState &State);

/// Reads the save state. False, with no run and a high score of 0, if there is none or it is no save at all.
/// A run that it holds waits to be continued, its values brought into their ranges. Damage costs what is
/// damaged or stands behind it and nothing else.
bool LoadSaveState(GameState &State);
