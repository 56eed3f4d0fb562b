#include "sim/Step.hpp"
#include "tests/sim/Runs.hpp"
#include "tests/support/LogicalWidthScope.hpp"

#include <gtest/gtest.h>

TEST(LaneMove, JumpsOneLaneToTheLeftAtOnce) {
    GameState state = QuietRun();
    SimulationStep(state, Frame, HeldLeft);
    EXPECT_EQ(state.PlayerLane, 3);
    EXPECT_EQ(state.Player.X, 608.0F);
    EXPECT_EQ(state.Player.Y, 670.0F);
    EXPECT_EQ(state.LaneMoveCooldown, 0.09F);
}

TEST(LaneMove, JumpsOneLaneToTheRightAtOnce) {
    GameState state = QuietRun();
    SimulationStep(state, Frame, HeldRight);
    EXPECT_EQ(state.PlayerLane, 5);
    EXPECT_EQ(state.Player.X, 673.0F);
    EXPECT_EQ(state.LaneMoveCooldown, 0.09F);
}

TEST(LaneMove, MovesOneLaneAtMostHoweverLongTheFrame) {
    GameState state = QuietRun();
    SimulationStep(state, 1.0F, HeldRight);
    EXPECT_EQ(state.PlayerLane, 5);
}

TEST(LaneMove, WaitsForTheCooldown) {
    GameState state = QuietRun();
    state.LaneMoveCooldown = 0.0625F;
    SimulationStep(state, 0.03125F, HeldLeft);
    EXPECT_EQ(state.PlayerLane, 4);
    EXPECT_EQ(state.LaneMoveCooldown, 0.03125F);
    SimulationStep(state, 0.03125F, HeldLeft); // at exactly 0
    EXPECT_EQ(state.PlayerLane, 3);
    EXPECT_EQ(state.LaneMoveCooldown, 0.09F);
}

TEST(LaneMove, AHeldDirectionRepeatsInWholeFrames) {
    GameState state = QuietRun();
    state.PlayerLane = 0;
    for (int i = 0; i < 7; ++i) { // 0.09 is three frames of 0.03125, the overshoot is dropped
        SimulationStep(state, 0.03125F, HeldRight);
        EXPECT_EQ(state.PlayerLane, 1 + i / 3) << "frame " << i;
    }
}

TEST(LaneMove, BothDirectionsTogetherDoNothingAndKeepTheCooldownClear) {
    GameState state = QuietRun();
    SimulationStep(state, Frame, HeldBothWays);
    EXPECT_EQ(state.PlayerLane, 4);
    EXPECT_EQ(state.Player.X, 640.0F);
    EXPECT_EQ(state.LaneMoveCooldown, 0.0F);
}

TEST(LaneMove, NoDirectionDoesNothing) {
    GameState state = QuietRun();
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.PlayerLane, 4);
    EXPECT_EQ(state.LaneMoveCooldown, 0.0F);
}

TEST(LaneMove, HeldDirectionAtTheRoadEdgeRearmsTheCooldownAndMovesNothing) {
    GameState state = QuietRun();
    state.PlayerLane = 0;
    state.Player.X = 510.0F;
    SimulationStep(state, Frame, HeldLeft);
    EXPECT_EQ(state.PlayerLane, 0);
    EXPECT_EQ(state.Player.X, 510.0F);
    EXPECT_EQ(state.LaneMoveCooldown, 0.09F);

    state.PlayerLane = 8;
    state.Player.X = 770.0F;
    state.LaneMoveCooldown = 0.0F;
    SimulationStep(state, Frame, HeldRight);
    EXPECT_EQ(state.PlayerLane, 8);
    EXPECT_EQ(state.Player.X, 770.0F);
    EXPECT_EQ(state.LaneMoveCooldown, 0.09F);
}

TEST(LaneMove, FollowsTheRoadOfTheScreensWidth) {
    const LogicalWidthScope scope(960);
    GameState state = QuietRun();
    SimulationStep(state, Frame, HeldRight);
    EXPECT_EQ(state.Player.X, 513.0F);
}

TEST(LaneMove, AStepWithoutAMoveLeavesThePlayersXAlone) {
    GameState state = QuietRun();
    state.Player.X = 651.0F;
    SimulationStep(state, Frame, HeldFire);
    EXPECT_EQ(state.Player.X, 651.0F);
}
