#pragma once

#include <SDL3/SDL.h>

struct GameState;
struct InputDevices;

/// Draws the help page on black.
void RenderHelp(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices);
