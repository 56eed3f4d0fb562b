#pragma once

#include "gfx/SpriteId.hpp"

#include <SDL3/SDL.h>

#include <cstdint>

// The drawing primitives. Coordinates are logical pixels; packed colours are 0xAABBGGRR. While the atlas is
// empty the sprite functions draw nothing; Id is one of the enumeration.

/// Sets the renderer's draw colour.
void SetDrawColor(SDL_Renderer *Renderer, std::uint32_t PackedColor);

/// Sets the draw colour and fills a rectangle.
void FillRect(SDL_Renderer *Renderer, float X, float Y, float W, float H, std::uint32_t PackedColor);

/// Sets the draw colour and fills a disc by spans one pixel high, without anti-aliasing; rows off the logical
/// screen are left out.
void FillDisc(SDL_Renderer *Renderer, float CenterX, float CenterY, float Radius, std::uint32_t PackedColor);

/// How many logical pixels one physical pixel covers, rounded, at least 1, and 1 without a renderer: what
/// sprites are snapped to, so that their edges do not shimmer in a window smaller than the logical screen.
int GetPixelSnapStep(SDL_Renderer *Renderer);

/// Value rounded to the nearest multiple of Step, half away from zero; a step under 1 counts as 1.
float SnapToStep(float Value, int Step);

/// Draws a sprite centred on a point. Place and size are snapped; a side is at least the snap step and,
/// before it is snapped, at most 1024.
void DrawSprite(SDL_Renderer *Renderer, SpriteId Id, float CenterX, float CenterY, float Width, float Height);

/// Lays a reddened copy over a sprite that is drawn already, placed as DrawSprite does it. Only the alpha of
/// the tint is read.
void DrawSpriteTinted(SDL_Renderer *Renderer, SpriteId Id, float CenterX, float CenterY, float Width,
    float Height, std::uint32_t PackedTint);

/// Covers a rectangle, widened to whole pixels, with copies of a sprite from its corner on: each is Scale
/// times the sprite's pixels, rounded, and shifted by an offset of any size, rounded down. Draws nothing
/// unless W, H and Scale are above 0.
void DrawTiledSprite(SDL_Renderer *Renderer, SpriteId Id, float X, float Y, float W, float H, float OffsetX,
    float OffsetY, float Scale);
