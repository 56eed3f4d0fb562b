#include "tests/app/ProgramTest.hpp"
#include "tests/support/Screens.hpp"

namespace {

using Lines = std::vector<std::string>;

class SaveFrames : public PlayingTest {
protected:
    /// Runs one frame of exactly 0.033 seconds.
    void RunLongFrame() {
        LetTimePass(1000);
        RunFrame(Program);
    }
};

TEST_F(SaveFrames, ANewRunsZeroMarkIsOvertakenInTheSameFrame) {
    ASSERT_TRUE(State.SaveRequested);
    ASSERT_EQ(State.SaveDelay, 0.0F);
    RunFrame(Program); // the first one takes no time
    EXPECT_EQ(Written.SaveWrites, 0);
    EXPECT_EQ(State.SaveDelay, 0.8F);
}

TEST_F(SaveFrames, OnAMenuAZeroMarkIsWrittenInTheSameFrame) {
    ShowWithoutWaiting(ScreenMainMenu);
    RunFrame(Program);
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_FALSE(State.SaveRequested);
}

TEST_F(SaveFrames, AFailureInPlayIsTriedAgainAfter800Milliseconds) {
    State.SaveDelay = 0.01F;
    Written.SaveFailures = 1;
    const LogCatcher log;
    RunLongFrame();
    EXPECT_EQ(log.Lines, Lines{"Failed to write save state: SaveState.bin"});
    EXPECT_EQ(State.SaveDelay, 1.0F);
    RunLongFrame();
    EXPECT_FLOAT_EQ(State.SaveDelay, 0.8F - 0.033F);
    for (int i = 0; i < 23; ++i) {
        RunLongFrame();
    }
    EXPECT_EQ(Written.SaveWrites, 1);
    RunLongFrame();
    EXPECT_EQ(Written.SaveWrites, 2);
    EXPECT_EQ(log.Lines.size(), 1U);
}

TEST_F(SaveFrames, AFailureOnAMenuIsTriedAgainAfterASecond) {
    ShowWithoutWaiting(ScreenMainMenu);
    Written.SaveFailures = 1;
    RunLongFrame();
    ASSERT_EQ(Written.SaveWrites, 1);
    for (int i = 0; i < 30; ++i) {
        RunLongFrame(); // 0.99 seconds
    }
    EXPECT_EQ(Written.SaveWrites, 1);
    RunLongFrame();
    EXPECT_EQ(Written.SaveWrites, 2);
}

TEST_F(SaveFrames, SavingGoesOnOnEveryScreen) {
    for (const enum Screen screen : AllScreens) {
        ShowWithoutWaiting(screen);
        State.SaveRequested = true;
        State.SaveDelay = 0.05F;
        const int before = Written.SaveWrites;
        RunLongFrame();
        EXPECT_EQ(Written.SaveWrites, before) << screen;
        RunLongFrame();
        EXPECT_EQ(Written.SaveWrites, before + 1) << screen;
    }
}

TEST_F(SaveFrames, AWriteArmedInPlayCompletesUnderThePauseScreen) {
    RunLongFrame();
    State.Screen = ScreenPaused;
    for (int i = 0; i < 24; ++i) {
        RunLongFrame();
    }
    EXPECT_EQ(Written.SaveWrites, 1);
}

TEST_F(SaveFrames, OptionsAreWrittenBeforeTheStepAndTheSaveBetweenStepAndPicture) {
    State.OptionsDirty = true;
    State.SaveDelay = 0.01F;
    Lines order;
    const auto note = [&order, this](const char *What) {
        order.emplace_back(std::string(What) + (State.GameTime > 0.0F ? " after the step" : " before it"));
    };
    Written.OnOptionsWrite = [note] {
        note("options");
    };
    Written.OnSaveWrite = [note] {
        note("save");
    };
    Watch.RenderPresent.Before = [note](SDL_Renderer *) {
        note("picture");
    };
    RunLongFrame();
    EXPECT_EQ(order, (Lines{"options before it", "save after the step", "picture after the step"}));
}

} // namespace
