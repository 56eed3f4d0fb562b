#pragma once

#include <SDL3/SDL.h>

#include <string_view>

struct GameState;

/// Draws the rows of the Audio page and the hints. DeviceLine is the controller hint, which may be empty.
void DrawAudioPage(SDL_Renderer *Renderer, const GameState &State, std::string_view DeviceLine);
