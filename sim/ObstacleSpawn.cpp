#include "sim/ObstacleSpawn.hpp"

#include "sim/Difficulty.hpp"
#include "sim/Random.hpp"
#include "sim/Road.hpp"
#include "sim/RoadLines.hpp"
#include "sim/SpawnClearance.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"

#include <algorithm>
#include <array>

namespace {

struct ObstacleKind {
    ObstacleType Type;
    float ChanceUpTo; ///< of a draw in [0, 1): the first kind whose bound is above it is taken
    float Width;
    float Height;
    std::int32_t Hp;
    std::int32_t Score;
};

constexpr std::array<ObstacleKind, 3> ObstacleKinds{{
    {ObstacleTypeBarrier, 0.5F, 54.0F, 14.0F, 4, 180},
    {ObstacleTypeLog, 0.82F, 34.0F, 18.0F, 2, 120},
    {ObstacleTypeRock, 1.0F, 26.0F, 24.0F, 3, 150},
}};
static_assert(ObstacleKinds.back().ChanceUpTo == 1.0F, "every draw finds a kind");

const ObstacleKind &DrawKind(GameState &State) {
    const float r = RandomFloat(State, 0.0F, 1.0F);
    return *std::ranges::find_if(ObstacleKinds, [r](const ObstacleKind &Kind) {
        return r < Kind.ChanceUpTo;
    });
}

Obstacle DrawObstacle(GameState &State) {
    const ObstacleKind &kind = DrawKind(State);
    Obstacle obstacle;
    obstacle.Y = ObstacleSpawnY;
    obstacle.Speed = ObstacleSpeed(State.Stage);
    obstacle.Width = kind.Width;
    obstacle.Height = kind.Height;
    obstacle.Hp = kind.Hp;
    obstacle.Score = kind.Score;
    obstacle.Type = kind.Type;
    return obstacle;
}

} // namespace

void SpawnObstacle(GameState &State, float dt) {
    CountDown(State.ObstacleSpawnTimer, SpeedScale(State) * dt);
    if (State.ObstacleSpawnTimer > 0.0F) {
        return;
    }
    const Obstacle obstacle = DrawObstacle(State);
    SpawnInClearLane(State, ShuffledLanes(State), obstacle);
    State.ObstacleSpawnTimer = RandomFloat(State, 0.85F, 1.35F) * ObstacleIntervalFactor(State.Stage);
}
