#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// Letterboxes the logical screen into the window; without a window nothing happens. A failure is logged.
void ApplyLogicalPresentation(SDL_Window *Window, SDL_Renderer *Renderer);

/// Brings window and renderer in line with the options: logical width (a run in progress moves along with the
/// road), fullscreen state, window size, vertical sync (VSyncActive becomes what the renderer reports).
/// Failures are logged and never undo anything; the frame clock restarts. Without a window nothing happens.
void ApplyDisplaySettings(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer);
