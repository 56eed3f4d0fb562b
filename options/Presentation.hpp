#pragma once

#include <SDL3/SDL.h>

struct GameState;

/// Has the renderer fit the logical screen into the window, whole and with bars at two sides where the shapes
/// differ. A failure is logged. Window is only asked whether it is there: without it (null) nothing happens.
void ApplyLogicalPresentation(SDL_Window *Window, SDL_Renderer *Renderer);

/// Brings LogicalWidth, window and renderer in line with the applied display options. What is on the road
/// keeps its place on it, VSyncActive becomes what the renderer reports, and ResetFrameClock is set. A call
/// that fails is logged, and the rest is done all the same. Without a window (null) nothing happens.
void ApplyDisplaySettings(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer);
