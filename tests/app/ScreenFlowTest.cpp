#include "tests/app/ProgramTest.hpp"
#include "tests/app/PushEvents.hpp"

namespace {

/// The way through the screens, by keys in whole frames. It begins on the main menu without a run.
class ScreenFlow : public RunningTest {
protected:
    void SetUp() override {
        RunningTest::SetUp();
        ForgetEvents();
        ShowWithoutWaiting(ScreenMainMenu);
    }

    /// One frame of 0.033 seconds with these presses in it.
    void Frame(std::initializer_list<SDL_Scancode> Keys = {}) {
        PushKeys(Keys);
        LetTimePass(1000);
        RunFrame(Program);
    }

    void Frames(int Count) {
        for (int i = 0; i < Count; ++i) {
            Frame();
        }
    }
};

TEST_F(ScreenFlow, ANewGameIsSimulatedInTheFrameOfItsKey) {
    Frame({SDL_SCANCODE_RETURN});
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_TRUE(State.HasRunState);
    EXPECT_FLOAT_EQ(State.GameTime, 0.033F);
}

TEST_F(ScreenFlow, APauseStopsTheRunInTheFrameOfItsKey) {
    Frame({SDL_SCANCODE_RETURN});
    Frame({SDL_SCANCODE_ESCAPE});
    EXPECT_EQ(State.Screen, ScreenPaused);
    EXPECT_FLOAT_EQ(State.GameTime, 0.033F);
    Frame({SDL_SCANCODE_ESCAPE});
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_FLOAT_EQ(State.GameTime, 0.066F);
}

TEST_F(ScreenFlow, TheCreditsScrollInTheFrameOfTheirKey) {
    State.MainMenuSelection = 3;
    Frame({SDL_SCANCODE_RETURN});
    EXPECT_EQ(State.Screen, ScreenCredits);
    EXPECT_FLOAT_EQ(State.CreditsScroll, 1.386F);
}

TEST_F(ScreenFlow, CreditsThatEndByThemselvesKeepTheRowOfTheMainMenu) {
    State.MainMenuSelection = 3;
    Frame({SDL_SCANCODE_RETURN});
    State.CreditsScroll = 1090.0F;
    Frame();
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_EQ(State.MainMenuSelection, 3U);
    EXPECT_EQ(State.CreditsScroll, 0.0F);
}

TEST_F(ScreenFlow, CreditsBeginAnewOnEveryVisit) {
    State.MainMenuSelection = 3;
    Frame({SDL_SCANCODE_RETURN});
    Frames(3);
    Frame({SDL_SCANCODE_ESCAPE, SDL_SCANCODE_RETURN});
    EXPECT_EQ(State.Screen, ScreenCredits);
    EXPECT_FLOAT_EQ(State.CreditsScroll, 1.386F);
}

TEST_F(ScreenFlow, SeveralKeysOfOneFrameActInTheirOrder) {
    Frame({SDL_SCANCODE_S, SDL_SCANCODE_DOWN, SDL_SCANCODE_RETURN, SDL_SCANCODE_ESCAPE, SDL_SCANCODE_W,
        SDL_SCANCODE_SPACE});
    EXPECT_EQ(State.Screen, ScreenOptions); // down to HELP, in and out of it, up to OPTIONS
    EXPECT_EQ(State.MainMenuSelection, 1U);
}

TEST_F(ScreenFlow, ANewRunReachesTheFile800MillisecondsLater) {
    Frame({SDL_SCANCODE_RETURN});
    EXPECT_EQ(State.SaveDelay, 0.8F - 0.033F);
    Frames(23);
    EXPECT_EQ(Written.SaveWrites, 0);
    EXPECT_GT(State.SaveDelay, 0.0F); // so a quit here writes nothing
    Frame();
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_FALSE(State.SaveRequested);
}

TEST_F(ScreenFlow, PausesAndMenusArmNoSave) {
    Frame({SDL_SCANCODE_RETURN});
    Frame({SDL_SCANCODE_ESCAPE});
    State.SaveRequested = false;
    Frame({SDL_SCANCODE_DOWN, SDL_SCANCODE_RETURN, SDL_SCANCODE_ESCAPE}); // options
    Frame({SDL_SCANCODE_DOWN, SDL_SCANCODE_RETURN, SDL_SCANCODE_ESCAPE}); // help
    Frame({SDL_SCANCODE_DOWN, SDL_SCANCODE_RETURN});
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_FALSE(State.SaveRequested);
    Frames(40);
    EXPECT_EQ(Written.SaveWrites, 0);
}

TEST_F(ScreenFlow, AnArmedWriteCompletesOnTheMainMenu) {
    Frame({SDL_SCANCODE_RETURN});
    Frame({SDL_SCANCODE_ESCAPE, SDL_SCANCODE_UP, SDL_SCANCODE_RETURN});
    ASSERT_EQ(State.Screen, ScreenMainMenu);
    Frames(22);
    EXPECT_EQ(Written.SaveWrites, 0);
    Frame();
    EXPECT_EQ(Written.SaveWrites, 1);
}

TEST_F(ScreenFlow, ALostRunIsWrittenInTheFrameOfItsEndAndTheMenuThenOffersANewGame) {
    Frame({SDL_SCANCODE_RETURN});
    State.Score = 4321;
    State.PlayerDying = true;
    State.DeathTimer = 0.05F;
    Frame({SDL_SCANCODE_ESCAPE, SDL_SCANCODE_SPACE}); // dead keys
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(Written.SaveWrites, 0);
    Frame();
    EXPECT_EQ(State.Screen, ScreenGameOver);
    EXPECT_FALSE(State.HasRunState);
    EXPECT_EQ(State.HighScore, 4321);
    EXPECT_EQ(Written.SaveWrites, 1);
    State.MainMenuSelection = 4;
    Frame({SDL_SCANCODE_ESCAPE});
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_EQ(State.MainMenuSelection, 0U);
    Frame({SDL_SCANCODE_RETURN});
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(State.Score, 0);
    EXPECT_EQ(State.HighScore, 4321);
}

TEST_F(ScreenFlow, ARunLeftThroughThePauseMenuGoesOnWhereItStood) {
    Frame({SDL_SCANCODE_RETURN});
    Frames(10);
    const float time = State.GameTime;
    Frame({SDL_SCANCODE_ESCAPE, SDL_SCANCODE_UP, SDL_SCANCODE_RETURN});
    ASSERT_EQ(State.Screen, ScreenMainMenu);
    Frames(10);
    EXPECT_EQ(State.GameTime, time);
    Frame({SDL_SCANCODE_RETURN}); // CONTINUE GAME
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_FLOAT_EQ(State.GameTime, time + 0.033F);
}

} // namespace
