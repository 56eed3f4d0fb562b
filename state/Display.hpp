#pragma once

#include <compare>
#include <cstdint>

/// Which shapes are offered: the wide ones from 3:2 to 32:9 that ResolutionAllowed names, or 4:3 alone.
enum AspectMode : std::int32_t {
    AspectWidescreen = 0,
    AspectClassic4x3 = 1,
};

/// A size in the units of SDL's windows and display modes, ordered by width, ties by height.
struct Resolution {
    std::int32_t Width = 0;
    std::int32_t Height = 0;

    auto operator<=>(const Resolution &) const = default;
};

/// What a display offers, in the same units.
struct DisplayMode {
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    std::int32_t Hz = 0; ///< 0 where the display does not tell

    bool operator==(const DisplayMode &) const = default;
};
