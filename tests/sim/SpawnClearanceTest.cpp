#include "sim/SpawnClearance.hpp"

#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

TEST(IsSpawnClear, IsTrueOnAnEmptyRoad) {
    EXPECT_TRUE(IsSpawnClear(QuietRun(), 640.0F, -20.0F, 8.0F));
}

TEST(IsSpawnClear, KeepsFourPixelsAroundAnEnemyAndFourAroundTheNewcomer) {
    GameState state = QuietRun();
    state.Enemies = {EnemyAt(100.0F, 100.0F)}; // radius 8
    EXPECT_FALSE(IsSpawnClear(state, 100.0F, 100.0F, 8.0F));
    EXPECT_FALSE(IsSpawnClear(state, 124.0F, 100.0F, 8.0F)); // 8 + 4 + 8 + 4
    EXPECT_TRUE(IsSpawnClear(state, 124.5F, 100.0F, 8.0F));
    EXPECT_FALSE(IsSpawnClear(state, 100.0F, 76.0F, 8.0F));
    EXPECT_TRUE(IsSpawnClear(state, 100.0F, 75.5F, 8.0F));
}

TEST(IsSpawnClear, UsesTheEnemysOwnRadius) {
    GameState state = QuietRun();
    state.Enemies = {EnemyAt(100.0F, 100.0F)};
    state.Enemies[0].Radius = 11.0F;
    EXPECT_FALSE(IsSpawnClear(state, 127.0F, 100.0F, 8.0F));
    EXPECT_TRUE(IsSpawnClear(state, 127.5F, 100.0F, 8.0F));
}

TEST(IsSpawnClear, KeepsFourPixelsAroundAnObstacleAndFourAroundTheNewcomer) {
    GameState state = QuietRun();
    state.Obstacles = {ObstacleAt(100.0F, 100.0F)}; // 40 by 14, widened to 48 by 22
    EXPECT_FALSE(IsSpawnClear(state, 100.0F, 100.0F, 8.0F));
    EXPECT_FALSE(IsSpawnClear(state, 136.0F, 100.0F, 8.0F)); // 24 + 8 + 4
    EXPECT_TRUE(IsSpawnClear(state, 136.5F, 100.0F, 8.0F));
    EXPECT_FALSE(IsSpawnClear(state, 100.0F, 77.0F, 8.0F)); // 11 + 8 + 4
    EXPECT_TRUE(IsSpawnClear(state, 100.0F, 76.5F, 8.0F));
}

TEST(IsSpawnClear, RoundsAnObstaclesWidenedCorners) {
    GameState state = QuietRun();
    state.Obstacles = {ObstacleAt(100.0F, 100.0F)};
    // Radius 6 + 4 against the corner (124, 111): 6 and 8 make 10.
    EXPECT_FALSE(IsSpawnClear(state, 130.0F, 119.0F, 6.0F));
    EXPECT_TRUE(IsSpawnClear(state, 130.5F, 119.0F, 6.0F));
}

TEST(IsSpawnClear, KeepsFourPixelsAroundAnItemAndFourAroundTheNewcomer) {
    GameState state = QuietRun();
    state.Items = {ItemAt(100.0F, 100.0F)}; // radius 10
    EXPECT_FALSE(IsSpawnClear(state, 100.0F, 100.0F, 8.0F));
    EXPECT_FALSE(IsSpawnClear(state, 126.0F, 100.0F, 8.0F)); // 10 + 4 + 8 + 4
    EXPECT_TRUE(IsSpawnClear(state, 126.5F, 100.0F, 8.0F));
}

TEST(IsSpawnClear, LooksAtEveryEntryOfAList) {
    GameState state = QuietRun();
    state.Enemies = {EnemyAt(100.0F, 100.0F), EnemyAt(300.0F, 100.0F), EnemyAt(500.0F, 100.0F)};
    EXPECT_FALSE(IsSpawnClear(state, 510.0F, 100.0F, 8.0F));
    EXPECT_FALSE(IsSpawnClear(state, 310.0F, 100.0F, 8.0F));
    EXPECT_TRUE(IsSpawnClear(state, 400.0F, 100.0F, 8.0F));
}

TEST(IsSpawnClear, IgnoresShotsExplosionsAndThePlayer) {
    GameState state = QuietRun();
    state.Player.X = 640.0F;
    state.Player.Y = -20.0F;
    state.Bullets = {{640.0F, -20.0F, 430.0F, 2.0F}};
    state.EnemyBullets = {{640.0F, -20.0F, 190.0F, 2.0F, 12}};
    state.Explosions = {{640.0F, -20.0F, 0.0F, 0.5F, 200.0F, {}}};
    EXPECT_TRUE(IsSpawnClear(state, 640.0F, -20.0F, 8.0F));
}
