#include "tests/app/ProgramTest.hpp"

namespace {

class FrameCap : public RunningTest {
protected:
    void SetUp() override {
        RunningTest::SetUp();
        ShowWithoutWaiting(ScreenMainMenu);
        State.VSyncActive = false;
        State.SaveRequested = false;
    }
};

TEST_F(FrameCap, HoldsAFrameForEightMilliseconds) {
    constexpr int frames = 20;
    const Uint64 before = SDL_GetTicksNS();
    for (int i = 0; i < frames; ++i) {
        RunFrame(Program);
    }
    const Uint64 passed = SDL_GetTicksNS() - before;
    // Ticks are whole milliseconds: a frame may seem up to one longer than it was.
    EXPECT_GE(passed, frames * SDL_MS_TO_NS(7));
}

TEST_F(FrameCap, SleepsOneToEightMillisecondsWheneverItSleeps) {
    Watch.Forget();
    for (int i = 0; i < 30; ++i) {
        State.OptionsDirty = true; // a write that takes longer and longer
        Written.OnOptionsWrite = [i] {
            SDL_DelayPrecise(SDL_MS_TO_NS(1) * static_cast<Uint64>(i) / 3);
        };
        RunFrame(Program);
    }
    EXPECT_GT(Watch.Delay.Count(), 0);
    for (const auto &[milliseconds] : Watch.Delay.Calls) {
        EXPECT_GE(milliseconds, 1U);
        EXPECT_LE(milliseconds, 8U);
    }
}

TEST_F(FrameCap, CountsFromTheTopOfTheFrame) {
    Written.OnOptionsWrite = [] {
        SDL_DelayPrecise(SDL_MS_TO_NS(4));
    };
    Watch.Forget();
    for (int i = 0; i < 20; ++i) {
        State.OptionsDirty = true;
        RunFrame(Program);
    }
    EXPECT_GT(Watch.Delay.Count(), 0);
    for (const auto &[milliseconds] : Watch.Delay.Calls) {
        EXPECT_LE(milliseconds, 4U); // the time of the write is part of the eight milliseconds
    }
}

TEST_F(FrameCap, DoesNotSleepAfterALongFrame) {
    State.OptionsDirty = true;
    Written.OnOptionsWrite = [] {
        SDL_DelayPrecise(SDL_MS_TO_NS(10));
    };
    Watch.Forget();
    RunFrame(Program);
    EXPECT_EQ(Watch.Delay.Count(), 0);
}

TEST_F(FrameCap, DoesNotSleepWithActiveVSync) {
    State.VSyncActive = true;
    Watch.Forget();
    for (int i = 0; i < 10; ++i) {
        RunFrame(Program);
    }
    EXPECT_EQ(Watch.Delay.Count(), 0);
    EXPECT_EQ(Watch.RenderPresent.Count(), 10);
}

TEST_F(FrameCap, GoesByWhatIsActiveNotByTheOption) {
    State.VSync = true;
    const Uint64 before = SDL_GetTicksNS();
    for (int i = 0; i < 10; ++i) {
        RunFrame(Program);
    }
    EXPECT_GE(SDL_GetTicksNS() - before, SDL_MS_TO_NS(70));
}

class RefusedVSync : public ProgramTest {};

TEST_F(RefusedVSync, StillGivesAPacedLoop) {
    Watch.Forget();
    Watch.SetRenderVSync.Refuse();
    Start();
    ASSERT_TRUE(State.VSync);
    ASSERT_FALSE(State.VSyncActive);
    State.Screen = ScreenMainMenu;
    const Uint64 before = SDL_GetTicksNS();
    for (int i = 0; i < 10; ++i) {
        RunFrame(Program);
    }
    EXPECT_GE(SDL_GetTicksNS() - before, SDL_MS_TO_NS(70));
    EXPECT_GE(Watch.Delay.Count(), 1);
}

TEST_F(RefusedVSync, IsWhatTheOffscreenDriverReports) {
    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "offscreen");
    Start();
    int actual = 0;
    const bool known = SDL_GetRenderVSync(Program.Renderer, &actual);
    EXPECT_EQ(State.VSyncActive, known && actual != 0);
}

} // namespace
