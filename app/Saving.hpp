#pragma once

struct GameState;

/// Writes one of the game's files from the state; false if it could not be written.
using StateWriter = bool (*)(const GameState &State);

/// What the options file and the save state are written with: the functions of these names in store/. Tests
/// have others; none is null.
struct SaveWriters {
    StateWriter SaveOptions = nullptr;
    StateWriter WriteSaveState = nullptr;
};

/// Writes the options if OptionsDirty is set, and clears it once that has worked. Every failure is logged.
/// NOT-BUGS: Options that cannot be written are tried again in every frame
void SaveOptionsIfDirty(GameState &State, StateWriter Write);

/// Takes DeltaSeconds (a negative value counts as 0) from the delay of a requested save, and writes when
/// nothing is left of it. A failure is logged and tried again a second later, or sooner where a new request
/// shortens that delay.
void SaveTick(GameState &State, float DeltaSeconds, StateWriter Write);
