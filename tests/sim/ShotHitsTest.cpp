#include "sim/ShotHits.hpp"

#include "tests/sim/Draws.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

namespace {

const Color ShotOnObstacleColor{0xE6, 0xDC, 0xAA, 0xDC};
const Color DestroyedObstacleColor{0xD7, 0xAA, 0x6E, 0xE1};
const Color ShotOnEnemyColor{0xFA, 0xF0, 0xB4, 0xDC};
const Color DestroyedEnemyColor{0xFF, 0xC8, 0x64, 0xE6};

bool Drops(Draws Of) {
    return Of.Unit() < 0.08F;
}

bool DropsNothing(Draws Of) {
    return !Drops(Of);
}

/// A quiet run in which a shot is about to destroy a light enemy in lane 4 at a height.
GameState RunBeforeTheKill(float Y, std::uint32_t Seed) {
    GameState state = QuietRun();
    state.Rng.seed(Seed);
    state.Enemies.push_back(EnemyInLane(4, Y));
    state.Bullets.push_back(BulletAt(640.0F, Y));
    return state;
}

} // namespace

TEST(ShotsOnObstacles, TakeOnePointAndLetItFlash) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Obstacles[0].Hp = 4;
    state.Bullets.push_back(BulletAt(645.0F, 105.0F));
    HitTargets(state);
    ASSERT_EQ(state.Obstacles.size(), 1U);
    EXPECT_EQ(state.Obstacles[0].Hp, 3);
    EXPECT_EQ(state.Obstacles[0].HitFlash, 0.12F);
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.Explosions,
        (std::vector<Explosion>{NewExplosion(645.0F, 105.0F, 0.2F, 10.0F, ShotOnObstacleColor)}));
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}

TEST(ShotsOnObstacles, TheLastPointPaysByTheStageAndDrawsNothing) {
    GameState state = QuietRunInStage(2);
    state.Rng.seed(3);
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Obstacles[0].Hp = 1;
    state.Obstacles[0].Score = 150;
    state.Bullets.push_back(BulletAt(645.0F, 105.0F));
    HitTargets(state);
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.Score, 159); // 150 x 1.06
    EXPECT_EQ(state.Explosions,
        (std::vector<Explosion>{NewExplosion(645.0F, 105.0F, 0.2F, 10.0F, ShotOnObstacleColor),
            NewExplosion(640.0F, 100.0F, 0.45F, 20.0F, DestroyedObstacleColor)}));
    EXPECT_EQ(SoundsOf(state), Sounds{SfxId::ObstacleDown});
    EXPECT_EQ(state.Rng, FreshRng(3));
}

TEST(ShotsOnObstacles, ATouchCountsAsAHit) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F)); // its lower edge at 107
    state.Bullets.push_back(BulletAt(640.0F, 109.0F));
    state.Bullets.push_back(BulletAt(640.0F, 109.0625F));
    HitTargets(state);
    EXPECT_EQ(state.Obstacles[0].Hp, 1);
    EXPECT_EQ(HeightsOf(state.Bullets), Heights{109.0625F});
}

TEST(ShotsOnObstacles, TheFirstOfTheListThatIsTouchedIsHit) {
    GameState state = QuietRun();
    state.Obstacles = {ObstacleInLane(1, 100.0F), ObstacleInLane(4, 104.0F), ObstacleInLane(4, 100.0F)};
    state.Bullets.push_back(BulletAt(640.0F, 102.0F));
    HitTargets(state);
    ASSERT_EQ(state.Obstacles.size(), 3U);
    EXPECT_EQ(state.Obstacles[0].Hp, 2);
    EXPECT_EQ(state.Obstacles[1].Hp, 1);
    EXPECT_EQ(state.Obstacles[2].Hp, 2);
}

TEST(ShotsOnObstacles, AShotThatTouchesAnObstacleAndAnEnemyHitsOnlyTheObstacle) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Bullets.push_back(BulletAt(640.0F, 100.0F));
    HitTargets(state);
    ASSERT_EQ(state.Enemies.size(), 1U);
    EXPECT_EQ(state.Enemies[0].Hp, 1);
    EXPECT_EQ(state.Enemies[0].HitFlash, 0.0F);
    EXPECT_EQ(state.Obstacles[0].Hp, 1);
    EXPECT_EQ(state.Explosions.size(), 1U);
}

