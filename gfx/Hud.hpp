#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// Draws the numbers left of the road and the bars and counters right of it.
void DrawHud(SDL_Renderer *Renderer, const GameState &State);

/// Draws what lies over the HUD, each only while it lasts: the READY banner and the blast of a bomb.
void DrawGameplayOverlays(SDL_Renderer *Renderer, const GameState &State);
