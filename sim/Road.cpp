#include "sim/Road.hpp"

#include "sim/Stages.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"

#include <algorithm>
#include <cmath>

namespace {

constexpr float EaseRate = 5.5F;      ///< per second
constexpr float ScaledSpeed = 120.0F; ///< the road speed at which the scale is 1

} // namespace

void MoveRoad(GameState &State, float dt) {
    const float target = TargetScrollSpeed(State.Stage);
    State.CurrentScrollSpeed += (target - State.CurrentScrollSpeed) * (1.0F - std::exp(-EaseRate * dt));
    if (!std::isfinite(State.CurrentScrollSpeed)) {
        State.CurrentScrollSpeed = target; // from a damaged file; it would never ease back
    }
    const float distance = State.CurrentScrollSpeed * dt;
    State.StageTransition = std::min(State.StageTransition + distance / LogicalHeightF, 1.0F);
    State.RoadScroll += distance;
    State.GameTime += dt;
}

float SpeedScale(const GameState &State) {
    return State.CurrentScrollSpeed / ScaledSpeed;
}

float RollingDistance(const GameState &State, float Speed, float Lead, float dt) {
    return std::max(State.CurrentScrollSpeed + Lead, Speed * SpeedScale(State)) * dt;
}
