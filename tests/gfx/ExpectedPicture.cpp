#include "tests/gfx/ExpectedPicture.hpp"

#include "tests/gfx/Art.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr double TieSlack = 0.002; ///< the renderer's fixed-point steps are that exact over a sprite
constexpr int BlendSlack = 2;      ///< per channel: the renderer cuts two fractions off in each blend
constexpr int RedSlack = 3;        ///< and a third one in reddening
constexpr double CutSlack = 0.6;   ///< a copy cut by a clip rectangle is taken from whole pixels of the art

int Channel(std::uint32_t PackedColor, unsigned Index) {
    return static_cast<int>(PackedColor >> (8U * Index) & 0xFFU);
}

std::uint32_t Mix(std::uint32_t Below, double R, double G, double B, int Alpha) {
    const std::array<double, 3> source{R, G, B};
    std::uint32_t mixed = 0xFF000000;
    for (unsigned i = 0; i < 3; ++i) {
        const double exact = (source[i] * Alpha + Channel(Below, i) * (255 - Alpha)) / 255.0;
        mixed |= static_cast<std::uint32_t>(std::lround(exact)) << (8U * i);
    }
    return mixed;
}

/// A reddened pixel of the art over another colour.
std::uint32_t Redden(std::uint32_t Below, std::uint32_t ArtColor, int Alpha) {
    return Mix(Below, Channel(ArtColor, 0), Channel(ArtColor, 1) * 60 / 255.0,
        Channel(ArtColor, 2) * 60 / 255.0, Alpha);
}

} // namespace

void ExpectedPicture::Pixel::Allow(std::uint32_t PackedColor) {
    const auto end = Colors.begin() + static_cast<std::ptrdiff_t>(Count);
    if (std::find(Colors.begin(), end, PackedColor) == end) {
        Colors.at(Count++) = PackedColor;
    }
}

bool ExpectedPicture::Pixel::Allows(std::uint32_t PackedColor) const {
    for (std::size_t i = 0; i < Count; ++i) {
        int farthest = 0;
        for (unsigned channel = 0; channel < 4; ++channel) {
            farthest =
                std::max(farthest, std::abs(Channel(PackedColor, channel) - Channel(Colors[i], channel)));
        }
        if (farthest <= Tolerance) {
            return true;
        }
    }
    return false;
}

ExpectedPicture::ExpectedPicture(int Width, int Height, std::uint32_t Background)
    : PixelWidth(Width), PixelHeight(Height),
      Pixels(static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height)) {
    Fill(0, 0, Width, Height, Background);
}

bool ExpectedPicture::Holds(int X, int Y) const {
    return X >= 0 && X < PixelWidth && Y >= 0 && Y < PixelHeight;
}

ExpectedPicture::Pixel &ExpectedPicture::PixelAt(int X, int Y) {
    return Pixels.at(
        static_cast<std::size_t>(Y) * static_cast<std::size_t>(PixelWidth) + static_cast<std::size_t>(X));
}

const ExpectedPicture::Pixel &ExpectedPicture::PixelAt(int X, int Y) const {
    return Pixels.at(
        static_cast<std::size_t>(Y) * static_cast<std::size_t>(PixelWidth) + static_cast<std::size_t>(X));
}

void ExpectedPicture::Fill(int X, int Y, int W, int H, std::uint32_t PackedColor) {
    for (int y = Y; y < Y + H; ++y) {
        for (int x = X; x < X + W; ++x) {
            if (Holds(x, y)) {
                Pixel pixel;
                pixel.Allow(PackedColor);
                PixelAt(x, y) = pixel;
            }
        }
    }
}

