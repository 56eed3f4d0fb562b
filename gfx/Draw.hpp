#pragma once

#include "gfx/SpriteId.hpp"

#include <SDL3/SDL.h>

#include <cstdint>

// The drawing primitives. Coordinates are logical pixels; packed colours are 0xAABBGGRR. While the atlas is
// empty the sprite functions draw nothing.

/// Sets the draw colour from a packed one.
void SetDrawColor(SDL_Renderer *Renderer, std::uint32_t PackedColor);

/// Fills a rectangle.
void FillRect(SDL_Renderer *Renderer, float X, float Y, float W, float H, std::uint32_t PackedColor);

/// Fills a disc by spans one pixel high, without anti-aliasing; rows off the logical screen are left out.
void FillDisc(SDL_Renderer *Renderer, float CenterX, float CenterY, float Radius, std::uint32_t PackedColor);

/// How many logical pixels one physical pixel covers, rounded, at least 1: what sprites are snapped to, so
/// that their edges do not shimmer in a window smaller than the logical screen.
int GetPixelSnapStep(SDL_Renderer *Renderer);

/// Value rounded to a multiple of Step; a step under 1 counts as 1.
float SnapToStep(float Value, int Step);

/// Draws a sprite centred on a point, place and size snapped; no side is drawn shorter than the snap step.
void DrawSprite(SDL_Renderer *Renderer, SpriteId Id, float CenterX, float CenterY, float Width, float Height);

/// Lays a reddened copy over a sprite that is drawn already. Only the alpha of the tint is read: the red is
/// always the same.
void DrawSpriteTinted(SDL_Renderer *Renderer, SpriteId Id, float CenterX, float CenterY, float Width,
    float Height, std::uint32_t PackedTint);

/// Covers a rectangle with copies of a sprite, shifted by an offset of any size, each Scale times its pixels.
void DrawTiledSprite(SDL_Renderer *Renderer, SpriteId Id, float X, float Y, float W, float H, float OffsetX,
    float OffsetY, float Scale);
