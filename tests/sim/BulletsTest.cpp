#include "sim/Step.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

TEST(Bullets, FlyUpWithTheirOwnSpeed) {
    GameState state = QuietRun();
    state.Bullets = {{300.0F, 500.0F, 430.0F, 2.0F}, {400.0F, 500.0F, 80.0F, 2.0F}};
    SimulationStep(state, 0.125F, HeldNothing);
    ASSERT_EQ(state.Bullets.size(), 2U);
    EXPECT_EQ(state.Bullets[0], (Bullet{300.0F, 446.25F, 430.0F, 2.0F})); // 53.75 higher
    EXPECT_EQ(state.Bullets[1], (Bullet{400.0F, 490.0F, 80.0F, 2.0F}));
}

TEST(Bullets, StayAtExactlyTwentyAboveTheTopAndLeaveBeyond) {
    GameState state = QuietRun();
    state.Bullets = {{1.0F, -10.0F, 80.0F, 2.0F}, {2.0F, -10.125F, 80.0F, 2.0F}, {3.0F, 100.0F, 80.0F, 2.0F},
        {4.0F, -20.0F, 80.0F, 2.0F}, {5.0F, 0.0F, 80.0F, 2.0F}};
    SimulationStep(state, 0.125F, HeldNothing); // 10 higher: -20, -20.125, 90, -30, -10
    ASSERT_EQ(state.Bullets.size(), 3U);
    EXPECT_EQ(state.Bullets[0].X, 1.0F);
    EXPECT_EQ(state.Bullets[1].X, 3.0F);
    EXPECT_EQ(state.Bullets[2].X, 5.0F);
}
