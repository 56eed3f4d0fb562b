#pragma once

#include <cstdint>

struct GameState;

// The Audio page edits pending copies of the volumes, the switches and the language. Nothing is heard or seen
// of them before APPLY.

/// Takes the pending copies from the applied options.
void BeginAudioEdit(GameState &State);

/// Whether the page is in edit and a pending value differs from the applied one.
bool AudioEditDirty(const GameState &State);

/// Moves the pending language through the catalogue, round its ends. Direction is -1 or 1.
void CycleLanguage(GameState &State, std::int32_t Direction);

/// Acts on a key on the page.
void HandleAudioPageKey(GameState &State, std::int32_t Scancode);
