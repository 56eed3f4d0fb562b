#include "state/SaveRequest.hpp"
#include "tests/app/ProgramTest.hpp"

namespace {

using Lines = std::vector<std::string>;

const std::string FailureLine = "Failed to write save state: SaveState.bin";

constexpr float Step = 0.03125F; ///< a frame's seconds, 32 to the second without any rounding

class SaveTicks : public ::testing::Test {
protected:
    void Tick(float DeltaSeconds) {
        SaveTick(State, DeltaSeconds, Writers.WriteSaveState);
    }

    /// How many ticks it takes until the next attempt to write; Mark runs before each of them.
    template <typename Action> int TicksToNextWrite(Action Mark) {
        const int writes = Written.SaveWrites;
        int ticks = 0;
        while (Written.SaveWrites == writes && ticks < 1000) {
            Mark();
            Tick(Step);
            ++ticks;
        }
        return ticks;
    }

    GameState State;
    SaveWriters Writers = CountingWriters();
};

TEST_F(SaveTicks, WithoutAMarkDoNothing) {
    State.SaveDelay = 0.5F;
    Tick(1.0F);
    EXPECT_EQ(Written.SaveWrites, 0);
    EXPECT_EQ(State.SaveDelay, 0.5F);
}

TEST_F(SaveTicks, WriteAtOnceWhatIsDue) {
    RequestSave(State, 0.0F);
    Tick(0.0F);
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_EQ(Written.OptionsWrites, 0);
    EXPECT_FALSE(State.SaveRequested);
    EXPECT_EQ(State.SaveDelay, 0.0F);
}

TEST_F(SaveTicks, RunTheDelayDownAndWriteAtItsEnd) {
    RequestSave(State, 0.5F);
    Tick(0.25F);
    EXPECT_EQ(Written.SaveWrites, 0);
    EXPECT_EQ(State.SaveDelay, 0.25F);
    EXPECT_TRUE(State.SaveRequested);
    Tick(0.25F);
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_FALSE(State.SaveRequested);
}

TEST_F(SaveTicks, DropTheOvershoot) {
    RequestSave(State, 0.5F);
    Tick(7.0F);
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_EQ(State.SaveDelay, 0.0F);
}

TEST_F(SaveTicks, TakeANegativeDeltaAsNone) {
    RequestSave(State, 0.5F);
    Tick(-3.0F);
    EXPECT_EQ(State.SaveDelay, 0.5F);
    EXPECT_EQ(Written.SaveWrites, 0);
    RequestSave(State, 0.0F);
    Tick(-3.0F);
    EXPECT_EQ(Written.SaveWrites, 1);
}

TEST_F(SaveTicks, AfterAFailureWaitASecond) {
    RequestSave(State, 0.0F);
    Written.SaveFailures = 1;
    const LogCatcher log;
    Tick(0.0F);
    EXPECT_EQ(log.Lines, Lines{FailureLine});
    EXPECT_TRUE(State.SaveRequested);
    EXPECT_EQ(State.SaveDelay, 1.0F);
    Tick(0.0F);
    EXPECT_EQ(Written.SaveWrites, 1); // not again at once
}

TEST_F(SaveTicks, OnAMenuRetryOnceASecond) {
    RequestSave(State, 0.0F);
    Written.SaveFailures = 3;
    const LogCatcher log;
    Tick(Step);
    const auto noMark = [] {};
    EXPECT_EQ(TicksToNextWrite(noMark), 32);
    EXPECT_EQ(TicksToNextWrite(noMark), 32);
    EXPECT_EQ(log.Lines, Lines(3, FailureLine));
    EXPECT_EQ(TicksToNextWrite(noMark), 32);
    EXPECT_FALSE(State.SaveRequested);
    EXPECT_EQ(log.Lines.size(), 3U);
}

TEST_F(SaveTicks, InPlayRetryAfterTheStepsShorterDelay) {
    RequestSave(State, 0.0F);
    Written.SaveFailures = 2;
    Tick(Step);
    const auto stepsMark = [this] {
        RequestSave(State, 0.8F);
    };
    EXPECT_EQ(TicksToNextWrite(stepsMark), 26); // 25 ticks leave 0.01875 of the 0.8 seconds
    EXPECT_EQ(TicksToNextWrite(stepsMark), 26);
    EXPECT_FALSE(State.SaveRequested);
}

TEST_F(SaveTicks, AStreamOfMarksGivesOneWriteAboutEvery800Milliseconds) {
    for (int i = 0; i < 260; ++i) {
        RequestSave(State, 0.8F);
        Tick(Step);
    }
    EXPECT_EQ(Written.SaveWrites, 10);
}

} // namespace