TEST(ShotsOnObstacles, AShotThatDestroysAnObstacleSparesTheEnemyBehindIt) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Obstacles[0].Hp = 1;
    state.Bullets.push_back(BulletAt(640.0F, 100.0F));
    HitTargets(state);
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_EQ(state.Enemies.size(), 1U);
    EXPECT_EQ(state.Score, 120);
}

TEST(ShotsOnEnemies, TakeOnePointFromAHeavyOneAndLetItFlash) {
    GameState state = QuietRun();
    state.Rng.seed(3);
    state.Enemies.push_back(HeavyInLane(4, 100.0F));
    state.Bullets.push_back(BulletAt(643.0F, 104.0F));
    HitTargets(state);
    ASSERT_EQ(state.Enemies.size(), 1U);
    EXPECT_EQ(state.Enemies[0].Hp, 1);
    EXPECT_EQ(state.Enemies[0].HitFlash, 0.12F);
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.Explosions,
        (std::vector<Explosion>{NewExplosion(643.0F, 104.0F, 0.2F, 12.0F, ShotOnEnemyColor)}));
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.PendingSounds.Count, 0U);
    EXPECT_EQ(state.Rng, FreshRng(3));
}

TEST(ShotsOnEnemies, TheLastPointPaysByTheStage) {
    GameState state = QuietRunInStage(2);
    state.Rng.seed(SeedWhere(DropsNothing));
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Bullets.push_back(BulletAt(643.0F, 104.0F));
    HitTargets(state);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.Score, 212); // 200 x 1.06
    EXPECT_EQ(
        state.Explosions, (std::vector<Explosion>{NewExplosion(643.0F, 104.0F, 0.2F, 12.0F, ShotOnEnemyColor),
                              NewExplosion(640.0F, 100.0F, 0.45F, 24.0F, DestroyedEnemyColor)}));
    EXPECT_EQ(SoundsOf(state), Sounds{SfxId::EnemyDown});
}

TEST(ShotsOnEnemies, ATouchCountsAsAHit) {
    GameState state = QuietRun();
    state.Enemies.push_back(HeavyInLane(4, 100.0F));
    state.Enemies[0].Radius = 8.0F;
    state.Bullets.push_back(BulletAt(640.0F, 110.0F));
    state.Bullets.push_back(BulletAt(640.0F, 110.0625F));
    HitTargets(state);
    EXPECT_EQ(state.Enemies[0].Hp, 1);
    EXPECT_EQ(HeightsOf(state.Bullets), Heights{110.0625F});
}

TEST(ShotsOnEnemies, TheFirstOfTheListThatIsTouchedIsHit) {
    GameState state = QuietRun();
    state.Enemies = {HeavyInLane(1, 100.0F), HeavyInLane(4, 104.0F), HeavyInLane(4, 100.0F)};
    state.Bullets.push_back(BulletAt(640.0F, 101.0F));
    HitTargets(state);
    ASSERT_EQ(state.Enemies.size(), 3U);
    EXPECT_EQ(state.Enemies[0].Hp, 2);
    EXPECT_EQ(state.Enemies[1].Hp, 1);
    EXPECT_EQ(state.Enemies[2].Hp, 2);
}

TEST(ShotsOnEnemies, AShotNeverPierces) {
    GameState state = QuietRun();
    state.Enemies = {EnemyInLane(4, 100.0F), EnemyInLane(4, 102.0F)};
    state.Bullets.push_back(BulletAt(640.0F, 101.0F));
    HitTargets(state);
    EXPECT_EQ(HeightsOf(state.Enemies), Heights{102.0F});
}

TEST(ShotsOnEnemies, TheShotThatMovedUpIntoAUsedOnesPlaceStillHits) {
    GameState state = QuietRun();
    state.Enemies = {HeavyInLane(4, 100.0F), HeavyInLane(6, 200.0F)};
    state.Bullets = {BulletAt(640.0F, 100.0F), BulletAt(705.0F, 200.0F), BulletAt(510.0F, 300.0F),
        BulletAt(640.0F, 101.0F)};
    HitTargets(state);
    EXPECT_EQ(LanesOf(state.Enemies), LaneList{6});
    EXPECT_EQ(state.Enemies[0].Hp, 1);
    EXPECT_EQ(HeightsOf(state.Bullets), Heights{300.0F});
}

