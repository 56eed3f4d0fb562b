#pragma once

#include <SDL3/SDL.h>

struct GameState;
struct InputDevices;

/// Draws the pause menu over the frozen run, which RenderGameplay has drawn.
void RenderPauseOverlay(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices);
