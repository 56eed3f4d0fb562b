#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

struct GameState;

/// Draws the scrolling scenery of a run, ground, shrubs, road and road markings of the whole screen: in two
/// bands while a new stage's scenery grows down from the top.
void DrawScenery(SDL_Renderer *Renderer, const GameState &State);

// Its layers. Themes are values of StageTheme, any other stands for earth; Y0 and Y1 bound a band of the
// screen in logical pixels, and an empty one draws nothing.

/// Tiles the two strips beside the road between Y0 and Y1. Water drifts left where FlowDirection is -1, right
/// where it is 1.
void DrawGround(SDL_Renderer *Renderer, const GameState &State, std::int32_t Theme, float Y0, float Y1,
    std::int32_t FlowDirection);

/// Draws the shrubs whose centres lie between Y0 and Y1.
void DrawRoadside(SDL_Renderer *Renderer, std::int32_t Theme, float RoadScroll, float Y0, float Y1);

/// Tiles the road between Y0 and Y1, with a bridge's rails over water.
void DrawRoad(SDL_Renderer *Renderer, const GameState &State, std::int32_t Theme, float Y0, float Y1);
