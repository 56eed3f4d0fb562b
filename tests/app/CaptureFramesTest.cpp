#include "app/OptionsKeys.hpp"
#include "options/ControlsPage.hpp"
#include "sim/NewRun.hpp"
#include "tests/app/DeviceTest.hpp"
#include "tests/support/Keys.hpp"
#include "tests/support/Sounds.hpp"

namespace {

constexpr BindingTable PendingKeys{201, 202, 203, 204, 205};
constexpr BindingTable PendingPad{21, 22, 23, 24, 25};
constexpr BindingTable PendingStick{31, 32, 33, 34, 35};

/// Captures of the Controls page. The applied bindings are the defaults; the pending ones are told above.
class CaptureFrames : public DeviceTest {
protected:
    void SetUp() override {
        DeviceTest::SetUp();
        OpenControls();
    }

    void OpenControls() {
        EnterOptions(State, ScreenMainMenu);
        State.OptionsPage = OptionsPageControls;
        BeginControlsEdit(State);
        State.PendingKeyboard = PendingKeys;
        State.PendingGamepad = PendingPad;
        State.PendingJoystick = PendingStick;
    }

    void PlugInBoth() {
        PlugInPad();
        PlugInStick();
    }

    /// Moves an axis to its end and back.
    void Swing(VirtualDevice &Device, int Axis, Sint16 End) {
        Device.SetAxis(Axis, End);
        DrainEvents(Program);
        Device.SetAxis(Axis, 0);
        DrainEvents(Program);
    }

    void PointHat(Uint8 Direction) {
        Stick->SetHat(0, Direction);
        DrainEvents(Program);
        Stick->SetHat(0, SDL_HAT_CENTERED);
        DrainEvents(Program);
    }

    void Press(SDL_Scancode Scancode, bool Repeat = false) {
        PushKey(Scancode, Repeat);
        DrainEvents(Program);
    }

    /// Captures the table row Row of a device anew, with nothing bound yet and no sound waiting.
    void Capture(enum ControlsDevice Device, std::int32_t Row = 1) {
        OpenControls();
        State.PendingControlsDevice = Device;
        State.ControlsSelection = Row + 1;
        Press(SDL_SCANCODE_RETURN);
        ASSERT_TRUE(State.CaptureActive);
        State.PendingSounds.Count = 0;
    }

    /// The capture has ended, this page is still open, and the pending tables are these.
    void ExpectEnded(const BindingTable &Keys, const BindingTable &PadTable, const BindingTable &StickTable,
        const Sounds &ExpectedSounds) {
        EXPECT_FALSE(State.CaptureActive);
        EXPECT_EQ(State.CaptureKind, CaptureKindNone);
        ExpectTables(Keys, PadTable, StickTable, ExpectedSounds);
    }

    /// The capture goes on, and the pending tables are as they were.
    void ExpectWaiting(enum CaptureKind Kind, const Sounds &ExpectedSounds) {
        EXPECT_TRUE(State.CaptureActive);
        EXPECT_EQ(State.CaptureKind, Kind);
        ExpectTables(PendingKeys, PendingPad, PendingStick, ExpectedSounds);
    }

    void ExpectKeyBound(std::int32_t Key, const Sounds &ExpectedSounds) {
        BindingTable keys = PendingKeys;
        keys[1] = Key;
        ExpectEnded(keys, PendingPad, PendingStick, ExpectedSounds);
    }