void ExpectedPicture::Blend(int X, int Y, std::uint32_t PackedColor) {
    if (!Holds(X, Y)) {
        return;
    }
    const Pixel below = PixelAt(X, Y);
    Pixel blended;
    blended.Tolerance = below.Tolerance + BlendSlack;
    for (std::size_t i = 0; i < below.Count; ++i) {
        blended.Allow(Mix(below.Colors[i], Channel(PackedColor, 0), Channel(PackedColor, 1),
            Channel(PackedColor, 2), Channel(PackedColor, 3)));
    }
    PixelAt(X, Y) = blended;
}

void ExpectedPicture::BlendRect(int X, int Y, int W, int H, std::uint32_t PackedColor) {
    for (int y = Y; y < Y + H; ++y) {
        for (int x = X; x < X + W; ++x) {
            Blend(x, y, PackedColor);
        }
    }
}

ExpectedPicture::TexelRange ExpectedPicture::TexelsAt(double Place, double Length, double Slack) {
    const double texel = (Place + 0.5) * 16.0 / Length;
    return {std::clamp(static_cast<int>(std::floor(texel - Slack)), 0, 15),
        std::clamp(static_cast<int>(std::floor(texel + Slack)), 0, 15)};
}

void ExpectedPicture::PutTexels(int X, int Y, std::int32_t Id, TexelRange Columns, TexelRange Rows) {
    if (!Holds(X, Y)) {
        return;
    }
    const Pixel below = PixelAt(X, Y);
    Pixel pixel;
    for (int row = Rows.First; row <= Rows.Last; ++row) {
        for (int column = Columns.First; column <= Columns.Last; ++column) {
            const std::uint32_t color = ArtPixel(Id, column, row);
            if (color != 0) {
                pixel.Allow(color);
                continue;
            }
            pixel.Tolerance = below.Tolerance;
            for (std::size_t i = 0; i < below.Count; ++i) {
                pixel.Allow(below.Colors[i]);
            }
        }
    }
    PixelAt(X, Y) = pixel;
}

template <typename Put>
void ExpectedPicture::ForEachTexel(float CenterX, float CenterY, int W, int H, Put PutTexel) {
    const int left = static_cast<int>(CenterX - static_cast<float>(W) * 0.5F);
    const int top = static_cast<int>(CenterY - static_cast<float>(H) * 0.5F);
    for (int y = 0; y < H; ++y) {
        for (int x = 0; x < W; ++x) {
            PutTexel(left + x, top + y, TexelsAt(x, W, TieSlack), TexelsAt(y, H, TieSlack));
        }
    }
}

void ExpectedPicture::Sprite(std::int32_t Id, float CenterX, float CenterY, int W, int H) {
    ForEachTexel(CenterX, CenterY, W, H, [&](int X, int Y, TexelRange Columns, TexelRange Rows) {
        PutTexels(X, Y, Id, Columns, Rows);
    });
}

void ExpectedPicture::PutRedTexels(
    int X, int Y, std::int32_t Id, TexelRange Columns, TexelRange Rows, int Alpha) {
    if (!Holds(X, Y)) {
        return;
    }
    const Pixel below = PixelAt(X, Y);
    Pixel pixel;
    pixel.Tolerance = below.Tolerance + RedSlack;
    for (int row = Rows.First; row <= Rows.Last; ++row) {
        for (int column = Columns.First; column <= Columns.Last; ++column) {
            const std::uint32_t color = ArtPixel(Id, column, row);
            for (std::size_t i = 0; i < below.Count; ++i) {
                pixel.Allow(color == 0 ? below.Colors[i] : Redden(below.Colors[i], color, Alpha));
            }
        }
    }
    PixelAt(X, Y) = pixel;
}

void ExpectedPicture::PutFlashedTexels(
    int X, int Y, std::int32_t Id, TexelRange Columns, TexelRange Rows, int Alpha) {
    if (!Holds(X, Y)) {
        return;
    }
    const Pixel below = PixelAt(X, Y);
    Pixel pixel;
    pixel.Tolerance = below.Tolerance + RedSlack;
    for (int row = Rows.First; row <= Rows.Last; ++row) {
        for (int column = Columns.First; column <= Columns.Last; ++column) {
            const std::uint32_t color = ArtPixel(Id, column, row);
            if (color != 0) {
                pixel.Allow(Redden(color, color, Alpha));
                continue;
            }
            for (std::size_t i = 0; i < below.Count; ++i) {
                pixel.Allow(below.Colors[i]);
            }
        }
    }
    PixelAt(X, Y) = pixel;
}

