#include "app/KeyHandler.hpp"
#include "app/OptionsKeys.hpp"
#include "options/AudioPage.hpp"
#include "options/ControlsPage.hpp"
#include "options/GraphicsPage.hpp"
#include "sim/FirstAid.hpp"
#include "tests/app/KeyTest.hpp"
#include "tests/support/SameState.hpp"

#include <limits>
#include <map>
#include <ostream>
#include <string>

namespace {

using KeyTable = std::map<std::int32_t, Change>;

/// A moment of the game, and all that keys can do in it.
struct KeyMoment {
    std::string Name;
    GameState Before;
    KeyTable Table;
};

void Add(KeyTable &Table, const Scancodes &Keys, const Change &Effect) {
    for (const std::int32_t key : Keys) {
        Table[key] = Effect;
    }
}

/// A sound, and then a screen.
Change Go(SfxId Sound, enum Screen Screen) {
    return [Sound, Screen](GameState &Expected) {
        Hear(Expected, Sound);
        Expected.Screen = Screen;
    };
}

Change HearOnly(SfxId Sound) {
    return [Sound](GameState &Expected) {
        Hear(Expected, Sound);
    };
}

template <typename Row> Change Move(Row GameState::*Selection, Row Next) {
    return [Selection, Next](GameState &Expected) {
        Hear(Expected, SfxId::UiMove);
        Expected.*Selection = Next;
    };
}

/// On the fourth row, which is HELP.
KeyMoment MainMenuWithARun() {
    KeyMoment moment{"MainMenuWithARun", BusyGame(ScreenMainMenu), {}};
    Add(moment.Table, UpKeys, Move(&GameState::MainMenuSelection, 2U));
    Add(moment.Table, DownKeys, Move(&GameState::MainMenuSelection, 4U));
    Add(moment.Table, ActivateKeys, [](GameState &Expected) {
        Hear(Expected, SfxId::UiConfirm);
        Expected.HelpReturnScreen = ScreenMainMenu;
        Expected.Screen = ScreenHelp;
    });
    Add(moment.Table, {EscapeKey}, [](GameState &Expected) {
        Hear(Expected, SfxId::UiBack);
        Expected.Running = false;
    });
    return moment;
}

/// On the fourth row, which is CREDITS.
KeyMoment MainMenuWithoutARun() {
    KeyMoment moment = MainMenuWithARun();
    moment.Name = "MainMenuWithoutARun";
    moment.Before.HasRunState = false;
    Add(moment.Table, ActivateKeys, [](GameState &Expected) {
        Hear(Expected, SfxId::UiConfirm);
        Expected.CreditsScroll = 0.0F;
        Expected.Screen = ScreenCredits;
    });
    return moment;
}

/// On the row BACK.
KeyMoment OptionsMainPage() {
    KeyMoment moment{"OptionsMainPage", BusyGame(ScreenOptions), {}};
    EnterOptions(moment.Before, ScreenPaused);
    moment.Before.OptionsMainSelection = 3;
    Add(moment.Table, UpKeys, Move(&GameState::OptionsMainSelection, 2));
    Add(moment.Table, DownKeys, Move(&GameState::OptionsMainSelection, 0));
    Add(moment.Table, LeftKeys, HearOnly(SfxId::UiMove));
    Add(moment.Table, RightKeys, HearOnly(SfxId::UiMove));
    Add(moment.Table, ActivateKeys, Go(SfxId::UiConfirm, ScreenPaused));
    Add(moment.Table, {EscapeKey}, Go(SfxId::UiBack, ScreenPaused));
    return moment;
}

/// On the page of the controls with its edit begun, and on the row of the third binding.
KeyMoment ControlsPage() {
    KeyMoment moment{"ControlsPage", BusyGame(ScreenOptions), {}};
    EnterOptions(moment.Before, ScreenMainMenu);
    moment.Before.OptionsPage = OptionsPageControls;
    BeginControlsEdit(moment.Before);
    moment.Before.PendingControlsDevice = ControlsDeviceGamepad;
    moment.Before.ControlsSelection = 3;
    Add(moment.Table, UpKeys, Move(&GameState::ControlsSelection, 2));
    Add(moment.Table, DownKeys, Move(&GameState::ControlsSelection, 4));
    Add(moment.Table, LeftKeys, HearOnly(SfxId::UiMove));
    Add(moment.Table, RightKeys, HearOnly(SfxId::UiMove));
    Add(moment.Table, ActivateKeys, [](GameState &Expected) {
        Hear(Expected, SfxId::UiConfirm);
        Expected.CaptureActive = true;
        Expected.CaptureKind = CaptureKindGamepad;
        Expected.CaptureGamepadRow = 2;
    });
    Add(moment.Table, {EscapeKey}, [](GameState &Expected) {
        Hear(Expected, SfxId::UiBack);
        Expected.PendingControlsDevice = Expected.ControlsDevice; // dropped
        Expected.PendingControlsValid = false;
        Expected.OptionsPage = OptionsPageMain;
    });
    return moment;
}

/// Ends a capture; with a sound, if it has one.
Change EndCaptureWith(const Sounds &Heard, const Change &Effect) {
    return [Heard, Effect](GameState &Expected) {
        for (const SfxId sound : Heard) {
            Hear(Expected, sound);
        }
        Effect(Expected);
        Expected.CaptureActive = false;
        Expected.CaptureKind = CaptureKindNone;
    };
}

/// While the fifth row of the joystick is captured: what keys do besides binding.
KeyMoment CapturingAButton() {
    KeyMoment moment = ControlsPage();
    moment.Name = "CapturingAButton";
    moment.Before.CaptureActive = true;
    moment.Before.CaptureKind = CaptureKindJoystick;
    moment.Before.CaptureJoystickRow = 4;
    for (const Scancodes &keys : {UpKeys, DownKeys, LeftKeys, RightKeys}) {
        Add(moment.Table, keys, HearOnly(SfxId::UiMove));
    }
    Add(moment.Table, ActivateKeys, HearOnly(SfxId::UiConfirm));
    Add(moment.Table, {EscapeKey}, EndCaptureWith({SfxId::UiBack}, Nothing));
    Add(moment.Table, ClearKeys, EndCaptureWith({SfxId::UiConfirm}, [](GameState &Expected) {
        Expected.PendingJoystick[4] = -1;
    }));
    return moment;
}

/// While the second row of the keyboard is captured.
KeyMoment CapturingAKey() {
    KeyMoment moment = CapturingAButton();
    moment.Name = "CapturingAKey";
    moment.Before.CaptureKind = CaptureKindKeyboard;
    moment.Before.CaptureKeyboardRow = 1;
    const auto bind = [&moment](std::int32_t Key, const Sounds &Heard) {
        moment.Table[Key] = EndCaptureWith(Heard, [Key](GameState &Expected) {
            Expected.PendingKeyboard[1] = Key;
        });
    };
    for (std::int32_t key = 1; key < 512; ++key) {
        if (key != EscapeKey && key != DeleteKey && key != BackspaceKey) {
            bind(key, {});
        }
    }
    for (const Scancodes &keys : {UpKeys, DownKeys, LeftKeys, RightKeys}) {
        for (const std::int32_t key : keys) {
            bind(key, {SfxId::UiMove});
        }
    }
    for (const std::int32_t key : ActivateKeys) {
        bind(key, {SfxId::UiConfirm});
    }
    Add(moment.Table, ClearKeys, EndCaptureWith({SfxId::UiConfirm}, [](GameState &Expected) {
        Expected.PendingKeyboard[1] = 0;
    }));
    return moment;
}

/// On the row VSYNC, with the edit begun.
KeyMoment GraphicsPage() {
    KeyMoment moment{"GraphicsPage", BusyGame(ScreenOptions), {}};
    EnterOptions(moment.Before, ScreenMainMenu);
    moment.Before.OptionsPage = OptionsPageGraphics;
    BeginGraphicsEdit(moment.Before, nullptr);
    moment.Before.GraphicsSelection = 4;
    const auto flip = [](SfxId Sound) {
        return [Sound](GameState &Expected) {
            Hear(Expected, Sound);
            Expected.VSync = false;
        };
    };
    Add(moment.Table, UpKeys, Move(&GameState::GraphicsSelection, 3));
    Add(moment.Table, DownKeys, Move(&GameState::GraphicsSelection, 5));
    Add(moment.Table, LeftKeys, flip(SfxId::UiMove));
    Add(moment.Table, RightKeys, flip(SfxId::UiMove));
    Add(moment.Table, ActivateKeys, flip(SfxId::UiConfirm));
    Add(moment.Table, {EscapeKey}, [](GameState &Expected) {
        Hear(Expected, SfxId::UiBack);
        Expected.GraphicsSnapshotValid = false;
        Expected.OptionsPage = OptionsPageMain;
    });
    return moment;
}

/// On the row MUSIC VOLUME, with the edit begun.
KeyMoment AudioPage() {
    KeyMoment moment{"AudioPage", BusyGame(ScreenOptions), {}};
    EnterOptions(moment.Before, ScreenMainMenu);
    moment.Before.OptionsPage = OptionsPageAudio;
    BeginAudioEdit(moment.Before);
    moment.Before.AudioSelection = 1;
    const auto turn = [](std::int32_t Volume) {
        return [Volume](GameState &Expected) {
            Hear(Expected, SfxId::UiMove);
            Expected.PendingMusicVolume = Volume;
        };
    };
    Add(moment.Table, UpKeys, Move(&GameState::AudioSelection, 0));
    Add(moment.Table, DownKeys, Move(&GameState::AudioSelection, 2));
    Add(moment.Table, LeftKeys, turn(45));
    Add(moment.Table, RightKeys, turn(55));
    Add(moment.Table, ActivateKeys, HearOnly(SfxId::UiConfirm));
    Add(moment.Table, {EscapeKey}, [](GameState &Expected) {
        Hear(Expected, SfxId::UiBack);
        Expected.PendingAudioValid = false;
        Expected.OptionsPage = OptionsPageMain;
    });
    return moment;
}

KeyMoment Help() {
    KeyMoment moment{"Help", BusyGame(ScreenHelp), {}};
    moment.Before.HelpReturnScreen = ScreenPaused;
    Add(moment.Table, LeaveKeys, Go(SfxId::UiBack, ScreenPaused));
    return moment;
}

KeyMoment Playing() {
    KeyMoment moment{"Playing", BusyGame(ScreenPlaying), {}};
    Add(moment.Table, {moment.Before.KeyboardBindings[4]}, [](GameState &Expected) {
        UseFirstAid(Expected);
    });
    Add(moment.Table, {EscapeKey}, [](GameState &Expected) {
        Hear(Expected, SfxId::UiBack);
        Expected.Screen = ScreenPaused;
        Expected.PauseSelection = 0;
    });
    return moment;
}

KeyMoment PlayingWhileDying() {
    KeyMoment moment{"PlayingWhileDying", BusyGame(ScreenPlaying), {}};
    moment.Before.PlayerDying = true;
    moment.Before.DeathTimer = 0.5F;
    return moment;
}

/// On the row HELP.
KeyMoment Paused() {
    KeyMoment moment{"Paused", BusyGame(ScreenPaused), {}};
    Add(moment.Table, UpKeys, Move(&GameState::PauseSelection, 1));
    Add(moment.Table, DownKeys, Move(&GameState::PauseSelection, 3));
    Add(moment.Table, ActivateKeys, [](GameState &Expected) {
        Hear(Expected, SfxId::UiConfirm);
        Expected.HelpReturnScreen = ScreenPaused;
        Expected.Screen = ScreenHelp;
    });
    Add(moment.Table, {EscapeKey}, Go(SfxId::UiBack, ScreenPlaying));
    return moment;
}

KeyMoment Credits() {
    KeyMoment moment{"Credits", BusyGame(ScreenCredits), {}};
    Add(moment.Table, LeaveKeys, Go(SfxId::UiBack, ScreenMainMenu));
    return moment;
}

KeyMoment GameOver() {
    KeyMoment moment{"GameOver", BusyGame(ScreenGameOver), {}};
    const auto leave = [](SfxId Sound) {
        return [Sound](GameState &Expected) {
            Hear(Expected, Sound);
            Expected.Screen = ScreenMainMenu;
            Expected.MainMenuSelection = 0;
        };
    };
    Add(moment.Table, ActivateKeys, leave(SfxId::UiConfirm));
    Add(moment.Table, {EscapeKey}, leave(SfxId::UiBack));
    return moment;
}

/// Makes a moment anew for each test, and is known by its name.
struct MomentMaker {
    KeyMoment (*Make)();
};

void PrintTo(const MomentMaker &Maker, std::ostream *Out) {
    *Out << Maker.Make().Name;
}

class KeyTables : public ::testing::TestWithParam<MomentMaker> {
protected:
    /// Presses a key on a copy and expects what the table tells, or nothing where it tells nothing.
    void ExpectAsInTable(std::int32_t Scancode) const {
        GameState pressed = Moment.Before;
        DispatchKey(pressed, nullptr, nullptr, Scancode);
        const auto row = Moment.Table.find(Scancode);
        if (row == Moment.Table.end()) {
            EXPECT_TRUE(SameState(pressed, Moment.Before)) << "scancode " << Scancode;
            return;
        }
        GameState expected = Moment.Before;
        row->second(expected);
        EXPECT_TRUE(SameState(pressed, expected)) << "scancode " << Scancode;
        EXPECT_FALSE(expected == Moment.Before) << "the table tells nothing of scancode " << Scancode;
    }

