#include "tests/app/ProgramTest.hpp"

#include <vector>

namespace {

class FrameCap : public RunningTest {
protected:
    void SetUp() override {
        RunningTest::SetUp();
        ShowWithoutWaiting(ScreenMainMenu);
        State.VSyncActive = false;
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

/// With a clock that only sleeping and writing move, so that the pace of the machine decides nothing.
class FrameCapByTheClock : public FrameCap {
protected:
    FrameCapByTheClock() {
        Watch.GetTicks.Answer = [this] {
            return Now;
        };
        Watch.Delay.Answer = [this](Uint32 Milliseconds) {
            Now += Milliseconds;
            Slept.push_back(Milliseconds);
        };
    }

    /// A frame whose write of the options takes that long.
    void RunFrameThatWrites(Uint64 Milliseconds) {
        State.OptionsDirty = true;
        Written.OnOptionsWrite = [this, Milliseconds] {
            Now += Milliseconds;
        };
        RunFrame(Program);
    }

    Uint64 Now = 1000;
    std::vector<Uint32> Slept;
};

TEST_F(FrameCapByTheClock, SleepsOneToEightMillisecondsWheneverItSleeps) {
    for (const Uint64 milliseconds : {0U, 1U, 3U, 4U, 7U, 8U, 9U, 20U}) {
        RunFrameThatWrites(milliseconds);
    }
    EXPECT_EQ(Slept, (std::vector<Uint32>{8, 7, 5, 4, 1}));
}

TEST_F(FrameCapByTheClock, CountsFromTheTopOfTheFrame) {
    for (int i = 0; i < 20; ++i) {
        RunFrameThatWrites(4);
    }
    EXPECT_EQ(Slept, std::vector<Uint32>(20, 4)); // the time of the write is part of the eight milliseconds
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
