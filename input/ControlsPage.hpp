#pragma once

#include <cstdint>

struct GameState;

// The Controls page edits pending copies of the three binding tables and of the device that it shows.

/// Takes the pending copies from the applied options and ends a capture.
void BeginControlsEdit(GameState &State);

/// Whether the page is in edit and a pending value differs from the applied one.
bool ControlsEditDirty(const GameState &State);

/// Acts on a key on the page, a running capture before all else.
void HandleControlsPageKey(GameState &State, std::int32_t Scancode);
