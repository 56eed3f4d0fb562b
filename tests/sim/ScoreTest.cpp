#include "sim/Score.hpp"

#include "state/GameState.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr std::int64_t MostPoints = std::numeric_limits<std::int64_t>::max();

} // namespace

TEST(ScoreForStage, PaysTheBaseValueInTheFirstStage) {
    EXPECT_EQ(ScoreForStage(25, 1), 25);
    EXPECT_EQ(ScoreForStage(200, 1), 200);
    EXPECT_EQ(ScoreForStage(1, 1), 1);
}

TEST(ScoreForStage, PaysSixPercentMoreForEachStage) {
    EXPECT_EQ(ScoreForStage(200, 2), 212);
    EXPECT_EQ(ScoreForStage(300, 2), 318);
    EXPECT_EQ(ScoreForStage(120, 2), 127);  // 127.2
    EXPECT_EQ(ScoreForStage(120, 3), 134);  // 134.4
    EXPECT_EQ(ScoreForStage(200, 11), 320); // 1.6
    EXPECT_EQ(ScoreForStage(200, 25), 488); // 2.44
}

TEST(ScoreForStage, StopsAtTwoAndAHalfTimesFromStage26On) {
    EXPECT_EQ(ScoreForStage(200, 26), 500);
    EXPECT_EQ(ScoreForStage(200, 27), 500);
    EXPECT_EQ(ScoreForStage(200, 1000), 500);
    EXPECT_EQ(ScoreForStage(200, std::numeric_limits<std::int32_t>::max()), 500);
}

TEST(ScoreForStage, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(ScoreForStage(25, 26), 63); // 62.5
    EXPECT_EQ(ScoreForStage(25, 100), 63);
    EXPECT_EQ(ScoreForStage(1, 26), 3); // 2.5
}

TEST(ScoreForStage, CountsInSinglePrecision) {
    // 1.06 in single precision is a little less, and 25 times that is 26.499998: 26, where 26.5 would
    // make 27.
    EXPECT_EQ(ScoreForStage(25, 2), 26);
    EXPECT_EQ(ScoreForStage(2147483647, 26), 5368709120); // 2147483648 x 2.5
    EXPECT_EQ(ScoreForStage(16777217, 1), 16777216);      // the first whole number that a float cannot hold
}

TEST(ScoreForStage, PaysNothingForNothing) {
    EXPECT_EQ(ScoreForStage(0, 5), 0);
    EXPECT_EQ(ScoreForStage(-1, 5), 0);
    EXPECT_EQ(ScoreForStage(std::numeric_limits<std::int32_t>::min(), 26), 0);
}

TEST(ScoreForStage, TakesStagesBelowOneForTheFirst) {
    EXPECT_EQ(ScoreForStage(200, 0), 200);
    EXPECT_EQ(ScoreForStage(200, -5), 200);
    EXPECT_EQ(ScoreForStage(200, std::numeric_limits<std::int32_t>::min()), 200);
}

TEST(AddScore, AddsToTheScoreAlone) {
    GameState state;
    state.Score = 100;
    state.HighScore = 50;
    AddScore(state, 212);
    EXPECT_EQ(state.Score, 312);
    EXPECT_EQ(state.HighScore, 50);
    AddScore(state, 0);
    EXPECT_EQ(state.Score, 312);
}

TEST(AddScore, PaysByTheStageOfTheRun) {
    GameState state;
    state.Stage = 2;
    AddScore(state, 200);
    EXPECT_EQ(state.Score, 212);
}

TEST(AddScore, StopsAtTheLargestNumber) {
    GameState state;
    state.Score = MostPoints - 10;
    AddScore(state, 10);
    EXPECT_EQ(state.Score, MostPoints);
    AddScore(state, 1);
    EXPECT_EQ(state.Score, MostPoints);
    state.Score = MostPoints - 10;
    AddScore(state, 11);
    EXPECT_EQ(state.Score, MostPoints);
}
