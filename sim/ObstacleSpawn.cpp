#include "sim/ObstacleSpawn.hpp"

#include "sim/Difficulty.hpp"
#include "sim/Geometry.hpp"
#include "sim/Lanes.hpp"
#include "sim/Random.hpp"
#include "sim/Road.hpp"
#include "sim/SpawnClearance.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct ObstacleKind {
    float ChanceUpTo; ///< a draw below it takes this kind, unless it took an earlier one
    float Width;
    float Height;
    std::int32_t Hp;
    std::int32_t Score;
};

// The position is the type: barrier, log, rock.
constexpr std::array<ObstacleKind, 3> ObstacleKinds{{
    {0.5F, 54.0F, 14.0F, 4, 180},
    {0.82F, 34.0F, 18.0F, 2, 120},
    {1.0F, 26.0F, 24.0F, 3, 150},
}};

constexpr float Doubled = 2.0F * SpawnMargin; ///< the margin at both ends of a side

Obstacle DrawObstacle(GameState &State) {
    const float r = RandomFloat(State, 0.0F, 1.0F);
    std::int32_t type = 0;
    while (r >= ObstacleKinds[static_cast<std::size_t>(type)].ChanceUpTo) {
        ++type;
    }
    const ObstacleKind &kind = ObstacleKinds[static_cast<std::size_t>(type)];
    Obstacle obstacle;
    obstacle.Y = ObstacleSpawnY;
    obstacle.Speed = ObstacleSpeed(State.Stage);
    obstacle.Width = kind.Width;
    obstacle.Height = kind.Height;
    obstacle.Hp = kind.Hp;
    obstacle.Score = kind.Score;
    obstacle.Type = type;
    return obstacle;
}

bool Overlap(const Obstacle &A, const Obstacle &B) {
    return std::abs(A.X - B.X) <= (A.Width + Doubled + B.Width + Doubled) / 2.0F &&
           std::abs(A.Y - B.Y) <= (A.Height + Doubled + B.Height + Doubled) / 2.0F;
}

bool IsClear(const GameState &State, const Obstacle &New) {
    const auto touchesCircle = [&New](const auto &Thing) {
        return CircleHitsRect(Thing.X, Thing.Y, Thing.Radius + SpawnMargin, New.X, New.Y, New.Width + Doubled,
            New.Height + Doubled);
    };
    const auto touchesObstacle = [&New](const Obstacle &Other) {
        return Overlap(Other, New);
    };
    return std::ranges::none_of(State.Enemies, touchesCircle) &&
           std::ranges::none_of(State.Obstacles, touchesObstacle) &&
           std::ranges::none_of(State.Items, touchesCircle);
}

void PlaceObstacle(GameState &State, Obstacle Obstacle) {
    for (const std::int32_t lane : ShuffledLanes(State)) {
        Obstacle.Lane = lane;
        Obstacle.X = LaneCenterX(lane);
        if (IsClear(State, Obstacle)) {
            State.Obstacles.push_back(Obstacle);
            return;
        }
    }
}

} // namespace

void SpawnObstacle(GameState &State, float dt) {
    CountDown(State.ObstacleSpawnTimer, SpeedScale(State) * dt);
    if (State.ObstacleSpawnTimer > 0.0F) {
        return;
    }
    PlaceObstacle(State, DrawObstacle(State));
    State.ObstacleSpawnTimer = RandomFloat(State, 0.85F, 1.35F) * ObstacleIntervalFactor(State.Stage);
}
