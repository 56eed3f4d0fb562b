#pragma once

#include <cstdint>

struct GameState;

/// Acts on a key on the main menu. Escape there quits at once.
void HandleMainMenuKey(GameState &State, std::int32_t Scancode);
