#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// The scroll past which the credits end, in logical pixels: their last line has left the screen before.
inline constexpr float CreditsScrollEnd = 1090.0F;

/// Draws the credits State.CreditsScroll logical pixels above where they begin, on black.
void RenderCredits(SDL_Renderer *Renderer, const GameState &State);
