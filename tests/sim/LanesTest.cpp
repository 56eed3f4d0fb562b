#include "sim/Lanes.hpp"

#include "state/GameState.hpp"
#include "tests/sim/Runs.hpp"
#include "tests/support/LogicalWidthScope.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

struct Road {
    std::int32_t Width;
    float Left;
    std::array<float, 9> Centres;
};

// Left edge (width - 320) / 2, first lane 30 further, then steps of 32.5 with the halves rounded up.
constexpr std::array<Road, 6> Roads{{
    {960, 320.0F, {350, 383, 415, 448, 480, 513, 545, 578, 610}},
    {1080, 380.0F, {410, 443, 475, 508, 540, 573, 605, 638, 670}},
    {1152, 416.0F, {446, 479, 511, 544, 576, 609, 641, 674, 706}},
    {1280, 480.0F, {510, 543, 575, 608, 640, 673, 705, 738, 770}},
    {1728, 704.0F, {734, 767, 799, 832, 864, 897, 929, 962, 994}},
    {2560, 1120.0F, {1150, 1183, 1215, 1248, 1280, 1313, 1345, 1378, 1410}},
}};

} // namespace

TEST(Lanes, TheRoadIsCentredAtEveryLogicalWidth) {
    for (const Road &road : Roads) {
        const LogicalWidthScope scope(road.Width);
        EXPECT_EQ(RoadLeft(), road.Left) << "width " << road.Width;
        EXPECT_EQ(RoadRight(), road.Left + 320.0F) << "width " << road.Width;
    }
}

TEST(Lanes, AnOddLogicalWidthPutsTheRoadOnHalfAPixel) {
    const LogicalWidthScope scope(1281);
    EXPECT_EQ(RoadLeft(), 480.5F);
    EXPECT_EQ(RoadRight(), 800.5F);
    EXPECT_EQ(LaneCenterX(0), 511.0F); // 510.5
    EXPECT_EQ(LaneCenterX(1), 543.0F); // 543.0
}

TEST(Lanes, CentresAreWholePixelsAtEveryLogicalWidth) {
    for (const Road &road : Roads) {
        const LogicalWidthScope scope(road.Width);
        for (std::int32_t lane = 0; lane < 9; ++lane) {
            EXPECT_EQ(LaneCenterX(lane), road.Centres[static_cast<std::size_t>(lane)])
                << "width " << road.Width << ", lane " << lane;
        }
    }
}

TEST(Lanes, ThereAreNineAndThePlayerStartsInTheMiddle) {
    EXPECT_EQ(LaneCount, 9);
    EXPECT_EQ(MiddleLane, 4);
    EXPECT_EQ(RoadWidth, 320.0F);
}

TEST(Lanes, ALaneOffTheRoadCountsAsTheNearestOneOnIt) {
    EXPECT_EQ(LaneCenterX(9), 770.0F);
    EXPECT_EQ(LaneCenterX(std::numeric_limits<std::int32_t>::max()), 770.0F);
    EXPECT_EQ(LaneCenterX(-1), 510.0F);
    EXPECT_EQ(LaneCenterX(std::numeric_limits<std::int32_t>::min()), 510.0F);
    EXPECT_EQ(ClampLane(9), 8);
    EXPECT_EQ(ClampLane(8), 8);
    EXPECT_EQ(ClampLane(5), 5);
    EXPECT_EQ(ClampLane(0), 0);
    EXPECT_EQ(ClampLane(-1), 0);
}

namespace {

GameState RunWithOneOfEach() {
    GameState state = QuietRun();
    state.PlayerLane = 8;
    state.Enemies = {EnemyAt(1.0F, 100.0F)};
    state.Enemies[0].Lane = 0;
    state.Obstacles = {ObstacleAt(2.0F, 200.0F)};
    state.Obstacles[0].Lane = 1;
    state.Items = {ItemAt(3.0F, 300.0F)};
    state.Items[0].Lane = 7;
    state.Bullets = {{4.0F, 400.0F, 430.0F, 2.0F}};
    state.EnemyBullets = {{5.0F, 500.0F, 190.0F, 2.0F, 12}};
    state.Explosions = {{6.0F, 600.0F, 0.1F, 0.5F, 20.0F, {}}};
    return state;
}

} // namespace

TEST(SnapToLanes, MovesEverythingThatBelongsToALaneOntoTheNewRoad) {
    GameState state = RunWithOneOfEach();
    const LogicalWidthScope scope(960);
    SnapToLanes(state);
    EXPECT_EQ(state.Player.X, 610.0F);
    EXPECT_EQ(state.Enemies[0].X, 350.0F);
    EXPECT_EQ(state.Obstacles[0].X, 383.0F);
    EXPECT_EQ(state.Items[0].X, 578.0F);
}

TEST(SnapToLanes, LeavesEveryHeightAsItIs) {
    GameState state = RunWithOneOfEach();
    state.Player.Y = 123.0F;
    const LogicalWidthScope scope(2560);
    SnapToLanes(state);
    EXPECT_EQ(state.Player.Y, 123.0F);
    EXPECT_EQ(state.Enemies[0].Y, 100.0F);
    EXPECT_EQ(state.Obstacles[0].Y, 200.0F);
    EXPECT_EQ(state.Items[0].Y, 300.0F);
}

TEST(SnapToLanes, LeavesShotsAndExplosionsAlone) {
    GameState state = RunWithOneOfEach();
    const GameState before = state;
    const LogicalWidthScope scope(960);
    SnapToLanes(state);
    EXPECT_EQ(state.Bullets, before.Bullets);
    EXPECT_EQ(state.EnemyBullets, before.EnemyBullets);
    EXPECT_EQ(state.Explosions, before.Explosions);
}

TEST(SnapToLanes, BringsLanesBackOntoTheRoad) {
    GameState state = RunWithOneOfEach();
    state.PlayerLane = -3;
    state.Enemies[0].Lane = 9;
    state.Obstacles[0].Lane = -1;
    state.Items[0].Lane = 100;
    SnapToLanes(state);
    EXPECT_EQ(state.PlayerLane, 0);
    EXPECT_EQ(state.Player.X, 510.0F);
    EXPECT_EQ(state.Enemies[0].Lane, 8);
    EXPECT_EQ(state.Enemies[0].X, 770.0F);
    EXPECT_EQ(state.Obstacles[0].Lane, 0);
    EXPECT_EQ(state.Obstacles[0].X, 510.0F);
    EXPECT_EQ(state.Items[0].Lane, 8);
    EXPECT_EQ(state.Items[0].X, 770.0F);
}

TEST(SnapToLanes, ReachesEveryEntryOfAList) {
    GameState state = QuietRun();
    for (std::int32_t lane = 0; lane < 9; ++lane) {
        state.Enemies.push_back(EnemyAt(0.0F, 100.0F));
        state.Enemies.back().Lane = lane;
    }
    SnapToLanes(state);
    for (const Enemy &enemy : state.Enemies) {
        EXPECT_EQ(enemy.X, LaneCenterX(enemy.Lane)) << "lane " << enemy.Lane;
    }
}
