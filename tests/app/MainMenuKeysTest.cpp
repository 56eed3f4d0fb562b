#include "sim/NewRun.hpp"
#include "tests/app/KeyTest.hpp"

namespace {

class MainMenuKeys : public KeyTest {
protected:
    MainMenuKeys() : KeyTest(ScreenMainMenu) {}

    void EndTheRun() {
        State.HasRunState = false;
    }

    /// Expects each activating key to do Effect in a row, with the sound that confirms before it.
    void ExpectActivateInRow(std::uint32_t Row, const Change &Effect) {
        State.MainMenuSelection = Row;
        ExpectKeys(ActivateKeys, [&Effect](GameState &Expected) {
            Hear(Expected, SfxId::UiConfirm);
            Effect(Expected);
        });
    }
};

const Change ContinueGame = [](GameState &Expected) {
    Expected.Screen = ScreenPlaying;
    Expected.PauseSelection = 0;
};

const Change NewGame = [](GameState &Expected) {
    StartNewRun(Expected);
};

const Change Options = [](GameState &Expected) {
    Expected.OptionsReturnScreen = ScreenMainMenu;
    Expected.Screen = ScreenOptions;
    Expected.OptionsPage = OptionsPageMain;
    Expected.CaptureActive = false;
    Expected.CaptureKind = CaptureKindNone;
    Expected.PendingControlsValid = false;
    Expected.GraphicsSnapshotValid = false;
    Expected.PendingAudioValid = false;
};

const Change Help = [](GameState &Expected) {
    Expected.HelpReturnScreen = ScreenMainMenu;
    Expected.Screen = ScreenHelp;
};

const Change Credits = [](GameState &Expected) {
    Expected.CreditsScroll = 0.0F;
    Expected.Screen = ScreenCredits;
};

const Change Quit = [](GameState &Expected) {
    Expected.Running = false;
};

TEST_F(MainMenuKeys, UpGoesThroughTheSixRowsWithARunAndWraps) {
    ExpectRows(&GameState::MainMenuSelection, UpKeys, {5, 0, 1, 2, 3, 4});
}

TEST_F(MainMenuKeys, DownGoesThroughTheSixRowsWithARunAndWraps) {
    ExpectRows(&GameState::MainMenuSelection, DownKeys, {1, 2, 3, 4, 5, 0});
}

TEST_F(MainMenuKeys, UpGoesThroughTheFiveRowsWithoutARunAndWraps) {
    EndTheRun();
    ExpectRows(&GameState::MainMenuSelection, UpKeys, {4, 0, 1, 2, 3});
}

TEST_F(MainMenuKeys, DownGoesThroughTheFiveRowsWithoutARunAndWraps) {
    EndTheRun();
    ExpectRows(&GameState::MainMenuSelection, DownKeys, {1, 2, 3, 4, 0});
}

TEST_F(MainMenuKeys, ContinueGameIsTheFirstRowWithARun) {
    ExpectActivateInRow(0, ContinueGame);
}

TEST_F(MainMenuKeys, NewGameIsTheSecondRowWithARunAndTheFirstWithout) {
    ExpectActivateInRow(1, NewGame);
    EndTheRun();
    ExpectActivateInRow(0, NewGame);
}

TEST_F(MainMenuKeys, OptionsIsTheThirdRowWithARunAndTheSecondWithout) {
    ExpectActivateInRow(2, Options);
    EndTheRun();
    ExpectActivateInRow(1, Options);
}

TEST_F(MainMenuKeys, HelpIsTheFourthRowWithARunAndTheThirdWithout) {
    ExpectActivateInRow(3, Help);
    EndTheRun();
    ExpectActivateInRow(2, Help);
}

TEST_F(MainMenuKeys, CreditsIsTheFifthRowWithARunAndTheFourthWithout) {
    ExpectActivateInRow(4, Credits);
    EndTheRun();
    ExpectActivateInRow(3, Credits);
}

TEST_F(MainMenuKeys, QuitIsTheSixthRowWithARunAndTheFifthWithout) {
    ExpectActivateInRow(5, Quit);
    EndTheRun();
    ExpectActivateInRow(4, Quit);
}

TEST_F(MainMenuKeys, EscapeQuitsAtOnceFromEveryRow) {
    for (std::uint32_t row = 0; row < 6; ++row) {
        State.MainMenuSelection = row;
        ExpectKeys({EscapeKey}, [](GameState &Expected) {
            Hear(Expected, SfxId::UiBack);
            Expected.Running = false;
        });
    }
}

TEST_F(MainMenuKeys, ContinuingGoesOnExactlyWhereTheRunStood) {
    State.MainMenuSelection = 0;
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(State.PauseSelection, 0);
    EXPECT_EQ(State.Score, 1234);
    EXPECT_EQ(State.GameTime, 61.5F);
    EXPECT_EQ(State.Player.Hp, 40);
    EXPECT_EQ(State.Enemies.size(), 1U);
    EXPECT_FALSE(State.SaveRequested); // continuing arms nothing
}

TEST_F(MainMenuKeys, ARowPastTheLastBecomesTheFirstBeforeTheKeyActs) {
    for (const std::uint32_t row : {6U, 7U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        State.MainMenuSelection = row;
        Press(DownKey);
        EXPECT_EQ(State.MainMenuSelection, 1U) << row;
        State.MainMenuSelection = row;
        Press(UpKey);
        EXPECT_EQ(State.MainMenuSelection, 5U) << row;
    }
    State.MainMenuSelection = 6;
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(State.Score, 1234); // the first row: the run is continued
    EXPECT_EQ(State.MainMenuSelection, 0U);
}

TEST_F(MainMenuKeys, WithoutARunTheSixthRowIsPastTheLast) {
    EndTheRun();
    State.MainMenuSelection = 5;
    Press(DownKey);
    EXPECT_EQ(State.MainMenuSelection, 1U);
    State.MainMenuSelection = 5;
    Press(UpKey);
    EXPECT_EQ(State.MainMenuSelection, 4U);
    State.MainMenuSelection = 5;
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(State.Score, 0); // the first row: a new game
}

TEST_F(MainMenuKeys, AnyKeyPutsARowPastTheLastRightWithoutASound) {
    EndTheRun();
    State.MainMenuSelection = 5;
    ExpectKeys({5, RightKey, LeftKey, 511}, [](GameState &Expected) {
        Expected.MainMenuSelection = 0;
    });
}

TEST_F(MainMenuKeys, AnEscapeFromARowPastTheLastQuitsAsWell) {
    State.MainMenuSelection = 9;
    ExpectKeys({EscapeKey}, [](GameState &Expected) {
        Hear(Expected, SfxId::UiBack);
        Expected.MainMenuSelection = 0;
        Expected.Running = false;
    });
}

TEST_F(MainMenuKeys, WhatIsNoKeyDoesNotEvenPutTheRowRight) {
    State.MainMenuSelection = 6;
    ExpectKeys({0, -1, 512}, Nothing);
}

TEST_F(MainMenuKeys, TheRowIsNotRemappedWhenARunComesOrGoes) {
    State.MainMenuSelection = 2; // OPTIONS
    EndTheRun();
    Press(EnterKey); // now HELP
    EXPECT_EQ(State.Screen, ScreenHelp);
    EXPECT_EQ(State.MainMenuSelection, 2U);
    State.HasRunState = true;
    State.Screen = ScreenMainMenu;
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenOptions);
}

TEST_F(MainMenuKeys, EachKeySoundsOnceInTheOrderOfThePresses) {
    State.MainMenuSelection = 2;
    for (const std::int32_t key : {DownKey, WKey, SKey, 5, UpKey, KeypadEnterKey}) {
        Press(key);
    }
    EXPECT_EQ(State.Screen, ScreenOptions);
    EXPECT_EQ(
        Heard(), (Sounds{SfxId::UiMove, SfxId::UiMove, SfxId::UiMove, SfxId::UiMove, SfxId::UiConfirm}));
}

} // namespace
