#pragma once

#include <cstdint>

struct GameState;

// The Audio page edits pending copies of the volumes, the switches and the language. The applied ones change
// only with APPLY, which also loads another language and has the options file written.

/// Takes the pending copies from the applied options, so that the page is in edit.
void BeginAudioEdit(GameState &State);

/// Whether the page is in edit and a pending value differs from the applied one.
bool AudioEditDirty(const GameState &State);

/// Moves the pending language to the one before (Direction -1) or behind (1) in the catalogue, round its
/// ends. A language that is not in the catalogue counts as the default one. Without a catalogue nothing
/// happens.
void CycleLanguage(GameState &State, std::int32_t Direction);

/// Acts on a key on the page, beginning its edit if need be.
void HandleAudioPageKey(GameState &State, std::int32_t Scancode);
