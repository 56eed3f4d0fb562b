#include "sim/Obstacles.hpp"

#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

TEST(Obstacles, RollALittleFasterThanTheRoad) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Obstacles[0].Speed = 95.0F;
    MoveObstacles(state, 0.5F);
    EXPECT_EQ(state.Obstacles[0].Y, 162.0F);
    EXPECT_EQ(state.Obstacles[0].Speed, 95.0F);
}

TEST(Obstacles, AFastOneRollsItsOwnSpeedByTheRoadsScale) {
    GameState state = QuietRun();
    state.CurrentScrollSpeed = 150.0F;
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Obstacles[0].Speed = 128.0F; // 160 on this road
    MoveObstacles(state, 0.5F);
    EXPECT_EQ(state.Obstacles[0].Y, 180.0F);
}

TEST(Obstacles, XFollowsTheLane) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(6, 100.0F));
    state.Obstacles[0].X = 3.0F;
    MoveObstacles(state, Frame);
    EXPECT_EQ(state.Obstacles[0].X, 705.0F);
}

TEST(Obstacles, TheirHitFlashFadesAndStopsAtZero) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Obstacles[0].HitFlash = 0.1875F;
    MoveObstacles(state, 0.125F);
    EXPECT_EQ(state.Obstacles[0].HitFlash, 0.0625F);
    MoveObstacles(state, 0.125F);
    EXPECT_EQ(state.Obstacles[0].HitFlash, 0.0F);
}

TEST(Obstacles, GoExactlyWhereTheyAreForetoldToBe) {
    GameState state = QuietRun();
    state.CurrentScrollSpeed = 143.7F;
    state.Obstacles.push_back(ObstacleInLane(4, 100.1F));
    state.Obstacles.push_back(ObstacleInLane(5, 33.3F));
    state.Obstacles[1].Speed = 197.0F;
    const Heights foretold{
        PredictedY(state, state.Obstacles[0], 0.0167F), PredictedY(state, state.Obstacles[1], 0.0167F)};
    MoveObstacles(state, 0.0167F);
    EXPECT_EQ(HeightsOf(state.Obstacles), foretold);
}
