#pragma once

#include <SDL3/SDL.h>

struct GameState;
struct InputDevices;

/// Draws the page of the options that is open.
void RenderOptions(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices);
