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
    const SdlWatch watch;
    for (int i = 0; i < 30; ++i) {
        State.OptionsDirty = true; // a write that takes longer and longer
        Written.OnOptionsWrite = [i] {
            SDL_DelayPrecise(SDL_MS_TO_NS(1) * static_cast<Uint64>(i) / 3);
        };
        RunFrame(Program);
    }
    const std::vector<SdlCall> sleeps = watch.CallsOf("SDL_Delay");
    EXPECT_FALSE(sleeps.empty());
    for (const SdlCall &sleep : sleeps) {
        EXPECT_GE(sleep.Arguments[0], 1);
        EXPECT_LE(sleep.Arguments[0], 8);
    }
}

TEST_F(FrameCap, CountsFromTheTopOfTheFrame) {
    Written.OnOptionsWrite = [] {
        SDL_DelayPrecise(SDL_MS_TO_NS(4));
    };
    const SdlWatch watch;
    for (int i = 0; i < 20; ++i) {
        State.OptionsDirty = true;
        RunFrame(Program);
    }
    const std::vector<SdlCall> sleeps = watch.CallsOf("SDL_Delay");
    EXPECT_FALSE(sleeps.empty());
    for (const SdlCall &sleep : sleeps) {
        EXPECT_LE(sleep.Arguments[0], 4); // the time of the write is part of the eight milliseconds
    }
}

TEST_F(FrameCap, DoesNotSleepAfterALongFrame) {
    State.OptionsDirty = true;
    Written.OnOptionsWrite = [] {
        SDL_DelayPrecise(SDL_MS_TO_NS(10));
    };
    const SdlWatch watch;
    RunFrame(Program);
    EXPECT_EQ(watch.Count("SDL_Delay"), 0);
}

TEST_F(FrameCap, DoesNotSleepWithActiveVSync) {
    State.VSyncActive = true;
    const SdlWatch watch;
    for (int i = 0; i < 10; ++i) {
        RunFrame(Program);
    }
    EXPECT_EQ(watch.Count("SDL_Delay"), 0);
    EXPECT_EQ(watch.Count("SDL_RenderPresent"), 10);
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
    SdlWatch watch;
    watch.Refuse("SDL_SetRenderVSync");
    Start();
    ASSERT_TRUE(State.VSync);
    ASSERT_FALSE(State.VSyncActive);
    State.Screen = ScreenMainMenu;
    const Uint64 before = SDL_GetTicksNS();
    for (int i = 0; i < 10; ++i) {
        RunFrame(Program);
    }
    EXPECT_GE(SDL_GetTicksNS() - before, SDL_MS_TO_NS(70));
    EXPECT_GE(watch.Count("SDL_Delay"), 1);
}

TEST_F(RefusedVSync, IsWhatTheOffscreenDriverReports) {
    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "offscreen");
    Start();
    int actual = 0;
    const bool known = SDL_GetRenderVSync(Program.Renderer, &actual);
    EXPECT_EQ(State.VSyncActive, known && actual != 0);
}

} // namespace
