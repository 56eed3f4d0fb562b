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
constexpr std::int16_t SeveralColors = -1; ///< in place of the tolerance of an ambiguous pixel

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

std::uint32_t BlendOver(std::uint32_t Below, std::uint32_t PackedColor) {
    return Mix(Below, Channel(PackedColor, 0), Channel(PackedColor, 1), Channel(PackedColor, 2),
        Channel(PackedColor, 3));
}

/// A reddened pixel of the art over another colour.
std::uint32_t Redden(std::uint32_t Below, std::uint32_t ArtColor, int Alpha) {
    return Mix(Below, Channel(ArtColor, 0), Channel(ArtColor, 1) * 60 / 255.0,
        Channel(ArtColor, 2) * 60 / 255.0, Alpha);
}

bool IsNear(std::uint32_t Color, std::uint32_t Other, int Tolerance) {
    int farthest = 0;
    for (unsigned channel = 0; channel < 4; ++channel) {
        farthest = std::max(farthest, std::abs(Channel(Color, channel) - Channel(Other, channel)));
    }
    return farthest <= Tolerance;
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
        if (IsNear(PackedColor, Colors[i], Tolerance)) {
            return true;
        }
    }
    return false;
}

void ExpectedPicture::Pixel::AllowAll(const Pixel &Other) {
    for (std::size_t i = 0; i < Other.Count; ++i) {
        Allow(Other.Colors[i]);
    }
    Tolerance = std::max(Tolerance, Other.Tolerance);
}

ExpectedPicture::ExpectedPicture(int Width, int Height, std::uint32_t Background)
    : PixelWidth(Width), PixelHeight(Height),
      Colors(static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height), Background),
      Tolerances(Colors.size()) {}

ExpectedPicture::ExpectedPicture(const Picture &Ground) : ExpectedPicture(Ground.Width(), Ground.Height()) {
    for (int y = 0; y < PixelHeight; ++y) {
        std::ranges::copy(Ground.Row(y), &Colors[PlaceOf(0, y)]);
    }
}

bool ExpectedPicture::Holds(int X, int Y) const {
    return X >= 0 && X < PixelWidth && Y >= 0 && Y < PixelHeight;
}

/// What of a rectangle lies inside the picture.
SDL_Rect ExpectedPicture::Held(int X, int Y, int W, int H) const {
    const int left = std::max(X, 0);
    const int top = std::max(Y, 0);
    return {left, top, std::max(std::min(X + W, PixelWidth) - left, 0),
        std::max(std::min(Y + H, PixelHeight) - top, 0)};
}

/// Where a pixel of the picture lies in the planes.
std::size_t ExpectedPicture::PlaceOf(int X, int Y) const {
    return static_cast<std::size_t>(Y) * static_cast<std::size_t>(PixelWidth) + static_cast<std::size_t>(X);
}

bool ExpectedPicture::IsAmbiguous(std::size_t Place) const {
    return Tolerances[Place] == SeveralColors;
}

ExpectedPicture::Pixel ExpectedPicture::PixelAt(std::size_t Place) const {
    if (IsAmbiguous(Place)) {
        return Ambiguous.at(Place);
    }
    return {.Colors = {Colors[Place]}, .Count = 1, .Tolerance = Tolerances[Place]};
}

void ExpectedPicture::PutPixel(std::size_t Place, const Pixel &NewPixel) {
    Colors[Place] = NewPixel.Colors[0];
    if (NewPixel.Count == 1) {
        Tolerances[Place] = static_cast<std::int16_t>(NewPixel.Tolerance);
    } else {
        Tolerances[Place] = SeveralColors;
        Ambiguous[Place] = NewPixel;
    }
}

void ExpectedPicture::Fill(int X, int Y, int W, int H, std::uint32_t PackedColor) {
    const SDL_Rect area = Held(X, Y, W, H);
    for (int y = area.y; y < area.y + area.h; ++y) {
        std::fill_n(&Colors[PlaceOf(area.x, y)], area.w, PackedColor);
        std::fill_n(&Tolerances[PlaceOf(area.x, y)], area.w, std::int16_t{0});
    }
}

void ExpectedPicture::BlendAmbiguous(std::size_t Place, std::uint32_t PackedColor) {
    const Pixel below = PixelAt(Place);
    Pixel blended;
    blended.Tolerance = below.Tolerance + BlendSlack;
    for (std::size_t i = 0; i < below.Count; ++i) {
        blended.Allow(BlendOver(below.Colors[i], PackedColor));
    }
    PutPixel(Place, blended);
}

