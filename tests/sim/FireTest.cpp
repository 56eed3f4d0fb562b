#include "sim/Step.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

// Steps of length 0 show a shot where it is born; a longer step would fly it on.

TEST(Fire, ASalvoIsOneShotFromTheCarsNose) {
    GameState state = QuietRun();
    SimulationStep(state, 0.0F, HeldFire);
    EXPECT_EQ(state.Bullets, (std::vector<Bullet>{{640.0F, 656.0F, 430.0F, 2.0F}}));
    EXPECT_EQ(state.Player.FireCooldown, 0.1F);
    EXPECT_EQ(state.AmmoRegenPause, 0.24F);
    EXPECT_EQ(state.AmmoMeter, 97.0F);
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerFire}));
}

TEST(Fire, StartsFromWhereThePlayerIs) {
    GameState state = QuietRun();
    state.Player.X = 300.0F;
    state.Player.Y = 500.0F;
    SimulationStep(state, 0.0F, HeldFire);
    ASSERT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.Bullets[0].X, 300.0F);
    EXPECT_EQ(state.Bullets[0].Y, 486.0F);
}

TEST(Fire, TheDualWeaponFiresTwoShotsForHalfAgainTheCostAndOneSound) {
    GameState state = QuietRun();
    state.DualWeaponPowerTimer = 8.0F;
    SimulationStep(state, 0.0F, HeldFire);
    EXPECT_EQ(
        state.Bullets, (std::vector<Bullet>{{634.0F, 656.0F, 430.0F, 2.0F}, {646.0F, 656.0F, 430.0F, 2.0F}}));
    EXPECT_EQ(state.AmmoMeter, 95.5F);
    EXPECT_EQ(state.Player.FireCooldown, 0.1F);
    EXPECT_EQ(state.AmmoRegenPause, 0.24F);
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerFire}));
}

TEST(Fire, NewShotsFollowTheOldOnes) {
    GameState state = QuietRun();
    state.Bullets = {{1.0F, 300.0F, 430.0F, 2.0F}};
    SimulationStep(state, 0.0F, HeldFire);
    ASSERT_EQ(state.Bullets.size(), 2U);
    EXPECT_EQ(state.Bullets[0].X, 1.0F);
    EXPECT_EQ(state.Bullets[1].X, 640.0F);
}

TEST(Fire, NeedsTheButton) {
    GameState state = QuietRun();
    SimulationStep(state, 0.0F, HeldNothing);
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.AmmoMeter, 100.0F);
    EXPECT_TRUE(SoundsOf(state).empty());
}

TEST(Fire, WaitsForTheCooldown) {
    GameState state = QuietRun();
    state.Player.FireCooldown = 0.0625F;
    SimulationStep(state, 0.03125F, HeldFire);
    EXPECT_TRUE(state.Bullets.empty());
    SimulationStep(state, 0.03125F, HeldFire); // at exactly 0
    EXPECT_EQ(state.Bullets.size(), 1U);
}

TEST(Fire, MayUseTheLastOfTheMeter) {
    GameState state = QuietRun();
    state.AmmoMeter = 3.0F;
    SimulationStep(state, 0.0F, HeldFire);
    EXPECT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.AmmoMeter, 0.0F);
}

TEST(Fire, AnEmptyMeterIsIgnoredInSilence) {
    GameState state = QuietRun();
    state.AmmoMeter = 2.9F;
    SimulationStep(state, 0.0F, HeldFire);
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.AmmoMeter, 2.9F);
    EXPECT_EQ(state.Player.FireCooldown, 0.0F);
    EXPECT_EQ(state.AmmoRegenPause, 0.0F);
    EXPECT_TRUE(SoundsOf(state).empty());
}

TEST(Fire, TheDualWeaponDoesNotFallBackToASingleShot) {
    GameState state = QuietRun();
    state.DualWeaponPowerTimer = 8.0F;
    state.AmmoMeter = 3.5F;
    SimulationStep(state, 0.0F, HeldFire);
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.AmmoMeter, 3.5F);
}

TEST(Fire, TheDualWeaponMayUseTheLastOfTheMeter) {
    GameState state = QuietRun();
    state.DualWeaponPowerTimer = 8.0F;
    state.AmmoMeter = 4.5F;
    SimulationStep(state, 0.0F, HeldFire);
    EXPECT_EQ(state.Bullets.size(), 2U);
    EXPECT_EQ(state.AmmoMeter, 0.0F);
}

TEST(Fire, AFullMeterPaysFor33SalvosInARow) {
    GameState state = QuietRun();
    int salvos = 0;
    for (int frame = 0; frame < 200 && state.AmmoMeter >= 3.0F; ++frame) {
        state.PendingSounds.Count = 0;
        SimulationStep(state, 0.03125F, HeldFire);
        salvos += static_cast<int>(state.PendingSounds.Count);
    }
    EXPECT_EQ(salvos, 33);
    EXPECT_EQ(state.AmmoMeter, 1.0F); // never refilled in between
}

TEST(Fire, HeldFireShootsEveryFourthFrameOf32ASecond) {
    GameState state = QuietRun();
    for (int frame = 0; frame < 13; ++frame) { // 0.1 is four frames of 0.03125, the overshoot is dropped
        SimulationStep(state, 0.03125F, HeldFire);
        EXPECT_EQ(state.PendingSounds.Count, static_cast<std::size_t>(1 + frame / 4)) << "frame " << frame;
    }
}

TEST(AmmoRefill, Rises26ASecond) {
    GameState state = QuietRun();
    state.AmmoMeter = 50.0F;
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_EQ(state.AmmoMeter, 56.5F);
}

TEST(AmmoRefill, StopsAtAHundred) {
    GameState state = QuietRun();
    state.AmmoMeter = 99.0F;
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_EQ(state.AmmoMeter, 100.0F);
}

TEST(AmmoRefill, WaitsForThePauseAfterAShot) {
    GameState state = QuietRun();
    state.AmmoMeter = 50.0F;
    state.AmmoRegenPause = 0.25F;
    SimulationStep(state, 0.125F, HeldNothing);
    EXPECT_EQ(state.AmmoMeter, 50.0F);
    SimulationStep(state, 0.125F, HeldNothing); // the pause is at exactly 0
    EXPECT_EQ(state.AmmoMeter, 53.25F);
}

TEST(AmmoRefill, DoesNotWaitForTheGun) {
    GameState state = QuietRun();
    state.AmmoMeter = 50.0F;
    state.Player.FireCooldown = 1.0F;
    SimulationStep(state, 0.25F, HeldFire);
    EXPECT_EQ(state.AmmoMeter, 56.5F);
}
