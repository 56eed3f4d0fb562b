#pragma once

#include <cstdint>

// From float to whole number without undefined behaviour: what lies outside the 32 bits is brought to their
// nearest end, and what is no number becomes 0. A damaged file may hold any float.

/// Towards zero.
std::int32_t TruncateToInt(float Value);

/// To the nearest, half away from zero.
std::int32_t RoundToInt(float Value);
