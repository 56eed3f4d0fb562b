#pragma once

#include "gfx/SpriteId.hpp"

#include <SDL3/SDL.h>

#include <array>

/// All sprites in one texture.
struct TextureAtlas {
    SDL_Texture *Texture = nullptr;              ///< null until the atlas is built
    std::array<SDL_FRect, SpriteCount> Source{}; ///< where each sprite stands, by SpriteId, in texture pixels
};

/// The one atlas of the process: built once at start-up, read by every drawing function.
extern TextureAtlas SpriteAtlas;

/// Fills a sprite's pixels on the render target, for which it needs no atlas, with the upper left corner of
/// its cell at (X, Y). An id that is no sprite paints nothing.
void PaintSprite(SDL_Renderer *Renderer, SpriteId Id, float X, float Y);

/// Creates and fills the atlas; does nothing if it exists. False if the texture cannot be created or drawn
/// to; SDL_GetError tells why. It is to be destroyed before the renderer.
bool BuildTextureAtlas(SDL_Renderer *Renderer);

/// Destroys the atlas texture; from then on no sprite is drawn.
void DestroyTextureAtlas();

/// Gives the window the player's car as its icon, 64 by 64. False if any step fails; SDL_GetError tells why.
bool SetWindowIconFromAtlas(SDL_Window *Window, SDL_Renderer *Renderer);
