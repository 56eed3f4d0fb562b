#pragma once

struct GameState;

/// Arms the debounced save. DelaySeconds at or below 0 makes it due at once; a positive delay only shortens
/// one that is running. A zero mark counts as no delay running: a positive mark that follows it replaces it.
void RequestSave(GameState &State, float DelaySeconds);
