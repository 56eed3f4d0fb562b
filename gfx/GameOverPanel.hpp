#pragma once

#include <SDL3/SDL.h>

struct GameState;
struct InputDevices;

/// Draws the end of the run over its final world.
void RenderGameOverOverlay(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices);