void ExpectedPicture::RedSprite(std::int32_t Id, float CenterX, float CenterY, int W, int H, int Alpha) {
    ForEachTexel(CenterX, CenterY, W, H, [&](int X, int Y, TexelRange Columns, TexelRange Rows) {
        PutRedTexels(X, Y, Id, Columns, Rows, Alpha);
    });
}

void ExpectedPicture::FlashedSprite(std::int32_t Id, float CenterX, float CenterY, int W, int H, int Alpha) {
    ForEachTexel(CenterX, CenterY, W, H, [&](int X, int Y, TexelRange Columns, TexelRange Rows) {
        PutFlashedTexels(X, Y, Id, Columns, Rows, Alpha);
    });
}

void ExpectedPicture::Tiles(std::int32_t Id, SDL_Rect Area, int OffsetX, int OffsetY, int TileSize) {
    const int right = Area.x + Area.w;
    const int bottom = Area.y + Area.h;
    for (int y = Area.y; y < bottom; ++y) {
        const int row = ((y - Area.y - OffsetY) % TileSize + TileSize) % TileSize;
        const bool cutInHeight = y - row < Area.y || y - row + TileSize + 1 > bottom;
        for (int x = Area.x; x < right; ++x) {
            const int column = ((x - Area.x - OffsetX) % TileSize + TileSize) % TileSize;
            const bool cutInWidth = x - column < Area.x || x - column + TileSize > right;
            PutTexels(x, y, Id, TexelsAt(column, TileSize, cutInWidth ? CutSlack : TieSlack),
                TexelsAt(row, TileSize + 1, cutInHeight ? CutSlack : TieSlack));
        }
    }
}

void ExpectedPicture::DiscRow(int CenterX, int Y, double Half, std::uint32_t PackedColor) {
    const int left = static_cast<int>(CenterX - Half);
    BlendRect(left, Y, static_cast<int>(2.0 * Half + 1.0), 1, PackedColor);
}

void ExpectedPicture::Disc(int CenterX, int CenterY, double Radius, std::uint32_t PackedColor) {
    const int rows = static_cast<int>(std::lround(Radius));
    for (int d = -rows; d <= rows; ++d) {
        DiscRow(CenterX, CenterY + d, std::sqrt(std::max(Radius * Radius - d * d, 0.0)), PackedColor);
    }
}

::testing::AssertionResult ExpectedPicture::IsShownBy(const Picture &Shown) const {
    if (Shown.Width() != PixelWidth || Shown.Height() != PixelHeight) {
        return ::testing::AssertionFailure()
               << "the picture is " << Shown.Width() << " by " << Shown.Height();
    }
    return IsShownBy(Shown, {0, 0, PixelWidth, PixelHeight});
}

::testing::AssertionResult ExpectedPicture::IsShownBy(const Picture &Shown, SDL_Rect Area) const {
    int wrong = 0;
    ::testing::AssertionResult failure = ::testing::AssertionFailure();
    for (int y = Area.y; y < Area.y + Area.h; ++y) {
        for (int x = Area.x; x < Area.x + Area.w; ++x) {
            if (!PixelAt(x, y).Allows(Shown.At(x, y)) && wrong++ < 5) {
                failure << "(" << x << ", " << y << ") shows " << std::hex << Shown.At(x, y)
                        << " in place of " << PixelAt(x, y).Colors[0] << std::dec << "\n";
            }
        }
    }
    return wrong == 0 ? ::testing::AssertionSuccess() : failure << wrong << " pixels are wrong";
}
