#include "sim/Damage.hpp"

#include "sim/Step.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

namespace {

const Color DamageColor{0xFF, 0xAA, 0x6E, 0xE6};
const Color RespawnColor{0xFF, 0xE6, 0x78, 0xE6};
const Color DyingFirstColor{0xFF, 0xB9, 0x5F, 0xE6};
const Color DyingSecondColor{0xFF, 0xE6, 0x8C, 0xD2};

/// A quiet run with the player elsewhere and in need of everything that a lost life resets.
GameState RunBeforeTheBlow(std::int32_t Hp, std::int32_t Stocks) {
    GameState state = QuietRun();
    state.Player.Hp = Hp;
    state.Player.Stocks = Stocks;
    state.PlayerLane = 7;
    state.Player.X = 738.0F;
    state.Player.FireCooldown = 0.05F;
    state.LaneMoveCooldown = 0.05F;
    return state;
}

void ExpectUnhurt(const GameState &State) {
    EXPECT_EQ(State.Player.Hp, 100);
    EXPECT_TRUE(State.Explosions.empty());
    EXPECT_EQ(State.PendingSounds.Count, 0U);
}

} // namespace

TEST(Damage, TakesPointsAndMakesInvulnerableForASecond) {
    GameState state = RunBeforeTheBlow(100, 2);
    DamagePlayer(state, 24);
    EXPECT_EQ(state.Player.Hp, 76);
    EXPECT_EQ(state.InvulnerabilityTimer, 1.0F);
    EXPECT_EQ(
        state.Explosions, (std::vector<Explosion>{NewExplosion(738.0F, 670.0F, 0.5F, 22.0F, DamageColor)}));
    EXPECT_EQ(SoundsOf(state), Sounds{SfxId::PlayerHit});
    EXPECT_EQ(state.Player.Stocks, 2);
    EXPECT_EQ(state.PlayerLane, 7);
}

TEST(Damage, DoesNothingWhileInvulnerable) {
    GameState state = QuietRun();
    state.InvulnerabilityTimer = 0.001F;
    DamagePlayer(state, 34);
    ExpectUnhurt(state);
    EXPECT_EQ(state.InvulnerabilityTimer, 0.001F);
}

TEST(Damage, DoesNothingWhileInvincible) {
    GameState state = QuietRun();
    state.InvincibilityPowerTimer = 0.001F;
    DamagePlayer(state, 34);
    ExpectUnhurt(state);
    EXPECT_EQ(state.InvulnerabilityTimer, 0.0F);
}

TEST(Damage, DoesNothingOnAnotherScreen) {
    for (const Screen screen :
        {ScreenMainMenu, ScreenOptions, ScreenHelp, ScreenPaused, ScreenCredits, ScreenGameOver}) {
        GameState state = QuietRun();
        state.Screen = screen;
        DamagePlayer(state, 34);
        ExpectUnhurt(state);
    }
}

TEST(Damage, DoesNothingToADyingPlayer) {
    GameState state = QuietRun();
    state.PlayerDying = true;
    DamagePlayer(state, 34);
    ExpectUnhurt(state);
}

TEST(Damage, OnePointLeftIsEnough) {
    GameState state = RunBeforeTheBlow(35, 2);
    DamagePlayer(state, 34);
    EXPECT_EQ(state.Player.Hp, 1);
    EXPECT_EQ(state.Player.Stocks, 2);
}

TEST(Damage, ExactlyNoPointsLeftCostsALife) {
    GameState state = RunBeforeTheBlow(34, 2);
    DamagePlayer(state, 34);
    EXPECT_EQ(state.Player.Hp, 100);
    EXPECT_EQ(state.Player.Stocks, 1);
}

TEST(Damage, ALostLifePutsThePlayerBackInTheMiddleWithFullHealth) {
    GameState state = RunBeforeTheBlow(20, 1);
    state.Player.MaxHp = 90;
    state.Player.Y = 600.0F;
    DamagePlayer(state, 34);
    EXPECT_EQ(state.Player.Stocks, 0);
    EXPECT_EQ(state.PlayerLane, 4);
    EXPECT_EQ(state.Player.Hp, 90);
    EXPECT_EQ(state.Player.X, 640.0F);
    EXPECT_EQ(state.Player.Y, 670.0F);
    EXPECT_EQ(state.InvulnerabilityTimer, 2.0F);
    EXPECT_EQ(state.LaneMoveCooldown, 0.0F);
    EXPECT_FALSE(state.PlayerDying);
    EXPECT_EQ(
        state.Explosions, (std::vector<Explosion>{NewExplosion(738.0F, 600.0F, 0.5F, 22.0F, DamageColor),
                              NewExplosion(640.0F, 670.0F, 0.8F, 35.0F, RespawnColor)}));
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerHit, SfxId::PlayerDeath}));
}

