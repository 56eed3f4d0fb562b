#include "sim/Contacts.hpp"

#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

// The player stands in lane 4 at (640, 670) with a circle of 12.

namespace {

const Color RamColor{0xFF, 0xC8, 0x78, 0xDC};
const Color EnemyShotColor{0xFF, 0xA5, 0x5F, 0xD7};
const Color CrashColor{0xE6, 0xBE, 0x78, 0xDC};
const Color DamageColor{0xFF, 0xAA, 0x6E, 0xE6};

const Explosion HurtExplosion = NewExplosion(640.0F, 670.0F, 0.5F, 22.0F, DamageColor);

/// The player's points after a crash into an obstacle of a type.
std::int32_t HpAfterCrash(std::int32_t Type) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(4, 660.0F));
    state.Obstacles[0].Type = Type;
    MeetObstacles(state);
    EXPECT_TRUE(state.Obstacles.empty());
    return state.Player.Hp;
}

} // namespace

TEST(Ram, AnEnemyThatTouchesThePlayerIsUsedUpAndHurts) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 650.0F)); // 8 + 12 away
    MeetEnemies(state);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_EQ(state.Player.Hp, 66);
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.Explosions,
        (std::vector<Explosion>{NewExplosion(640.0F, 650.0F, 0.35F, 21.0F, RamColor), HurtExplosion}));
    EXPECT_EQ(SoundsOf(state), Sounds{SfxId::PlayerHit});
}

TEST(Ram, AnEnemyJustOutOfReachDoesNot) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 649.9375F));
    MeetEnemies(state);
    EXPECT_EQ(state.Enemies.size(), 1U);
    EXPECT_EQ(state.Player.Hp, 100);
    EXPECT_TRUE(state.Explosions.empty());
}

TEST(Ram, AHeavyEnemyHurtsAsMuchAsALightOne) {
    GameState state = QuietRun();
    state.Enemies.push_back(HeavyInLane(4, 660.0F));
    MeetEnemies(state);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_EQ(state.Player.Hp, 66);
}

TEST(Ram, OfTwoInAFrameTheSecondIsUsedUpAndDealsNothing) {
    GameState state = QuietRun();
    state.Enemies = {EnemyInLane(4, 660.0F), EnemyInLane(4, 680.0F)};
    MeetEnemies(state);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_EQ(state.Player.Hp, 66);
    EXPECT_EQ(state.InvulnerabilityTimer, 1.0F);
    EXPECT_EQ(state.Explosions, (std::vector<Explosion>{NewExplosion(640.0F, 660.0F, 0.35F, 21.0F, RamColor),
                                    HurtExplosion, NewExplosion(640.0F, 680.0F, 0.35F, 21.0F, RamColor)}));
    EXPECT_EQ(SoundsOf(state), Sounds{SfxId::PlayerHit});
}

TEST(Ram, WhileInvulnerableTheEnemyIsUsedUpWithItsExplosionAndNoSound) {
    GameState state = QuietRun();
    state.InvulnerabilityTimer = 0.5F;
    state.Enemies.push_back(EnemyInLane(4, 660.0F));
    MeetEnemies(state);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_EQ(state.Player.Hp, 100);
    EXPECT_EQ(state.InvulnerabilityTimer, 0.5F);
    EXPECT_EQ(
        state.Explosions, (std::vector<Explosion>{NewExplosion(640.0F, 660.0F, 0.35F, 21.0F, RamColor)}));
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}

TEST(Ram, WhileInvincibleTheEnemyIsUsedUpWithoutPoints) {
    GameState state = QuietRun();
    state.InvincibilityPowerTimer = 0.5F;
    state.Enemies.push_back(EnemyInLane(4, 660.0F));
    MeetEnemies(state);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_EQ(state.Player.Hp, 100);
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.InvulnerabilityTimer, 0.0F);
    EXPECT_EQ(state.Explosions.size(), 1U);
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}

TEST(Ram, AnEnemyLeavesBelowTheScreenWithoutPoints) {
    GameState state = QuietRun();
    state.Enemies = {
        EnemyInLane(0, 745.0F), EnemyInLane(0, 745.0625F), EnemyInLane(0, 746.0F), EnemyInLane(0, 100.0F)};
    MeetEnemies(state);
    EXPECT_EQ(HeightsOf(state.Enemies), (Heights{745.0F, 100.0F}));
    EXPECT_EQ(state.Score, 0);
    EXPECT_TRUE(state.Explosions.empty());
}

TEST(Ram, TheEnemyThatMovedUpIntoAFreedPlaceIsLookedAtToo) {
    GameState state = QuietRun();
    state.Enemies = {EnemyInLane(0, 750.0F), EnemyInLane(4, 660.0F), EnemyInLane(4, 670.0F),
        EnemyInLane(8, 100.0F), EnemyInLane(4, 680.0F), EnemyInLane(0, 751.0F)};
    MeetEnemies(state);
    EXPECT_EQ(LanesOf(state.Enemies), LaneList{8});
    EXPECT_EQ(state.Explosions.size(), 4U) << "three rams and one damage";
}

TEST(EnemyShots, HurtByTheirOwnDamageAndAreUsedUp) {
    GameState state = QuietRun();
    state.EnemyBullets.push_back(EnemyBulletAt(640.0F, 656.0F, 12)); // 2 + 12 away
    MeetEnemyBullets(state);
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_EQ(state.Player.Hp, 88);
    EXPECT_EQ(state.Explosions,
        (std::vector<Explosion>{NewExplosion(640.0F, 656.0F, 0.22F, 12.0F, EnemyShotColor), HurtExplosion}));
    EXPECT_EQ(SoundsOf(state), Sounds{SfxId::PlayerHit});
}

