#pragma once

#include <cstdint>

// In the units of SDL's 16-bit axis values.

/// Where a stick begins to steer, either way. There is no dead zone beside it.
inline constexpr std::int16_t GameplayAxisThreshold = 11000;

/// What a stick must reach to count as a menu press, and what it must come back to before the next one.
inline constexpr std::int16_t MenuAxisPress = 19000;
inline constexpr std::int16_t MenuAxisRelease = 9000;
