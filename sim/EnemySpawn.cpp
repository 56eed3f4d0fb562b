#include "sim/EnemySpawn.hpp"

#include "sim/Difficulty.hpp"
#include "sim/Random.hpp"
#include "sim/Road.hpp"
#include "sim/RoadLines.hpp"
#include "sim/SpawnClearance.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"

namespace {

constexpr float LightChance = 0.66F;
constexpr std::int32_t LastStageWithoutHeavy = 2;

struct EnemyKind {
    std::int32_t Hp;
    float Radius;
    float (*Speed)(std::int32_t Stage);
    std::int32_t Score;
    struct Color Color;
};

constexpr EnemyKind LightEnemy{1, 8.0F, LightEnemySpeed, 200, {0xEB, 0xEB, 0xF5, 0xFF}};
constexpr EnemyKind HeavyEnemy{2, 9.5F, HeavyEnemySpeed, 400, {0x5A, 0xE6, 0x78, 0xFF}};

const EnemyKind &DrawKind(GameState &State) {
    // The chance is drawn in the first stages too, where it changes nothing.
    const float r = RandomFloat(State, 0.0F, 1.0F);
    return r < LightChance || State.Stage <= LastStageWithoutHeavy ? LightEnemy : HeavyEnemy;
}

Enemy DrawEnemy(GameState &State) {
    const EnemyKind &kind = DrawKind(State);
    Enemy enemy;
    enemy.Y = EnemySpawnY;
    enemy.Speed = kind.Speed(State.Stage);
    enemy.Radius = kind.Radius;
    enemy.AiTimer = RandomFloat(State, 0.18F, 0.42F);
    enemy.FireCooldown = RandomFloat(State, 0.55F, 1.25F);
    enemy.Hp = kind.Hp;
    enemy.Score = kind.Score;
    enemy.Color = kind.Color;
    return enemy;
}

} // namespace

void SpawnEnemy(GameState &State, float dt) {
    CountDown(State.SpawnTimer, SpeedScale(State) * dt);
    if (State.SpawnTimer > 0.0F) {
        return;
    }
    const Enemy enemy = DrawEnemy(State);
    SpawnInClearLane(State, ShuffledLanes(State), enemy);
    State.SpawnTimer = RandomFloat(State, 0.72F, 1.2F) * EnemyIntervalFactor(State.Stage);
}
