#pragma once

#include "state/Screen.hpp"

#include <SDL3/SDL.h>

#include <cstdint>

struct GameState;

/// Shows the main page of the options, with no page in edit and no capture running. The pages keep their
/// selected rows from the last visit. BACK leads to ReturnScreen.
void EnterOptions(GameState &State, Screen ReturnScreen);

/// Acts on a key on the page of the options that is shown. Only the Graphics page uses window and renderer.
void HandleOptionsKey(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode);
