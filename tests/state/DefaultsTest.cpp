#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <type_traits>

namespace {

// Taken before any test can have changed it; it begins as a constant, before all that is computed.
// NOLINTNEXTLINE(cppcoreguidelines-interfaces-global-init)
const std::int32_t WidthAtStart = LogicalWidth;

static_assert(std::is_same_v<decltype(GameState::Score), std::int64_t>);
static_assert(std::is_same_v<decltype(GameState::HighScore), std::int64_t>);
static_assert(std::is_same_v<decltype(GameState::MainMenuSelection), std::uint32_t>);
static_assert(std::is_same_v<decltype(GameState::PauseSelection), std::int32_t>);
static_assert(std::is_same_v<decltype(GameState::Rng), std::mt19937>);
static_assert(std::is_same_v<decltype(GameState::GameTime), float>);
static_assert(sizeof(SfxId) == 1);
static_assert(sizeof(Color) == 4);

} // namespace

TEST(Defaults, TheLogicalScreenIs1280By720UntilADisplaySaysOtherwise) {
    EXPECT_EQ(WidthAtStart, 1280);
    EXPECT_EQ(LogicalHeight, 720);
    EXPECT_EQ(LogicalHeightF, 720.0F);
}

TEST(Defaults, ScreensAreNumberedFromTheMainMenu) {
    EXPECT_EQ(static_cast<int>(ScreenMainMenu), 0);
    EXPECT_EQ(static_cast<int>(ScreenOptions), 1);
    EXPECT_EQ(static_cast<int>(ScreenHelp), 2);
    EXPECT_EQ(static_cast<int>(ScreenPlaying), 3);
    EXPECT_EQ(static_cast<int>(ScreenPaused), 4);
    EXPECT_EQ(static_cast<int>(ScreenCredits), 5);
    EXPECT_EQ(static_cast<int>(ScreenGameOver), 6);
}

TEST(Defaults, TheProgramStartsOnTheMainMenu) {
    const GameState state;
    EXPECT_EQ(state.Screen, ScreenMainMenu);
    EXPECT_TRUE(state.Running);
    EXPECT_EQ(state.MainMenuSelection, 0U);
    EXPECT_EQ(state.PauseSelection, 0);
    EXPECT_EQ(state.OptionsReturnScreen, ScreenMainMenu);
    EXPECT_EQ(state.HelpReturnScreen, ScreenMainMenu);
    EXPECT_EQ(state.CreditsScroll, 0.0F);
}

TEST(Defaults, NoRunIsUnderWayAndNoSaveIsDue) {
    const GameState state;
    EXPECT_FALSE(state.HasRunState);
    EXPECT_FALSE(state.SaveRequested);
    EXPECT_EQ(state.SaveDelay, 0.0F);
    EXPECT_FALSE(state.PlayerDying);
    EXPECT_EQ(state.DeathTimer, 0.0F);
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.HighScore, 0);
    EXPECT_EQ(state.Stage, 1);
    EXPECT_EQ(state.PreviousStage, 1);
    EXPECT_EQ(state.CurrentScrollSpeed, 120.0F);
    EXPECT_EQ(state.StageTransition, 1.0F);
}

TEST(Defaults, NothingIsOnTheRoadAndNothingSounds) {
    const GameState state;
    EXPECT_TRUE(state.Bullets.empty());
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_TRUE(state.Items.empty());
    EXPECT_TRUE(state.Explosions.empty());
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}

TEST(Defaults, TheDisplayIsWidescreenFullscreenAndSynchronised) {
    const GameState state;
    EXPECT_EQ(static_cast<int>(AspectWidescreen), 0);
    EXPECT_EQ(static_cast<int>(AspectClassic4x3), 1);
    EXPECT_EQ(state.AspectMode, AspectWidescreen);
    EXPECT_EQ(state.ResolutionIndex, 3);
    EXPECT_EQ(state.RefreshRate, 0);
    EXPECT_TRUE(state.Fullscreen);
    EXPECT_TRUE(state.VSync);
    EXPECT_FALSE(state.VSyncActive);
    EXPECT_FALSE(state.ResetFrameClock);
    EXPECT_TRUE(state.Resolutions.empty());
    EXPECT_TRUE(state.RefreshRates.empty());
    EXPECT_TRUE(state.DisplayModes.empty());
}

