#pragma once

#include "state/Limits.hpp"

#include <array>
#include <cstdint>

struct GameState;

/// All lanes, in an order in which they are tried.
using LaneOrder = std::array<std::int32_t, LaneCount>;

inline constexpr LaneOrder LanesFromLeft{0, 1, 2, 3, 4, 5, 6, 7, 8};
static_assert(LanesFromLeft.back() == LaneCount - 1);

/// The road's width and edges in logical pixels; it is centred on the logical screen.
inline constexpr float RoadWidth = 320.0F;
float RoadLeft();
float RoadRight();

/// A lane number brought into 0 to 8.
std::int32_t ClampLane(std::int32_t Lane);

/// The x of a lane's centre in whole logical pixels; a lane off the road counts as the nearest one on it.
float LaneCenterX(std::int32_t Lane);

/// Brings every lane of the run into 0 to 8, and X to where the lane is now; Y, shots and explosions stay. To
/// be called when LogicalWidth has changed and when a run has been loaded.
void SnapToLanes(GameState &State);