TEST(ShotsOnEnemies, AShotThatComesTooLateFliesOn) {
    GameState state = QuietRun();
    state.Rng.seed(SeedWhere(DropsNothing));
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Bullets = {BulletAt(640.0F, 100.0F), BulletAt(640.0F, 101.0F)};
    HitTargets(state);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_EQ(HeightsOf(state.Bullets), Heights{101.0F});
    EXPECT_EQ(state.Score, 200);
}

TEST(ShotsOnEnemies, SoundsComeInTheOrderOfTheShots) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Obstacles.push_back(ObstacleInLane(6, 100.0F));
    state.Obstacles[0].Hp = 1;
    state.Bullets = {BulletAt(640.0F, 100.0F), BulletAt(705.0F, 100.0F)};
    HitTargets(state);
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::EnemyDown, SfxId::ObstacleDown}));
}

TEST(Drops, MostDestroyedEnemiesDropNothingForOneDraw) {
    const std::uint32_t seed = SeedWhere(DropsNothing);
    GameState state = RunBeforeTheKill(100.0F, seed);
    HitTargets(state);
    EXPECT_TRUE(state.Items.empty());
    Draws draws(seed);
    draws.Unit();
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(Drops, SomeDropAnItemWhereTheyWere) {
    const std::uint32_t seed = SeedWhere(Drops);
    GameState state = RunBeforeTheKill(100.0F, seed);
    HitTargets(state);
    ASSERT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.Items[0].Lane, 4) << "the destroyed enemy is not in its way";
    EXPECT_EQ(state.Items[0].X, 640.0F);
    EXPECT_EQ(state.Items[0].Y, 100.0F);
    Draws draws(seed);
    draws.Unit();
    draws.Unit();
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(Drops, FollowTheirChanceSeedForSeed) {
    int drops = 0;
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        GameState state = RunBeforeTheKill(100.0F, seed);
        HitTargets(state);
        ASSERT_EQ(state.Items.size(), Drops(Draws(seed)) ? 1U : 0U) << "seed " << seed;
        drops += static_cast<int>(state.Items.size());
    }
    EXPECT_GT(drops, 0);
}

TEST(Drops, AboveTheTopEdgeTheyArePlacedOnTheSpawnLine) {
    GameState state = RunBeforeTheKill(-3.0F, SeedWhere(Drops));
    HitTargets(state);
    ASSERT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.Items[0].Y, -18.0F);
    EXPECT_EQ(state.Items[0].Lane, 4);
}

TEST(Drops, MakeWayToTheNextClearLane) {
    GameState state = RunBeforeTheKill(100.0F, SeedWhere(Drops));
    state.Items.push_back(ItemInLane(4, 110.0F));
    state.Enemies.push_back(EnemyInLane(3, 110.0F));
    HitTargets(state);
    EXPECT_EQ(LanesOf(state.Items), (LaneList{4, 5}));
}

TEST(Drops, AreLostWhenAllLanesAroundAreBlocked) {
    const std::uint32_t seed = SeedWhere(Drops);
    GameState state = RunBeforeTheKill(100.0F, seed);
    for (std::int32_t lane = 0; lane < 9; ++lane) {
        state.Items.push_back(ItemInLane(lane, 110.0F));
    }
    HitTargets(state);
    EXPECT_EQ(state.Items.size(), 9U);
    EXPECT_EQ(state.Score, 200);
    Draws draws(seed);
    draws.Unit();
    draws.Unit();
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(Drops, NeverComeFromObstacles) {
    GameState state = QuietRun();
    const std::uint32_t seed = SeedWhere(Drops);
    state.Rng.seed(seed);
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Obstacles[0].Hp = 1;
    state.Bullets.push_back(BulletAt(640.0F, 100.0F));
    HitTargets(state);
    EXPECT_TRUE(state.Items.empty());
    EXPECT_EQ(state.Rng, FreshRng(seed));
}