    const KeyMoment Moment = GetParam().Make();
};

TEST_P(KeyTables, TellAllThatTheScancodesDo) {
    for (std::int32_t scancode = 0; scancode < 512; ++scancode) {
        ExpectAsInTable(scancode);
    }
}

TEST_P(KeyTables, HaveNothingOutOfRange) {
    for (const std::int32_t scancode : {-1, -41, -512, std::numeric_limits<std::int32_t>::min(), 512, 513,
             512 + EscapeKey, 512 + EnterKey, 65536 + EnterKey, std::numeric_limits<std::int32_t>::max()}) {
        ASSERT_EQ(Moment.Table.count(scancode), 0U);
        ExpectAsInTable(scancode);
    }
}

/// The keys that move menus are fixed, whatever is bound; only the key that heals is in the tables of play.
TEST_P(KeyTables, DoNotDependOnTheOtherBindings) {
    for (const BindingTable &bindings : {BindingTable{AKey, DKey, SKey, WKey, SpaceBar},
             BindingTable{EnterKey, EscapeKey, DownKey, UpKey, SpaceBar},
             BindingTable{0, -1, 512, 0, SpaceBar}}) {
        KeyMoment rebound = Moment;
        rebound.Before.KeyboardBindings = bindings;
        rebound.Before.GamepadBindings = bindings;
        rebound.Before.JoystickBindings = bindings;
        for (std::int32_t scancode = 1; scancode < 512; ++scancode) {
            GameState pressed = rebound.Before;
            DispatchKey(pressed, nullptr, nullptr, scancode);
            const bool acts = rebound.Table.contains(scancode);
            EXPECT_EQ(!(pressed == rebound.Before), acts) << "scancode " << scancode;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OfAllScreens, KeyTables,
    ::testing::Values(MomentMaker{MainMenuWithARun}, MomentMaker{MainMenuWithoutARun},
        MomentMaker{OptionsMainPage}, MomentMaker{ControlsPage}, MomentMaker{CapturingAButton},
        MomentMaker{CapturingAKey}, MomentMaker{GraphicsPage}, MomentMaker{AudioPage}, MomentMaker{Help},
        MomentMaker{Playing}, MomentMaker{PlayingWhileDying}, MomentMaker{Paused}, MomentMaker{Credits},
        MomentMaker{GameOver}),
    [](const auto &Info) {
        return Info.param.Make().Name;
    });

class KeyDispatch : public KeyTest {
protected:
    KeyDispatch() : KeyTest(ScreenMainMenu) {}
};

TEST_F(KeyDispatch, HandsOnTheFirstAndTheLastScancode) {
    State.Screen = ScreenPlaying;
    for (const std::int32_t scancode : {1, 511}) {
        State.KeyboardBindings[4] = scancode;
        State.FirstAidKits = 1;
        State.Player.Hp = 10;
        Press(scancode);
        EXPECT_EQ(State.Player.Hp, 45) << scancode;
    }
}

TEST_F(KeyDispatch, IsWhatHandlingDoesWithinTheRange) {
    for (const std::int32_t scancode : {EnterKey, EscapeKey, UpKey, 5}) {
        GameState dispatched = State;
        GameState handled = State;
        DispatchKey(dispatched, nullptr, nullptr, scancode);
        HandleKey(handled, nullptr, nullptr, scancode);
        EXPECT_TRUE(SameState(dispatched, handled)) << scancode;
    }
}

} // namespace
