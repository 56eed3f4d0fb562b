#pragma once

#include <SDL3/SDL.h>

#include <string_view>

struct GameState;
struct InputDevices;

/// Draws the rows of the Controls page, and below them the prompt of a capture or else the hints. DeviceLine
/// is the controller hint, which may be empty.
void DrawControlsPage(
    SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices, std::string_view DeviceLine);
