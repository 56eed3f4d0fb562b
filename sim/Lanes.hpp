#pragma once

#include <cstdint>

struct GameState;

inline constexpr std::int32_t LaneCount = 9; ///< numbered 0 to 8 from the left
inline constexpr std::int32_t PlayerStartLane = 4;
inline constexpr float RoadWidth = 320.0F;

/// The road's edges in logical pixels; the road is centred on the logical screen.
float RoadLeft();
float RoadRight();

/// A lane number brought into 0 to 8.
std::int32_t ClampLane(std::int32_t Lane);

/// The x of a lane's centre in whole logical pixels; a lane off the road counts as the nearest one on it.
float LaneCenterX(std::int32_t Lane);

/// Moves everything that belongs to a lane to where that lane is now; y, shots and bursts stay. For a changed
/// LogicalWidth and for a loaded run.
void SnapToLanes(GameState &State);
