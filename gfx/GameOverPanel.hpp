#pragma once

#include <SDL3/SDL.h>

struct GameState;
struct InputDevices;

/// Draws the panel of a run's end over the world, which RenderGameplay has drawn.
void RenderGameOverOverlay(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices);
