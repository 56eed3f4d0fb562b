#include "sim/Step.hpp"

#include "tests/sim/Draws.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

// What the order of the step makes of traffic that meets in one frame.

TEST(TrafficStep, SoundsOfAFightComeInTheOrderOfTheStep) {
    GameState state = QuietRun();
    state.Player.Hp = 1;
    state.Player.Stocks = 0;
    state.Obstacles.push_back(ObstacleInLane(0, 100.0F));
    state.Obstacles[0].Hp = 1;
    state.Enemies = {EnemyInLane(8, 300.0F), EnemyInLane(4, 675.0F)};
    state.Bullets = {BulletAt(510.0F, 102.0F), BulletAt(770.0F, 302.0F)};
    state.Items.push_back(ItemInLane(4, 670.0F));
    SimulationStep(state, Frame, HeldFire);
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerFire, SfxId::ObstacleDown, SfxId::EnemyDown,
                                   SfxId::PlayerHit, SfxId::PlayerDeath, SfxId::Item}));
}

TEST(TrafficStep, SoundsOfABombComeBetweenTheShotAndTheItem) {
    GameState state = QuietRun();
    state.Items.push_back(ItemInLane(4, 670.0F));
    SimulationStep(state, Frame, {false, false, true, true});
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerFire, SfxId::PlayerBomb, SfxId::Item}));
}

TEST(TrafficStep, EnemiesAreBornBeforeItemsAndThoseBeforeObstacles) {
    GameState state = QuietRun();
    state.SpawnTimer = 0.0F;
    state.ItemSpawnTimer = 0.0F;
    state.ObstacleSpawnTimer = 0.0F;
    state.Rng.seed(73);
    Draws draws(73);
    draws.Unit(); // the enemy's kind
    draws.Unit();
    draws.Unit();
    draws.Lanes();
    const float enemyInterval = draws.Between(0.72F, 1.2F);
    draws.Unit(); // the item's type
    draws.Lanes();
    const float itemInterval = draws.Between(9.0F, 14.0F);
    draws.Unit(); // the obstacle's kind
    draws.Lanes();
    const float obstacleInterval = draws.Between(0.85F, 1.35F) * 3.04F;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_FLOAT_EQ(state.SpawnTimer, enemyInterval);
    EXPECT_FLOAT_EQ(state.ItemSpawnTimer, itemInterval);
    EXPECT_FLOAT_EQ(state.ObstacleSpawnTimer, obstacleInterval);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(TrafficStep, ANewThingMovesInItsFirstFrame) {
    GameState state = QuietRun();
    state.SpawnTimer = 0.0F;
    state.ItemSpawnTimer = 0.0F;
    state.ObstacleSpawnTimer = 0.0F;
    SimulationStep(state, Frame, HeldNothing);
    ASSERT_EQ(state.Enemies.size(), 1U);
    ASSERT_EQ(state.Items.size(), 1U);
    ASSERT_EQ(state.Obstacles.size(), 1U);
    EXPECT_EQ(state.Enemies[0].Y, -20.0F + 130.0F / 64.0F);
    EXPECT_EQ(state.Items[0].Y, -18.0F + 122.0F / 64.0F);
    EXPECT_EQ(state.Obstacles[0].Y, -24.0F + 124.0F / 64.0F);
}

TEST(TrafficStep, ADropMovesInTheFrameOfItsEnemysEnd) {
    GameState state = QuietRun();
    state.Rng.seed(SeedWhere([](Draws Of) {
        return Of.Unit() < 0.08F;
    }));
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Bullets.push_back(BulletAt(640.0F, 102.0F));
    SimulationStep(state, Frame, HeldNothing);
    ASSERT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.Items[0].Y, 100.0F + 126.0F / 64.0F + 122.0F / 64.0F);
}

TEST(TrafficStep, AnEnemyThatIsShotInTheFrameDoesNotRam) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 650.0F));
    state.Bullets.push_back(BulletAt(640.0F, 645.0F));
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_EQ(state.Player.Hp, 100);
    EXPECT_EQ(state.Score, 200);
}

TEST(TrafficStep, EnemiesHurtBeforeShotsAndThoseBeforeObstacles) {
    GameState all = QuietRun();
    all.Enemies.push_back(EnemyInLane(4, 670.0F));
    all.EnemyBullets.push_back(EnemyBulletAt(640.0F, 670.0F));
    all.Obstacles.push_back(ObstacleInLane(4, 690.0F));
    GameState withoutEnemy = all;
    withoutEnemy.Enemies.clear();
    SimulationStep(all, Frame, HeldNothing);
    EXPECT_EQ(all.Player.Hp, 66);
    EXPECT_TRUE(all.EnemyBullets.empty());
    SimulationStep(withoutEnemy, Frame, HeldNothing);
    EXPECT_EQ(withoutEnemy.Player.Hp, 90);
}

TEST(TrafficStep, APowerUpComesTooLateForTheFramesOwnBlow) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 670.0F));
    state.Items.push_back(ItemInLane(4, 670.0F, 2));
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Player.Hp, 66);
    EXPECT_EQ(state.InvincibilityPowerTimer, 6.0F);
}

TEST(TrafficStep, ABombTakesNothingThatIsBornInItsFrame) {
    GameState state = QuietRun();
    state.SpawnTimer = 0.0F;
    state.ObstacleSpawnTimer = 0.0F;
    SimulationStep(state, Frame, HeldBomb);
    EXPECT_EQ(state.Enemies.size(), 1U);
    EXPECT_EQ(state.Obstacles.size(), 1U);
    EXPECT_EQ(state.Score, 0);
}

TEST(TrafficStep, AHeavyEnemyHitOnceTurnsToSingleShots) {
    GameState state = QuietRun();
    state.Enemies.push_back(HeavyInLane(0, 100.0F));
    state.Enemies[0].FireCooldown = 0.0F;
    SimulationStep(state, Frame, HeldNothing);
    ASSERT_EQ(state.EnemyBullets.size(), 2U);
    EXPECT_EQ(state.EnemyBullets[0].Damage, 12);

    state.Bullets.push_back(BulletAt(510.0F, 104.0F));
    SimulationStep(state, Frame, HeldNothing);
    ASSERT_EQ(state.Enemies.size(), 1U);
    ASSERT_EQ(state.Enemies[0].Hp, 1);

    state.Enemies[0].FireCooldown = 0.0F;
    SimulationStep(state, Frame, HeldNothing);
    ASSERT_EQ(state.EnemyBullets.size(), 3U);
    EXPECT_EQ(state.EnemyBullets[2].Damage, 10);
    EXPECT_EQ(state.EnemyBullets[2].Radius, 2.0F);
}