    void ExpectCancelled() {
        ExpectEnded(PendingKeys, PendingPad, PendingStick, {SfxId::UiBack});
    }

private:
    void ExpectTables(const BindingTable &Keys, const BindingTable &PadTable, const BindingTable &StickTable,
        const Sounds &ExpectedSounds) {
        EXPECT_EQ(State.PendingKeyboard, Keys);
        EXPECT_EQ(State.PendingGamepad, PadTable);
        EXPECT_EQ(State.PendingJoystick, StickTable);
        EXPECT_EQ(SoundsOf(State), ExpectedSounds);
        EXPECT_EQ(State.Screen, ScreenOptions);
        EXPECT_EQ(State.OptionsPage, OptionsPageControls);
        EXPECT_EQ(State.ControlsSelection, 2);
        EXPECT_EQ(State.KeyboardBindings, DefaultKeyboardBindings);
        EXPECT_EQ(State.GamepadBindings, DefaultGamepadBindings);
        EXPECT_EQ(State.JoystickBindings, DefaultJoystickBindings);
    }
};

TEST_F(CaptureFrames, TheReturnThatBeginsAGamepadsCaptureDoesNotBindButTheNextButtonDoes) {
    PlugInPad();
    State.PendingControlsDevice = ControlsDeviceGamepad;
    State.ControlsSelection = 1;
    Press(SDL_SCANCODE_RETURN);
    EXPECT_TRUE(State.CaptureActive);
    EXPECT_EQ(State.PendingGamepad, PendingPad);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_LEFT_SHOULDER);
    EXPECT_FALSE(State.CaptureActive);
    EXPECT_EQ(State.PendingGamepad[0], SDL_GAMEPAD_BUTTON_LEFT_SHOULDER);
}

TEST_F(CaptureFrames, TheButtonThatBeginsACaptureDoesNotBindButItsNextPressDoes) {
    PlugInBoth();
    State.PendingControlsDevice = ControlsDeviceGamepad;
    State.ControlsSelection = 1;
    Tap(*Pad, SDL_GAMEPAD_BUTTON_SOUTH);
    EXPECT_TRUE(State.CaptureActive);
    EXPECT_EQ(State.PendingGamepad, PendingPad);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_SOUTH);
    EXPECT_FALSE(State.CaptureActive);
    EXPECT_EQ(State.PendingGamepad[0], SDL_GAMEPAD_BUTTON_SOUTH);
    State.PendingControlsDevice = ControlsDeviceJoystick;
    Tap(*Stick, 0);
    EXPECT_TRUE(State.CaptureActive);
    EXPECT_EQ(State.PendingJoystick, PendingStick);
    Tap(*Stick, 0);
    EXPECT_FALSE(State.CaptureActive);
    EXPECT_EQ(State.PendingJoystick[0], 0);
}

TEST_F(CaptureFrames, OfAGamepadTakesEachOfItsButtonsBeforeItMeansAnything) {
    PlugInBoth();
    for (int button = 0; button < SDL_GAMEPAD_BUTTON_COUNT; ++button) {
        SCOPED_TRACE(button);
        Capture(ControlsDeviceGamepad);
        Tap(*Pad, button);
        BindingTable bound = PendingPad;
        bound[1] = button;
        ExpectEnded(PendingKeys, bound, PendingStick, {});
    }
}

TEST_F(CaptureFrames, OfAJoystickTakesEachOfItsButtonsBeforeItMeansAnything) {
    PlugInBoth();
    for (int button = 0; button < 4; ++button) {
        SCOPED_TRACE(button);
        Capture(ControlsDeviceJoystick);
        Tap(*Stick, button);
        BindingTable bound = PendingStick;
        bound[1] = button;
        ExpectEnded(PendingKeys, PendingPad, bound, {});
    }
}

TEST_F(CaptureFrames, OfAKeyBindsWhatAGamepadsPressMeans) {
    PlugInPad();
    struct Case {
        int Button;
        std::int32_t Key;
        Sounds Heard;
    };
    for (const Case &press : {Case{SDL_GAMEPAD_BUTTON_SOUTH, EnterKey, {SfxId::UiConfirm}},
             Case{SDL_GAMEPAD_BUTTON_START, EnterKey, {SfxId::UiConfirm}},
             Case{SDL_GAMEPAD_BUTTON_DPAD_UP, UpKey, {SfxId::UiMove}},
             Case{SDL_GAMEPAD_BUTTON_DPAD_DOWN, DownKey, {SfxId::UiMove}},
             Case{SDL_GAMEPAD_BUTTON_DPAD_LEFT, LeftKey, {SfxId::UiMove}},
             Case{SDL_GAMEPAD_BUTTON_DPAD_RIGHT, RightKey, {SfxId::UiMove}}}) {
        SCOPED_TRACE(press.Button);
        Capture(ControlsDeviceKeyboard);
        Tap(*Pad, press.Button);
        ExpectKeyBound(press.Key, press.Heard);
    }
    Capture(ControlsDeviceKeyboard);
    Swing(*Pad, SDL_GAMEPAD_AXIS_LEFTX, -32768);
    ExpectKeyBound(LeftKey, {SfxId::UiMove});
}

