#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <string_view>

// Text in the built-in font. A text is UTF-8 and may hold any bytes; Scale is the side of a glyph's squares
// in logical pixels; packed colours are 0xAABBGGRR. Nothing here allocates.

/// The width of a text in logical pixels, with the blank columns behind its last glyph.
int MeasureText(std::string_view Text, int Scale);

/// The width without those blank columns; never below 0. A space at the end counts as a glyph without ink.
int MeasureTextVisible(std::string_view Text, int Scale);

/// Draws a text with its top left corner at (X, Y). There is no line breaking and no snapping.
void DrawText(
    SDL_Renderer *Renderer, std::string_view Text, float X, float Y, int Scale, std::uint32_t PackedColor);

/// Draws a text centred about CenterX by its measured width.
void DrawTextCentered(SDL_Renderer *Renderer, std::string_view Text, float CenterX, float Y, int Scale,
    std::uint32_t PackedColor);
