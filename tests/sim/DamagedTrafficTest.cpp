#include "sim/Damage.hpp"
#include "sim/ItemSpawn.hpp"
#include "sim/ShotHits.hpp"
#include "sim/Step.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

#include <limits>

// A damaged file may hold any number. The run goes on with it, without undefined behaviour.

namespace {

constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float Endless = std::numeric_limits<float>::infinity();

/// The player's points after one blow.
std::int32_t HpAfter(std::int32_t Hp, std::int32_t Amount) {
    GameState state = QuietRun();
    state.Player.Hp = Hp;
    DamagePlayer(state, Amount);
    return state.Player.Hp;
}

/// A run with one of each thing in the player's lane at a height, a sound enemy at 100 behind them, and
/// everything due to be born.
GameState RunWithEverythingAt(float Y) {
    GameState state = QuietRun();
    state.Enemies = {EnemyInLane(4, Y), EnemyInLane(4, 100.0F)};
    state.Enemies[0].FireCooldown = 0.0F;
    state.Enemies[0].AiTimer = 0.0F;
    state.Obstacles.push_back(ObstacleInLane(4, Y));
    state.Items.push_back(ItemInLane(4, Y));
    state.EnemyBullets.push_back(EnemyBulletAt(640.0F, Y));
    state.Bullets.push_back(BulletAt(640.0F, Y));
    state.SpawnTimer = 0.0F;
    state.ItemSpawnTimer = 0.0F;
    state.ObstacleSpawnTimer = 0.0F;
    return state;
}

bool HasEnemyAt(const GameState &State, float Y) {
    return std::ranges::any_of(State.Enemies, [Y](const Enemy &Car) {
        return Car.Y == Y;
    });
}

} // namespace

TEST(DamagedTraffic, ABlowOfAnySizeStaysWithinThePointsThatCanBeHeld) {
    EXPECT_EQ(HpAfter(100, Least), Most);
    EXPECT_EQ(HpAfter(100, Most), 100) << "a life is lost";
    EXPECT_EQ(HpAfter(Least, Most), 100);
    EXPECT_EQ(HpAfter(Least, 34), 100);
    EXPECT_EQ(HpAfter(Most, Least), Most);
    EXPECT_EQ(HpAfter(Most, 34), Most - 34);
    EXPECT_EQ(HpAfter(100, -5), 105);
}

TEST(DamagedTraffic, AShotOfAnyDamageIsTakenAsItStands) {
    for (const std::int32_t damage : {Least, Most, 0}) {
        GameState state = QuietRun();
        state.EnemyBullets.push_back(EnemyBulletAt(640.0F, 670.0F, damage));
        SimulationStep(state, Frame, HeldNothing);
        EXPECT_TRUE(state.EnemyBullets.empty());
        EXPECT_EQ(state.Player.Stocks, damage == Most ? 1 : 2);
    }
}

TEST(DamagedTraffic, WhatHasNoPointsLeftIsGoneWithItsFirstHit) {
    for (const std::int32_t hp : {Least, -5, 0}) {
        GameState state = QuietRun();
        state.Enemies.push_back(EnemyInLane(4, 100.0F));
        state.Enemies[0].Hp = hp;
        state.Obstacles.push_back(ObstacleInLane(6, 100.0F));
        state.Obstacles[0].Hp = hp;
        state.Bullets = {BulletAt(640.0F, 100.0F), BulletAt(705.0F, 100.0F)};
        HitTargets(state);
        EXPECT_TRUE(state.Enemies.empty());
        EXPECT_TRUE(state.Obstacles.empty());
        EXPECT_EQ(state.Score, 320);
    }
}

TEST(DamagedTraffic, WhatHasMostPointsLosesOne) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Enemies[0].Hp = Most;
    state.Bullets.push_back(BulletAt(640.0F, 100.0F));
    HitTargets(state);
    ASSERT_EQ(state.Enemies.size(), 1U);
    EXPECT_EQ(state.Enemies[0].Hp, Most - 1);
}

TEST(DamagedTraffic, AWorthlessThingPaysNothingAndAPricelessOneWhatAScoreCanHold) {
    GameState worthless = QuietRun();
    worthless.Enemies.push_back(EnemyInLane(4, 100.0F));
    worthless.Enemies[0].Score = Least;
    worthless.Bullets.push_back(BulletAt(640.0F, 100.0F));
    HitTargets(worthless);
    EXPECT_EQ(worthless.Score, 0);

    GameState priceless = QuietRun();
    priceless.Score = std::numeric_limits<std::int64_t>::max() - 10;
    priceless.Enemies.push_back(EnemyInLane(4, 100.0F));
    priceless.Enemies[0].Score = Most;
    priceless.Bullets.push_back(BulletAt(640.0F, 100.0F));
    HitTargets(priceless);
    EXPECT_EQ(priceless.Score, std::numeric_limits<std::int64_t>::max());
}

