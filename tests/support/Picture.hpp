#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <span>
#include <vector>

// Real frames in memory, and their pixels. Colours are packed 0xAABBGGRR, red in the lowest byte.

/// A colour that no picture of the game holds: what shows through is known by it.
inline constexpr std::uint32_t Backdrop = 0xFFFF00FF;

/// The pixels of a frame at one moment.
class Picture {
public:
    /// Copies the pixels of a surface of any format.
    explicit Picture(SDL_Surface *Surface);

    int Width() const {
        return PixelWidth;
    }
    int Height() const {
        return PixelHeight;
    }

    /// The colour at a place inside the picture.
    std::uint32_t At(int X, int Y) const;

    /// The colours of a whole row.
    std::span<const std::uint32_t> Row(int Y) const;

    /// The smallest box around all that is not of one colour; of width 0 if there is nothing else.
    SDL_Rect BoundsOfAllBut(std::uint32_t PackedColor) const;

    bool operator==(const Picture &) const = default;

private:
    int PixelWidth;
    int PixelHeight;
    std::vector<std::uint32_t> Pixels;
};

/// A surface with a software renderer on it, drawing with blending like the game's own.
class Canvas {
public:
    /// Of that many physical pixels, filled with one colour.
    Canvas(int Width, int Height, std::uint32_t Background = Backdrop);
    ~Canvas();
    Canvas(const Canvas &) = delete;
    Canvas &operator=(const Canvas &) = delete;

    /// Letterboxes a logical screen into the surface.
    void ShowLogicalScreen(int Width, int Height);

    /// Fills the whole surface with one colour.
    void Clear(std::uint32_t PackedColor);

    /// What has been drawn up to now.
    Picture Shown() const;

    SDL_Renderer *Renderer() const {
        return SoftwareRenderer;
    }

private:
    SDL_Surface *Surface;
    SDL_Renderer *SoftwareRenderer;
};

/// The pixels of a target texture. The render target is put back.
Picture TexturePicture(SDL_Renderer *Renderer, SDL_Texture *Texture);
