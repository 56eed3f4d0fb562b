#include "bench/BusyRoad.hpp"

#include "sim/Explosions.hpp"
#include "sim/Lanes.hpp"
#include "sim/NewRun.hpp"
#include "sim/Stages.hpp"
#include "sim/Step.hpp"

GameState BusyRoad() {
    GameState state;
    state.Rng.seed(1);
    StartNewRun(state);
    for (std::int32_t i = 0; i < 20; ++i) {
        Enemy enemy;
        enemy.Lane = i % LaneCount;
        enemy.X = LaneCenterX(enemy.Lane);
        enemy.Y = 20.0F + static_cast<float>(i) * 25.0F;
        enemy.Hp = 1 + i % 2;
        enemy.Speed = 130.0F;
        enemy.AiTimer = 0.02F * static_cast<float>(i); // one of them thinks in each step, and one shoots
        enemy.FireCooldown = 0.05F * static_cast<float>(i);
        enemy.HitFlash = i % 3 == 0 ? 0.1F : 0.0F;
        state.Enemies.push_back(enemy);
    }
    for (std::int32_t i = 0; i < 10; ++i) {
        Obstacle obstacle;
        obstacle.Lane = (i * 4 + 1) % LaneCount;
        obstacle.X = LaneCenterX(obstacle.Lane);
        obstacle.Y = 40.0F + static_cast<float>(i) * 50.0F;
        obstacle.Type = i % 3;
        state.Obstacles.push_back(obstacle);
    }
    for (std::int32_t i = 0; i < 20; ++i) {
        const float x = LaneCenterX(i % LaneCount) + 16.0F;
        const float y = 30.0F + static_cast<float>(i) * 30.0F;
        state.Bullets.push_back({x, y, 430.0F, 2.0F});
        state.EnemyBullets.push_back({x, y, 176.0F, 2.0F, 10});
    }
    for (std::int32_t i = 0; i < 4; ++i) {
        state.Items.push_back(
            {LaneCenterX(2 * i), 100.0F + 120.0F * static_cast<float>(i), 87.0F, 10.0F, 2 * i, i});
        AddExplosion(state, LaneCenterX(i), 200.0F, 0.45F, 24.0F, {0xFF, 0xC8, 0x64, 0xE6});
    }
    return state;
}

GameState RoadOfStage30() {
    GameState state;
    state.Rng.seed(1);
    StartNewRun(state);
    StartStage(state, 30);
    for (int i = 0; i < 30 * 60; ++i) {
        state.InvincibilityPowerTimer = 6.0F;
        state.GameTime = 29.0F * StageSeconds;
        SimulationStep(state, 1.0F / 60.0F, {});
        state.PendingSounds.Count = 0;
    }
    return state;
}
