#include "tests/support/Picture.hpp"

#include <gtest/gtest.h>

#include <algorithm>

Picture::Picture(SDL_Surface *Surface)
    : PixelWidth(Surface->w), PixelHeight(Surface->h),
      Pixels(static_cast<std::size_t>(Surface->w) * static_cast<std::size_t>(Surface->h)) {
    EXPECT_TRUE(SDL_ConvertPixels(PixelWidth, PixelHeight, Surface->format, Surface->pixels, Surface->pitch,
        SDL_PIXELFORMAT_ABGR8888, Pixels.data(), PixelWidth * 4))
        << SDL_GetError();
}

std::uint32_t Picture::At(int X, int Y) const {
    const auto index =
        static_cast<std::size_t>(Y) * static_cast<std::size_t>(PixelWidth) + static_cast<std::size_t>(X);
    return Pixels.at(index);
}

std::span<const std::uint32_t> Picture::Row(int Y) const {
    const auto width = static_cast<std::size_t>(PixelWidth);
    return std::span(Pixels).subspan(static_cast<std::size_t>(Y) * width, width);
}

SDL_Rect Picture::BoundsOfAllBut(std::uint32_t PackedColor) const {
    int left = PixelWidth;
    int top = PixelHeight;
    int right = 0;
    int bottom = 0;
    for (int y = 0; y < PixelHeight; ++y) {
        const std::span<const std::uint32_t> row = Row(y);
        const auto isOther = [PackedColor](std::uint32_t Color) {
            return Color != PackedColor;
        };
        const auto first = std::find_if(row.begin(), row.end(), isOther);
        if (first == row.end()) {
            continue;
        }
        const auto last = std::find_if(row.rbegin(), row.rend(), isOther);
        left = std::min(left, static_cast<int>(first - row.begin()));
        top = std::min(top, y);
        right = std::max(right, static_cast<int>(row.rend() - last));
        bottom = y + 1;
    }
    return right == 0 ? SDL_Rect{0, 0, 0, 0} : SDL_Rect{left, top, right - left, bottom - top};
}

Canvas::Canvas(int Width, int Height, std::uint32_t Background)
    : Surface(SDL_CreateSurface(Width, Height, SDL_PIXELFORMAT_ARGB8888)),
      SoftwareRenderer(SDL_CreateSoftwareRenderer(Surface)) {
    EXPECT_NE(SoftwareRenderer, nullptr) << SDL_GetError();
    SDL_SetRenderDrawBlendMode(SoftwareRenderer, SDL_BLENDMODE_BLEND);
    Clear(Background);
}

Canvas::~Canvas() {
    SDL_DestroyRenderer(SoftwareRenderer);
    SDL_DestroySurface(Surface);
}

void Canvas::ShowLogicalScreen(int Width, int Height) {
    EXPECT_TRUE(
        SDL_SetRenderLogicalPresentation(SoftwareRenderer, Width, Height, SDL_LOGICAL_PRESENTATION_LETTERBOX))
        << SDL_GetError();
}

void Canvas::Clear(std::uint32_t PackedColor) {
    SDL_FlushRenderer(SoftwareRenderer);
    const Uint32 color = SDL_MapSurfaceRGBA(Surface, static_cast<Uint8>(PackedColor & 0xFFU),
        static_cast<Uint8>(PackedColor >> 8U & 0xFFU), static_cast<Uint8>(PackedColor >> 16U & 0xFFU),
        static_cast<Uint8>(PackedColor >> 24U));
    SDL_Rect oldClip{};
    SDL_GetSurfaceClipRect(Surface, &oldClip);
    SDL_SetSurfaceClipRect(Surface, nullptr);
    SDL_FillSurfaceRect(Surface, nullptr, color);
    SDL_SetSurfaceClipRect(Surface, &oldClip);
}

Picture Canvas::Shown() const {
    SDL_FlushRenderer(SoftwareRenderer);
    return Picture(Surface);
}

Picture TexturePicture(SDL_Renderer *Renderer, SDL_Texture *Texture) {
    SDL_Texture *oldTarget = SDL_GetRenderTarget(Renderer);
    EXPECT_TRUE(SDL_SetRenderTarget(Renderer, Texture)) << SDL_GetError();
    SDL_Surface *pixels = SDL_RenderReadPixels(Renderer, nullptr);
    SDL_SetRenderTarget(Renderer, oldTarget);
    Picture picture(pixels);
    SDL_DestroySurface(pixels);
    return picture;
}
