#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

/// A box in the middle of the screen, in logical pixels.
struct Panel {
    float X = 0.0F;
    float Y = 0.0F;
    float Width = 0.0F;
    float Height = 0.0F;

    float CenterX() const {
        return X + Width * 0.5F;
    }
};

/// A panel of this height that holds ContentWidth and Padding (left and right together), at least MinWidth
/// wide and never wider than the screen less 80 pixels.
Panel PlacePanel(float ContentWidth, float Padding, float MinWidth, float Height);

/// Draws the border and over it the veil, both translucent. VeilColor is packed 0xAABBGGRR.
void DrawPanel(SDL_Renderer *Renderer, const Panel &Box, std::uint32_t VeilColor);
