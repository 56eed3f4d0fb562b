#pragma once

#include "state/Display.hpp"

#include <cstdint>
#include <span>

struct GameState;

/// Whether Width by Height has the shape RatioWidth to RatioHeight within about half a percent. False for
/// sizes of 0 or less.
bool RatioMatches(std::int32_t Width, std::int32_t Height, std::int32_t RatioWidth, std::int32_t RatioHeight);

/// Whether the shape is 64:27, 43:18, 21:9 or 12:5.
bool IsUltrawide(std::int32_t Width, std::int32_t Height);

/// Whether a size has a shape of the aspect mode: 4:3, or one of 16:9, 16:10, 3:2, 32:9 and the ultrawide
/// ones.
bool ResolutionAllowed(enum AspectMode AspectMode, std::int32_t Width, std::int32_t Height);

/// Sets the global LogicalWidth, rather than return a value, by the aspect mode and the shape of a
/// resolution. What is on the road is not moved along.
void ComputeLogicalWidth(enum AspectMode AspectMode, std::int32_t Width, std::int32_t Height);

/// The sizes offered where no size of a display fits the aspect mode, smallest first.
std::span<const Resolution> BuiltInResolutions(enum AspectMode AspectMode);

/// Where the built-in table of an aspect mode has its size of height 720.
constexpr std::int32_t DefaultResolutionIndex(enum AspectMode AspectMode) {
    return AspectMode == AspectClassic4x3 ? 2 : 3;
}

/// The list that is in force: State.Resolutions, or the built-in table while that is empty; never empty.
/// Valid until State.Resolutions changes.
std::span<const Resolution> ResolutionsInForce(const GameState &State);

/// The resolution at ResolutionIndex, the index clamped to the list that is in force; the field stays as it
/// is.
Resolution CurrentResolution(const GameState &State);

/// The place of an exact size in the list that is in force, otherwise Fallback clamped to that list. A size
/// with a 0 or less in it is never found.
std::int32_t FindResolutionIndex(
    const GameState &State, std::int32_t Width, std::int32_t Height, std::int32_t Fallback);
