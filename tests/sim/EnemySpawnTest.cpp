#include "sim/EnemySpawn.hpp"

#include "sim/NewRun.hpp"
#include "sim/Step.hpp"
#include "tests/sim/Draws.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

namespace {

/// A quiet run in which an enemy is due.
GameState DueRun(std::int32_t Stage, std::uint32_t Seed) {
    GameState state = QuietRunInStage(Stage);
    state.SpawnTimer = 0.0F;
    state.Rng.seed(Seed);
    return state;
}

bool IsLight(Draws Of) {
    return Of.Unit() < 0.66F;
}

bool IsHeavy(Draws Of) {
    return !IsLight(Of);
}

/// An enemy at the top in each lane but one.
void BlockAllBut(GameState &State, std::int32_t FreeLane) {
    for (std::int32_t lane = 0; lane < 9; ++lane) {
        if (lane != FreeLane) {
            State.Enemies.push_back(EnemyInLane(lane, -20.0F));
        }
    }
}

/// What the next enemy is expected to be, taken from its draws in their order: kind, thinking, reload, lanes,
/// interval.
struct Birth {
    Enemy Newborn;
    float Interval;
};

Birth ExpectBirth(Draws &From, Enemy Kind) {
    From.Unit();
    Kind.Y = -20.0F;
    Kind.AiTimer = From.Between(0.18F, 0.42F);
    Kind.FireCooldown = From.Between(0.55F, 1.25F);
    Kind.Lane = From.Lanes()[0];
    Kind.X = LaneCenterX(Kind.Lane);
    return {Kind, From.Between(0.72F, 1.2F)};
}

void ExpectSame(const Enemy &Actual, const Enemy &Expected) {
    EXPECT_EQ(Actual.Lane, Expected.Lane);
    EXPECT_EQ(Actual.X, Expected.X);
    EXPECT_EQ(Actual.Y, Expected.Y);
    EXPECT_EQ(Actual.Speed, Expected.Speed);
    EXPECT_EQ(Actual.Radius, Expected.Radius);
    EXPECT_EQ(Actual.HitFlash, 0.0F);
    EXPECT_FLOAT_EQ(Actual.AiTimer, Expected.AiTimer);
    EXPECT_FLOAT_EQ(Actual.FireCooldown, Expected.FireCooldown);
    EXPECT_EQ(Actual.Hp, Expected.Hp);
    EXPECT_EQ(Actual.Score, Expected.Score);
    EXPECT_EQ(Actual.Color, Expected.Color);
}

Enemy LightKind(float Speed) {
    Enemy kind;
    kind.Hp = 1;
    kind.Radius = 8.0F;
    kind.Speed = Speed;
    kind.Score = 200;
    kind.Color = {0xEB, 0xEB, 0xF5, 0xFF};
    return kind;
}

Enemy HeavyKind(float Speed) {
    Enemy kind;
    kind.Hp = 2;
    kind.Radius = 9.5F;
    kind.Speed = Speed;
    kind.Score = 400;
    kind.Color = {0x5A, 0xE6, 0x78, 0xFF};
    return kind;
}

} // namespace

TEST(EnemySpawn, TheTimerFallsFasterOnAFasterRoad) {
    GameState state = QuietRun();
    state.SpawnTimer = 1.0F;
    state.CurrentScrollSpeed = 150.0F;
    SpawnEnemy(state, 0.5F);
    EXPECT_EQ(state.SpawnTimer, 0.375F);
}

TEST(EnemySpawn, WhileTheTimerRunsNothingIsBornAndNothingDrawn) {
    GameState state = DueRun(3, 5);
    state.SpawnTimer = 0.25F;
    SpawnEnemy(state, 0.125F);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_EQ(state.Rng, FreshRng(5));
}

TEST(EnemySpawn, ATimerThatReachesExactlyZeroIsDue) {
    GameState state = DueRun(1, 5);
    state.SpawnTimer = 0.125F;
    SpawnEnemy(state, 0.125F);
    EXPECT_EQ(state.Enemies.size(), 1U);
}

TEST(EnemySpawn, TheFirstEnemyOfARunComesOnItsFirstStep) {
    GameState state;
    StartNewRun(state);
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Enemies.size(), 1U);
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Enemies.size(), 1U);
}