TEST(EnemyShots, JustOutOfReachFlyOn) {
    GameState state = QuietRun();
    state.EnemyBullets.push_back(EnemyBulletAt(640.0F, 655.9375F));
    MeetEnemyBullets(state);
    EXPECT_EQ(state.EnemyBullets.size(), 1U);
    EXPECT_EQ(state.Player.Hp, 100);
}

TEST(EnemyShots, OfBothOfAHeavyEnemyOnlyTheFirstHurts) {
    GameState state = QuietRun();
    state.EnemyBullets = {EnemyBulletAt(636.0F, 670.0F, 12), EnemyBulletAt(644.0F, 670.0F, 12)};
    MeetEnemyBullets(state);
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_EQ(state.Player.Hp, 88);
    EXPECT_EQ(state.Explosions.size(), 3U);
}

TEST(EnemyShots, WhileInvincibleAreUsedUpWithTheirExplosion) {
    GameState state = QuietRun();
    state.InvincibilityPowerTimer = 0.5F;
    state.EnemyBullets.push_back(EnemyBulletAt(640.0F, 670.0F));
    MeetEnemyBullets(state);
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_EQ(state.Player.Hp, 100);
    EXPECT_EQ(state.Explosions,
        (std::vector<Explosion>{NewExplosion(640.0F, 670.0F, 0.22F, 12.0F, EnemyShotColor)}));
}

TEST(EnemyShots, LeaveBelowTheScreen) {
    GameState state = QuietRun();
    state.EnemyBullets = {EnemyBulletAt(500.0F, 740.0625F), EnemyBulletAt(500.0F, 741.0F),
        EnemyBulletAt(500.0F, 740.0F), EnemyBulletAt(640.0F, 670.0F), EnemyBulletAt(500.0F, 30.0F)};
    MeetEnemyBullets(state);
    EXPECT_EQ(HeightsOf(state.EnemyBullets), (Heights{740.0F, 30.0F}));
    EXPECT_EQ(state.Player.Hp, 90);
}

TEST(EnemyShots, TheOneThatTakesTheLastLifeTakesAllOthersWithIt) {
    GameState state = QuietRun();
    state.Player.Hp = 5;
    state.Player.Stocks = 0;
    state.EnemyBullets = {EnemyBulletAt(500.0F, 30.0F), EnemyBulletAt(640.0F, 670.0F),
        EnemyBulletAt(641.0F, 670.0F), EnemyBulletAt(500.0F, 40.0F)};
    state.Bullets = {BulletAt(640.0F, 100.0F)};
    MeetEnemyBullets(state);
    EXPECT_TRUE(state.PlayerDying);
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.Explosions.size(), 4U) << "the shot, the damage and the two of the death";
}

TEST(Crash, AnObstacleThatTouchesThePlayerIsUsedUpAndHurts) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(4, 651.0F)); // 7 + 12 away
    MeetObstacles(state);
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_EQ(state.Player.Hp, 76);
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.Explosions,
        (std::vector<Explosion>{NewExplosion(640.0F, 651.0F, 0.4F, 20.0F, CrashColor), HurtExplosion}));
    EXPECT_EQ(SoundsOf(state), Sounds{SfxId::PlayerHit});
}

TEST(Crash, AnObstacleJustOutOfReachDoesNot) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(4, 650.9375F));
    MeetObstacles(state);
    EXPECT_EQ(state.Obstacles.size(), 1U);
    EXPECT_EQ(state.Player.Hp, 100);
}

TEST(Crash, ABarrierReachesIntoTheLaneBeside) {
    GameState state = QuietRun();
    state.Obstacles.push_back(ObstacleInLane(5, 670.0F));
    state.Obstacles[0].Width = 54.0F; // its edge at 646
    MeetObstacles(state);
    EXPECT_TRUE(state.Obstacles.empty());
}

TEST(Crash, TheDamageGoesByTheType) {
    EXPECT_EQ(HpAfterCrash(0), 76);
    EXPECT_EQ(HpAfterCrash(1), 82);
    EXPECT_EQ(HpAfterCrash(2), 78);
}

TEST(Crash, AnUnknownTypeCountsAsTheMiddleOne) {
    EXPECT_EQ(HpAfterCrash(3), 82);
    EXPECT_EQ(HpAfterCrash(-1), 82);
    EXPECT_EQ(HpAfterCrash(2147483647), 82);
}

TEST(Crash, WhileInvincibleTheObstacleIsUsedUpWithItsExplosion) {
    GameState state = QuietRun();
    state.InvincibilityPowerTimer = 0.5F;
    state.Obstacles.push_back(ObstacleInLane(4, 670.0F));
    MeetObstacles(state);
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_EQ(state.Player.Hp, 100);
    EXPECT_EQ(
        state.Explosions, (std::vector<Explosion>{NewExplosion(640.0F, 670.0F, 0.4F, 20.0F, CrashColor)}));
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}

TEST(Crash, AnObstacleLeavesBelowTheScreenWithoutPoints) {
    GameState state = QuietRun();
    state.Obstacles = {ObstacleInLane(0, 748.0625F), ObstacleInLane(0, 749.0F), ObstacleInLane(0, 748.0F),
        ObstacleInLane(4, 670.0F), ObstacleInLane(4, 672.0F), ObstacleInLane(0, 30.0F)};
    MeetObstacles(state);
    EXPECT_EQ(HeightsOf(state.Obstacles), (Heights{748.0F, 30.0F}));
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.Explosions.size(), 3U) << "two crashes and one damage";
}
