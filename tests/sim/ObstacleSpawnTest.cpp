#include "sim/ObstacleSpawn.hpp"

#include "tests/sim/Draws.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace {

/// A quiet run in which an obstacle is due.
GameState DueRun(std::int32_t Stage = 1) {
    GameState state = QuietRunInStage(Stage);
    state.ObstacleSpawnTimer = 0.0F;
    return state;
}

using LaneSet = std::set<std::int32_t>;

/// Every lane in which a new obstacle of a type finds its place, by many seeds.
LaneSet BirthLanes(const GameState &Start, std::int32_t Type) {
    LaneSet lanes;
    for (std::uint32_t seed = 1; seed <= 600; ++seed) {
        const float r = Draws(seed).Unit();
        const std::int32_t type = r < 0.5F ? 0 : r < 0.82F ? 1 : 2;
        if (type != Type) {
            continue;
        }
        GameState state = Start;
        state.Rng.seed(seed);
        SpawnObstacle(state, 0.0F);
        if (state.Obstacles.size() > Start.Obstacles.size()) {
            lanes.insert(state.Obstacles.back().Lane);
        }
    }
    return lanes;
}

const LaneSet AllLanes{0, 1, 2, 3, 4, 5, 6, 7, 8};

GameState WithEnemyInEveryLane(float Y) {
    GameState state = DueRun();
    for (std::int32_t lane = 0; lane < 9; ++lane) {
        state.Enemies.push_back(EnemyInLane(lane, Y));
    }
    return state;
}

GameState WithItemInEveryLane(float Y) {
    GameState state = DueRun();
    for (std::int32_t lane = 0; lane < 9; ++lane) {
        state.Items.push_back(ItemInLane(lane, Y));
    }
    return state;
}

GameState WithBarrierIn(const LaneList &Lanes, float Y) {
    GameState state = DueRun();
    for (const std::int32_t lane : Lanes) {
        Obstacle barrier = ObstacleInLane(lane, Y);
        barrier.Width = 54.0F;
        state.Obstacles.push_back(barrier);
    }
    return state;
}

struct Kind {
    float Width;
    float Height;
    std::int32_t Hp;
    std::int32_t Score;
};

constexpr std::array<Kind, 3> Kinds{{
    {54.0F, 14.0F, 4, 180},
    {34.0F, 18.0F, 2, 120},
    {26.0F, 24.0F, 3, 150},
}};

} // namespace

TEST(ObstacleSpawn, TheTimerFallsFasterOnAFasterRoad) {
    GameState state = QuietRun();
    state.ObstacleSpawnTimer = 1.0F;
    state.CurrentScrollSpeed = 150.0F;
    state.Rng.seed(3);
    SpawnObstacle(state, 0.5F);
    EXPECT_EQ(state.ObstacleSpawnTimer, 0.375F);
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_EQ(state.Rng, FreshRng(3));
}

TEST(ObstacleSpawn, TheChanceDecidesTheKindAndTheKindItsValues) {
    std::array<int, 3> seen{};
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        GameState state = DueRun();
        state.Rng.seed(seed);
        SpawnObstacle(state, Frame);
        ASSERT_EQ(state.Obstacles.size(), 1U);
        const float r = Draws(seed).Unit();
        const std::size_t type = r < 0.5F ? 0 : r < 0.82F ? 1 : 2;
        ++seen[type];
        const Obstacle &obstacle = state.Obstacles[0];
        ASSERT_EQ(obstacle.Type, static_cast<std::int32_t>(type)) << "seed " << seed << ", r " << r;
        EXPECT_EQ(obstacle.Width, Kinds[type].Width);
        EXPECT_EQ(obstacle.Height, Kinds[type].Height);
        EXPECT_EQ(obstacle.Hp, Kinds[type].Hp);
        EXPECT_EQ(obstacle.Score, Kinds[type].Score);
    }
    for (const int count : seen) {
        EXPECT_GT(count, 0);
    }
}

