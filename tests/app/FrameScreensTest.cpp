#include "tests/app/ProgramTest.hpp"
#include "tests/support/Picture.hpp"
#include "tests/support/Screens.hpp"
#include "tests/support/VirtualDevice.hpp"

#include <algorithm>
#include <optional>

namespace {

class FrameScreens : public PlayingTest {
protected:
    /// Runs one frame of 0.033 seconds on a screen.
    void RunFrameOn(enum Screen Screen) {
        ShowWithoutWaiting(Screen);
        LetTimePass(1000);
        RunFrame(Program);
    }

    /// The next frame, as it stands just before it is presented.
    Picture NextFrame() {
        std::optional<Picture> shown;
        Watch.RenderPresent.Before = [&](SDL_Renderer *) {
            SDL_SetRenderViewport(Program.Renderer, nullptr); // the whole picture is read
            SDL_Surface *pixels = SDL_RenderReadPixels(Program.Renderer, nullptr);
            shown.emplace(pixels);
            SDL_DestroySurface(pixels);
        };
        RunFrame(Program);
        Watch.RenderPresent.Before = nullptr;
        return shown.value();
    }

    /// Whether a whole picture is opaque black.
    static bool IsBlack(const Picture &Picture) {
        return Picture.Width() > 0 && Picture.BoundsOfAllBut(0xFF000000).w == 0;
    }
};

TEST_F(FrameScreens, OnlyPlayingSimulates) {
    for (const enum Screen screen : OtherScreens) {
        const float before = State.GameTime;
        const float scrolled = State.RoadScroll;
        RunFrameOn(screen);
        EXPECT_EQ(State.GameTime, before) << screen;
        EXPECT_EQ(State.RoadScroll, scrolled) << screen;
    }
    const float before = State.GameTime;
    RunFrameOn(ScreenPlaying);
    EXPECT_FLOAT_EQ(State.GameTime, before + 0.033F);
}

TEST_F(FrameScreens, APauseFreezesTheRun) {
    RunFrameOn(ScreenPlaying);
    const float before = State.GameTime;
    for (int i = 0; i < 5; ++i) {
        RunFrameOn(ScreenPaused);
    }
    EXPECT_EQ(State.GameTime, before);
    RunFrameOn(ScreenPlaying);
    EXPECT_FLOAT_EQ(State.GameTime, before + 0.033F);
}

TEST_F(FrameScreens, HeldInputReachesTheRun) {
    if (HasRealDevices()) {
        GTEST_SKIP() << "a real pad or joystick is plugged in";
    }
    VirtualDevice pad(GamepadShape);
    RunFrameOn(ScreenPlaying); // opens it
    pad.SetAxis(SDL_GAMEPAD_AXIS_LEFTX, -11000);
    pad.SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    RunFrameOn(ScreenPlaying);
    EXPECT_EQ(State.PlayerLane, 3);
    EXPECT_EQ(State.Bullets.size(), 1U);
    Stop();
}

TEST_F(FrameScreens, HeldInputDoesNothingElsewhere) {
    if (HasRealDevices()) {
        GTEST_SKIP() << "a real pad or joystick is plugged in";
    }
    VirtualDevice stick(JoystickShape);
    State.JoystickBindings = {1, -1, -1, 0, 3}; // a fire button that confirms nothing
    RunFrameOn(ScreenPaused);                   // opens it
    stick.SetButton(1, true);
    RunFrameOn(ScreenPaused);
    EXPECT_TRUE(State.Bullets.empty());
    Stop();
}

TEST_F(FrameScreens, TheCreditsScroll) {
    State.CreditsScroll = 100.0F;
    RunFrameOn(ScreenCredits);
    EXPECT_FLOAT_EQ(State.CreditsScroll, 101.386F); // 42 units a second for 0.033 seconds
    EXPECT_EQ(State.Screen, ScreenCredits);
}

TEST_F(FrameScreens, TheCreditsEndPastTheirEnd) {
    State.CreditsScroll = 1089.0F;
    RunFrameOn(ScreenCredits);
    EXPECT_EQ(State.CreditsScroll, 0.0F);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
}

TEST_F(FrameScreens, TheCreditsStayAtTheirVeryEnd) {
    State.CreditsScroll = 1090.0F;
    ShowWithoutWaiting(ScreenCredits);
    State.ResetFrameClock = true; // no time passes
    RunFrame(Program);
    EXPECT_EQ(State.CreditsScroll, 1090.0F);
    EXPECT_EQ(State.Screen, ScreenCredits);
}

TEST_F(FrameScreens, OtherScreensLeaveTheCreditsAlone) {
    State.CreditsScroll = 100.0F;
    for (const enum Screen screen :
        {ScreenMainMenu, ScreenOptions, ScreenHelp, ScreenPlaying, ScreenPaused, ScreenGameOver}) {
        RunFrameOn(screen);
        EXPECT_EQ(State.CreditsScroll, 100.0F) << screen;
    }
}

TEST_F(FrameScreens, TheFrameBeginsOpaqueBlackOnEveryScreen) {
    constexpr SDL_Rect nowhere{-8, -8, 4, 4}; // it takes all that is drawn, but not the clearing
    for (const enum Screen screen : AllScreens) {
        ShowWithoutWaiting(screen);
        SDL_SetRenderDrawColor(Program.Renderer, 200, 30, 40, 255);
        SDL_RenderClear(Program.Renderer);
        ASSERT_TRUE(SDL_SetRenderViewport(Program.Renderer, &nowhere));
        EXPECT_TRUE(IsBlack(NextFrame())) << screen;
    }
}

TEST_F(FrameScreens, EveryScreenHasAPictureOfItsOwn) {
    State.CreditsScroll = 500.0F; // they begin below the screen
    std::vector<Picture> pictures;
    for (const enum Screen screen : AllScreens) {
        ShowWithoutWaiting(screen);
        State.ResetFrameClock = true; // no time passes
        const Picture shown = NextFrame();
        EXPECT_FALSE(IsBlack(shown)) << screen;
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), shown), 0) << screen;
        pictures.push_back(shown);
    }
}

TEST_F(FrameScreens, TheRunIsDrawnUnderThePauseAndTheGameOverScreen) {
    for (const enum Screen screen : {ScreenPaused, ScreenGameOver}) {
        ShowWithoutWaiting(screen);
        const Picture before = NextFrame();
        State.RoadScroll += 40.0F;
        EXPECT_FALSE(NextFrame() == before) << screen;
    }
}

TEST_F(FrameScreens, AChangeMadeByTheStepIsDrawnInTheSameFrame) {
    ShowWithoutWaiting(ScreenPlaying);
    State.PlayerDying = true;
    State.DeathTimer = 0.001F;
    LetTimePass(1000);
    const Picture ended = NextFrame();
    ASSERT_EQ(State.Screen, ScreenGameOver);
    State.ResetFrameClock = true;
    EXPECT_TRUE(NextFrame() == ended);
    State.CreditsScroll = 1090.0F;
    ShowWithoutWaiting(ScreenCredits);
    LetTimePass(1000);
    const Picture menu = NextFrame();
    ASSERT_EQ(State.Screen, ScreenMainMenu);
    State.ResetFrameClock = true;
    EXPECT_TRUE(NextFrame() == menu);
}

TEST_F(FrameScreens, EveryFrameIsPresentedOnce) {
    Watch.Forget();
    for (const enum Screen screen : OtherScreens) {
        RunFrameOn(screen);
    }
    RunFrameOn(ScreenPlaying);
    EXPECT_EQ(Watch.RenderPresent.Count(), 7);
}

} // namespace