TEST(Damage, ALostLifeLeavesWhatThePlayerHoldsAndTheTraffic) {
    GameState state = RunBeforeTheBlow(20, 1);
    state.AmmoMeter = 12.0F;
    state.AmmoRegenPause = 0.2F;
    state.Bombs = 1;
    state.FirstAidKits = 2;
    state.DualWeaponPowerTimer = 3.0F;
    state.Score = 77;
    state.Bullets.push_back(BulletAt(640.0F, 100.0F));
    state.EnemyBullets.push_back(EnemyBulletAt(640.0F, 100.0F));
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Items.push_back(ItemInLane(4, 100.0F));
    DamagePlayer(state, 34);
    EXPECT_EQ(state.AmmoMeter, 12.0F);
    EXPECT_EQ(state.AmmoRegenPause, 0.2F);
    EXPECT_EQ(state.Player.FireCooldown, 0.05F);
    EXPECT_EQ(state.Bombs, 1);
    EXPECT_EQ(state.FirstAidKits, 2);
    EXPECT_EQ(state.DualWeaponPowerTimer, 3.0F);
    EXPECT_EQ(state.Score, 77);
    EXPECT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.EnemyBullets.size(), 1U);
    EXPECT_EQ(state.Enemies.size(), 1U);
    EXPECT_EQ(state.Obstacles.size(), 1U);
    EXPECT_EQ(state.Items.size(), 1U);
}

TEST(Damage, WithoutASpareLifeTheRunBeginsToEnd) {
    GameState state = RunBeforeTheBlow(20, 0);
    state.Bullets.push_back(BulletAt(640.0F, 100.0F));
    state.EnemyBullets.push_back(EnemyBulletAt(640.0F, 100.0F));
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Obstacles.push_back(ObstacleInLane(4, 100.0F));
    state.Items.push_back(ItemInLane(4, 100.0F));
    DamagePlayer(state, 34);
    EXPECT_TRUE(state.PlayerDying);
    EXPECT_EQ(state.Player.Hp, 0);
    EXPECT_EQ(state.Player.Stocks, 0);
    EXPECT_EQ(state.DeathTimer, 0.85F);
    EXPECT_EQ(state.InvulnerabilityTimer, 1.0F) << "the greater of 0.85 and what the blow has set";
    EXPECT_EQ(state.Player.FireCooldown, 0.0F);
    EXPECT_EQ(state.PlayerLane, 7);
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_EQ(state.Enemies.size(), 1U);
    EXPECT_EQ(state.Obstacles.size(), 1U);
    EXPECT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(
        state.Explosions, (std::vector<Explosion>{NewExplosion(738.0F, 670.0F, 0.5F, 22.0F, DamageColor),
                              NewExplosion(738.0F, 670.0F, 0.65F, 64.0F, DyingFirstColor),
                              NewExplosion(738.0F, 670.0F, 0.85F, 44.0F, DyingSecondColor)}));
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerHit, SfxId::PlayerDeath}));
    EXPECT_EQ(state.Screen, ScreenPlaying);
    EXPECT_TRUE(state.HasRunState);
}

TEST(Damage, TheRestOfTheFrameOfALostLifeStillRuns) {
    GameState state = QuietRun();
    state.Player.Hp = 20;
    state.Player.Stocks = 0;
    state.Score = 500;
    state.AmmoMeter = 50.0F;
    state.Enemies.push_back(EnemyInLane(4, 660.0F));
    state.Obstacles.push_back(ObstacleInLane(4, 680.0F));
    state.Items.push_back(ItemInLane(4, 670.0F));
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_TRUE(state.PlayerDying);
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_EQ(state.FirstAidKits, 1);
    EXPECT_GT(state.AmmoMeter, 50.0F);
    EXPECT_EQ(state.HighScore, 500) << "before the screen changes";
    EXPECT_EQ(state.Screen, ScreenPlaying);
    EXPECT_EQ(state.DeathTimer, 0.85F);
}

TEST(Damage, AfterTheLethalBlowTheScoreRisesNoMore) {
    GameState state = QuietRun();
    state.Player.Hp = 20;
    state.Player.Stocks = 0;
    state.Score = 500;
    state.FirstAidKits = 3;
    state.Enemies = {EnemyInLane(4, 660.0F), EnemyInLane(4, 100.0F)};
    SimulationStep(state, Frame, HeldNothing);
    ASSERT_TRUE(state.PlayerDying);
    state.Bullets.push_back(BulletAt(640.0F, state.Enemies[0].Y));
    state.Items.push_back(ItemInLane(4, 670.0F));
    int frames = 0;
    while (state.Screen == ScreenPlaying) {
        SimulationStep(state, Frame, {false, false, true, true});
        ASSERT_EQ(state.Score, 500);
        ++frames;
        ASSERT_LE(frames, 55); // 0.85 seconds of 1/64
    }
    EXPECT_EQ(frames, 55);
    EXPECT_EQ(state.Screen, ScreenGameOver);
    EXPECT_FALSE(state.HasRunState);
    EXPECT_EQ(state.HighScore, 500);
}
