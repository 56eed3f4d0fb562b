#include "gfx/Atlas.hpp"
#include "state/LogicalScreen.hpp"
#include "tests/app/ProgramTest.hpp"
#include "tests/support/VirtualDevice.hpp"

namespace {

using StartingUp = ProgramTest;
using Lines = std::vector<std::string>;

TEST_F(StartingUp, GoesInItsOrder) {
    Watch.Forget();
    Start();
    EXPECT_TRUE(Watch.SawInOrder({Watch.Init, Watch.GetPrimaryDisplay, Watch.GetDesktopDisplayMode,
        Watch.CreateWindow, Watch.CreateRenderer, Watch.SetRenderDrawBlendMode, Watch.SetWindowResizable,
        Watch.SetRenderLogicalPresentation, Watch.CreateTexture, Watch.SetWindowIcon, Watch.HideCursor,
        Watch.GetDisplayForWindow, Watch.GetFullscreenDisplayModes, Watch.GetGamepads, Watch.GetJoysticks,
        Watch.SetWindowFullscreenMode, Watch.SetRenderVSync, Watch.GetRenderVSync,
        Watch.SetRenderLogicalPresentation}));
    EXPECT_EQ(Watch.OrderOf({Watch.Init, Watch.CreateWindow, Watch.CreateRenderer, Watch.CreateTexture,
                  Watch.SetWindowIcon, Watch.HideCursor, Watch.GetGamepads, Watch.SetRenderVSync}),
        (CallNames{Watch.Init, Watch.CreateWindow, Watch.CreateRenderer, Watch.CreateTexture,
            Watch.SetWindowIcon, Watch.HideCursor, Watch.GetGamepads, Watch.SetRenderVSync,
            Watch.Init})); // the last by the mixer
}

TEST_F(StartingUp, SaysNoMoreThanThatTheDriverHasNoIcons) {
    const LogCatcher log;
    Start();
    EXPECT_EQ(log.Lines, Lines{NoIconsLine});
}

TEST_F(StartingUp, BringsUpVideoAndPadsAndLeavesAudioToTheMixer) {
    Watch.Forget();
    Start();
    EXPECT_EQ(
        Watch.Init.Calls, (std::vector{std::tuple{SDL_INIT_VIDEO | SDL_INIT_JOYSTICK | SDL_INIT_GAMEPAD},
                              std::tuple{SDL_INIT_AUDIO}}));
}

TEST_F(StartingUp, OpensAFullscreenWindowOfTheDesktopsSizeWithItsTitle) {
    Watch.Forget();
    Start();
    EXPECT_EQ(Watch.CreateWindow.OnlyCall(), std::tuple(WindowTitle, 1024, 768, SDL_WINDOW_FULLSCREEN));
    EXPECT_STREQ(SDL_GetWindowTitle(Program.Window), WindowTitle);
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(Program.Window, &width, &height);
    EXPECT_EQ(width, 1024);
    EXPECT_EQ(height, 768);
    const SDL_WindowFlags flags = SDL_GetWindowFlags(Program.Window);
    EXPECT_NE(flags & SDL_WINDOW_FULLSCREEN, 0U);
    EXPECT_EQ(flags & SDL_WINDOW_RESIZABLE, 0U);
}

TEST_F(StartingUp, LetsSdlChooseTheRenderer) {
    Watch.Forget();
    Start();
    EXPECT_EQ(Watch.CreateRenderer.OnlyCall(), std::tuple(Program.Window, std::nullopt));
}

TEST_F(StartingUp, MakesTheWindowNotResizable) {
    Watch.Forget();
    Start();
    EXPECT_EQ(Watch.SetWindowResizable.OnlyCall(), std::tuple(Program.Window, false));
}

TEST_F(StartingUp, DrawsWithBlending) {
    Start();
    SDL_BlendMode blend = SDL_BLENDMODE_NONE;
    ASSERT_TRUE(SDL_GetRenderDrawBlendMode(Program.Renderer, &blend));
    EXPECT_EQ(blend, SDL_BLENDMODE_BLEND);
}

TEST_F(StartingUp, LetterboxesTheLogicalScreen) {
    Start();
    int width = 0;
    int height = 0;
    SDL_RendererLogicalPresentation mode{};
    ASSERT_TRUE(SDL_GetRenderLogicalPresentation(Program.Renderer, &width, &height, &mode));
    EXPECT_EQ(width, 960);
    EXPECT_EQ(height, 720);
    EXPECT_EQ(mode, SDL_LOGICAL_PRESENTATION_LETTERBOX);
}

TEST_F(StartingUp, HidesTheCursor) {
    Start();
    EXPECT_FALSE(SDL_CursorVisible());
}

TEST_F(StartingUp, BuildsTheAtlasAndHandsTheWindowAnIcon) {
    Watch.Forget();
    Start();
    EXPECT_NE(SpriteAtlas.Texture, nullptr);
    EXPECT_EQ(SDL_GetRendererFromTexture(SpriteAtlas.Texture), Program.Renderer);
    EXPECT_EQ(SDL_GetRenderTarget(Program.Renderer), nullptr); // frames go straight to the window
    const auto &[window, icon] = Watch.SetWindowIcon.OnlyCall();
    EXPECT_EQ(window, Program.Window);
    EXPECT_NE(icon, nullptr);
}

TEST_F(StartingUp, OpensTheDevicesThatAreThere) {
    ASSERT_TRUE(SDL_Init(SDL_INIT_JOYSTICK | SDL_INIT_GAMEPAD));
    if (HasRealDevices()) {
        GTEST_SKIP() << "a real pad or joystick is plugged in";
    }
    const VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    Program.Devices.GamepadId = 77; // what stood there before is cleared
    Program.Devices.JoystickLeftLatch = true;
    Start();
    EXPECT_NE(Program.Devices.Gamepad, nullptr);
    EXPECT_EQ(Program.Devices.GamepadId, pad.Id);
    EXPECT_NE(Program.Devices.Joystick, nullptr);
    EXPECT_EQ(Program.Devices.JoystickId, stick.Id);
    EXPECT_FALSE(Program.Devices.JoystickLeftLatch);
    Stop();
}

TEST_F(StartingUp, AppliesTheDisplaySettingsAndRestartsTheFrameClock) {
    Start();
    EXPECT_TRUE(State.VSync);
    EXPECT_TRUE(State.VSyncActive);
    int actual = 0;
    ASSERT_TRUE(SDL_GetRenderVSync(Program.Renderer, &actual));
    EXPECT_EQ(actual, 1);
    EXPECT_TRUE(State.ResetFrameClock);
}

TEST_F(StartingUp, FillsTheStateWithItsDefaults) {
    State.Running = false;
    State.Score = 5;
    State.HighScore = 6;
    State.MasterVolume = 7;
    State.Fullscreen = false;
    State.OptionsDirty = true;
    State.KeyboardBindings = {1, 2, 3, 4, 5};
    Start();
    EXPECT_TRUE(State.Running);
    EXPECT_EQ(State.Score, 0);
    EXPECT_EQ(State.HighScore, 0);
    EXPECT_EQ(State.MasterVolume, 100);
    EXPECT_EQ(State.MusicVolume, 50);
    EXPECT_EQ(State.SfxVolume, 75);
    EXPECT_TRUE(State.MusicEnabled);
    EXPECT_TRUE(State.SfxEnabled);
    EXPECT_TRUE(State.Fullscreen);
    EXPECT_EQ(State.RefreshRate, 0);
    EXPECT_EQ(State.Language, "en");
    EXPECT_FALSE(State.OptionsDirty);
    EXPECT_EQ(State.KeyboardBindings, DefaultKeyboardBindings);
}

TEST_F(StartingUp, EndsOnTheFirstRowOfTheMainMenuWithoutARun) {
    State.Screen = ScreenPlaying;
    State.MainMenuSelection = 3;
    State.HasRunState = true;
    Start();
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_EQ(State.MainMenuSelection, 0U);
    EXPECT_FALSE(State.HasRunState);
    EXPECT_EQ(State.PendingSounds.Count, 0U);
}

TEST_F(StartingUp, SeedsEachLaunchDifferently) {
    Start();
    const std::mt19937 first = State.Rng;
    Stop();
    Start();
    EXPECT_FALSE(State.Rng == first);
}

TEST_F(StartingUp, RemembersWhenItEnded) {
    const Uint64 before = SDL_GetTicks();
    Start();
    EXPECT_GE(Program.LastFrameTicks, before);
    EXPECT_LE(Program.LastFrameTicks, SDL_GetTicks());
}

TEST_F(StartingUp, ForTheFirstTimeWritesTheOptionsAndLeavesTheSaveToTheFirstFrame) {
    Start();
    EXPECT_EQ(Written.OptionsWrites, 1);
    EXPECT_EQ(Written.SaveWrites, 0);
    EXPECT_TRUE(State.SaveRequested);
    RunFrame(Program);
    EXPECT_EQ(Written.OptionsWrites, 1);
    EXPECT_EQ(Written.SaveWrites, 1);
}

TEST_F(StartingUp, GoesOnWithoutTheIcon) {
    Watch.SetWindowIcon.Refuse();
    const LogCatcher log;
    Start();
    EXPECT_EQ(log.Lines, (Lines{"SetWindowIconFromAtlas failed: refused for the test"}));
    EXPECT_FALSE(SDL_CursorVisible());
    EXPECT_EQ(State.Screen, ScreenMainMenu);
}

TEST_F(StartingUp, GoesOnWithoutVSync) {
    Watch.SetRenderVSync.Refuse();
    const LogCatcher log;
    Start();
    EXPECT_EQ(log.Lines, (Lines{NoIconsLine, "SDL_SetRenderVSync(1) failed: refused for the test"}));
    EXPECT_FALSE(State.VSyncActive);
}

TEST_F(StartingUp, GoesOnWithoutLogicalPresentation) {
    Watch.SetRenderLogicalPresentation.Refuse();
    const LogCatcher log;
    Start();
    EXPECT_EQ(log.Lines, (Lines{"SDL_SetRenderLogicalPresentation failed: refused for the test", NoIconsLine,
                             "SDL_SetRenderLogicalPresentation failed: refused for the test"}));
}

TEST_F(StartingUp, WorksOffscreenToo) {
    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "offscreen");
    Start();
    EXPECT_STREQ(SDL_GetCurrentVideoDriver(), "offscreen");
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_NE(SpriteAtlas.Texture, nullptr);
    RunFrame(Program);
    EXPECT_TRUE(State.Running);
}

} // namespace
