#pragma once

#include "state/Color.hpp"

#include <cstdint>

// A packed colour is one number, 0xAABBGGRR.

/// The number of four bytes.
constexpr std::uint32_t Packed(Color Bytes) {
    return std::uint32_t{Bytes.A} << 24U | std::uint32_t{Bytes.B} << 16U | std::uint32_t{Bytes.G} << 8U |
           std::uint32_t{Bytes.R};
}

/// The four bytes of a number.
constexpr Color Unpacked(std::uint32_t PackedColor) {
    const auto byteAt = [PackedColor](unsigned Shift) {
        return static_cast<std::uint8_t>(PackedColor >> Shift & 0xFFU);
    };
    return {byteAt(0), byteAt(8), byteAt(16), byteAt(24)};
}