TEST(Defaults, SoundIsOnAndTheLanguageIsEnglish) {
    const GameState state;
    EXPECT_EQ(state.MasterVolume, 100);
    EXPECT_EQ(state.MusicVolume, 50);
    EXPECT_EQ(state.SfxVolume, 75);
    EXPECT_TRUE(state.MusicEnabled);
    EXPECT_TRUE(state.SfxEnabled);
    EXPECT_EQ(state.Language, "en");
    EXPECT_FALSE(state.OptionsDirty);
}

TEST(Defaults, TheControlsAreTheDefaultBindings) {
    const GameState state;
    EXPECT_EQ(state.ControlsDevice, ControlsDeviceKeyboard);
    EXPECT_EQ(state.KeyboardBindings, (BindingTable{80, 79, 224, 27, 44}));
    EXPECT_EQ(state.GamepadBindings, (BindingTable{0, 2, 3, 0, 1}));
    EXPECT_EQ(state.JoystickBindings, (BindingTable{0, 1, 2, 0, 3}));
}

TEST(Defaults, AnEnemyThatIsBeingBuilt) {
    const Enemy enemy;
    EXPECT_EQ(enemy.X, 0.0F);
    EXPECT_EQ(enemy.Y, 0.0F);
    EXPECT_EQ(enemy.Speed, 0.0F);
    EXPECT_EQ(enemy.Radius, 8.0F);
    EXPECT_EQ(enemy.HitFlash, 0.0F);
    EXPECT_EQ(enemy.AiTimer, 0.0F);
    EXPECT_EQ(enemy.FireCooldown, 0.0F);
    EXPECT_EQ(enemy.Lane, 4);
    EXPECT_EQ(enemy.Hp, 1);
    EXPECT_EQ(enemy.Score, 200);
    EXPECT_EQ(enemy.Color, (Color{255, 255, 255, 255}));
}

TEST(Defaults, AnObstacleThatIsBeingBuilt) {
    const Obstacle obstacle;
    EXPECT_EQ(obstacle.X, 0.0F);
    EXPECT_EQ(obstacle.Y, 0.0F);
    EXPECT_EQ(obstacle.Speed, 120.0F);
    EXPECT_EQ(obstacle.Width, 40.0F);
    EXPECT_EQ(obstacle.Height, 14.0F);
    EXPECT_EQ(obstacle.HitFlash, 0.0F);
    EXPECT_EQ(obstacle.Lane, 4);
    EXPECT_EQ(obstacle.Hp, 2);
    EXPECT_EQ(obstacle.Score, 120);
    EXPECT_EQ(obstacle.Type, 0);
}

TEST(Defaults, AnItemThatIsBeingBuilt) {
    const Item item;
    EXPECT_EQ(item.X, 0.0F);
    EXPECT_EQ(item.Y, 0.0F);
    EXPECT_EQ(item.Speed, 90.0F);
    EXPECT_EQ(item.Radius, 10.0F);
    EXPECT_EQ(item.Lane, 4);
    EXPECT_EQ(item.Type, 0);
}

TEST(Defaults, AColorIsRedGreenBlueAlphaInMemory) {
    const Color color{1, 2, 3, 4};
    EXPECT_EQ(color.R, 1);
    EXPECT_EQ(color.G, 2);
    EXPECT_EQ(color.B, 3);
    EXPECT_EQ(color.A, 4);
    EXPECT_EQ((std::bit_cast<std::array<std::uint8_t, 4>>(color)), (std::array<std::uint8_t, 4>{1, 2, 3, 4}));
}