TEST(EnemySpawn, ALightEnemyIsDrawnInOrder) {
    const std::uint32_t seed = SeedWhere(IsLight);
    GameState state = DueRun(3, seed);
    Draws draws(seed);
    const Birth birth = ExpectBirth(draws, LightKind(142.0F));
    SpawnEnemy(state, Frame);
    ASSERT_EQ(state.Enemies.size(), 1U);
    ExpectSame(state.Enemies[0], birth.Newborn);
    EXPECT_FLOAT_EQ(state.SpawnTimer, birth.Interval * 0.91F);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(EnemySpawn, AHeavyEnemyIsDrawnInOrder) {
    const std::uint32_t seed = SeedWhere(IsHeavy);
    GameState state = DueRun(10, seed);
    Draws draws(seed);
    const Birth birth = ExpectBirth(draws, HeavyKind(140.0F));
    SpawnEnemy(state, Frame);
    ASSERT_EQ(state.Enemies.size(), 1U);
    ExpectSame(state.Enemies[0], birth.Newborn);
    EXPECT_FLOAT_EQ(state.SpawnTimer, birth.Interval * 0.595F);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(EnemySpawn, InTheFirstTwoStagesEveryEnemyIsLightWhateverTheChance) {
    const std::uint32_t seed = SeedWhere(IsHeavy);
    for (const std::int32_t stage : {1, 2}) {
        GameState state = DueRun(stage, seed);
        Draws draws(seed);
        const Birth birth = ExpectBirth(draws, LightKind(stage == 1 ? 130.0F : 136.0F));
        SpawnEnemy(state, Frame);
        ASSERT_EQ(state.Enemies.size(), 1U);
        ExpectSame(state.Enemies[0], birth.Newborn);
        EXPECT_TRUE(draws.IsAt(state.Rng)) << "the chance is drawn in stage " << stage << " too";
    }
}

TEST(EnemySpawn, FromStageThreeOnTheChanceDecidesTheKind) {
    std::int32_t heavies = 0;
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        GameState state = DueRun(3, seed);
        SpawnEnemy(state, Frame);
        ASSERT_EQ(state.Enemies.size(), 1U);
        EXPECT_EQ(state.Enemies[0].Hp, Draws(seed).Unit() < 0.66F ? 1 : 2) << "seed " << seed;
        heavies += state.Enemies[0].Hp - 1;
    }
    EXPECT_GT(heavies, 0);
    EXPECT_LT(heavies, 300);
}

TEST(EnemySpawn, WithEightLanesBlockedTheNinthGetsTheEnemy) {
    for (std::int32_t lane = 0; lane < 9; ++lane) {
        GameState state = DueRun(3, 17);
        BlockAllBut(state, lane);
        SpawnEnemy(state, Frame);
        ASSERT_EQ(state.Enemies.size(), 9U);
        EXPECT_EQ(state.Enemies.back().Lane, lane);
        EXPECT_EQ(state.Enemies.back().X, LaneCenterX(lane));
    }
}

TEST(EnemySpawn, TheFirstClearLaneOfTheShuffledOrderIsTaken) {
    GameState state = DueRun(1, 23);
    Draws draws(23);
    draws.Unit();
    draws.Unit();
    draws.Unit();
    const auto lanes = draws.Lanes();
    state.Enemies.push_back(EnemyInLane(lanes[0], -20.0F));
    state.Items.push_back(ItemInLane(lanes[1], -20.0F));
    SpawnEnemy(state, Frame);
    ASSERT_EQ(state.Enemies.size(), 2U);
    EXPECT_EQ(state.Enemies.back().Lane, lanes[2]);
}

TEST(EnemySpawn, WithAllNineLanesBlockedTheRoundIsLostAndTheTimerRearmed) {
    GameState state = DueRun(1, 29);
    BlockAllBut(state, -1);
    Draws draws(29);
    const float interval = ExpectBirth(draws, LightKind(130.0F)).Interval;
    SpawnEnemy(state, Frame);
    EXPECT_EQ(state.Enemies.size(), 9U);
    EXPECT_FLOAT_EQ(state.SpawnTimer, interval);
    EXPECT_TRUE(draws.IsAt(state.Rng));

    state.Enemies.clear();
    SpawnEnemy(state, Frame);
    EXPECT_TRUE(state.Enemies.empty()) << "no spawn is owed";
}

TEST(EnemySpawn, OneEnemyAFrameHoweverLongItIsDue) {
    GameState state = DueRun(1, 31);
    state.SpawnTimer = -50.0F;
    SpawnEnemy(state, Frame);
    EXPECT_EQ(state.Enemies.size(), 1U);
    EXPECT_GE(state.SpawnTimer, 0.72F) << "the overshoot is dropped";
}

TEST(EnemySpawn, AHeavyEnemyNeedsMoreRoomThanALightOne) {
    // 25 below the spawn line: a light enemy keeps clear from just above 24 on, a heavy one from 25.5 on.
    for (const bool heavy : {false, true}) {
        GameState state = DueRun(3, heavy ? SeedWhere(IsHeavy) : SeedWhere(IsLight));
        for (std::int32_t lane = 0; lane < 9; ++lane) {
            state.Enemies.push_back(EnemyInLane(lane, 5.0F));
        }
        SpawnEnemy(state, Frame);
        EXPECT_EQ(state.Enemies.size(), heavy ? 9U : 10U);
    }
}
