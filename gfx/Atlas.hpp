#pragma once

#include "gfx/SpriteId.hpp"

#include <SDL3/SDL.h>

#include <array>

/// All sprites in one texture: where each stands, in atlas pixels. The texture is empty until the atlas is
/// built.
struct TextureAtlas {
    SDL_Texture *Texture = nullptr;
    std::array<SDL_FRect, SpriteCount> Source{};
};

/// Process-wide on purpose: built once at start-up, read by every drawing function.
extern TextureAtlas SpriteAtlas;

/// Paints a sprite pixel by pixel with its cell's corner at (X, Y). An id that is no sprite paints nothing.
void PaintSprite(SDL_Renderer *Renderer, SpriteId Id, float X, float Y);

/// Creates and fills the atlas; does nothing if it exists. False if the texture cannot be created or drawn
/// to; SDL_GetError tells why.
bool BuildTextureAtlas(SDL_Renderer *Renderer);

/// Destroys the atlas texture; the drawing functions do nothing from then on.
void DestroyTextureAtlas();

/// Gives the window the player's car as its icon, 64 by 64. False if any step fails; SDL_GetError tells why.
bool SetWindowIconFromAtlas(SDL_Window *Window, SDL_Renderer *Renderer);