TEST_F(CaptureFrames, OfAKeyBindsWhatAJoysticksPressMeans) {
    PlugInStick();
    Capture(ControlsDeviceKeyboard);
    Tap(*Stick, 0);
    ExpectKeyBound(EnterKey, {SfxId::UiConfirm});
    Capture(ControlsDeviceKeyboard);
    PointHat(SDL_HAT_DOWN);
    ExpectKeyBound(DownKey, {SfxId::UiMove});
    Capture(ControlsDeviceKeyboard);
    Swing(*Stick, 1, -32768);
    ExpectKeyBound(UpKey, {SfxId::UiMove});
}

TEST_F(CaptureFrames, OfAKeyGoesOnAtAPressThatMeansNothing) {
    PlugInBoth();
    Capture(ControlsDeviceKeyboard);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_NORTH); // heals, in play alone
    Tap(*Pad, SDL_GAMEPAD_BUTTON_WEST);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_GUIDE);
    Tap(*Stick, 1);
    Tap(*Stick, 2);
    Swing(*Pad, SDL_GAMEPAD_AXIS_RIGHTX, 32767);
    Swing(*Pad, SDL_GAMEPAD_AXIS_LEFTX, 18999);
    ExpectWaiting(CaptureKindKeyboard, {});
}

TEST_F(CaptureFrames, IsCancelledByAnyEscape) {
    PlugInBoth();
    for (const enum ControlsDevice device :
        {ControlsDeviceKeyboard, ControlsDeviceGamepad, ControlsDeviceJoystick}) {
        SCOPED_TRACE(device);
        Capture(device);
        Press(SDL_SCANCODE_ESCAPE);
        ExpectCancelled();
        if (device != ControlsDeviceGamepad) {
            for (const int button : {SDL_GAMEPAD_BUTTON_EAST, SDL_GAMEPAD_BUTTON_BACK}) {
                Capture(device);
                Tap(*Pad, button);
                ExpectCancelled();
            }
        }
        if (device != ControlsDeviceJoystick) {
            Capture(device);
            Tap(*Stick, 3);
            ExpectCancelled();
        }
    }
}

TEST_F(CaptureFrames, OfAGamepadOnlyHearsOtherPresses) {
    PlugInBoth();
    Capture(ControlsDeviceGamepad);
    Tap(*Stick, 0);
    PointHat(SDL_HAT_UP);
    Swing(*Stick, 0, 32767);
    Swing(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767); // sticks are no buttons
    Press(SDL_SCANCODE_DOWN);
    Press(SDL_SCANCODE_SPACE);
    Press(SDL_SCANCODE_H);
    Tap(*Stick, 2);
    ExpectWaiting(CaptureKindGamepad,
        {SfxId::UiConfirm, SfxId::UiMove, SfxId::UiMove, SfxId::UiMove, SfxId::UiMove, SfxId::UiConfirm});
}

TEST_F(CaptureFrames, OfAJoystickOnlyHearsOtherPresses) {
    PlugInBoth();
    Capture(ControlsDeviceJoystick);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_SOUTH);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_DPAD_UP);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_NORTH);
    PointHat(SDL_HAT_LEFT); // hats and sticks are no buttons
    Swing(*Stick, 1, 32767);
    Press(SDL_SCANCODE_RETURN);
    ExpectWaiting(CaptureKindJoystick,
        {SfxId::UiConfirm, SfxId::UiMove, SfxId::UiMove, SfxId::UiMove, SfxId::UiConfirm});
}

