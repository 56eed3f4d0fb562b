#pragma once

#include <cstdint>

struct GameState;

/// Acts on a key on the main menu. Escape quits at once: it clears Running.
void HandleMainMenuKey(GameState &State, std::int32_t Scancode);
