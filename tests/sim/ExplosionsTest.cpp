#include "sim/Explosions.hpp"

#include "sim/Step.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

TEST(AddExplosion, AppendsABurstOfAgeZero) {
    GameState state = QuietRun();
    AddExplosion(state, 1.0F, 2.0F, 0.5F, 20.0F, {1, 2, 3, 4});
    AddExplosion(state, 5.0F, 6.0F, 0.25F, 30.0F, {5, 6, 7, 8});
    ASSERT_EQ(state.Explosions.size(), 2U);
    EXPECT_EQ(state.Explosions[0], (Explosion{1.0F, 2.0F, 0.0F, 0.5F, 20.0F, {1, 2, 3, 4}}));
    EXPECT_EQ(state.Explosions[1], (Explosion{5.0F, 6.0F, 0.0F, 0.25F, 30.0F, {5, 6, 7, 8}}));
}

TEST(Explosions, AgeWithEveryStepAndStayWhereTheyAre) {
    GameState state = QuietRun();
    state.Explosions = {{10.0F, 20.0F, 0.125F, 0.5F, 26.0F, {}}};
    SimulationStep(state, 0.0625F, HeldNothing);
    ASSERT_EQ(state.Explosions.size(), 1U);
    EXPECT_EQ(state.Explosions[0], (Explosion{10.0F, 20.0F, 0.1875F, 0.5F, 26.0F, {}}));
}

TEST(Explosions, GoWhenTheirAgeReachesTheirLife) {
    GameState state = QuietRun();
    state.Explosions = {{1.0F, 0.0F, 0.25F, 0.5F, 26.0F, {}}, {2.0F, 0.0F, 0.0F, 0.25F, 26.0F, {}},
        {3.0F, 0.0F, 0.0F, 0.5F, 26.0F, {}}, {4.0F, 0.0F, 1.0F, 0.5F, 26.0F, {}},
        {5.0F, 0.0F, 0.125F, 0.5F, 26.0F, {}}};
    SimulationStep(state, 0.25F, HeldNothing); // the first two are exactly at their end
    ASSERT_EQ(state.Explosions.size(), 2U);
    EXPECT_EQ(state.Explosions[0].X, 3.0F);
    EXPECT_EQ(state.Explosions[1].X, 5.0F);
}

TEST(Explosions, WithoutALifeGoAtOnce) {
    GameState state = QuietRun();
    state.Explosions = {{1.0F, 0.0F, 0.0F, 0.0F, 26.0F, {}}};
    SimulationStep(state, 0.0F, HeldNothing);
    EXPECT_TRUE(state.Explosions.empty());
}
