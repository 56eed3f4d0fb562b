#pragma once

#include <SDL3/SDL.h>

struct GameState;
struct InputDevices;

/// Draws the options page that State.OptionsPage names, on black.
void RenderOptions(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices);
