#include "gfx/Atlas.hpp"

#include "gfx/Clip.hpp"
#include "gfx/Draw.hpp"
#include "gfx/SpriteMaps.hpp"

#include <array>
#include <cmath>
#include <cstddef>
#include <memory>

TextureAtlas SpriteAtlas;

namespace {

constexpr int CellsAcross = 5;
constexpr int CellPitch = SpriteSize + 2; ///< with a gutter of one pixel on every side
constexpr int AtlasSize = CellsAcross * CellPitch;
constexpr int IconSize = 64;

static_assert(SpriteCount <= CellsAcross * CellsAcross, "the atlas is too small for the sprites");

/// A part of the gutter around a cell, from the cell's corner, and the shift of the paint that fills it.
struct GutterPart {
    SDL_Rect Clip;
    SDL_FPoint Shift;
};

constexpr auto Gutter = std::to_array<GutterPart>({
    {{0, -1, SpriteSize, 1}, {0.0F, -1.0F}},
    {{0, SpriteSize, SpriteSize, 1}, {0.0F, 1.0F}},
    {{-1, 0, 1, SpriteSize}, {-1.0F, 0.0F}},
    {{SpriteSize, 0, 1, SpriteSize}, {1.0F, 0.0F}},
    {{-1, -1, 1, 1}, {-1.0F, -1.0F}},
    {{SpriteSize, -1, 1, 1}, {1.0F, -1.0F}},
    {{-1, SpriteSize, 1, 1}, {-1.0F, 1.0F}},
    {{SpriteSize, SpriteSize, 1, 1}, {1.0F, 1.0F}},
});

/// Paints a sprite with its cell's corner at (X, Y), but for the runs that lie wholly outside of Visible:
/// most of a sprite when only its edge is wanted.
void PaintRuns(SDL_Renderer *Renderer, const SpriteMap &Map, float X, float Y, const SDL_FRect &Visible) {
    for (std::size_t y = 0; y < Map.Rows.size(); ++y) {
        ForEachRun(Map.Rows[y], [&](std::size_t Start, std::size_t Length, char Symbol) {
            const SDL_FRect run{
                X + static_cast<float>(Start), Y + static_cast<float>(y), static_cast<float>(Length), 1.0F};
            if (SDL_HasRectIntersectionFloat(&run, &Visible)) {
                FillRect(Renderer, run.x, run.y, run.w, run.h, SymbolColor(Map, Symbol));
            }
        });
    }
}

/// Fills the gutter around a painted cell with the cell's own edge, so that sampling just outside of it never
/// meets a neighbour.
void FillGutter(SDL_Renderer *Renderer, SpriteId Id, float X, float Y) {
    const ClipGuard guard(Renderer);
    const int left = static_cast<int>(std::lround(X));
    const int top = static_cast<int>(std::lround(Y));
    for (const GutterPart &part : Gutter) {
        const SDL_Rect clip{left + part.Clip.x, top + part.Clip.y, part.Clip.w, part.Clip.h};
        SDL_SetRenderClipRect(Renderer, &clip);
        SDL_FRect visible;
        SDL_RectToFRect(&clip, &visible);
        PaintRuns(Renderer, MapOf(Id), X + part.Shift.x, Y + part.Shift.y, visible);
    }
}

SDL_FRect CellOf(std::int32_t Id) {
    const int column = Id % CellsAcross;
    const int row = Id / CellsAcross;
    return {static_cast<float>(column * CellPitch + 1), static_cast<float>(row * CellPitch + 1), SpriteSize,
        SpriteSize};
}

void PaintAllSprites(SDL_Renderer *Renderer) {
    SetDrawColor(Renderer, 0);
    SDL_RenderClear(Renderer);
    for (std::int32_t i = 0; i < SpriteCount; ++i) {
        const SDL_FRect cell = CellOf(i);
        const auto id = static_cast<SpriteId>(i);
        SpriteAtlas.Source[static_cast<std::size_t>(i)] = cell;
        PaintSprite(Renderer, id, cell.x, cell.y);
        FillGutter(Renderer, id, cell.x, cell.y);
    }
}

struct SurfaceDeleter {
    void operator()(SDL_Surface *Surface) const {
        SDL_DestroySurface(Surface);
    }
};
using SurfaceOwner = std::unique_ptr<SDL_Surface, SurfaceDeleter>;

/// The pixels of a sprite, read back from the atlas; null on failure.
SurfaceOwner ReadSprite(SDL_Renderer *Renderer, SpriteId Id) {
    const SDL_FRect &source = SpriteAtlas.Source[static_cast<std::size_t>(Id)];
    const SDL_Rect rect{static_cast<int>(std::lround(source.x)), static_cast<int>(std::lround(source.y)),
        static_cast<int>(std::lround(source.w)), static_cast<int>(std::lround(source.h))};
    // BuildTextureAtlas stores no such size, but any code can write to the record.
    if (rect.w < 1 || rect.h < 1) {
        SDL_SetError("The sprite has no size");
        return nullptr;
    }
    SDL_Texture *oldTarget = SDL_GetRenderTarget(Renderer);
    if (!SDL_SetRenderTarget(Renderer, SpriteAtlas.Texture)) {
        return nullptr;
    }
    SurfaceOwner pixels(SDL_RenderReadPixels(Renderer, &rect));
    SDL_SetRenderTarget(Renderer, oldTarget);
    return pixels;
}

/// An enlarged copy of Pixels with crisp blocks; null on failure.
SurfaceOwner EnlargeToIcon(SDL_Surface *Pixels) {
    SurfaceOwner icon(SDL_CreateSurface(IconSize, IconSize, SDL_PIXELFORMAT_RGBA8888));
    if (icon == nullptr) {
        return nullptr;
    }
    SDL_FillSurfaceRect(icon.get(), nullptr, SDL_MapSurfaceRGBA(icon.get(), 0, 0, 0, 0));
    const SDL_Rect whole{0, 0, IconSize, IconSize};
    if (!SDL_BlitSurfaceScaled(Pixels, nullptr, icon.get(), &whole, SDL_SCALEMODE_NEAREST)) {
        return nullptr;
    }
    return icon;
}

} // namespace

