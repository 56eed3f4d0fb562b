#include "gfx/Draw.hpp"

#include "gfx/Atlas.hpp"
#include "gfx/Clip.hpp"
#include "gfx/PackedColor.hpp"
#include "gfx/SpriteMaps.hpp"
#include "state/LogicalScreen.hpp"
#include "state/Numbers.hpp"

#include <algorithm>
#include <cmath>

namespace {

// Beyond anything of a run: what a damaged file may ask for could take seconds to draw.
// NOT-BUGS: No sprite is drawn larger than 1024 pixels
constexpr float LargestSprite = 1024.0F;
constexpr float LargestRadius = 1e6F;
constexpr float FarthestY = 1e6F;

const SDL_FRect &SourceOf(SpriteId Id) {
    return SpriteAtlas.Source[static_cast<std::size_t>(Id)];
}

float SnapSize(float Size, int Step) {
    return std::max(SnapToStep(std::clamp(Size, 1.0F, LargestSprite), Step), static_cast<float>(Step));
}

/// Where a sprite centred on a point lands.
SDL_FRect SpriteRect(SDL_Renderer *Renderer, float CenterX, float CenterY, float Width, float Height) {
    const int step = GetPixelSnapStep(Renderer);
    const float width = SnapSize(Width, step);
    const float height = SnapSize(Height, step);
    return {
        SnapToStep(CenterX, step) - width * 0.5F, SnapToStep(CenterY, step) - height * 0.5F, width, height};
}

/// The scale at which the logical screen is shown, at least 0.0001, or 1 where the renderer does not tell.
float PresentationScale(SDL_Renderer *Renderer) {
    SDL_FRect shown{};
    if (Renderer == nullptr || !SDL_GetRenderLogicalPresentationRect(Renderer, &shown) || shown.w <= 0.0F ||
        shown.h <= 0.0F) {
        return 1.0F;
    }
    const float scale = std::min(shown.h / LogicalHeightF, shown.w / static_cast<float>(LogicalWidth));
    return std::max(scale, 0.0001F);
}

/// False for NaN as well.
bool IsWithinReach(float Y) {
    return std::abs(Y) < FarthestY;
}

int TileSize(float SourceSize, float Scale) {
    return std::max(RoundToInt(SourceSize * Scale), 1);
}

/// Lays tiles side by side and row by row, the first with its corner at First, up to End.
void LayTiles(
    SDL_Renderer *Renderer, const SDL_FRect &Source, SDL_Point First, SDL_Point Size, SDL_Point End) {
    for (int ty = First.y; ty < End.y; ty += Size.y) {
        for (int tx = First.x; tx < End.x; tx += Size.x) {
            // NOT-BUGS: Tiles of ground and road are drawn one pixel taller than they are
            const SDL_FRect tile{static_cast<float>(tx), static_cast<float>(ty), static_cast<float>(Size.x),
                static_cast<float>(Size.y + 1)};
            SDL_RenderTexture(Renderer, SpriteAtlas.Texture, &Source, &tile);
        }
    }
}

} // namespace

void SetDrawColor(SDL_Renderer *Renderer, std::uint32_t PackedColor) {
    const Color color = Unpacked(PackedColor);
    SDL_SetRenderDrawColor(Renderer, color.R, color.G, color.B, color.A);
}

void FillRect(SDL_Renderer *Renderer, float X, float Y, float W, float H, std::uint32_t PackedColor) {
    SetDrawColor(Renderer, PackedColor);
    const SDL_FRect rect{X, Y, W, H};
    SDL_RenderFillRect(Renderer, &rect);
}

