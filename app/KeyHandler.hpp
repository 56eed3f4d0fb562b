#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

struct GameState;

// Every press, of whichever device, arrives here as a scancode of the keyboard. Only the Graphics page uses
// window and renderer.

/// Hands a scancode of 1 to 511 to HandleKey and drops any other, such as NoKey (0).
void DispatchKey(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode);

/// Acts on a key as it is meant on the screen that is shown.
void HandleKey(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode);
