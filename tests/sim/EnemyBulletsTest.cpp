#include "sim/Bullets.hpp"
#include "sim/Step.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

TEST(EnemyBullets, FlyTheirOwnSpeedAndAShareOfTheRoads) {
    GameState state = QuietRun();
    state.CurrentScrollSpeed = 150.0F;
    state.EnemyBullets.push_back({612.5F, 100.0F, 176.0F, 2.0F, 10});
    MoveEnemyBullets(state, 0.5F);
    EXPECT_FLOAT_EQ(state.EnemyBullets[0].Y, 197.0F); // 0.5 x (18 + 176)
    EXPECT_EQ(state.EnemyBullets[0].X, 612.5F) << "straight down";
}

TEST(EnemyBullets, AreNotBoundToALane) {
    GameState state = QuietRun();
    state.EnemyBullets.push_back({571.0F, 100.0F, 176.0F, 2.2F, 12});
    SimulationStep(state, Frame, HeldNothing);
    ASSERT_EQ(state.EnemyBullets.size(), 1U);
    EXPECT_EQ(state.EnemyBullets[0].X, 571.0F);
}

TEST(EnemyBullets, ANewOneFliesInItsFirstFrame) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(0, 100.0F));
    state.Enemies[0].FireCooldown = 0.0F;
    SimulationStep(state, Frame, HeldNothing);
    ASSERT_EQ(state.EnemyBullets.size(), 1U);
    // The enemy drives 1.96875 and shoots from 11 below; then the shot flies (14.4 + 176) / 64.
    EXPECT_FLOAT_EQ(state.EnemyBullets[0].Y, 100.0F + 1.96875F + 11.0F + 2.975F);
}
