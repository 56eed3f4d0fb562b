#include "gfx/Atlas.hpp"

#include "gfx/Clip.hpp"
#include "gfx/Draw.hpp"
#include "gfx/SpriteMaps.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

TextureAtlas SpriteAtlas;

namespace {

constexpr int CellsAcross = 5;
constexpr int CellPitch = SpriteSize + 2; ///< a moat of one pixel on every side
constexpr int AtlasSize = CellsAcross * CellPitch;
constexpr int IconSize = 64;

static_assert(SpriteCount <= CellsAcross * CellsAcross, "the atlas is too small for the sprites");

/// One paint of a sprite beside its own cell: the clip lets only one edge or corner of the moat through.
struct Extrusion {
    int ClipX; ///< from the cell's corner
    int ClipY;
    int ClipWidth;
    int ClipHeight;
    int ShiftX;
    int ShiftY;
};

constexpr std::array<Extrusion, 8> Extrusions{{
    {0, -1, 16, 1, 0, -1},
    {0, 16, 16, 1, 0, 1},
    {-1, 0, 1, 16, -1, 0},
    {16, 0, 1, 16, 1, 0},
    {-1, -1, 1, 1, -1, -1},
    {16, -1, 1, 1, 1, -1},
    {-1, 16, 1, 1, -1, 1},
    {16, 16, 1, 1, 1, 1},
}};

/// Paints a sprite with its cell's corner at (X, Y), but for the runs that lie wholly outside of Visible:
/// most of a sprite when only its edge is wanted.
void PaintRuns(SDL_Renderer *Renderer, const SpriteMap &Map, float X, float Y, const SDL_FRect &Visible) {
    for (std::size_t y = 0; y < Map.Rows.size(); ++y) {
        const std::string_view row = Map.Rows[y];
        std::size_t start = 0;
        while (start < row.size()) {
            const std::size_t end = std::min(row.find_first_not_of(row[start], start), row.size());
            const SDL_FRect run{X + static_cast<float>(start), Y + static_cast<float>(y),
                static_cast<float>(end - start), 1.0F};
            if (row[start] != TransparentSymbol && SDL_HasRectIntersectionFloat(&run, &Visible)) {
                FillRect(Renderer, run.x, run.y, run.w, run.h, SymbolColor(Map, row[start]));
            }
            start = end;
        }
    }
}

/// Fills the moat around a painted cell with the cell's own edge, so that sampling just outside of it never
/// meets a neighbour.
void ExtrudeEdges(SDL_Renderer *Renderer, SpriteId Id, float X, float Y) {
    const ClipGuard guard(Renderer);
    const int left = static_cast<int>(std::lround(X));
    const int top = static_cast<int>(std::lround(Y));
    for (const Extrusion &edge : Extrusions) {
        const SDL_Rect clip{left + edge.ClipX, top + edge.ClipY, edge.ClipWidth, edge.ClipHeight};
        SDL_SetRenderClipRect(Renderer, &clip);
        SDL_FRect visible;
        SDL_RectToFRect(&clip, &visible);
        PaintRuns(Renderer, MapOf(Id), X + static_cast<float>(edge.ShiftX),
            Y + static_cast<float>(edge.ShiftY), visible);
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
        ExtrudeEdges(Renderer, id, cell.x, cell.y);
    }
}

/// The pixels of a sprite, read back from the atlas; null on failure. The caller destroys the surface.
SDL_Surface *ReadSprite(SDL_Renderer *Renderer, SpriteId Id) {
    const SDL_FRect &source = SpriteAtlas.Source[static_cast<std::size_t>(Id)];
    const SDL_Rect rect{static_cast<int>(std::lround(source.x)), static_cast<int>(std::lround(source.y)),
        static_cast<int>(std::lround(source.w)), static_cast<int>(std::lround(source.h))};
    if (rect.w < 1 || rect.h < 1) {
        SDL_SetError("The sprite has no size");
        return nullptr;
    }
    SDL_Texture *oldTarget = SDL_GetRenderTarget(Renderer);
    if (!SDL_SetRenderTarget(Renderer, SpriteAtlas.Texture)) {
        return nullptr;
    }
    SDL_Surface *pixels = SDL_RenderReadPixels(Renderer, &rect);
    SDL_SetRenderTarget(Renderer, oldTarget);
    return pixels;
}

/// An enlarged copy of Pixels with crisp blocks; null on failure. The caller destroys the surface.
SDL_Surface *EnlargeToIcon(SDL_Surface *Pixels) {
    SDL_Surface *icon = SDL_CreateSurface(IconSize, IconSize, SDL_PIXELFORMAT_RGBA8888);
    if (icon == nullptr) {
        return nullptr;
    }
    SDL_FillSurfaceRect(icon, nullptr, SDL_MapSurfaceRGBA(icon, 0, 0, 0, 0));
    const SDL_Rect whole{0, 0, IconSize, IconSize};
    if (!SDL_BlitSurfaceScaled(Pixels, nullptr, icon, &whole, SDL_SCALEMODE_NEAREST)) {
        SDL_DestroySurface(icon);
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
    SDL_Surface *pixels = ReadSprite(Renderer, SpritePlayer);
    if (pixels == nullptr) {
        return false;
    }
    SDL_Surface *icon = EnlargeToIcon(pixels);
    SDL_DestroySurface(pixels);
    if (icon == nullptr) {
        return false;
    }
    const bool set = SDL_SetWindowIcon(Window, icon);
    SDL_DestroySurface(icon);
    return set;
}
