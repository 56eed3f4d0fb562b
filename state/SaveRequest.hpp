#pragma once

struct GameState;

/// Asks for the save state to be written after DelaySeconds, or at once where that is 0 or less. While a
/// delay runs, a new one can only shorten it. A request for 0 that is not yet written is replaced by a later
/// positive one.
void RequestSave(GameState &State, float DelaySeconds);
