#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>

/// The nearest whole number, half away from zero. Some C libraries' round is wrong just below a half.
template <std::floating_point Number> Number RoundToWhole(Number Value) {
    const Number whole = std::trunc(Value);
    return std::abs(Value - whole) < Number{0.5} ? whole : whole + std::copysign(Number{1}, Value);
}

// From float to whole number without undefined behaviour: what lies outside the 32 bits becomes the nearest
// number that they can hold, and NaN becomes 0. A damaged file may hold a float of any size.

/// Towards zero.
std::int32_t TruncateToInt(float Value);

/// To the nearest, half away from zero.
std::int32_t RoundToInt(float Value);

/// The floored value modulo Size, 0 to Size - 1; Size is at least 1. Exact for values of any size, because it
/// is taken in floating point.
std::int32_t FloorModulo(float Value, std::int32_t Size);
