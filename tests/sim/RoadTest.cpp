#include "sim/Step.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

TEST(Road, AtItsStagesSpeedRollsOnEvenly) {
    GameState state = QuietRun(); // 120, which is what stage 1 wants
    state.StageTransition = 0.0F;
    state.RoadScroll = 1000.0F;
    state.GameTime = 3.0F;
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_EQ(state.CurrentScrollSpeed, 120.0F);
    EXPECT_EQ(state.RoadScroll, 1030.0F);
    EXPECT_FLOAT_EQ(state.StageTransition, 0.041666667F); // 30 / 720
    EXPECT_EQ(state.GameTime, 3.25F);
}

TEST(Road, EasesTowardsAFasterStage) {
    GameState state = QuietRunInStage(3); // wants 136
    state.StageTransition = 0.5F;
    state.RoadScroll = 100.0F;
    SimulationStep(state, 0.02F, HeldNothing);
    // e^-0.11 is 0.89583414, so the road gains 16 x 0.10416586 = 1.6666538 and then drives 0.02 of the sum.
    EXPECT_FLOAT_EQ(state.CurrentScrollSpeed, 121.66665F);
    EXPECT_FLOAT_EQ(state.RoadScroll, 102.43333F);
    EXPECT_FLOAT_EQ(state.StageTransition, 0.50337963F); // 2.433333 / 720 more
}

TEST(Road, EasesTowardsASlowerStage) {
    GameState state = QuietRunInStage(4); // wants 122
    state.CurrentScrollSpeed = 136.0F;
    SimulationStep(state, 0.1F, HeldNothing);
    // e^-0.55 is 0.57694981, which is what is left of the difference of 14: 8.0772973.
    EXPECT_FLOAT_EQ(state.CurrentScrollSpeed, 130.0773F);
}

TEST(Road, EasesBackFromTheSlowestSpeedOfAFile) {
    GameState state = QuietRun();
    state.CurrentScrollSpeed = 10.0F;
    SimulationStep(state, 0.1F, HeldNothing);
    EXPECT_FLOAT_EQ(state.CurrentScrollSpeed, 56.535521F); // 120 - 110 x 0.57694981
}

TEST(Road, EasesTheSameWhateverTheFrameRate) {
    GameState slow = QuietRunInStage(9); // wants 166
    GameState fast = slow;
    SimulationStep(slow, 0.1F, HeldNothing);
    for (int i = 0; i < 10; ++i) {
        SimulationStep(fast, 0.01F, HeldNothing);
    }
    EXPECT_NEAR(static_cast<double>(slow.CurrentScrollSpeed), 139.46031, 0.001); // 166 - 46 x 0.57694981
    EXPECT_NEAR(static_cast<double>(fast.CurrentScrollSpeed), 139.46031, 0.001);
}

TEST(Road, TheSeamOfTheSceneryStopsAtTheBottom) {
    GameState state = QuietRun();
    state.StageTransition = 0.99F;
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_EQ(state.StageTransition, 1.0F);
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_EQ(state.StageTransition, 1.0F);
}

TEST(Road, TheSeamCrossesTheScreenInSixSecondsAt120) {
    GameState state = QuietRun();
    state.StageTransition = 0.0F;
    for (int i = 0; i < 23; ++i) {
        SimulationStep(state, 0.25F, HeldNothing);
    }
    EXPECT_FLOAT_EQ(state.StageTransition, 0.95833333F); // 5.75 of 6 seconds
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_FLOAT_EQ(state.StageTransition, 1.0F);
}

TEST(Road, ScrollsOnWithoutWrapping) {
    GameState state = QuietRun();
    state.RoadScroll = 100000.0F;
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_EQ(state.RoadScroll, 100030.0F);
}

TEST(Road, EntersTheNewStageAtTheOldOnesSpeed) {
    GameState state = QuietRunInStage(2);
    state.GameTime = 51.99F;
    SimulationStep(state, Frame, HeldNothing); // still stage 2 while the road moves
    EXPECT_EQ(state.Stage, 3);
    EXPECT_EQ(state.CurrentScrollSpeed, 120.0F);
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_GT(state.CurrentScrollSpeed, 120.0F);
}
