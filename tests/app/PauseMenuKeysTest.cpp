#include "tests/app/KeyTest.hpp"

namespace {

class PauseMenuKeys : public KeyTest {
protected:
    PauseMenuKeys() : KeyTest(ScreenPaused) {}

    void ExpectActivateInRow(std::int32_t Row, const Change &Effect) {
        State.PauseSelection = Row;
        ExpectKeys(ActivateKeys, [&Effect](GameState &Expected) {
            Hear(Expected, SfxId::UiConfirm);
            Effect(Expected);
        });
    }
};

TEST_F(PauseMenuKeys, UpGoesThroughTheFourRowsAndWraps) {
    ExpectRows(&GameState::PauseSelection, UpKeys, {3, 0, 1, 2});
}

TEST_F(PauseMenuKeys, DownGoesThroughTheFourRowsAndWraps) {
    ExpectRows(&GameState::PauseSelection, DownKeys, {1, 2, 3, 0});
}

TEST_F(PauseMenuKeys, TheFirstRowResumes) {
    ExpectActivateInRow(0, [](GameState &Expected) {
        Expected.Screen = ScreenPlaying;
    });
}

TEST_F(PauseMenuKeys, TheSecondRowEntersTheOptionsAndComesBackHere) {
    ExpectActivateInRow(1, [](GameState &Expected) {
        Expected.OptionsReturnScreen = ScreenPaused;
        Expected.Screen = ScreenOptions;
        Expected.OptionsPage = OptionsPageMain;
        Expected.CaptureActive = false;
        Expected.CaptureKind = CaptureKindNone;
        Expected.PendingControlsValid = false;
        Expected.GraphicsSnapshotValid = false;
        Expected.PendingAudioValid = false;
    });
}

TEST_F(PauseMenuKeys, TheThirdRowShowsHelpAndComesBackHere) {
    ExpectActivateInRow(2, [](GameState &Expected) {
        Expected.HelpReturnScreen = ScreenPaused;
        Expected.Screen = ScreenHelp;
    });
}

TEST_F(PauseMenuKeys, TheFourthRowLeavesForTheMainMenuAndKeepsTheRun) {
    ExpectActivateInRow(3, [](GameState &Expected) {
        Expected.Screen = ScreenMainMenu;
        Expected.MainMenuSelection = 0;
    });
}

TEST_F(PauseMenuKeys, EscapeGoesOnFromEveryRow) {
    for (std::int32_t row = 0; row < 4; ++row) {
        State.PauseSelection = row;
        ExpectKeys({EscapeKey}, [](GameState &Expected) {
            Hear(Expected, SfxId::UiBack);
            Expected.Screen = ScreenPlaying;
        });
    }
}

TEST_F(PauseMenuKeys, AfterMainMenuTheFirstRowIsSelectedAndContinuesTheRun) {
    State.PauseSelection = 3;
    Press(EnterKey);
    ASSERT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_TRUE(State.HasRunState);
    EXPECT_EQ(State.MainMenuSelection, 0U);
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(State.Score, 1234);
    EXPECT_EQ(State.GameTime, 61.5F);
    EXPECT_EQ(Heard(), (Sounds{SfxId::UiConfirm, SfxId::UiConfirm}));
}

TEST_F(PauseMenuKeys, ComingBackFromHelpAndOptionsKeepsTheRow) {
    State.PauseSelection = 1;
    Press(EnterKey);
    ASSERT_EQ(State.Screen, ScreenOptions);
    Press(EscapeKey);
    EXPECT_EQ(State.Screen, ScreenPaused);
    EXPECT_EQ(State.PauseSelection, 1);
    Press(DownKey);
    Press(EnterKey);
    ASSERT_EQ(State.Screen, ScreenHelp);
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenPaused);
    EXPECT_EQ(State.PauseSelection, 2);
}

TEST_F(PauseMenuKeys, NothingHereArmsASave) {
    for (const std::int32_t key : {DownKey, UpKey, EnterKey, EscapeKey}) {
        State.Screen = ScreenPaused;
        State.PauseSelection = 3;
        Press(key);
        EXPECT_FALSE(State.SaveRequested) << key;
    }
}

} // namespace
