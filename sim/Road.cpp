#include "sim/Road.hpp"

#include "sim/Stages.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"

#include <algorithm>
#include <cmath>

namespace {

constexpr float EaseRate = 5.5F; ///< per second

} // namespace

void MoveRoad(GameState &State, float dt) {
    const float target = TargetScrollSpeed(State.Stage);
    State.CurrentScrollSpeed += (target - State.CurrentScrollSpeed) * (1.0F - std::exp(-EaseRate * dt));
    const float distance = State.CurrentScrollSpeed * dt;
    State.StageTransition = std::min(State.StageTransition + distance / LogicalHeightF, 1.0F);
    State.RoadScroll += distance;
    State.GameTime += dt;
}
