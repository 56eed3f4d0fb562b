#include "sim/NewRun.hpp"

#include "sim/RoadLines.hpp"
#include "sim/Step.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"
#include "tests/sim/Runs.hpp"
#include "tests/support/LogicalWidthScope.hpp"

#include <gtest/gtest.h>

namespace {

void UseRun(GameState &State) {
    State.Score = 1234;
    State.HighScore = 98765;
    State.Stage = 7;
    State.PreviousStage = 6;
    State.WaterFlowDirection = -1;
    State.PreviousWaterFlowDirection = -1;
    State.GameTime = 170.0F;
    State.RoadScroll = 5000.0F;
    State.CurrentScrollSpeed = 156.0F;
    State.StageTransition = 0.25F;
    State.SpawnTimer = 0.5F;
    State.ObstacleSpawnTimer = 0.5F;
    State.ItemSpawnTimer = 0.5F;
    State.ReadyBanner = 0.5F;
    State.InvulnerabilityTimer = 0.5F;
    State.LaneMoveCooldown = 0.5F;
    State.AmmoRegenPause = 0.5F;
    State.AmmoMeter = 12.0F;
    State.Bombs = 1;
    State.FirstAidKits = 2;
    State.PlayerLane = 7;
    State.SpecialActive = true;
    State.SpecialTimer = 0.5F;
    State.InvincibilityPowerTimer = 0.5F;
    State.DualWeaponPowerTimer = 0.5F;
    State.PlayerDying = true;
    State.DeathTimer = 0.5F;
    State.HasRunState = false;
    State.SaveRequested = false;
    State.SaveDelay = 0.5F;
    State.Player = {111.0F, 222.0F, 33.0F, 44, 55, 0, 0.5F};
}

/// A state in which no field that a new run sets has the value that it sets. The next flow directions of its
/// generator are +1, -1.
GameState UsedState() {
    GameState state;
    state.Rng.seed(5489U);
    state.Screen = ScreenGameOver;
    state.Running = false;
    state.MainMenuSelection = 3;
    state.PauseSelection = 2;
    state.OptionsReturnScreen = ScreenPaused;
    state.HelpReturnScreen = ScreenPaused;
    state.CreditsScroll = 17.0F;
    UseRun(state);
    state.Bullets.resize(2);
    state.EnemyBullets.resize(2);
    state.Enemies.resize(2);
    state.Obstacles.resize(2);
    state.Items.resize(2);
    state.Explosions.resize(2);
    state.PendingSounds.Count = 5;
    return state;
}

GameState StartedFromUsedState() {
    GameState state = UsedState();
    StartNewRun(state);
    return state;
}

} // namespace

TEST(NewRun, ShowsTheRoadAndForgetsTheMenusBehindTheOldRun) {
    const GameState state = StartedFromUsedState();
    EXPECT_EQ(state.Screen, ScreenPlaying);
    EXPECT_EQ(state.PauseSelection, 0);
    EXPECT_EQ(state.OptionsReturnScreen, ScreenMainMenu);
    EXPECT_EQ(state.HelpReturnScreen, ScreenMainMenu);
}

TEST(NewRun, StartsTheRoadAtStageOne) {
    const GameState state = StartedFromUsedState();
    EXPECT_EQ(state.Stage, 1);
    EXPECT_EQ(state.PreviousStage, 1);
    EXPECT_EQ(state.GameTime, 0.0F);
    EXPECT_EQ(state.RoadScroll, 0.0F);
    EXPECT_EQ(state.CurrentScrollSpeed, 120.0F);
    EXPECT_EQ(state.StageTransition, 1.0F);
}

TEST(NewRun, SetsTheSpawnTimers) {
    const GameState state = StartedFromUsedState();
    EXPECT_EQ(state.SpawnTimer, 0.0F);
    EXPECT_EQ(state.ObstacleSpawnTimer, 2.8F);
    EXPECT_EQ(state.ItemSpawnTimer, 6.0F);
}

TEST(NewRun, ShowsTheReadyBannerForTwoSeconds) {
    EXPECT_EQ(StartedFromUsedState().ReadyBanner, 2.0F);
}

TEST(NewRun, DrawsOneFlowDirectionForBothFields) {
    GameState state = StartedFromUsedState();
    EXPECT_EQ(state.WaterFlowDirection, 1);
    EXPECT_EQ(state.PreviousWaterFlowDirection, 1);
    std::mt19937 oneDrawn(5489U);
    oneDrawn.discard(1);
    EXPECT_EQ(state.Rng, oneDrawn);

    StartNewRun(state); // the second draw; the generator goes on and is not seeded again
    EXPECT_EQ(state.WaterFlowDirection, -1);
    EXPECT_EQ(state.PreviousWaterFlowDirection, -1);
}

TEST(NewRun, GivesAFreshPlayer) {
    const GameState state = StartedFromUsedState();
    EXPECT_EQ(state.PlayerLane, 4);
    EXPECT_EQ(state.Player.X, 640.0F);
    EXPECT_EQ(state.Player.Y, 670.0F);
    EXPECT_EQ(state.Player.Radius, 12.0F);
    EXPECT_EQ(state.Player.Hp, 100);
    EXPECT_EQ(state.Player.MaxHp, 100);
    EXPECT_EQ(state.Player.Stocks, 2);
    EXPECT_EQ(state.Player.FireCooldown, 0.0F);
}

