#pragma once

#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <algorithm>

/// Eases CurrentScrollSpeed towards the stage's speed, then adds what is driven in dt seconds to RoadScroll,
/// StageTransition and GameTime.
void MoveRoad(GameState &State, float dt);

/// How many times as fast as in stage 1 the road is now: what the traffic and the spawn timers are scaled by.
inline float SpeedScale(const GameState &State) {
    return State.CurrentScrollSpeed / FirstStageSpeed;
}

/// How far a thing of a speed rolls in dt seconds, in logical pixels: it is always faster than the road by at
/// least Lead pixels a second.
inline float RollingDistance(const GameState &State, float Speed, float Lead, float dt) {
    return std::max(State.CurrentScrollSpeed + Lead, Speed * SpeedScale(State)) * dt;
}