void PaintSprite(SDL_Renderer *Renderer, SpriteId Id, float X, float Y) {
    if (Id < 0 || Id >= SpriteCount) {
        return;
    }
    PaintRuns(Renderer, MapOf(Id), X, Y, {X, Y, SpriteSize, SpriteSize});
}

bool BuildTextureAtlas(SDL_Renderer *Renderer) {
    if (SpriteAtlas.Texture != nullptr) {
        return true;
    }
    SDL_Texture *texture =
        SDL_CreateTexture(Renderer, SDL_PIXELFORMAT_RGBA8888, SDL_TEXTUREACCESS_TARGET, AtlasSize, AtlasSize);
    if (texture == nullptr) {
        return false;
    }
    SDL_SetTextureBlendMode(texture, SDL_BLENDMODE_BLEND);
    SDL_SetTextureScaleMode(texture, SDL_SCALEMODE_NEAREST);
    SDL_Texture *oldTarget = SDL_GetRenderTarget(Renderer);
    if (!SDL_SetRenderTarget(Renderer, texture)) {
        SDL_DestroyTexture(texture);
        return false;
    }
    PaintAllSprites(Renderer);
    SDL_SetRenderTarget(Renderer, oldTarget);
    SpriteAtlas.Texture = texture;
    return true;
}

void DestroyTextureAtlas() {
    SDL_DestroyTexture(SpriteAtlas.Texture);
    SpriteAtlas.Texture = nullptr;
}

bool SetWindowIconFromAtlas(SDL_Window *Window, SDL_Renderer *Renderer) {
    if (SpriteAtlas.Texture == nullptr) {
        return SDL_SetError("The sprite atlas is empty");
    }
    const SurfaceOwner pixels = ReadSprite(Renderer, SpritePlayer);
    const SurfaceOwner icon = pixels != nullptr ? EnlargeToIcon(pixels.get()) : nullptr;
    return icon != nullptr && SDL_SetWindowIcon(Window, icon.get());
}
