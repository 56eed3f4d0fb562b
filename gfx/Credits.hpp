#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// Draws the credits where their scroll has brought them.
void RenderCredits(SDL_Renderer *Renderer, const GameState &State);
