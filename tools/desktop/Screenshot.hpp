#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// One opaque pixel.
struct Pixel {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;

    bool operator==(const Pixel &) const = default;
};

// A place on a screen in whole pixels; Right and Bottom are the first column and row outside.
struct Area {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    bool operator==(const Area &) const = default;
};

// A pixel as one number: red in the third byte from below, green in the second, blue in the lowest, and the
// highest one empty.
constexpr std::uint32_t Packed(Pixel Dot) {
    return static_cast<std::uint32_t>(Dot.Red << 16U | Dot.Green << 8U | Dot.Blue);
}

// What a screen showed, packed pixels row by row from the top left.
struct Screenshot {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint32_t> Pixels;
};

// The pixel at that place, which must lie on the picture.
inline Pixel PixelAt(const Screenshot &Seen, int X, int Y) {
    const auto row = static_cast<std::size_t>(Y) * static_cast<std::size_t>(Seen.Width);
    const std::uint32_t packed = Seen.Pixels[row + static_cast<std::size_t>(X)];
    return {static_cast<std::uint8_t>((packed >> 16U) & 0xFFU),
        static_cast<std::uint8_t>((packed >> 8U) & 0xFFU), static_cast<std::uint8_t>(packed & 0xFFU)};
}

// The pixels of the row Y from the column Left up to, without it, the column Right. All must lie on the
// picture.
inline std::span<const std::uint32_t> RowOf(const Screenshot &Seen, int Y, int Left, int Right) {
    const auto row = static_cast<std::size_t>(Y) * static_cast<std::size_t>(Seen.Width);
    return std::span(Seen.Pixels)
        .subspan(row + static_cast<std::size_t>(Left), static_cast<std::size_t>(Right - Left));
}

// The smallest area around both; one that is all 0 does not count.
Area Around(const Area &One, const Area &Other);

// The part of Wanted that lies on the picture; without any pixel if they do not meet.
Area Overlap(const Screenshot &Seen, Area Wanted);

// Calls Visit(X, Y, Pixel) for each pixel of the part of Inside that lies on the picture, row by row.
template <typename Visitor> void ForEachPixel(const Screenshot &Seen, Area Inside, Visitor Visit) {
    const Area area = Overlap(Seen, Inside);
    for (int y = area.Top; y < area.Bottom; ++y) {
        for (int x = area.Left; x < area.Right; ++x) {
            Visit(x, y, PixelAt(Seen, x, y));
        }
    }
}

// How many pixels of Inside satisfy Matches.
template <typename Predicate> int CountPixels(const Screenshot &Seen, Area Inside, Predicate Matches) {
    int count = 0;
    ForEachPixel(Seen, Inside, [&](int, int, const Pixel &Dot) {
        count += Matches(Dot) ? 1 : 0;
    });
    return count;
}

// The smallest area around all pixels of Inside that have this colour; all 0 if there are none.
Area BoundsOfColor(const Screenshot &Seen, Area Inside, Pixel Color);