void ExpectedPicture::BlendRect(int X, int Y, int W, int H, std::uint32_t PackedColor) {
    const SDL_Rect area = Held(X, Y, W, H);
    std::uint32_t below = 0; // neighbours are often of one colour
    std::uint32_t blended = BlendOver(below, PackedColor);
    for (int y = area.y; y < area.y + area.h; ++y) {
        const std::size_t first = PlaceOf(area.x, y);
        for (std::size_t place = first; place < first + static_cast<std::size_t>(area.w); ++place) {
            if (IsAmbiguous(place)) {
                BlendAmbiguous(place, PackedColor);
                continue;
            }
            if (Colors[place] != below) {
                below = Colors[place];
                blended = BlendOver(below, PackedColor);
            }
            Colors[place] = blended;
            Tolerances[place] = static_cast<std::int16_t>(Tolerances[place] + BlendSlack);
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
    Pixel pixel;
    bool isSeenThrough = false;
    for (int row = Rows.First; row <= Rows.Last; ++row) {
        for (int column = Columns.First; column <= Columns.Last; ++column) {
            const std::uint32_t color = ArtPixel(Id, column, row);
            if (color != 0) {
                pixel.Allow(color);
            } else {
                isSeenThrough = true;
            }
        }
    }
    const std::size_t place = PlaceOf(X, Y);
    if (isSeenThrough) {
        pixel.AllowAll(PixelAt(place));
    }
    PutPixel(place, pixel);
}

template <typename Put>
void ExpectedPicture::ForEachTexel(float CenterX, float CenterY, int W, int H, Put PutTexel) {
    const int left = static_cast<int>(CenterX - static_cast<float>(W) * 0.5F);
    const int top = static_cast<int>(CenterY - static_cast<float>(H) * 0.5F);
    for (int y = 0; y < H; ++y) {
        const TexelRange rows = TexelsAt(y, H, TieSlack);
        for (int x = 0; x < W; ++x) {
            PutTexel(left + x, top + y, TexelsAt(x, W, TieSlack), rows);
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
    const std::size_t place = PlaceOf(X, Y);
    const Pixel below = PixelAt(place);
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
    PutPixel(place, pixel);
}

void ExpectedPicture::PutFlashedTexels(
    int X, int Y, std::int32_t Id, TexelRange Columns, TexelRange Rows, int Alpha) {
    if (!Holds(X, Y)) {
        return;
    }
    const std::size_t place = PlaceOf(X, Y);
    const Pixel below = PixelAt(place);
    Pixel pixel;
    pixel.Tolerance = below.Tolerance + RedSlack;
    for (int row = Rows.First; row <= Rows.Last; ++row) {
        for (int column = Columns.First; column <= Columns.Last; ++column) {
            const std::uint32_t color = ArtPixel(Id, column, row);
            if (color != 0) {
                pixel.Allow(Redden(color, color, Alpha));
            } else {
                pixel.AllowAll(below);
            }
        }
    }
    PutPixel(place, pixel);
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

std::vector<ExpectedPicture::TexelRange> ExpectedPicture::TiledTexels(
    int Length, int Offset, int Spacing, int TileLength) {
    std::vector<TexelRange> texels;
    for (int i = 0; i < Length; ++i) {
        const int place = ((i - Offset) % Spacing + Spacing) % Spacing;
        const bool isCut = i - place < 0 || i - place + TileLength > Length;
        texels.push_back(TexelsAt(place, TileLength, isCut ? CutSlack : TieSlack));
    }
    return texels;
}

void ExpectedPicture::Tiles(std::int32_t Id, SDL_Rect Area, int OffsetX, int OffsetY, int TileSize) {
    const std::vector<TexelRange> columns = TiledTexels(Area.w, OffsetX, TileSize, TileSize);
    const std::vector<TexelRange> rows = TiledTexels(Area.h, OffsetY, TileSize, TileSize + 1);
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < columns.size(); ++x) {
            PutTexels(Area.x + static_cast<int>(x), Area.y + static_cast<int>(y), Id, columns[x], rows[y]);
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

bool ExpectedPicture::Allows(std::size_t Place, std::uint32_t PackedColor) const {
    return IsAmbiguous(Place) ? Ambiguous.at(Place).Allows(PackedColor)
                              : IsNear(PackedColor, Colors[Place], Tolerances[Place]);
}

::testing::AssertionResult ExpectedPicture::IsShownBy(const Picture &Shown, SDL_Rect Area) const {
    const int right = std::min(PixelWidth, Shown.Width());
    const int bottom = std::min(PixelHeight, Shown.Height());
    if (Area.x < 0 || Area.y < 0 || Area.x + Area.w > right || Area.y + Area.h > bottom) {
        return ::testing::AssertionFailure() << "the area leaves one of the pictures";
    }
    int wrong = 0;
    ::testing::AssertionResult failure = ::testing::AssertionFailure();
    for (int y = Area.y; y < Area.y + Area.h; ++y) {
        const auto shown =
            Shown.Row(y).subspan(static_cast<std::size_t>(Area.x), static_cast<std::size_t>(Area.w));
        const std::size_t first = PlaceOf(Area.x, y);
        if (std::equal(shown.begin(), shown.end(), &Colors[first])) {
            continue;
        }
        for (std::size_t i = 0; i < shown.size(); ++i) {
            if (!Allows(first + i, shown[i]) && wrong++ < 5) {
                failure << "(" << Area.x + static_cast<int>(i) << ", " << y << ") shows " << std::hex
                        << shown[i] << " in place of " << Colors[first + i] << std::dec << "\n";
            }
        }
    }
    return wrong == 0 ? ::testing::AssertionSuccess() : failure << wrong << " pixels are wrong";
}
