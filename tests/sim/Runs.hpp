#pragma once

#include "sim/StepInput.hpp"
#include "state/GameState.hpp"
#include "tests/support/Sounds.hpp"

// Runs to start a test from, and what a player may hold.

/// A run on an empty road at the start of stage 1. Nothing is due to be born for a long time.
inline GameState QuietRun() {
    GameState state;
    state.Screen = ScreenPlaying;
    state.HasRunState = true;
    state.SpawnTimer = 1000.0F;
    state.ObstacleSpawnTimer = 1000.0F;
    state.ItemSpawnTimer = 1000.0F;
    return state;
}

/// A quiet run in the middle of a stage.
inline GameState QuietRunInStage(std::int32_t Stage) {
    GameState state = QuietRun();
    state.Stage = Stage;
    state.PreviousStage = Stage;
    state.GameTime = 26.0F * static_cast<float>(Stage - 1) + 13.0F;
    return state;
}

inline Enemy EnemyAt(float X, float Y, std::int32_t Score = 200) {
    Enemy enemy;
    enemy.X = X;
    enemy.Y = Y;
    enemy.Score = Score;
    enemy.AiTimer = 1000.0F;
    enemy.FireCooldown = 1000.0F;
    return enemy;
}

inline Obstacle ObstacleAt(float X, float Y, std::int32_t Score = 120) {
    Obstacle obstacle;
    obstacle.X = X;
    obstacle.Y = Y;
    obstacle.Score = Score;
    return obstacle;
}

inline Item ItemAt(float X, float Y) {
    Item item;
    item.X = X;
    item.Y = Y;
    return item;
}

inline constexpr StepInput HeldNothing{false, false, false, false};
inline constexpr StepInput HeldLeft{true, false, false, false};
inline constexpr StepInput HeldRight{false, true, false, false};
inline constexpr StepInput HeldBothWays{true, true, false, false};
inline constexpr StepInput HeldFire{false, false, true, false};
inline constexpr StepInput HeldBomb{false, false, false, true};

/// The length of a frame at about 60 frames a second, exact in binary.
inline constexpr float Frame = 0.015625F;
