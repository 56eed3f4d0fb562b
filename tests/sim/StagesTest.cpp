#include "sim/Stages.hpp"

#include "sim/Step.hpp"
#include "state/GameState.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

struct Row {
    float Speed;
    bool Water;
    std::int32_t Theme;
};

constexpr std::array<Row, 20> FirstTwentyStages{{
    {120.0F, false, 0},                                                                                 // 1
    {120.0F, true, 1}, {136.0F, true, 1}, {122.0F, false, 2}, {146.0F, false, 2},                       // 5
    {128.0F, false, 2}, {156.0F, false, 2}, {136.0F, false, 3}, {166.0F, false, 3}, {120.0F, false, 0}, // 10
    {120.0F, true, 1}, {136.0F, true, 1}, {122.0F, false, 2}, {146.0F, false, 2}, {128.0F, false, 2},   // 15
    {156.0F, false, 2}, {136.0F, false, 3}, {166.0F, false, 3}, {120.0F, false, 0}, {120.0F, true, 1},  // 20
}};

void ExpectRow(std::int32_t Stage, const Row &Row) {
    EXPECT_EQ(TargetScrollSpeed(Stage), Row.Speed) << "stage " << Stage;
    EXPECT_EQ(IsWaterStage(Stage), Row.Water) << "stage " << Stage;
    EXPECT_EQ(StageThemeOf(Stage), Row.Theme) << "stage " << Stage;
}

/// A run that one step takes from one stage into another. Its generator's next flow directions are +1, -1.
GameState BeforeStage(std::int32_t OldStage, std::int32_t NewStage) {
    GameState state = QuietRun();
    state.Rng.seed(5489U);
    state.Stage = OldStage;
    state.GameTime = 26.0F * static_cast<float>(NewStage - 1);
    return state;
}

GameState AfterStageChange(std::int32_t OldStage, std::int32_t NewStage, std::int32_t Stocks) {
    GameState state = BeforeStage(OldStage, NewStage);
    state.Player.Stocks = Stocks;
    SimulationStep(state, Frame, HeldNothing);
    return state;
}

} // namespace

TEST(StageTable, HoldsForTheFirstTwentyStages) {
    for (std::size_t i = 0; i < FirstTwentyStages.size(); ++i) {
        ExpectRow(static_cast<std::int32_t>(i) + 1, FirstTwentyStages[i]);
    }
}

TEST(StageTable, TakesStagesBelowOneForTheFirst) {
    ExpectRow(0, FirstTwentyStages[0]);
    ExpectRow(-5, FirstTwentyStages[0]);
    ExpectRow(std::numeric_limits<std::int32_t>::min(), FirstTwentyStages[0]);
}

TEST(StageTable, RepeatsUpToTheLargestStage) {
    ExpectRow(2147483647, FirstTwentyStages[0]); // 2147483646 is a multiple of 9
    ExpectRow(2147483646, FirstTwentyStages[8]);
}

TEST(StageAt, ChangesEvery26Seconds) {
    EXPECT_EQ(StageSeconds, 26.0F);
    EXPECT_EQ(StageAt(0.0F), 1);
    EXPECT_EQ(StageAt(25.99F), 1);
    EXPECT_EQ(StageAt(26.0F), 2);
    EXPECT_EQ(StageAt(51.99F), 2);
    EXPECT_EQ(StageAt(52.0F), 3);
    EXPECT_EQ(StageAt(259.9F), 10);
    EXPECT_EQ(StageAt(260.0F), 11);
}

TEST(StageAt, IsNeverBelowOne) {
    EXPECT_EQ(StageAt(-1.0F), 1);
    EXPECT_EQ(StageAt(-26.0F), 1);
    EXPECT_EQ(StageAt(-1000.0F), 1);
    EXPECT_EQ(StageAt(-std::numeric_limits<float>::infinity()), 1);
}

TEST(StageAt, HasNoOverflow) {
    EXPECT_EQ(StageAt(1e30F), 2147483647);
    EXPECT_EQ(StageAt(std::numeric_limits<float>::infinity()), 2147483647);
}

TEST(StageChange, RemembersTheOldStageAndStartsTheSeam) {
    GameState state = BeforeStage(1, 2);
    state.WaterFlowDirection = -1;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Stage, 2);
    EXPECT_EQ(state.PreviousStage, 1);
    EXPECT_EQ(state.StageTransition, 0.0F);
    EXPECT_EQ(state.PreviousWaterFlowDirection, -1);
}

TEST(StageChange, WaitsForTheFullLengthOfAStage) {
    GameState state = QuietRun();
    state.GameTime = 25.5F;
    SimulationStep(state, 0.25F, HeldNothing); // 25.75
    EXPECT_EQ(state.Stage, 1);
    SimulationStep(state, 0.25F, HeldNothing); // 26
    EXPECT_EQ(state.Stage, 2);
}

