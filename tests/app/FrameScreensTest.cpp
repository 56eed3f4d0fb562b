#include "tests/app/ProgramTest.hpp"
#include "tests/support/VirtualDevice.hpp"

#include <array>

namespace {

constexpr std::array<enum Screen, 6> OtherScreens{
    ScreenMainMenu, ScreenOptions, ScreenHelp, ScreenPaused, ScreenCredits, ScreenGameOver};

class FrameScreens : public RunningTest {
protected:
    /// Runs one frame of 0.033 seconds on a screen.
    void RunFrameOn(enum Screen Screen) {
        ShowWithoutWaiting(Screen);
        LetTimePass(1000);
        RunFrame(Program);
    }

    /// Whether every pixel of the next frame has this colour, as it stands just before it is presented.
    bool NextFrameIsAll(Uint8 R, Uint8 G, Uint8 B, Uint8 A) {
        bool same = false;
        SdlWatch watch;
        watch.Before("SDL_RenderPresent", [&] {
            same = IsAll(R, G, B, A);
        });
        RunFrame(Program);
        return same;
    }

private:
    bool IsAll(Uint8 R, Uint8 G, Uint8 B, Uint8 A) {
        SDL_Surface *picture = SDL_RenderReadPixels(Program.Renderer, nullptr);
        if (picture == nullptr) {
            ADD_FAILURE() << SDL_GetError();
            return false;
        }
        bool same = picture->w > 0 && picture->h > 0;
        for (int y = 0; y < picture->h; ++y) {
            for (int x = 0; x < picture->w; ++x) {
                Uint8 r = 0;
                Uint8 g = 0;
                Uint8 b = 0;
                Uint8 a = 0;
                same = SDL_ReadSurfacePixel(picture, x, y, &r, &g, &b, &a) && same;
                same = same && r == R && g == G && b == B && a == A;
            }
        }
        SDL_DestroySurface(picture);
        return same;
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
    RunFrameOn(ScreenPaused); // opens it
    stick.SetButton(0, true);
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

TEST_F(FrameScreens, TheFrameBeginsOpaqueBlack) {
    ShowWithoutWaiting(ScreenMainMenu);
    SDL_SetRenderDrawColor(Program.Renderer, 200, 30, 40, 255);
    SDL_RenderClear(Program.Renderer);
    EXPECT_TRUE(NextFrameIsAll(0, 0, 0, 255));
}

TEST_F(FrameScreens, ARunIsDrawnAlsoUnderThePauseAndTheGameOverScreen) {
    for (const enum Screen screen : {ScreenPlaying, ScreenPaused, ScreenGameOver}) {
        ShowWithoutWaiting(screen);
        EXPECT_FALSE(NextFrameIsAll(0, 0, 0, 255)) << screen;
    }
}

TEST_F(FrameScreens, EveryFrameIsPresentedOnce) {
    const SdlWatch watch;
    for (const enum Screen screen : OtherScreens) {
        RunFrameOn(screen);
    }
    RunFrameOn(ScreenPlaying);
    EXPECT_EQ(watch.Count("SDL_RenderPresent"), 7);
}

} // namespace
