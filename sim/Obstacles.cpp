#include "sim/Obstacles.hpp"

#include "sim/Lanes.hpp"
#include "sim/Road.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"

namespace {

constexpr float ObstacleLead = 4.0F; ///< pixels a second, for RollingDistance

} // namespace

float PredictedY(const GameState &State, const Obstacle &Obstacle, float dt) {
    return Obstacle.Y + RollingDistance(State, Obstacle.Speed, ObstacleLead, dt);
}

void MoveObstacles(GameState &State, float dt) {
    for (Obstacle &obstacle : State.Obstacles) {
        CountDown(obstacle.HitFlash, dt);
        obstacle.X = LaneCenterX(obstacle.Lane);
        obstacle.Y = PredictedY(State, obstacle, dt);
    }
}