TEST(StageChange, HappensOnceForAStage) {
    GameState state = BeforeStage(1, 2);
    SimulationStep(state, Frame, HeldNothing);
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Stage, 2);
    EXPECT_EQ(state.PreviousStage, 1);
    EXPECT_GT(state.StageTransition, 0.0F);
}

TEST(StageChange, DrawsTheFlowWhereWaterBegins) {
    GameState state = BeforeStage(1, 2);
    state.WaterFlowDirection = -1;
    state.PreviousWaterFlowDirection = 1;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.WaterFlowDirection, 1); // the first draw
    EXPECT_EQ(state.PreviousWaterFlowDirection, -1);
    std::mt19937 oneDrawn(5489U);
    oneDrawn.discard(1);
    EXPECT_EQ(state.Rng, oneDrawn);
}

TEST(StageChange, MayDrawTheSameFlowAgain) {
    GameState state = BeforeStage(10, 11);
    state.WaterFlowDirection = 1;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.WaterFlowDirection, 1);
    EXPECT_EQ(state.PreviousWaterFlowDirection, 1);
    EXPECT_NE(state.Rng, std::mt19937(5489U));
}

TEST(StageChange, KeepsTheFlowFromWaterToWater) {
    GameState state = BeforeStage(2, 3);
    state.WaterFlowDirection = -1;
    state.PreviousWaterFlowDirection = 1;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Stage, 3);
    EXPECT_EQ(state.WaterFlowDirection, -1);
    EXPECT_EQ(state.PreviousWaterFlowDirection, -1);
    EXPECT_EQ(state.Rng, std::mt19937(5489U)); // nothing drawn
}

TEST(StageChange, KeepsTheFlowOnTheWayToDryLand) {
    GameState state = BeforeStage(3, 4);
    state.WaterFlowDirection = -1;
    state.PreviousWaterFlowDirection = 1;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Stage, 4);
    EXPECT_EQ(state.WaterFlowDirection, -1);
    EXPECT_EQ(state.PreviousWaterFlowDirection, -1);
    EXPECT_EQ(state.Rng, std::mt19937(5489U));
}

TEST(SpareLives, ComeWithEveryFifthStage) {
    EXPECT_EQ(AfterStageChange(4, 5, 2).Player.Stocks, 3);
    EXPECT_EQ(AfterStageChange(9, 10, 2).Player.Stocks, 3);
    EXPECT_EQ(AfterStageChange(14, 15, 0).Player.Stocks, 1);
}

TEST(SpareLives, DoNotComeWithTheStagesBetween) {
    for (const std::int32_t stage : {2, 3, 4, 6, 7, 8, 9, 11, 12, 13, 14}) {
        EXPECT_EQ(AfterStageChange(stage - 1, stage, 2).Player.Stocks, 2) << "stage " << stage;
    }
}

TEST(SpareLives, AreNeverMoreThanFive) {
    EXPECT_EQ(AfterStageChange(4, 5, 4).Player.Stocks, 5);
    EXPECT_EQ(AfterStageChange(4, 5, 5).Player.Stocks, 5);
    EXPECT_EQ(AfterStageChange(1, 101, 0).Player.Stocks, 5);
}

TEST(SpareLives, AreAllPaidWhereStagesAreSkipped) {
    const GameState state = AfterStageChange(4, 12, 2);
    EXPECT_EQ(state.Stage, 12);
    EXPECT_EQ(state.PreviousStage, 4);
    EXPECT_EQ(state.Player.Stocks, 4); // 5 and 10
    EXPECT_EQ(AfterStageChange(4, 12, 4).Player.Stocks, 5);
    EXPECT_EQ(AfterStageChange(1, 5, 2).Player.Stocks, 3);
    EXPECT_EQ(AfterStageChange(5, 9, 2).Player.Stocks, 2);
}

TEST(SpareLives, AreNotTakenBackByAStageThatIsCorrectedDownwards) {
    const GameState state = AfterStageChange(12, 1, 3);
    EXPECT_EQ(state.Stage, 1);
    EXPECT_EQ(state.PreviousStage, 12);
    EXPECT_EQ(state.Player.Stocks, 3);
    EXPECT_EQ(AfterStageChange(12, 6, 3).Player.Stocks, 3);
}

TEST(SpareLives, CountAnOldStageBelowFiveAsNone) {
    GameState state = QuietRun();
    state.Stage = -20;
    state.Player.Stocks = 0;
    StartStage(state, 5);
    EXPECT_EQ(state.Player.Stocks, 1);
}
