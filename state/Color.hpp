#pragma once

#include <cstdint>

/// A colour in a run's records, a byte a channel.
struct Color {
    std::uint8_t R = 255;
    std::uint8_t G = 255;
    std::uint8_t B = 255;
    std::uint8_t A = 255;

    bool operator==(const Color &) const = default;
};