TEST_F(CaptureFrames, OfAKeyIsDeafToRepeatsAndToScancodesThatAreNone) {
    Capture(ControlsDeviceKeyboard);
    Press(SDL_SCANCODE_RETURN, true); // still held from the beginning
    Press(static_cast<SDL_Scancode>(0));
    Press(static_cast<SDL_Scancode>(512));
    ExpectWaiting(CaptureKindKeyboard, {});
    Press(static_cast<SDL_Scancode>(511));
    ExpectKeyBound(511, {});
}

TEST_F(CaptureFrames, HasNoTimeOut) {
    Capture(ControlsDeviceGamepad);
    for (int i = 0; i < 10; ++i) {
        LetTimePass(60000);
        RunFrame(Program);
    }
    ExpectWaiting(CaptureKindGamepad, {});
}

TEST_F(CaptureFrames, OfAMissingGamepadIsLeftByTheKeyboardOrTheJoystick) {
    PlugInStick();
    Capture(ControlsDeviceGamepad);
    Press(SDL_SCANCODE_RETURN);
    Tap(*Stick, 0);
    ExpectWaiting(CaptureKindGamepad, {SfxId::UiConfirm, SfxId::UiConfirm});
    State.PendingSounds.Count = 0;
    Tap(*Stick, 3);
    ExpectCancelled();
}

TEST_F(CaptureFrames, TakesAGamepadThatComesInTheMiddleOfIt) {
    Capture(ControlsDeviceGamepad);
    PlugInPad();
    ExpectWaiting(CaptureKindGamepad, {});
    Tap(*Pad, SDL_GAMEPAD_BUTTON_EAST);
    BindingTable bound = PendingPad;
    bound[1] = SDL_GAMEPAD_BUTTON_EAST;
    ExpectEnded(PendingKeys, bound, PendingStick, {});
}

TEST_F(CaptureFrames, OutlivesItsGamepad) {
    PlugInPad();
    Capture(ControlsDeviceGamepad);
    Pad->Unplug();
    DrainEvents(Program);
    ASSERT_EQ(Program.Devices.Gamepad, nullptr);
    ExpectWaiting(CaptureKindGamepad, {});
    PlugInPad(); // another one
    Tap(*Pad, SDL_GAMEPAD_BUTTON_SOUTH);
    BindingTable bound = PendingPad;
    bound[1] = SDL_GAMEPAD_BUTTON_SOUTH;
    ExpectEnded(PendingKeys, bound, PendingStick, {});
}

TEST_F(CaptureFrames, ASecondGamepadAndASecondJoystickAreUnheard) {
    PlugInBoth();
    VirtualDevice otherPad(GamepadShape);
    VirtualDevice otherStick(JoystickShape);
    DrainEvents(Program);
    Capture(ControlsDeviceGamepad);
    Tap(otherPad, SDL_GAMEPAD_BUTTON_EAST);
    Tap(otherStick, 3);
    ExpectWaiting(CaptureKindGamepad, {});
    Capture(ControlsDeviceJoystick);
    Tap(otherPad, SDL_GAMEPAD_BUTTON_EAST);
    Tap(otherStick, 3);
    ExpectWaiting(CaptureKindJoystick, {});
}

TEST_F(CaptureFrames, EndedItLeavesTheNextButtonItsMeaning) {
    PlugInPad();
    Capture(ControlsDeviceGamepad);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_DOWN, true); // two presses of one frame
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_DOWN, false);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_DOWN, true);
    DrainEvents(Program);
    EXPECT_EQ(State.PendingGamepad[1], SDL_GAMEPAD_BUTTON_DPAD_DOWN);
    EXPECT_EQ(State.ControlsSelection, 3);
    EXPECT_EQ(SoundsOf(State), Sounds{SfxId::UiMove});
}