TEST(DamagedTraffic, ThingsInfinitelyFarAwayTouchNothingAndHoldUpNobody) {
    for (const float y : {Endless, -Endless}) {
        GameState state = RunWithEverythingAt(y);
        SimulationStep(state, Frame, HeldFire);
        EXPECT_EQ(state.Player.Hp, 100);
        EXPECT_EQ(state.Score, 0);
        EXPECT_TRUE(HasEnemyAt(state, 100.0F + 126.0F / 64.0F));
    }
}

TEST(DamagedTraffic, ThingsAtNoPlaceAtAllHoldUpNobody) {
    GameState state = RunWithEverythingAt(NoNumber);
    for (int frame = 1; frame <= 16; ++frame) {
        SimulationStep(state, Frame, HeldFire);
        ASSERT_TRUE(HasEnemyAt(state, 100.0F + static_cast<float>(frame) * 126.0F / 64.0F));
    }
    EXPECT_EQ(state.GameTime, 0.25F);
    EXPECT_EQ(state.Screen, ScreenPlaying);
}

TEST(DamagedTraffic, SizesThatAreNoSizesHarmNothing) {
    for (const float size : {NoNumber, Endless, -Endless, -50.0F}) {
        GameState state = QuietRun();
        state.Enemies.push_back(EnemyInLane(0, 100.0F));
        state.Enemies[0].Radius = size;
        state.Enemies[0].AiTimer = 0.0F;
        state.Obstacles.push_back(ObstacleInLane(0, 104.0F));
        state.Obstacles[0].Width = size;
        state.Obstacles[0].Height = size;
        state.Items.push_back(ItemInLane(0, 100.0F));
        state.Items[0].Radius = size;
        state.SpawnTimer = 0.0F;
        state.ItemSpawnTimer = 0.0F;
        state.ObstacleSpawnTimer = 0.0F;
        SimulationStep(state, Frame, HeldFire);
        EXPECT_EQ(state.GameTime, Frame);
    }
}

TEST(DamagedTraffic, AnItemIsBornWhateverThePlayersPointsAre) {
    struct Points {
        std::int32_t Hp;
        std::int32_t MaxHp;
    };
    for (const Points points : {Points{Least, 100}, Points{Most, 100}, Points{0, 0}, Points{5, 0},
             Points{Least, Most}, Points{Most, Least}, Points{1, -1}}) {
        GameState state = QuietRun();
        state.Player.Hp = points.Hp;
        state.Player.MaxHp = points.MaxHp;
        SpawnItem(state, 640.0F, 300.0F);
        ASSERT_EQ(state.Items.size(), 1U);
        EXPECT_GE(state.Items[0].Type, 0);
        EXPECT_LE(state.Items[0].Type, 3);
    }
}

TEST(DamagedTraffic, AnItemAtNoPlaceAtAllIsBornOnTheRoad) {
    GameState state = QuietRun();
    SpawnItem(state, NoNumber, 300.0F);
    ASSERT_EQ(state.Items.size(), 1U);
    EXPECT_GE(state.Items[0].Lane, 0);
    EXPECT_LE(state.Items[0].Lane, 8);
}

TEST(DamagedTraffic, AnItemOfAnUnknownTypeGivesNothingAndIsUsedUp) {
    for (const std::int32_t type : {Least, -1, 4, Most}) {
        GameState state = QuietRun();
        state.Items.push_back(ItemInLane(4, 670.0F, type));
        SimulationStep(state, Frame, HeldNothing);
        EXPECT_TRUE(state.Items.empty());
        EXPECT_EQ(state.FirstAidKits, 0);
        EXPECT_EQ(state.Bombs, 3);
        EXPECT_EQ(state.InvincibilityPowerTimer, 0.0F);
        EXPECT_EQ(state.DualWeaponPowerTimer, 0.0F);
        EXPECT_EQ(SoundsOf(state), Sounds{SfxId::Item});
    }
}

TEST(DamagedTraffic, AStageAtTheEndOfTheNumbersIsPlayable) {
    GameState state = QuietRun();
    state.Stage = Most;
    state.SpawnTimer = 0.0F;
    state.ItemSpawnTimer = 0.0F;
    state.ObstacleSpawnTimer = 0.0F;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Stage, 1) << "corrected by the time driven";
    EXPECT_GT(state.SpawnTimer, 0.0F);
}
