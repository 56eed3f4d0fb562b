#pragma once

#include <cstdint>

struct GameState;

// The Audio page edits pending copies of the volumes, the switches and the language. The applied ones change
// only with APPLY, which also loads another language and, if anything was changed, sets OptionsDirty.

/// Takes the pending copies from the applied options, so that the page is in edit.
void BeginAudioEdit(GameState &State);

/// Whether the page is in edit and a pending value differs from the applied one.
bool AudioEditDirty(const GameState &State);

/// Moves the pending language one place back (Direction -1) or on (1) in the catalogue, round its ends.
/// A language that is not there counts as the default one. An empty catalogue changes nothing.
void CycleLanguage(GameState &State, std::int32_t Direction);

/// Acts on a key on the page, beginning its edit if need be.
void HandleAudioPageKey(GameState &State, std::int32_t Scancode);
