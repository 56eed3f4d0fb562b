#pragma once

#include "tests/support/Picture.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

/// What a frame must show, pixel by pixel, worked out from the art's master list and the rules of drawing
/// alone. One logical pixel is one pixel here. Colours are packed 0xAABBGGRR.
///
/// SDL's software renderer puts everything on whole pixels, cutting the fractions of corners and sizes off.
/// Where an enlarged pixel's centre falls right on the border of two of the art's pixels, either is right:
/// such a pixel has several colours that it may show.
class ExpectedPicture {
public:
    ExpectedPicture(int Width, int Height, std::uint32_t Background = Backdrop);

    /// What a picture shows, to be met exactly.
    explicit ExpectedPicture(const Picture &Ground);

    /// An opaque rectangle of whole pixels.
    void Fill(int X, int Y, int W, int H, std::uint32_t PackedColor);

    /// A rectangle of whole pixels, blended with the colour's alpha.
    void BlendRect(int X, int Y, int W, int H, std::uint32_t PackedColor);

    /// A sprite centred on a point, W by H pixels in size.
    void Sprite(std::int32_t Id, float CenterX, float CenterY, int W, int H);

    /// A reddened copy of a sprite: the art's colours times (255, 60, 60) / 255, with an alpha.
    void RedSprite(std::int32_t Id, float CenterX, float CenterY, int W, int H, int Alpha);

    /// A sprite with its own reddened copy over it.
    void FlashedSprite(std::int32_t Id, float CenterX, float CenterY, int W, int H, int Alpha);

    /// A rectangle of whole pixels covered with copies of a sprite of TileSize by TileSize (each a pixel
    /// taller, covered by the next row), the pattern shifted by whole offsets.
    void Tiles(std::int32_t Id, SDL_Rect Area, int OffsetX, int OffsetY, int TileSize = 32);

    /// A disc around a whole pixel's corner: for each whole row offset d within the rounded radius, a span
    /// from half the chord left of the centre, the chord plus 1 long.
    void Disc(int CenterX, int CenterY, double Radius, std::uint32_t PackedColor);

    /// Whether a picture shows this everywhere, or within an area.
    ::testing::AssertionResult IsShownBy(const Picture &Shown) const;
    ::testing::AssertionResult IsShownBy(const Picture &Shown, SDL_Rect Area) const;

private:
    /// All that one pixel may show.
    struct Pixel {
        std::array<std::uint32_t, 8> Colors{};
        std::size_t Count = 0;
        int Tolerance = 0; ///< per channel: above 0 where colours are blended

        void Allow(std::uint32_t PackedColor);
        void AllowAll(const Pixel &Other);
        bool Allows(std::uint32_t PackedColor) const;
    };

    /// The art's pixels that may show at one place of an enlarged sprite, First to Last.
    struct TexelRange {
        int First;
        int Last;
    };

    static TexelRange TexelsAt(double Place, double Length, double Slack);
    static std::vector<TexelRange> TiledTexels(int Length, int Offset, int Spacing, int TileLength);
    bool Holds(int X, int Y) const;
    SDL_Rect Held(int X, int Y, int W, int H) const;
    std::size_t PlaceOf(int X, int Y) const;
    bool IsAmbiguous(std::size_t Place) const;
    bool Allows(std::size_t Place, std::uint32_t PackedColor) const;
    Pixel PixelAt(std::size_t Place) const;
    void PutPixel(std::size_t Place, const Pixel &NewPixel);
    void PutTexels(int X, int Y, std::int32_t Id, TexelRange Columns, TexelRange Rows);
    void PutRedTexels(int X, int Y, std::int32_t Id, TexelRange Columns, TexelRange Rows, int Alpha);
    void PutFlashedTexels(int X, int Y, std::int32_t Id, TexelRange Columns, TexelRange Rows, int Alpha);
    template <typename Put> void ForEachTexel(float CenterX, float CenterY, int W, int H, Put PutTexel);
    void BlendAmbiguous(std::size_t Place, std::uint32_t PackedColor);
    void DiscRow(int CenterX, int Y, double Half, std::uint32_t PackedColor);

    int PixelWidth;
    int PixelHeight;
    // Row by row; the few pixels that may show one of several colours are marked in Tolerances and looked up.
    std::vector<std::uint32_t> Colors;
    std::vector<std::int16_t> Tolerances;
    std::unordered_map<std::size_t, Pixel> Ambiguous;
};
