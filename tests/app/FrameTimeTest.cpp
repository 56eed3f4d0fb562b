#include "gfx/Credits.hpp"
#include "tests/app/ProgramTest.hpp"

namespace {

class FrameTime : public RunningTest {
protected:
    /// Runs one frame and gives its step in seconds, read from the credits' way.
    float StepOfOneFrame() {
        State.CreditsScroll = 0.0F;
        RunFrame(Program);
        return State.CreditsScroll / 42.0F;
    }

    void SetUp() override {
        RunningTest::SetUp();
        ShowWithoutWaiting(ScreenCredits);
    }
};

TEST(DeltaSeconds, IsTheTimeBetweenTwoTicks) {
    EXPECT_FLOAT_EQ(DeltaSecondsBetween(1000, 1000), 0.0F);
    EXPECT_FLOAT_EQ(DeltaSecondsBetween(1000, 1001), 0.001F);
    EXPECT_FLOAT_EQ(DeltaSecondsBetween(1000, 1016), 0.016F);
    EXPECT_FLOAT_EQ(DeltaSecondsBetween(1000, 1033), 0.033F);
}

TEST(DeltaSeconds, IsNeverLongerThanTheLongestStep) {
    EXPECT_EQ(DeltaSecondsBetween(0, 34), 0.033F);
    EXPECT_EQ(DeltaSecondsBetween(0, 1000), 0.033F);
    EXPECT_EQ(DeltaSecondsBetween(0, 10ULL * 60 * 1000), 0.033F);
    EXPECT_EQ(DeltaSecondsBetween(0, 1000ULL * 24 * 3600 * 1000), 0.033F);
}

TEST(DeltaSeconds, HasItsConstants) {
    EXPECT_EQ(MaxDeltaSeconds, 0.033F);
    EXPECT_EQ(MinFrameMilliseconds, 8U);
    EXPECT_EQ(CreditsScrollSpeed, 42.0F);
    EXPECT_EQ(CreditsScrollEnd, 1090.0F);
}

TEST_F(FrameTime, TheFirstFrameAfterStartUpHasNone) {
    SDL_Delay(20);
    ASSERT_TRUE(State.ResetFrameClock);
    EXPECT_EQ(StepOfOneFrame(), 0.0F);
}

TEST_F(FrameTime, ARestartedClockGivesNoneHoweverLongThePause) {
    LetTimePass(5ULL * 60 * 1000);
    State.ResetFrameClock = true;
    EXPECT_EQ(StepOfOneFrame(), 0.0F);
    EXPECT_FALSE(State.ResetFrameClock);
}

TEST_F(FrameTime, TheClockGoesOnAfterARestart) {
    State.ResetFrameClock = true;
    RunFrame(Program);
    LetTimePass(1000);
    EXPECT_FLOAT_EQ(StepOfOneFrame(), 0.033F);
}

TEST_F(FrameTime, AProcessThatSleptForMinutesStepsNoFurtherThanTheLongestStep) {
    LetTimePass(5ULL * 60 * 1000);
    EXPECT_FLOAT_EQ(StepOfOneFrame(), 0.033F);
}

TEST_F(FrameTime, IsTakenFromOneFramesSampleToTheNext) {
    RunFrame(Program);
    for (int i = 0; i < 5; ++i) {
        const Uint64 last = Program.LastFrameTicks;
        SDL_Delay(3);
        const float step = StepOfOneFrame();
        const Uint64 passed = Program.LastFrameTicks - last;
        ASSERT_GE(passed, 2U);
        EXPECT_FLOAT_EQ(step, std::min(static_cast<float>(passed) / 1000.0F, 0.033F));
    }
}

TEST_F(FrameTime, IsSampledAfterTheOptionsAreWritten) {
    State.ResetFrameClock = false;
    State.OptionsDirty = true;
    Uint64 written = 0;
    Written.OnOptionsWrite = [&written] {
        SDL_Delay(12);
        written = SDL_GetTicks();
    };
    RunFrame(Program);
    EXPECT_GE(Program.LastFrameTicks, written);
}

TEST_F(FrameTime, IsSampledBeforeTheSaveIsWritten) {
    State.SaveRequested = true;
    State.SaveDelay = 0.0F;
    Uint64 reached = 0;
    Written.OnSaveWrite = [&reached] {
        reached = SDL_GetTicks();
        SDL_Delay(12);
    };
    RunFrame(Program);
    ASSERT_EQ(Written.SaveWrites, 1);
    EXPECT_LE(Program.LastFrameTicks, reached);
}

} // namespace
