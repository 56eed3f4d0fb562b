// Paints the desktop's icon, the player's car in blocks of 8 by 8 pixels: `icon <file.png>`.

#include "gfx/Atlas.hpp"
#include "gfx/SpriteMaps.hpp"

#include <cstdio>

namespace {

constexpr int Scale = 8;

bool SaveIcon(SDL_Surface *Picture, const char *File) {
    SDL_Renderer *renderer = SDL_CreateSoftwareRenderer(Picture);
    if (renderer == nullptr) {
        return false;
    }
    SDL_SetRenderScale(renderer, Scale, Scale);
    PaintSprite(renderer, SpritePlayer, 0.0F, 0.0F);
    const bool saved = SDL_FlushRenderer(renderer) && SDL_SavePNG(Picture, File);
    SDL_DestroyRenderer(renderer);
    return saved;
}

} // namespace

int main(int ArgumentCount, char **Arguments) {
    if (ArgumentCount != 2) {
        std::fprintf(stderr, "usage: icon <file.png>\n");
        return 2;
    }
    constexpr int size = SpriteSize * Scale;
    SDL_Surface *picture = SDL_CreateSurface(size, size, SDL_PIXELFORMAT_RGBA32);
    const bool saved = picture != nullptr && SaveIcon(picture, Arguments[1]);
    if (!saved) {
        std::fprintf(stderr, "icon: %s\n", SDL_GetError());
    }
    SDL_DestroySurface(picture);
    return saved ? 0 : 1;
}