TEST_F(CaptureFrames, AfterApplyTheNewBindingActsAtOnce) {
    PlugInPad();
    BeginControlsEdit(State);
    State.PendingControlsDevice = ControlsDeviceGamepad;
    State.ControlsSelection = 4; // CONFIRM
    Press(SDL_SCANCODE_RETURN);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_LEFT_SHOULDER);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_LEFT_SHOULDER); // not applied yet
    EXPECT_FALSE(State.CaptureActive);
    State.ControlsSelection = 7; // APPLY
    Tap(*Pad, SDL_GAMEPAD_BUTTON_SOUTH);
    EXPECT_EQ(State.GamepadBindings, (BindingTable{0, 2, 3, SDL_GAMEPAD_BUTTON_LEFT_SHOULDER, 1}));
    EXPECT_TRUE(State.OptionsDirty);
    State.ControlsSelection = 9; // BACK
    Tap(*Pad, SDL_GAMEPAD_BUTTON_SOUTH);
    EXPECT_EQ(State.OptionsPage, OptionsPageControls); // SOUTH confirms no more
    Tap(*Pad, SDL_GAMEPAD_BUTTON_LEFT_SHOULDER);
    EXPECT_EQ(State.OptionsPage, OptionsPageMain);
}

TEST_F(CaptureFrames, AClearedBackLeavesTheBackButtonAndEscapeWorking) {
    PlugInPad();
    BeginControlsEdit(State);
    State.PendingControlsDevice = ControlsDeviceGamepad;
    State.ControlsSelection = 5; // BACK, the binding
    Press(SDL_SCANCODE_RETURN);
    Press(SDL_SCANCODE_DELETE);
    State.ControlsSelection = 7; // APPLY
    Press(SDL_SCANCODE_RETURN);
    ASSERT_EQ(State.GamepadBindings, (BindingTable{0, 2, 3, 0, -1}));
    Tap(*Pad, SDL_GAMEPAD_BUTTON_EAST);
    EXPECT_EQ(State.OptionsPage, OptionsPageControls);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_BACK);
    EXPECT_EQ(State.OptionsPage, OptionsPageMain);
    Press(SDL_SCANCODE_ESCAPE);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
}

TEST_F(CaptureFrames, AReboundKeyHealsAtOnceAndTheMenuKeysStay) {
    BeginControlsEdit(State);
    State.PendingControlsDevice = ControlsDeviceKeyboard;
    State.ControlsSelection = 5; // HEAL
    Press(SDL_SCANCODE_RETURN);
    Press(SDL_SCANCODE_S);
    State.ControlsSelection = 7; // APPLY
    Press(SDL_SCANCODE_RETURN);
    Press(SDL_SCANCODE_S); // still moves down
    EXPECT_EQ(State.ControlsSelection, 8);
    State.Screen = ScreenPlaying;
    State.FirstAidKits = 1;
    State.Player.Hp = 20;
    Press(SDL_SCANCODE_SPACE); // what healed before
    EXPECT_EQ(State.Player.Hp, 20);
    Press(SDL_SCANCODE_S);
    EXPECT_EQ(State.Player.Hp, 55);
}

TEST_F(CaptureFrames, AReboundButtonFiresAtOnce) {
    PlugInPad();
    BeginControlsEdit(State);
    State.PendingControlsDevice = ControlsDeviceGamepad;
    State.ControlsSelection = 1; // FIRE
    Press(SDL_SCANCODE_RETURN);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_RIGHT_SHOULDER);
    State.ControlsSelection = 7; // APPLY
    Press(SDL_SCANCODE_RETURN);
    StartNewRun(State);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    RunFrame(Program);
    EXPECT_EQ(State.Bullets.size(), 0U);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_RIGHT_SHOULDER, true);
    RunFrame(Program);
    EXPECT_EQ(State.Bullets.size(), 1U);
}

} // namespace