TEST(ObstacleSpawn, TheKindIsDrawnThenTheLanesThenTheInterval) {
    GameState state = DueRun(6);
    state.Rng.seed(53);
    Draws draws(53);
    draws.Unit();
    const std::int32_t lane = draws.Lanes()[0];
    const float interval = draws.Between(0.85F, 1.35F);
    SpawnObstacle(state, Frame);
    ASSERT_EQ(state.Obstacles.size(), 1U);
    const Obstacle &obstacle = state.Obstacles[0];
    EXPECT_EQ(obstacle.Lane, lane);
    EXPECT_EQ(obstacle.X, LaneCenterX(lane));
    EXPECT_EQ(obstacle.Y, -24.0F);
    EXPECT_EQ(obstacle.Speed, 110.0F);
    EXPECT_EQ(obstacle.HitFlash, 0.0F);
    EXPECT_FLOAT_EQ(state.ObstacleSpawnTimer, interval * 2.24F);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(ObstacleSpawn, OnAnEmptyRoadEveryLaneIsGood) {
    for (const std::int32_t type : {0, 1, 2}) {
        EXPECT_EQ(BirthLanes(DueRun(), type), AllLanes);
    }
}

TEST(ObstacleSpawn, AnEnemyThatTouchesTheWidenedRectangleRefusesTheLane) {
    // Half the widened height and the widened radius below -24: 11 + 12, 13 + 12, 16 + 12.
    EXPECT_EQ(BirthLanes(WithEnemyInEveryLane(-1.0F), 0), LaneSet{});
    EXPECT_EQ(BirthLanes(WithEnemyInEveryLane(-0.75F), 0), AllLanes);
    EXPECT_EQ(BirthLanes(WithEnemyInEveryLane(1.0F), 1), LaneSet{});
    EXPECT_EQ(BirthLanes(WithEnemyInEveryLane(1.25F), 1), AllLanes);
    EXPECT_EQ(BirthLanes(WithEnemyInEveryLane(4.0F), 2), LaneSet{});
    EXPECT_EQ(BirthLanes(WithEnemyInEveryLane(4.25F), 2), AllLanes);
}

TEST(ObstacleSpawn, AnItemThatTouchesTheWidenedRectangleRefusesTheLane) {
    // As above with the widened radius 14.
    EXPECT_EQ(BirthLanes(WithItemInEveryLane(1.0F), 0), LaneSet{});
    EXPECT_EQ(BirthLanes(WithItemInEveryLane(1.25F), 0), AllLanes);
    EXPECT_EQ(BirthLanes(WithItemInEveryLane(6.0F), 2), LaneSet{});
    EXPECT_EQ(BirthLanes(WithItemInEveryLane(6.25F), 2), AllLanes);
}

TEST(ObstacleSpawn, AnEnemyRefusesTheLanesBesideItToABarrierButNotToARock) {
    GameState state = DueRun();
    state.Enemies.push_back(EnemyInLane(4, -24.0F));
    EXPECT_EQ(BirthLanes(state, 0), (LaneSet{0, 1, 2, 6, 7, 8}));       // 31 + 12 reaches over 32 and 33
    EXPECT_EQ(BirthLanes(state, 2), (LaneSet{0, 1, 2, 3, 5, 6, 7, 8})); // 17 + 12 does not
}

TEST(ObstacleSpawn, AnObstacleRefusesWhereBothDistancesAreWithinTheMargins) {
    // Two barriers: 62 across, so the lane beside is refused and the next but one, 65 away, is not.
    EXPECT_EQ(BirthLanes(WithBarrierIn({4}, -24.0F), 0), (LaneSet{0, 1, 2, 6, 7, 8}));
    // A barrier and a rock: (62 + 34) / 2 across.
    EXPECT_EQ(BirthLanes(WithBarrierIn({0}, -24.0F), 2), (LaneSet{2, 3, 4, 5, 6, 7, 8}));
    // Two barriers: 22 down, and a touch counts.
    EXPECT_EQ(BirthLanes(WithBarrierIn({4}, -2.0F), 0), (LaneSet{0, 1, 2, 6, 7, 8}));
    EXPECT_EQ(BirthLanes(WithBarrierIn({4}, -1.75F), 0), AllLanes);
    // A barrier and a rock: (22 + 32) / 2 down.
    EXPECT_EQ(BirthLanes(WithBarrierIn({4}, 3.0F), 2), (LaneSet{0, 1, 2, 6, 7, 8}));
    EXPECT_EQ(BirthLanes(WithBarrierIn({4}, 3.25F), 2), AllLanes);
}

TEST(ObstacleSpawn, AnObstacleAboveTheSpawnLineRefusesAsOneBelow) {
    EXPECT_EQ(BirthLanes(WithBarrierIn({4}, -46.0F), 0), (LaneSet{0, 1, 2, 6, 7, 8}));
    EXPECT_EQ(BirthLanes(WithBarrierIn({4}, -46.25F), 0), AllLanes);
}

TEST(ObstacleSpawn, TheLastClearLaneOfARowIsShutAsWell) {
    // Nothing keeps a gap for the player.
    EXPECT_EQ(BirthLanes(WithBarrierIn({0, 2, 4, 6}, -24.0F), 0), LaneSet{8});
}

TEST(ObstacleSpawn, TheFirstLaneOfTheShuffledOrderThatIsNotRefusedIsTaken) {
    const std::uint32_t seed = SeedWhere([](Draws Of) {
        return Of.Unit() >= 0.82F; // a rock, which an enemy in the lane beside does not refuse
    });
    Draws draws(seed);
    draws.Unit();
    const auto lanes = draws.Lanes();
    GameState state = DueRun();
    state.Rng.seed(seed);
    state.Enemies.push_back(EnemyInLane(lanes[0], -24.0F));
    state.Enemies.push_back(EnemyInLane(lanes[1], -24.0F));
    SpawnObstacle(state, Frame);
    EXPECT_EQ(LanesOf(state.Obstacles), LaneList{lanes[2]});
}

TEST(ObstacleSpawn, WithAllNineLanesRefusedNoneIsBornAndTheTimerIsRearmed) {
    GameState state = WithEnemyInEveryLane(-24.0F);
    state.Rng.seed(59);
    Draws draws(59);
    draws.Unit();
    draws.Lanes();
    const float interval = draws.Between(0.85F, 1.35F);
    SpawnObstacle(state, Frame);
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_FLOAT_EQ(state.ObstacleSpawnTimer, interval * 3.04F);
    EXPECT_TRUE(draws.IsAt(state.Rng));
    state.Enemies.clear();
    SpawnObstacle(state, Frame);
    EXPECT_TRUE(state.Obstacles.empty()) << "no spawn is owed";
}

TEST(ObstacleSpawn, OneObstacleAFrameHoweverLongItIsDue) {
    GameState state = DueRun();
    state.ObstacleSpawnTimer = -50.0F;
    SpawnObstacle(state, Frame);
    EXPECT_EQ(state.Obstacles.size(), 1U);
    EXPECT_GE(state.ObstacleSpawnTimer, 0.85F * 3.03F);
}