void FillDisc(SDL_Renderer *Renderer, float CenterX, float CenterY, float Radius, std::uint32_t PackedColor) {
    SetDrawColor(Renderer, PackedColor);
    if (!IsWithinReach(CenterY)) {
        return;
    }
    const float radius = std::clamp(Radius, -LargestRadius, LargestRadius);
    const int r = RoundToInt(radius);
    // Spans that lie wholly above or below the screen are left out.
    const int first = std::max(-r, TruncateToInt(-CenterY) - 1);
    const int last = std::min(r, TruncateToInt(LogicalHeightF - CenterY) + 1);
    for (int d = first; d <= last; ++d) {
        const auto offset = static_cast<float>(d);
        const float half = std::sqrt(std::max(radius * radius - offset * offset, 0.0F));
        const SDL_FRect span{CenterX - half, CenterY + offset, 2.0F * half + 1.0F, 1.0F};
        SDL_RenderFillRect(Renderer, &span);
    }
}

int GetPixelSnapStep(SDL_Renderer *Renderer) {
    const float scale = PresentationScale(Renderer);
    if (scale >= 1.0F) {
        return 1;
    }
    return std::max(RoundToInt(1.0F / scale), 1);
}

float SnapToStep(float Value, int Step) {
    const auto step = static_cast<float>(std::max(Step, 1));
    return RoundToWhole(Value / step) * step;
}

void DrawSprite(
    SDL_Renderer *Renderer, SpriteId Id, float CenterX, float CenterY, float Width, float Height) {
    if (SpriteAtlas.Texture == nullptr) {
        return;
    }
    const SDL_FRect target = SpriteRect(Renderer, CenterX, CenterY, Width, Height);
    SDL_RenderTexture(Renderer, SpriteAtlas.Texture, &SourceOf(Id), &target);
}

void DrawSpriteTinted(SDL_Renderer *Renderer, SpriteId Id, float CenterX, float CenterY, float Width,
    float Height, std::uint32_t PackedTint) {
    if (SpriteAtlas.Texture == nullptr) {
        return;
    }
    const SDL_FRect target = SpriteRect(Renderer, CenterX, CenterY, Width, Height);
    // NOT-BUGS: Every tint is the same red
    SDL_SetTextureColorMod(SpriteAtlas.Texture, 255, 60, 60);
    SDL_SetTextureAlphaMod(SpriteAtlas.Texture, Unpacked(PackedTint).A);
    SDL_RenderTexture(Renderer, SpriteAtlas.Texture, &SourceOf(Id), &target);
    SDL_SetTextureColorMod(SpriteAtlas.Texture, 255, 255, 255);
    SDL_SetTextureAlphaMod(SpriteAtlas.Texture, 255);
}

void DrawTiledSprite(SDL_Renderer *Renderer, SpriteId Id, float X, float Y, float W, float H, float OffsetX,
    float OffsetY, float Scale) {
    if (SpriteAtlas.Texture == nullptr || W <= 0.0F || H <= 0.0F || Scale <= 0.0F) {
        return;
    }
    const int left = TruncateToInt(std::floor(X));
    const int top = TruncateToInt(std::floor(Y));
    const int right = TruncateToInt(std::ceil(X + W));
    const int bottom = TruncateToInt(std::ceil(Y + H));
    const SDL_Rect clip{left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
    if (SDL_RectEmpty(&clip)) {
        return;
    }
    const SDL_FRect &source = SourceOf(Id);
    const SDL_Point size{TileSize(source.w, Scale), TileSize(source.h, Scale)};
    const SDL_Point first{
        left + FloorModulo(OffsetX, size.x) - size.x, top + FloorModulo(OffsetY, size.y) - size.y};
    const ClipGuard guard(Renderer);
    SDL_SetRenderClipRect(Renderer, &clip);
    // Opaque tiles look the same without blending, and a software renderer copies them much faster so.
    const bool isOpaque = IsOpaque(Id);
    if (isOpaque) {
        SDL_SetTextureBlendMode(SpriteAtlas.Texture, SDL_BLENDMODE_NONE);
    }
    LayTiles(Renderer, source, first, size, {right, bottom});
    if (isOpaque) {
        SDL_SetTextureBlendMode(SpriteAtlas.Texture, SDL_BLENDMODE_BLEND);
    }
}
