#include "app/OptionsKeys.hpp"

#include "app/KeyHandler.hpp"
#include "tests/app/KeyTest.hpp"

namespace {

constexpr std::int32_t BackRow = 3;

class OptionsKeys : public KeyTest {
protected:
    OptionsKeys() : KeyTest(ScreenOptions) {
        EnterOptions(State, ScreenPaused);
    }

    /// Expects each activating key to open a page from a row of the main page, and to begin its edit.
    void ExpectPage(std::int32_t Row, enum OptionsPage Page, const Change &BeginEdit) {
        State.OptionsMainSelection = Row;
        ExpectKeys(ActivateKeys, [Page, &BeginEdit](GameState &Expected) {
            Hear(Expected, SfxId::UiConfirm);
            Expected.OptionsPage = Page;
            BeginEdit(Expected);
        });
    }

    /// Expects the sound of each of the 511 keys, whatever else a key does, each on a record of its own. The
    /// keys that unbind a row have one while a binding is awaited.
    void ExpectTheSoundsOfAllKeys(const Sounds &OfUnbinding = {}) const {
        for (std::int32_t key = 1; key < 512; ++key) {
            GameState pressed = State;
            pressed.PendingSounds.Count = 0;
            DispatchKey(pressed, nullptr, nullptr, key);
            const bool unbinds = key == DeleteKey || key == BackspaceKey;
            EXPECT_EQ(SoundsOf(pressed), unbinds ? OfUnbinding : SoundsOfKey(key)) << "scancode " << key;
        }
    }

private:
    static Sounds SoundsOfKey(std::int32_t Scancode) {
        switch (Scancode) {
        case UpKey:
        case WKey:
        case DownKey:
        case SKey:
        case LeftKey:
        case AKey:
        case RightKey:
        case DKey:
            return {SfxId::UiMove};
        case EnterKey:
        case KeypadEnterKey:
        case SpaceBar:
            return {SfxId::UiConfirm};
        case EscapeKey:
            return {SfxId::UiBack};
        default:
            return {};
        }
    }
};

TEST_F(OptionsKeys, UpGoesThroughTheFourRowsAndWraps) {
    ExpectRows(&GameState::OptionsMainSelection, UpKeys, {3, 0, 1, 2});
}

TEST_F(OptionsKeys, DownGoesThroughTheFourRowsAndWraps) {
    ExpectRows(&GameState::OptionsMainSelection, DownKeys, {1, 2, 3, 0});
}

TEST_F(OptionsKeys, LeftAndRightDoNothingOnTheMainPageButSound) {
    ExpectRows(&GameState::OptionsMainSelection, LeftKeys, {0, 1, 2, 3});
    ExpectRows(&GameState::OptionsMainSelection, RightKeys, {0, 1, 2, 3});
}

TEST_F(OptionsKeys, TheFirstRowOpensControls) {
    State.CaptureActive = true;
    State.CaptureKind = CaptureKindGamepad;
    State.KeyboardBindings = {1, 2, 3, 4, 5};
    State.GamepadBindings = {6, 7, 8, 9, 10};
    State.JoystickBindings = {11, 12, 13, 14, 15};
    State.ControlsDevice = ControlsDeviceJoystick;
    ExpectPage(0, OptionsPageControls, [](GameState &Expected) {
        Expected.PendingKeyboard = {1, 2, 3, 4, 5};
        Expected.PendingGamepad = {6, 7, 8, 9, 10};
        Expected.PendingJoystick = {11, 12, 13, 14, 15};
        Expected.PendingControlsDevice = ControlsDeviceJoystick;
        Expected.PendingControlsValid = true;
        Expected.CaptureActive = false;
        Expected.CaptureKind = CaptureKindNone;
    });
}

TEST_F(OptionsKeys, TheSecondRowOpensGraphics) {
    State.AspectMode = AspectClassic4x3;
    State.Resolutions = {{800, 600}};
    State.ResolutionIndex = 0;
    State.RefreshRate = 75;
    State.VSync = false;
    ExpectPage(1, OptionsPageGraphics, [](GameState &Expected) {
        Expected.GraphicsSnapshot = {800, 600, AspectClassic4x3, 75, true, false};
        Expected.GraphicsSnapshotValid = true;
        // Without a display there are the built-in sizes, and no rate.
        Expected.Resolutions = {
            {640, 480}, {800, 600}, {960, 720}, {1024, 768}, {1280, 960}, {1600, 1200}, {1920, 1440}};
        Expected.ResolutionIndex = 1;
        Expected.RefreshRates = {0};
        Expected.RefreshRate = 0;
    });
}

TEST_F(OptionsKeys, TheThirdRowOpensAudio) {
    State.MasterVolume = 5;
    State.MusicVolume = 10;
    State.SfxVolume = 15;
    State.MusicEnabled = true;
    State.SfxEnabled = true;
    State.Language = " F R ";
    ExpectPage(2, OptionsPageAudio, [](GameState &Expected) {
        Expected.PendingMasterVolume = 5;
        Expected.PendingMusicVolume = 10;
        Expected.PendingSfxVolume = 15;
        Expected.PendingMusicEnabled = true;
        Expected.PendingSfxEnabled = true;
        Expected.PendingLanguage = "fr";
        Expected.PendingAudioValid = true;
    });
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
        EXPECT_FALSE(State.PendingControlsValid) << page;
        EXPECT_FALSE(State.GraphicsSnapshotValid) << page;
        EXPECT_FALSE(State.PendingAudioValid) << page;
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
        ExpectTheSoundsOfAllKeys({SfxId::UiConfirm});
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
    EnterOptions(State, ScreenPaused);
    EXPECT_EQ(State.Screen, ScreenOptions);
    EXPECT_EQ(State.OptionsReturnScreen, ScreenPaused);
    EXPECT_EQ(State.OptionsPage, OptionsPageMain);
    EXPECT_FALSE(State.CaptureActive);
    EXPECT_EQ(State.CaptureKind, 0);
    EXPECT_FALSE(State.PendingControlsValid);
    EXPECT_FALSE(State.GraphicsSnapshotValid);
    EXPECT_FALSE(State.PendingAudioValid);
    EXPECT_EQ(State.OptionsMainSelection, 2); // as they were left
    EXPECT_EQ(State.ControlsSelection, 4);
    EXPECT_EQ(State.GraphicsSelection, 3);
    EXPECT_EQ(State.AudioSelection, 8);
    EXPECT_EQ(Heard(), Sounds{});
}

} // namespace
