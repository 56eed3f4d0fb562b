#pragma once

#include <cstdint>

struct GameState;

/// Acts on a key on the pause menu. Escape goes back into the run.
void HandlePauseMenuKey(GameState &State, std::int32_t Scancode);
