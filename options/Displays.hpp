#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// The first display that SDL lists; 0 if there is none.
SDL_DisplayID FirstDisplay();

/// Refills DisplayModes, Resolutions and RefreshRates from the display of the window, or the first one where
/// that is unknown or Window is null. Resolutions are the sizes that fit the aspect mode, or the built-in
/// ones where none fits. ResolutionIndex then points to the size that was current before, or else is
/// DefaultResolutionIndex, at most the last. A RefreshRate that is not offered there becomes automatic (0).
void RebuildDisplayLists(GameState &State, SDL_Window *Window);
