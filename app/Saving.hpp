#pragma once

struct GameState;

/// Writes one of the game's files from the state; false if it could not be written.
using StateWriter = bool (*)(const GameState &State);

/// What the bookkeeping below writes with.
struct SaveWriters {
    StateWriter SaveOptions = nullptr;
    StateWriter WriteSaveState = nullptr;
};

/// Writes the options if they are marked. A failure is logged and tried again at every call, which is once a
/// frame, and that is meant.
void SaveOptionsIfDirty(GameState &State, StateWriter SaveOptions);

/// Runs the delay of a marked save down by DeltaSeconds (a negative value counts as 0) and writes at its end.
/// A failure is logged and tried again a second later, or sooner where a new mark shortens the delay.
void SaveTick(GameState &State, float DeltaSeconds, StateWriter WriteSaveState);
