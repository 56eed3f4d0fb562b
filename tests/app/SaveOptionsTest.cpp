#include "tests/app/ProgramTest.hpp"
#include "tests/support/Screens.hpp"

namespace {

using Lines = std::vector<std::string>;

const std::string FailureLine = "Failed to write options config: Config.ini";

class SavingOptions : public ::testing::Test {
protected:
    void Save() {
        SaveOptionsIfDirty(State, Writers.SaveOptions);
    }

    GameState State;
    SaveWriters Writers = CountingWriters();
};

TEST_F(SavingOptions, WritesOnlyWhatIsMarked) {
    Save();
    EXPECT_EQ(Written.OptionsWrites, 0);
    State.OptionsDirty = true;
    Save();
    EXPECT_EQ(Written.OptionsWrites, 1);
    EXPECT_EQ(Written.SaveWrites, 0);
}

TEST_F(SavingOptions, ClearsTheMarkOnSuccess) {
    State.OptionsDirty = true;
    const LogCatcher log;
    Save();
    EXPECT_FALSE(State.OptionsDirty);
    Save();
    EXPECT_EQ(Written.OptionsWrites, 1);
    EXPECT_EQ(log.Lines, Lines{});
}

TEST_F(SavingOptions, LogsEveryFailureAndKeepsTheMark) {
    State.OptionsDirty = true;
    Written.OptionsFailures = 3;
    const LogCatcher log;
    for (int i = 0; i < 3; ++i) {
        Save();
        EXPECT_TRUE(State.OptionsDirty);
    }
    Save();
    EXPECT_FALSE(State.OptionsDirty);
    EXPECT_EQ(Written.OptionsWrites, 4);
    EXPECT_EQ(log.Lines, (Lines{FailureLine, FailureLine, FailureLine}));
}

class OptionsInFrames : public PlayingTest {};

TEST_F(OptionsInFrames, AFailingWriteIsTriedAndLoggedInEveryFrameAndTheGameGoesOn) {
    State.OptionsDirty = true;
    Written.OptionsFailures = 5;
    const LogCatcher log;
    for (int i = 0; i < 5; ++i) {
        LetTimePass(1000);
        RunFrame(Program);
    }
    EXPECT_EQ(log.Lines, Lines(5, FailureLine));
    EXPECT_FLOAT_EQ(State.GameTime, 5 * 0.033F);
    RunFrame(Program);
    EXPECT_FALSE(State.OptionsDirty);
    RunFrame(Program);
    EXPECT_EQ(Written.OptionsWrites, 6);
    EXPECT_EQ(log.Lines.size(), 5U);
}

TEST_F(OptionsInFrames, AreWrittenOnEveryScreen) {
    for (const enum Screen screen : AllScreens) {
        ShowWithoutWaiting(screen);
        State.OptionsDirty = true;
        RunFrame(Program);
        EXPECT_FALSE(State.OptionsDirty) << screen;
    }
    EXPECT_EQ(Written.OptionsWrites, 7);
}

} // namespace
