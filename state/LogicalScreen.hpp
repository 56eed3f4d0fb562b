#pragma once

#include <cstdint>

// The logical screen: everything is placed and drawn in its pixels, x to the right, y downwards.

/// Height of the logical screen in logical pixels, whatever the display.
inline constexpr std::int32_t LogicalHeight = 720;

/// The same as a float, for geometry.
inline constexpr float LogicalHeightF = static_cast<float>(LogicalHeight);

/// Width of a 16:9 screen, which the program starts with.
inline constexpr std::int32_t DefaultLogicalWidth = 1280;

/// Width of the logical screen in logical pixels: 960, 1080, 1152, 1280, 1728 or 2560, by the aspect mode and
/// the shape of the chosen resolution. Set by ComputeLogicalWidth alone. A global variable, because geometry
/// and drawing everywhere depend on it and there is only one screen.
extern std::int32_t LogicalWidth;
