#pragma once

#include <cstdint>

// Distances of a stick from its centre, in the units of SDL's axis values (-32768 to 32767).

/// In play a stick steers while it is at least so far out; nearer to the centre it does nothing.
inline constexpr std::int16_t GameplayAxisThreshold = 11000;

/// In a menu a stick counts as one press when it gets so far out, and can press to the same side again after
/// it has been as near as the second value.
inline constexpr std::int16_t MenuAxisPress = 19000;
inline constexpr std::int16_t MenuAxisRelease = 9000;
