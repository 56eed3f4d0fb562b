#include "app/OptionsKeys.hpp"

#include "app/KeyHandler.hpp"
#include "tests/app/KeyTest.hpp"

namespace {

constexpr std::int32_t BackRow = 3;

class OptionsKeys : public KeyTest {
protected:
    OptionsKeys() : KeyTest(ScreenOptions) {
        EnterOptions(State);
        State.OptionsReturnScreen = ScreenPaused;
    }

    void ExpectRows(const Scancodes &Keys, const std::vector<std::int32_t> &Next) {
        for (std::int32_t row = 0; row < 4; ++row) {
            State.OptionsMainSelection = row;
            ExpectKeys(Keys, [&Next, row](GameState &Expected) {
                Hear(Expected, SfxId::UiMove);
                Expected.OptionsMainSelection = Next.at(static_cast<std::size_t>(row));
            });
        }
    }

    /// Expects each activating key to open a page from a row of the main page.
    void ExpectPage(std::int32_t Row, enum OptionsPage Page) {
        const GameState onMainPage = State;
        for (const std::int32_t key : ActivateKeys) {
            State = onMainPage;
            State.OptionsMainSelection = Row;
            Press(key);
            EXPECT_EQ(State.OptionsPage, Page) << key;
            EXPECT_EQ(State.Screen, ScreenOptions) << key;
            EXPECT_EQ(State.OptionsMainSelection, Row) << key;
            EXPECT_EQ(State.OptionsReturnScreen, ScreenPaused) << key;
            EXPECT_EQ(Heard(), Sounds{SfxId::UiConfirm}) << key;
        }
    }

    /// Expects the sound of each of the 511 keys, whatever else a key does, each on a record of its own.
    void ExpectTheSoundsOfAllKeys() const {
        for (std::int32_t key = 1; key < 512; ++key) {
            GameState pressed = State;
            pressed.PendingSounds.Count = 0;
            DispatchKey(pressed, nullptr, nullptr, key);
            EXPECT_EQ(SoundsOf(pressed), SoundsOfKey(key)) << "scancode " << key;
        }
    }

private:
    static Sounds SoundsOfKey(std::int32_t Scancode) {
        switch (Scancode) {
        case 82: // up and W
        case 26:
        case 81: // down and S
        case 22:
        case 80: // left and A
        case 4:
        case 79: // right and D
        case 7:
            return {SfxId::UiMove};
        case 40: // the two enter keys and the space bar
        case 88:
        case 44:
            return {SfxId::UiConfirm};
        case 41:
            return {SfxId::UiBack};
        default:
            return {};
        }
    }
};

TEST_F(OptionsKeys, UpGoesThroughTheFourRowsAndWraps) {
    ExpectRows(UpKeys, {3, 0, 1, 2});
}

TEST_F(OptionsKeys, DownGoesThroughTheFourRowsAndWraps) {
    ExpectRows(DownKeys, {1, 2, 3, 0});
}

TEST_F(OptionsKeys, LeftAndRightDoNothingOnTheMainPageButSound) {
    ExpectRows(LeftKeys, {0, 1, 2, 3});
    ExpectRows(RightKeys, {0, 1, 2, 3});
}

TEST_F(OptionsKeys, TheFirstRowOpensControls) {
    ExpectPage(0, OptionsPageControls);
}

TEST_F(OptionsKeys, TheSecondRowOpensGraphics) {
    ExpectPage(1, OptionsPageGraphics);
}

TEST_F(OptionsKeys, TheThirdRowOpensAudio) {
    ExpectPage(2, OptionsPageAudio);
}

TEST_F(OptionsKeys, TheFourthRowGoesBackToTheMenuThatOpenedThem) {
    State.OptionsMainSelection = BackRow;
    for (const enum Screen opener : {ScreenMainMenu, ScreenPaused}) {
        State.OptionsReturnScreen = opener;
        ExpectKeys(ActivateKeys, [opener](GameState &Expected) {
            Hear(Expected, SfxId::UiConfirm);
            Expected.Screen = opener;
        });
    }
}

TEST_F(OptionsKeys, EscapeOnTheMainPageGoesBackFromEveryRow) {
    for (const enum Screen opener : {ScreenMainMenu, ScreenPaused}) {
        State.OptionsReturnScreen = opener;
        for (std::int32_t row = 0; row < 4; ++row) {
            State.OptionsMainSelection = row;
            ExpectKeys({EscapeKey}, [opener](GameState &Expected) {
                Hear(Expected, SfxId::UiBack);
                Expected.Screen = opener;
            });
        }
    }
}

TEST_F(OptionsKeys, EscapeOnAnotherPageGoesToTheMainPage) {
    for (const enum OptionsPage page : {OptionsPageControls, OptionsPageGraphics, OptionsPageAudio}) {
        State.Screen = ScreenOptions;
        State.OptionsPage = page;
        Press(EscapeKey);
        EXPECT_EQ(State.Screen, ScreenOptions) << page;
        EXPECT_EQ(State.OptionsPage, OptionsPageMain) << page;
    }
    EXPECT_EQ(Heard(), (Sounds{SfxId::UiBack, SfxId::UiBack, SfxId::UiBack}));
}

TEST_F(OptionsKeys, EveryPageHasTheSameSounds) {
    for (const enum OptionsPage page :
        {OptionsPageMain, OptionsPageControls, OptionsPageGraphics, OptionsPageAudio}) {
        SCOPED_TRACE(page);
        State.OptionsPage = page;
        ExpectTheSoundsOfAllKeys();
    }
}

TEST_F(OptionsKeys, AKeySoundsAlsoWhileABindingIsAwaited) {
    State.OptionsPage = OptionsPageControls;
    State.PendingControlsValid = true;
    State.CaptureActive = true;
    for (const enum CaptureKind kind : {CaptureKindKeyboard, CaptureKindGamepad, CaptureKindJoystick}) {
        SCOPED_TRACE(kind);
        State.CaptureKind = kind;
        ExpectTheSoundsOfAllKeys();
    }
}

TEST_F(OptionsKeys, TheMainPageKeepsItsRowUntilTheNextVisit) {
    State.OptionsMainSelection = 1;
    Press(EscapeKey);
    ASSERT_EQ(State.Screen, ScreenPaused);
    State.PauseSelection = 1;
    Press(EnterKey);
    EXPECT_EQ(State.Screen, ScreenOptions);
    EXPECT_EQ(State.OptionsPage, OptionsPageMain);
    EXPECT_EQ(State.OptionsMainSelection, 1);
}

TEST_F(OptionsKeys, EnteringForgetsPageCaptureAndEdits) {
    State = BusyGame(ScreenPaused);
    EnterOptions(State);
    EXPECT_EQ(State.Screen, ScreenOptions);
    EXPECT_EQ(State.OptionsPage, OptionsPageMain);
    EXPECT_FALSE(State.CaptureActive);
    EXPECT_EQ(State.CaptureKind, 0);
    EXPECT_FALSE(State.PendingControlsValid);
    EXPECT_FALSE(State.GraphicsSnapshotValid);
    EXPECT_FALSE(State.PendingAudioValid);
    EXPECT_EQ(State.OptionsMainSelection, 2); // as it was left
    EXPECT_EQ(Heard(), Sounds{});
}

} // namespace
