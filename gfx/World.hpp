#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// Draws the whole scene of a run with its HUD, over a frame that has been cleared.
void RenderGameplay(SDL_Renderer *Renderer, const GameState &State);
