#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// Draws the title, the rows of the main menu and the footer on black.
void RenderMainMenu(SDL_Renderer *Renderer, const GameState &State);
