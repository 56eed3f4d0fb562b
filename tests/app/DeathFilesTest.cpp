#include "sim/NewRun.hpp"
#include "tests/app/FilesTest.hpp"
#include "tests/app/PushEvents.hpp"
#include "tests/sim/Traffic.hpp"

namespace {

constexpr int AnimationFrames = 26; ///< 25 frames of 0.033 seconds make 0.825 of the 0.85 seconds

/// A run on its last life, with the real save state.
class DeathFiles : public FilesTest {
protected:
    void SetUp() override {
        Start();
        ForgetEvents();
        StartNewRun(State);
        State.Score = 4321;
        State.Player.Stocks = 0;
        State.Player.Hp = 20;
        ShowWithoutWaiting(ScreenPlaying);
    }

    void RunLongFrames(int Count) {
        for (int i = 0; i < Count; ++i) {
            LetTimePass(1000);
            RunFrame(Program);
        }
    }

    /// A car in the player's place, which costs 34, and the frame in which it is met. A save is due after
    /// so many seconds from the start of that frame.
    void DieWithASaveDueIn(float Seconds) {
        State.SaveRequested = true;
        State.SaveDelay = Seconds;
        State.Enemies = {EnemyInLane(State.PlayerLane, State.Player.Y)};
        RunLongFrames(1);
        ASSERT_TRUE(State.PlayerDying);
        ASSERT_EQ(State.Player.Hp, 0);
        ASSERT_FALSE(Exists("SaveState.bin"));
    }

    /// How many frames of the animation run until the file is there.
    int FramesToTheFile() {
        int frames = 0;
        while (!Exists("SaveState.bin") && frames < 100) {
            RunLongFrames(1);
            ++frames;
        }
        return frames;
    }

    static void ExpectFileWithARunWithoutHealth() {
        GameState read;
        ASSERT_TRUE(LoadSaveState(read));
        EXPECT_TRUE(read.HasRunState);
        EXPECT_EQ(read.Player.Hp, 0);
        EXPECT_EQ(read.Player.Stocks, 0);
        EXPECT_EQ(read.Score, 4321);
        EXPECT_EQ(read.HighScore, 4321);
        EXPECT_FALSE(read.PlayerDying);
    }

    static void ExpectFileWithoutARun() {
        GameState read;
        ASSERT_TRUE(LoadSaveState(read));
        EXPECT_FALSE(read.HasRunState);
        EXPECT_EQ(read.HighScore, 4321);
    }

    /// Runs the rest of the animation. Its last frame replaces the file.
    void ExpectTheEndAfter(int Frames) {
        RunLongFrames(Frames - 1);
        ASSERT_TRUE(State.PlayerDying);
        ExpectFileWithARunWithoutHealth();
        RunLongFrames(1);
        EXPECT_EQ(State.Screen, ScreenGameOver);
        ExpectFileWithoutARun();
        EXPECT_FALSE(State.SaveRequested);
    }
};

TEST_F(DeathFiles, ASaveThatIsDueInTheAnimationHoldsTheRunUntilItsEndReplacesItAtOnce) {
    DieWithASaveDueIn(0.05F);
    EXPECT_EQ(FramesToTheFile(), 1);
    EXPECT_TRUE(State.PlayerDying);
    ExpectFileWithARunWithoutHealth();
    ExpectTheEndAfter(AnimationFrames - 1);
}

TEST_F(DeathFiles, ASaveThatTheBlowItselfMarksIsDueJustBeforeTheEnd) {
    DieWithASaveDueIn(0.0F); // which the step's 0.8 seconds overtake
    EXPECT_EQ(FramesToTheFile(), 24);
    EXPECT_TRUE(State.PlayerDying);
    ExpectFileWithARunWithoutHealth();
    ExpectTheEndAfter(AnimationFrames - 24);
}

TEST_F(DeathFiles, ARunOfAProgramThatEndsInTheAnimationGoesOnWithoutHealthUntilTheNextHit) {
    DieWithASaveDueIn(0.05F);
    RunLongFrames(5);
    Stop();
    ExpectFileWithARunWithoutHealth();
    Start();
    ForgetEvents();
    ShowWithoutWaiting(ScreenMainMenu);
    ASSERT_TRUE(State.HasRunState);
    const float time = State.GameTime;
    PushKey(SDL_SCANCODE_RETURN); // CONTINUE GAME
    RunLongFrames(10);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_FALSE(State.PlayerDying);
    EXPECT_EQ(State.Player.Hp, 0);
    EXPECT_FLOAT_EQ(State.GameTime, time + 0.33F);
    State.InvulnerabilityTimer = 0.0F;
    State.Enemies = {EnemyInLane(State.PlayerLane, State.Player.Y)};
    RunLongFrames(1);
    EXPECT_TRUE(State.PlayerDying);
}

} // namespace
