#include "sim/Lanes.hpp"

#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "state/Numbers.hpp"

#include <algorithm>
#include <vector>

namespace {

constexpr float OuterLaneDistance = 30.0F; ///< of the outermost centres from the road's edges
constexpr float LaneDistance = (RoadWidth - 2.0F * OuterLaneDistance) / static_cast<float>(LaneCount - 1);

template <typename Thing> void SnapThings(std::vector<Thing> &Things) {
    for (Thing &thing : Things) {
        thing.Lane = ClampLane(thing.Lane);
        thing.X = LaneCenterX(thing.Lane);
    }
}

} // namespace

float RoadLeft() {
    return (static_cast<float>(LogicalWidth) - RoadWidth) * 0.5F;
}

float RoadRight() {
    return RoadLeft() + RoadWidth;
}

std::int32_t ClampLane(std::int32_t Lane) {
    return std::clamp(Lane, 0, LaneCount - 1);
}

float LaneCenterX(std::int32_t Lane) {
    // NOT-BUGS: The nine lanes are not evenly spaced
    return RoundToWhole(RoadLeft() + OuterLaneDistance + static_cast<float>(ClampLane(Lane)) * LaneDistance);
}

void SnapToLanes(GameState &State) {
    State.PlayerLane = ClampLane(State.PlayerLane);
    State.Player.X = LaneCenterX(State.PlayerLane);
    SnapThings(State.Enemies);
    SnapThings(State.Obstacles);
    SnapThings(State.Items);
}
