#pragma once

#include <cstdint>

struct GameState;

// The Controls page edits pending copies of the three binding tables and of the device whose table it shows.
// The applied ones change only with APPLY, which also sets OptionsDirty if anything was changed.

/// Takes the pending copies from the applied options, so that the page is in edit, and ends a capture.
void BeginControlsEdit(GameState &State);

/// Whether the page is in edit and a pending value differs from the applied one.
bool ControlsEditDirty(const GameState &State);

/// Acts on a key on the page, beginning its edit if need be. A running capture takes every key.
void HandleControlsPageKey(GameState &State, std::int32_t Scancode);