TEST(NewRun, PutsThePlayerOnTheRoadOfTheScreensWidth) {
    const LogicalWidthScope scope(2560);
    EXPECT_EQ(StartedFromUsedState().Player.X, 1280.0F);
}

TEST(NewRun, GivesFullAmmunitionThreeBombsAndNoKits) {
    const GameState state = StartedFromUsedState();
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.AmmoMeter, 100.0F);
    EXPECT_EQ(state.Bombs, 3);
    EXPECT_EQ(state.FirstAidKits, 0);
}

TEST(NewRun, ClearsEveryTimer) {
    const GameState state = StartedFromUsedState();
    EXPECT_EQ(state.InvulnerabilityTimer, 0.0F);
    EXPECT_EQ(state.LaneMoveCooldown, 0.0F);
    EXPECT_EQ(state.AmmoRegenPause, 0.0F);
    EXPECT_FALSE(state.SpecialActive);
    EXPECT_EQ(state.SpecialTimer, 0.0F);
    EXPECT_EQ(state.InvincibilityPowerTimer, 0.0F);
    EXPECT_EQ(state.DualWeaponPowerTimer, 0.0F);
    EXPECT_FALSE(state.PlayerDying);
    EXPECT_EQ(state.DeathTimer, 0.0F);
}

TEST(NewRun, EmptiesTheRoadAndTheSounds) {
    const GameState state = StartedFromUsedState();
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_TRUE(state.Items.empty());
    EXPECT_TRUE(state.Explosions.empty());
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}

TEST(NewRun, CanBeContinuedAndIsToBeSavedAtOnce) {
    const GameState state = StartedFromUsedState();
    EXPECT_TRUE(state.HasRunState);
    EXPECT_TRUE(state.SaveRequested);
    EXPECT_EQ(state.SaveDelay, 0.0F);
}

TEST(NewRun, FirstStepPutsTheSaveOff) {
    GameState state = StartedFromUsedState();
    SimulationStep(state, Frame, HeldNothing);
    EXPECT_TRUE(state.SaveRequested);
    EXPECT_EQ(state.SaveDelay, 0.8F);
}

TEST(NewRun, KeepsTheHighScoreAndTheMainMenu) {
    const GameState state = StartedFromUsedState();
    EXPECT_EQ(state.HighScore, 98765);
    EXPECT_EQ(state.MainMenuSelection, 3U);
    EXPECT_EQ(state.CreditsScroll, 17.0F);
    EXPECT_FALSE(state.Running);
}

TEST(NewRun, KeepsTheOptions) {
    GameState state = UsedState();
    state.AspectMode = AspectClassic4x3;
    state.ResolutionIndex = 6;
    state.RefreshRate = 144;
    state.Fullscreen = false;
    state.VSync = false;
    state.VSyncActive = true;
    state.MasterVolume = 11;
    state.MusicVolume = 12;
    state.SfxVolume = 13;
    state.MusicEnabled = false;
    state.SfxEnabled = false;
    state.Language = "de";
    state.OptionsDirty = true;
    state.ResetFrameClock = true;
    state.Resolutions = {{800, 600}};
    state.RefreshRates = {0, 144};
    state.DisplayModes = {{800, 600, 144}};
    StartNewRun(state);
    EXPECT_EQ(state.AspectMode, AspectClassic4x3);
    EXPECT_EQ(state.ResolutionIndex, 6);
    EXPECT_EQ(state.RefreshRate, 144);
    EXPECT_FALSE(state.Fullscreen);
    EXPECT_FALSE(state.VSync);
    EXPECT_TRUE(state.VSyncActive);
    EXPECT_EQ(state.MasterVolume, 11);
    EXPECT_EQ(state.MusicVolume, 12);
    EXPECT_EQ(state.SfxVolume, 13);
    EXPECT_FALSE(state.MusicEnabled);
    EXPECT_FALSE(state.SfxEnabled);
    EXPECT_EQ(state.Language, "de");
    EXPECT_TRUE(state.OptionsDirty);
    EXPECT_TRUE(state.ResetFrameClock);
    EXPECT_EQ(state.Resolutions, (std::vector<Resolution>{{800, 600}}));
    EXPECT_EQ(state.RefreshRates, (std::vector<std::int32_t>{0, 144}));
    EXPECT_EQ(state.DisplayModes, (std::vector<DisplayMode>{{800, 600, 144}}));
}

TEST(NewRun, KeepsTheBindings) {
    GameState state = UsedState();
    state.ControlsDevice = ControlsDeviceJoystick;
    state.KeyboardBindings = {1, 2, 3, 4, 5};
    state.GamepadBindings = {6, 7, 8, 9, 10};
    state.JoystickBindings = {11, 12, 13, 14, 15};
    StartNewRun(state);
    EXPECT_EQ(state.ControlsDevice, ControlsDeviceJoystick);
    EXPECT_EQ(state.KeyboardBindings, (BindingTable{1, 2, 3, 4, 5}));
    EXPECT_EQ(state.GamepadBindings, (BindingTable{6, 7, 8, 9, 10}));
    EXPECT_EQ(state.JoystickBindings, (BindingTable{11, 12, 13, 14, 15}));
}

TEST(Limits, OfWhatAPlayerCanHold) {
    EXPECT_EQ(MaxStocks, 5);
    EXPECT_EQ(MaxBombs, 3);
    EXPECT_EQ(MaxFirstAidKits, 3);
    EXPECT_EQ(MaxAmmo, 100.0F);
    EXPECT_EQ(BulletLeaveY, -20.0F);
}
