#include "sim/Lanes.hpp"

#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"

#include <algorithm>
#include <cmath>

namespace {

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
    // Eight steps across the 260 pixels between the outer lanes' centres make 32.5 each: rounded to whole
    // pixels, so the lanes are not evenly spaced, and that is meant.
    return std::round(RoadLeft() + 30.0F + static_cast<float>(ClampLane(Lane)) * 0.125F * 260.0F);
}

void SnapToLanes(GameState &State) {
    State.PlayerLane = ClampLane(State.PlayerLane);
    State.Player.X = LaneCenterX(State.PlayerLane);
    SnapThings(State.Enemies);
    SnapThings(State.Obstacles);
    SnapThings(State.Items);
}
