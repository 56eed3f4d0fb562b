#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

/// A panel in the middle of the screen, with the world showing through.
struct Panel {
    float X = 0.0F;
    float Y = 0.0F;
    float Width = 0.0F;
    float Height = 0.0F;

    float CenterX() const {
        return X + Width * 0.5F;
    }
};

/// A panel of this height that holds ContentWidth and Padding, at least MinWidth wide and never wider than
/// the screen less its margins.
Panel PlacePanel(float ContentWidth, float Padding, float MinWidth, float Height);

/// Draws the border and the veil.
void DrawPanel(SDL_Renderer *Renderer, const Panel &Panel, std::uint32_t VeilColor);
