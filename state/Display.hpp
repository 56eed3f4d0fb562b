#pragma once

#include <cstdint>
#include <tuple>

enum AspectMode : std::int32_t {
    AspectWidescreen = 0,
    AspectClassic4x3 = 1,
};

/// A size in physical pixels.
struct Resolution {
    std::int32_t Width = 0;
    std::int32_t Height = 0;

    bool operator==(const Resolution &) const = default;

    /// By width, ties by height.
    bool operator<(const Resolution &Other) const {
        return std::tie(Width, Height) < std::tie(Other.Width, Other.Height);
    }
};

/// What a display offers.
struct DisplayMode {
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    std::int32_t Hz = 0; ///< 0 where the display does not tell

    bool operator==(const DisplayMode &) const = default;
};
