#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

struct GameState;

/// Shows the main page of the options, with no page in edit and no capture running. The pages keep the rows
/// of the last visit. The caller sets OptionsReturnScreen.
void EnterOptions(GameState &State);

/// Acts on a key on a page of the options.
void HandleOptionsKey(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode);
