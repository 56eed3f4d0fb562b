#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// The first display that SDL lists; 0 if there is none.
SDL_DisplayID FirstDisplay();

/// Refills DisplayModes, Resolutions and RefreshRates from the window's display (the first one without a
/// window) and points ResolutionIndex to the resolution that was current, or to a middling one (of height 720
/// in the built-in lists). Where no size of the display fits the aspect mode, the built-in resolutions stand
/// in.
void RebuildDisplayLists(GameState &State, SDL_Window *Window);
