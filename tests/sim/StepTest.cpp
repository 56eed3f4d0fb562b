#include "sim/Step.hpp"

#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

// What the order of the step makes of actions that meet in one frame.

TEST(Step, TimersFallBeforeTheActionsThatTheyHoldBack) {
    GameState state = QuietRun();
    state.Player.FireCooldown = 0.01F;
    state.LaneMoveCooldown = 0.01F;
    state.SpecialActive = true;
    state.SpecialTimer = 0.01F;
    SimulationStep(state, Frame, {true, false, true, true});
    EXPECT_EQ(state.PlayerLane, 3);
    EXPECT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.Bombs, 2);
    // The overshoot is dropped: all three start from their full values.
    EXPECT_EQ(state.LaneMoveCooldown, 0.09F);
    EXPECT_EQ(state.Player.FireCooldown, 0.1F);
    EXPECT_EQ(state.SpecialTimer, 0.65F);
}

TEST(Step, ADualWeaponThatRunsOutInAFrameFiresASingleShotInIt) {
    GameState state = QuietRun();
    state.DualWeaponPowerTimer = 0.01F;
    SimulationStep(state, Frame, HeldFire);
    EXPECT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.AmmoMeter, 97.0F);
}

TEST(Step, TheLaneMoveComesBeforeTheShotAndTheBomb) {
    GameState state = QuietRun();
    SimulationStep(state, Frame, {false, true, true, true});
    ASSERT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.Bullets[0].X, 673.0F);
    ASSERT_EQ(state.Explosions.size(), 1U);
    EXPECT_EQ(state.Explosions[0].X, 673.0F);
}

TEST(Step, TheShotComesBeforeTheBomb) {
    GameState state = QuietRun();
    SimulationStep(state, Frame, {false, false, true, true});
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerFire, SfxId::PlayerBomb}));
    EXPECT_EQ(state.Bullets.size(), 1U);
}

TEST(Step, ANewShotFliesInItsFirstFrame) {
    GameState state = QuietRun();
    SimulationStep(state, 0.03125F, HeldFire);
    ASSERT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.Bullets[0].Y, 642.5625F); // 656 - 13.4375
}

TEST(Step, ANewExplosionAgesInItsFirstFrame) {
    GameState state = QuietRun();
    SimulationStep(state, 0.03125F, HeldBomb);
    ASSERT_EQ(state.Explosions.size(), 1U);
    EXPECT_EQ(state.Explosions[0].Age, 0.03125F);
}

TEST(Step, TheRefillComesAfterTheShotAndItsPause) {
    GameState state = QuietRun();
    state.AmmoMeter = 50.0F;
    SimulationStep(state, Frame, HeldFire);
    EXPECT_EQ(state.AmmoMeter, 47.0F); // the pause is armed before the refill looks at it
}

TEST(Step, TheRefillComesTooLateForAShotOfTheSameFrame) {
    GameState state = QuietRun();
    state.AmmoMeter = 2.9F;
    SimulationStep(state, 0.25F, HeldFire);
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_FLOAT_EQ(state.AmmoMeter, 9.4F);
    SimulationStep(state, 0.25F, HeldFire);
    EXPECT_EQ(state.PendingSounds.Count, 1U);
}

TEST(Step, APauseThatRunsOutInAFrameLetsTheMeterRiseInIt) {
    GameState state = QuietRun();
    state.AmmoMeter = 50.0F;
    state.AmmoRegenPause = 0.01F;
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_EQ(state.AmmoMeter, 56.5F);
}

TEST(Step, TheStageChangesAfterTheFramesAwards) {
    GameState state = QuietRun();
    state.GameTime = 25.99F;
    state.Enemies = {EnemyAt(510.0F, 100.0F, 200)};
    SimulationStep(state, Frame, HeldBomb);
    EXPECT_EQ(state.Stage, 2);
    EXPECT_EQ(state.Score, 225); // stage 1's price, not 212 + 26
}

TEST(Step, TheSeamOfANewStageStartsAtTheTop) {
    GameState state = QuietRun();
    state.GameTime = 25.99F;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.StageTransition, 0.0F); // the frame's own distance is not counted
    SimulationStep(state, 0.03125F, HeldNothing);
    EXPECT_FLOAT_EQ(state.StageTransition, 0.0052083333F); // 3.75 / 720
}

