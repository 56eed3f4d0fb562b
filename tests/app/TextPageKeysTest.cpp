#include "tests/app/KeyTest.hpp"

namespace {

class HelpKeys : public KeyTest {
protected:
    HelpKeys() : KeyTest(ScreenHelp) {}
};

class CreditsKeys : public KeyTest {
protected:
    CreditsKeys() : KeyTest(ScreenCredits) {}
};

class GameOverKeys : public KeyTest {
protected:
    GameOverKeys() : KeyTest(ScreenGameOver) {}
};

/// A way back, with the sound of it.
Change Leave(SfxId Sound, enum Screen ReturnScreen) {
    return [Sound, ReturnScreen](GameState &Expected) {
        Hear(Expected, Sound);
        Expected.Screen = ReturnScreen;
    };
}

/// The way to the first row of the main menu.
Change LeaveForTheFirstRow(SfxId Sound) {
    return [Sound](GameState &Expected) {
        Hear(Expected, Sound);
        Expected.Screen = ScreenMainMenu;
        Expected.MainMenuSelection = 0;
    };
}

TEST_F(HelpKeys, EnterAndEscapeGoBackWhereItWasOpened) {
    for (const enum Screen opener : {ScreenMainMenu, ScreenPaused}) {
        State.HelpReturnScreen = opener;
        ExpectKeys(LeaveKeys, Leave(SfxId::UiBack, opener));
    }
}

TEST_F(HelpKeys, TheSpaceBarDoesNotLeave) {
    ExpectKeys({SpaceBar}, Nothing);
}

TEST_F(HelpKeys, TheMainMenuKeepsItsRow) {
    State.Screen = ScreenMainMenu;
    State.MainMenuSelection = 3;
    Press(EnterKey);
    ASSERT_EQ(State.Screen, ScreenHelp);
    Press(EscapeKey);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_EQ(State.MainMenuSelection, 3U);
    EXPECT_EQ(Heard(), (Sounds{SfxId::UiConfirm, SfxId::UiBack}));
}

TEST_F(CreditsKeys, EnterAndEscapeGoBackToTheMainMenu) {
    ExpectKeys(LeaveKeys, Leave(SfxId::UiBack, ScreenMainMenu));
}

TEST_F(CreditsKeys, TheirWayBackIsTheMainMenuWhereverHelpAndOptionsReturn) {
    State.HelpReturnScreen = ScreenPaused;
    State.OptionsReturnScreen = ScreenPaused;
    ExpectKeys(LeaveKeys, Leave(SfxId::UiBack, ScreenMainMenu));
}

TEST_F(CreditsKeys, TheSpaceBarDoesNotLeave) {
    ExpectKeys({SpaceBar}, Nothing);
}

TEST_F(CreditsKeys, TheMainMenuKeepsItsRow) {
    State.Screen = ScreenMainMenu;
    State.MainMenuSelection = 4;
    Press(SpaceBar);
    ASSERT_EQ(State.Screen, ScreenCredits);
    ASSERT_EQ(State.CreditsScroll, 0.0F);
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_EQ(State.MainMenuSelection, 4U);
}

TEST_F(GameOverKeys, ActivatingGoesToTheFirstRowOfTheMainMenu) {
    ExpectKeys(ActivateKeys, LeaveForTheFirstRow(SfxId::UiConfirm));
}

TEST_F(GameOverKeys, EscapeDoesTheSameWithItsOwnSound) {
    ExpectKeys({EscapeKey}, LeaveForTheFirstRow(SfxId::UiBack));
}

TEST_F(GameOverKeys, EscapeWorksAlthoughThePlayerIsStillMarkedAsDying) {
    State.PlayerDying = true;
    ExpectKeys({EscapeKey}, LeaveForTheFirstRow(SfxId::UiBack));
}

TEST_F(GameOverKeys, TheMenuThenOpensOnNewGame) {
    Press(SpaceBar);
    ASSERT_EQ(State.Screen, ScreenMainMenu);
    ASSERT_FALSE(State.HasRunState);
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_TRUE(State.HasRunState);
    EXPECT_EQ(State.Score, 0);
}

TEST_F(GameOverKeys, TheMenuThenHasFiveRowsAtOnce) {
    Press(EscapeKey);
    for (int i = 0; i < 5; ++i) {
        Press(DownKey);
    }
    EXPECT_EQ(State.MainMenuSelection, 0U); // once around
    Press(UpKey);
    EXPECT_EQ(State.MainMenuSelection, 4U);
    Press(EnterKey); // QUIT
    EXPECT_FALSE(State.Running);
}

} // namespace
