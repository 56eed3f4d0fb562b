#pragma once

#include <cstddef>
#include <cstdint>
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

// What a screen showed, row by row from the top left. Each pixel is one number: red in the third byte from
// below, green in the second, blue in the lowest; the highest byte means nothing.
struct Picture {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint32_t> Pixels;
};

// The pixel at that place, which must lie on the picture.
inline Pixel PixelAt(const Picture &Seen, int X, int Y) {
    const auto row = static_cast<std::size_t>(Y) * static_cast<std::size_t>(Seen.Width);
    const std::uint32_t packed = Seen.Pixels[row + static_cast<std::size_t>(X)];
    return {static_cast<std::uint8_t>((packed >> 16U) & 0xFFU),
        static_cast<std::uint8_t>((packed >> 8U) & 0xFFU), static_cast<std::uint8_t>(packed & 0xFFU)};
}

// The part of Wanted that lies on the picture; without any pixel if they do not meet.
Area Overlap(const Picture &Seen, Area Wanted);

// Calls Visit(X, Y, Pixel) for each pixel of the part of Inside that lies on the picture, row by row.
template <typename Visitor> void ForEachPixel(const Picture &Seen, Area Inside, Visitor Visit) {
    const Area area = Overlap(Seen, Inside);
    for (int y = area.Top; y < area.Bottom; ++y) {
        for (int x = area.Left; x < area.Right; ++x) {
            Visit(x, y, PixelAt(Seen, x, y));
        }
    }
}

// How many pixels of Inside satisfy Matches.
template <typename Predicate> int CountPixels(const Picture &Seen, Area Inside, Predicate Matches) {
    int count = 0;
    ForEachPixel(Seen, Inside, [&](int, int, const Pixel &Dot) {
        count += Matches(Dot) ? 1 : 0;
    });
    return count;
}

// The smallest area around all pixels of Inside that have this colour; all 0 if there are none.
Area BoundsOfColor(const Picture &Seen, Area Inside, Pixel Color);