TEST(Step, ALoadedStageThatDoesNotFitItsTimeIsCorrectedInTheFirstFrame) {
    GameState state = QuietRun();
    state.Stage = 9;
    state.GameTime = 30.0F;
    SimulationStep(state, 0.0F, HeldNothing);
    EXPECT_EQ(state.Stage, 2);
    EXPECT_EQ(state.PreviousStage, 9);
    EXPECT_EQ(state.StageTransition, 0.0F);
}

TEST(Step, RaisesTheHighScoreWithTheFramesOwnPoints) {
    GameState state = QuietRun();
    state.Score = 900;
    state.HighScore = 1000;
    state.Enemies = {EnemyAt(510.0F, 100.0F, 200)};
    SimulationStep(state, Frame, HeldBomb);
    EXPECT_EQ(state.Score, 1125);
    EXPECT_EQ(state.HighScore, 1125);
}

TEST(Step, LeavesAHigherHighScore) {
    GameState state = QuietRun();
    state.Score = 900;
    state.HighScore = 1000;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.HighScore, 1000);
    EXPECT_EQ(state.Score, 900);
}

TEST(Step, MarksTheRunForSaving) {
    GameState state = QuietRun();
    state.HasRunState = false;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_TRUE(state.HasRunState);
    EXPECT_TRUE(state.SaveRequested);
    EXPECT_EQ(state.SaveDelay, 0.8F);
}

TEST(Step, DoesNotPushARunningSaveBack) {
    GameState state = QuietRun();
    state.SaveRequested = true;
    state.SaveDelay = 0.3F;
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.SaveDelay, 0.3F);
    state.SaveDelay = 1.0F; // the wait after a save that failed
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.SaveDelay, 0.8F);
}

TEST(Step, StaysOnThePlayingScreen) {
    GameState state = QuietRun();
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_EQ(state.Screen, ScreenPlaying);
    EXPECT_FALSE(state.PlayerDying);
}

TEST(StepOfNoLength, MovesNothing) {
    GameState state = QuietRunInStage(3); // the road wants to speed up
    state.StageTransition = 0.5F;
    state.AmmoMeter = 50.0F;
    state.ReadyBanner = 1.0F;
    state.InvulnerabilityTimer = 1.0F;
    state.Bullets = {{300.0F, 300.0F, 430.0F, 2.0F}};
    state.EnemyBullets = {{400.0F, 300.0F, 190.0F, 2.0F, 12}};
    state.Explosions = {{500.0F, 300.0F, 0.25F, 0.5F, 20.0F, {}}};
    const GameState before = state;
    SimulationStep(state, 0.0F, HeldNothing);
    EXPECT_EQ(state.CurrentScrollSpeed, before.CurrentScrollSpeed);
    EXPECT_EQ(state.RoadScroll, before.RoadScroll);
    EXPECT_EQ(state.StageTransition, before.StageTransition);
    EXPECT_EQ(state.GameTime, before.GameTime);
    EXPECT_EQ(state.AmmoMeter, before.AmmoMeter);
    EXPECT_EQ(state.ReadyBanner, before.ReadyBanner);
    EXPECT_EQ(state.InvulnerabilityTimer, before.InvulnerabilityTimer);
    EXPECT_EQ(state.SpawnTimer, before.SpawnTimer);
    EXPECT_EQ(state.Player, before.Player);
    EXPECT_EQ(state.Bullets, before.Bullets);
    EXPECT_EQ(state.EnemyBullets, before.EnemyBullets);
    EXPECT_EQ(state.Explosions, before.Explosions);
}

TEST(StepOfNoLength, StillActsOnWhatIsHeld) {
    GameState state = QuietRun();
    SimulationStep(state, 0.0F, {true, false, true, true});
    EXPECT_EQ(state.PlayerLane, 3);
    EXPECT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.Bombs, 2);
    EXPECT_TRUE(state.SaveRequested);
}

TEST(StepOfNoLength, WaitsForTimersThatHaveNotRunOut) {
    GameState state = QuietRun();
    state.LaneMoveCooldown = 0.01F;
    state.Player.FireCooldown = 0.01F;
    state.SpecialActive = true;
    state.SpecialTimer = 0.01F;
    SimulationStep(state, 0.0F, {true, false, true, true});
    EXPECT_EQ(state.PlayerLane, 4);
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_EQ(state.Bombs, 3);
}
