#pragma once

#include <cstdint>

// From float to whole number without undefined behaviour: what lies outside the 32 bits is brought to their
// nearest end, and what is no number becomes 0. A damaged file may hold any float.

/// Towards zero.
std::int32_t TruncateToInt(float Value);

/// To the nearest, half away from zero.
std::int32_t RoundToInt(float Value);

/// The remainder of the floored value, brought into 0 to Size - 1; Size is at least 1. The float remainder is
/// exact, so no value is too large for it.
std::int32_t FloorModulo(float Value, std::int32_t Size);
