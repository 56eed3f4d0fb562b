#include "input/Capture.hpp"

#include "tests/input/InputTest.hpp"
#include "tests/support/EditedControls.hpp"
#include "tests/support/Keys.hpp"
#include "tests/support/SameState.hpp"

#include <limits>
#include <optional>

namespace {

constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
constexpr std::array RowsThatAreNone{-1, 5, 6, -5, Lowest, Highest};

constexpr std::array AllKinds{CaptureKindKeyboard, CaptureKindGamepad, CaptureKindJoystick};

using SetBinding = void (*)(BindingTable &, std::int32_t, std::int32_t);
using ClearBinding = void (*)(BindingTable &, std::int32_t);

/// Expects a value to be stored in each of the five rows alone, or in none.
void ExpectStored(SetBinding Set, std::int32_t Value, bool IsStored) {
    constexpr BindingTable before{7, 7, 7, 7, 7};
    for (std::int32_t row = 0; row < 5; ++row) {
        BindingTable table = before;
        BindingTable expected = before;
        if (IsStored) {
            expected.at(static_cast<std::size_t>(row)) = Value;
        }
        Set(table, row, Value);
        EXPECT_EQ(table, expected) << "value " << Value << " in row " << row;
    }
}

void ExpectNoOtherRow(SetBinding Set, std::int32_t Value) {
    constexpr BindingTable before{7, 7, 7, 7, 7};
    for (const std::int32_t row : RowsThatAreNone) {
        BindingTable table = before;
        Set(table, row, Value);
        EXPECT_EQ(table, before) << "row " << row;
    }
}

void ExpectCleared(ClearBinding Clear, std::int32_t Unbound) {
    constexpr BindingTable before{7, 7, 7, 7, 7};
    for (std::int32_t row = 0; row < 5; ++row) {
        BindingTable table = before;
        BindingTable expected = before;
        expected.at(static_cast<std::size_t>(row)) = Unbound;
        Clear(table, row);
        EXPECT_EQ(table, expected) << "row " << row;
    }
    for (const std::int32_t row : RowsThatAreNone) {
        BindingTable table = before;
        Clear(table, row);
        EXPECT_EQ(table, before) << "row " << row;
    }
}

TEST(SetKeyboardBinding, StoresScancodesFrom1To511) {
    for (std::int32_t scancode = 1; scancode < 512; ++scancode) {
        ExpectStored(SetKeyboardBinding, scancode, true);
    }
    for (const std::int32_t scancode : {0, -1, 512, 513, 65536 + 40, Lowest, Highest}) {
        ExpectStored(SetKeyboardBinding, scancode, false);
    }
}

TEST(SetGamepadBinding, StoresButtonsBelow26) {
    for (std::int32_t button = 0; button < 26; ++button) {
        ExpectStored(SetGamepadBinding, button, true);
    }
    for (const std::int32_t button : {26, 27, 255, 256, Highest}) {
        ExpectStored(SetGamepadBinding, button, false);
    }
}

TEST(SetJoystickBinding, StoresAnyValue) {
    for (const std::int32_t button : {0, 1, 25, 26, 255, 256, -1, Lowest, Highest}) {
        ExpectStored(SetJoystickBinding, button, true);
    }
}

TEST(SetBinding, IgnoresRowsThatNoTableHas) {
    ExpectNoOtherRow(SetKeyboardBinding, 40);
    ExpectNoOtherRow(SetGamepadBinding, 3);
    ExpectNoOtherRow(SetJoystickBinding, 3);
}

TEST(ClearBinding, UnbindsARowOfItsTable) {
    ExpectCleared(ClearKeyboardBinding, 0);
    ExpectCleared(ClearGamepadBinding, -1);
    ExpectCleared(ClearJoystickBinding, -1);
}

TEST(BeginCapture, WaitsForTheDeviceThatThePageShows) {
    for (std::int32_t row = 0; row < 5; ++row) {
        for (const enum ControlsDevice device :
            {ControlsDeviceKeyboard, ControlsDeviceGamepad, ControlsDeviceJoystick}) {
            GameState state = EditedControls();
            state.PendingControlsDevice = device;
            state.CaptureKeyboardRow = state.CaptureGamepadRow = state.CaptureJoystickRow = 9;
            GameState expected = state;
            expected.CaptureActive = true;
            switch (device) {
            case ControlsDeviceKeyboard:
                expected.CaptureKind = CaptureKindKeyboard;
                expected.CaptureKeyboardRow = row;
                break;
            case ControlsDeviceGamepad:
                expected.CaptureKind = CaptureKindGamepad;
                expected.CaptureGamepadRow = row;
                break;
            case ControlsDeviceJoystick:
                expected.CaptureKind = CaptureKindJoystick;
                expected.CaptureJoystickRow = row;
                break;
            }
            BeginCapture(state, row);
            EXPECT_TRUE(SameState(state, expected)) << device << " row " << row;
        }
    }
}

TEST(CaptureKinds, HaveTheirNumbers) {
    EXPECT_EQ(CaptureKindNone, 0);
    EXPECT_EQ(CaptureKindKeyboard, 1);
    EXPECT_EQ(CaptureKindGamepad, 2);
    EXPECT_EQ(CaptureKindJoystick, 3);
}

TEST(CaptureKey, OfAKeyboardCaptureBindsEveryKeyButThree) {
    for (std::int32_t key = 1; key < 512; ++key) {
        if (key == EscapeKey || key == DeleteKey || key == BackspaceKey) {
            continue;
        }
        GameState state = Capturing(CaptureKindKeyboard);
        GameState expected = state;
        HandleCaptureKey(state, key);
        expected.PendingKeyboard[1] = key;
        ExpectIdle(expected);
        EXPECT_TRUE(SameState(state, expected)) << key;
    }
}

TEST(CaptureKey, OfAKeyboardCaptureGoesIntoTheRowUnderCapture) {
    for (std::int32_t row = 0; row < 5; ++row) {
        GameState state = Capturing(CaptureKindKeyboard);
        state.CaptureKeyboardRow = row;
        BindingTable expected = state.PendingKeyboard;
        expected.at(static_cast<std::size_t>(row)) = 300;
        HandleCaptureKey(state, 300);
        EXPECT_EQ(state.PendingKeyboard, expected) << row;
    }
}

TEST(CaptureKey, OfADeviceCaptureDoesNothingAndTheCaptureGoesOn) {
    for (const enum CaptureKind kind : {CaptureKindGamepad, CaptureKindJoystick}) {
        for (std::int32_t key = 1; key < 512; ++key) {
            if (key == EscapeKey || key == DeleteKey || key == BackspaceKey) {
                continue;
            }
            GameState state = Capturing(kind);
            HandleCaptureKey(state, key);
            EXPECT_TRUE(SameState(state, Capturing(kind))) << kind << " key " << key;
        }
    }
}

TEST(CaptureKey, EscapeEndsTheCaptureAndLeavesTheBinding) {
    for (const enum CaptureKind kind : AllKinds) {
        GameState state = Capturing(kind);
        GameState expected = state;
        HandleCaptureKey(state, EscapeKey);
        ExpectIdle(expected);
        EXPECT_TRUE(SameState(state, expected)) << kind;
    }
}

TEST(CaptureKey, DeleteAndBackspaceUnbindTheRowWithASound) {
    for (const std::int32_t key : ClearKeys) {
        for (const enum CaptureKind kind : AllKinds) {
            GameState state = Capturing(kind);
            GameState expected = state;
            HandleCaptureKey(state, key);
            switch (kind) {
            case CaptureKindKeyboard:
                expected.PendingKeyboard[1] = 0;
                break;
            case CaptureKindGamepad:
                expected.PendingGamepad[2] = -1;
                break;
            default:
                expected.PendingJoystick[3] = -1;
                break;
            }
            PushSound(expected, SfxId::UiConfirm);
            ExpectIdle(expected);
            EXPECT_TRUE(SameState(state, expected)) << kind << " key " << key;
        }
    }
}

TEST(CaptureKey, GoesToTheAppliedTablesWhileThePageIsNotInEdit) {
    GameState bound = Capturing(CaptureKindKeyboard);
    bound.PendingControlsValid = false;
    GameState expected = bound;
    HandleCaptureKey(bound, 200);
    expected.KeyboardBindings[1] = 200;
    ExpectIdle(expected);
    EXPECT_TRUE(SameState(bound, expected));

    for (const enum CaptureKind kind : AllKinds) {
        GameState cleared = Capturing(kind);
        cleared.PendingControlsValid = false;
        expected = cleared;
        HandleCaptureKey(cleared, DeleteKey);
        expected.KeyboardBindings[1] = kind == CaptureKindKeyboard ? 0 : 102;
        expected.GamepadBindings[2] = kind == CaptureKindGamepad ? -1 : 12;
        expected.JoystickBindings[3] = kind == CaptureKindJoystick ? -1 : 23;
        PushSound(expected, SfxId::UiConfirm);
        ExpectIdle(expected);
        EXPECT_TRUE(SameState(cleared, expected)) << kind;
    }
}

TEST(CaptureKey, MayStandInSeveralRows) {
    GameState state = Capturing(CaptureKindKeyboard);
    HandleCaptureKey(state, 111); // what row 0 has
    EXPECT_EQ(state.PendingKeyboard, (BindingTable{111, 111, 113, 114, 115}));
}

/// Captures with a gamepad and a joystick open, and button events made by hand.
class CaptureButtons : public InputTest {
protected:
    void SetUp() override {
        InputTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        Pad.emplace(GamepadShape);
        Stick.emplace(JoystickShape);
        OpenFirstInputDevices(Devices);
        ASSERT_EQ(Devices.GamepadId, Pad->Id);
        ASSERT_EQ(Devices.JoystickId, Stick->Id);
    }

    void TearDown() override {
        InputTest::TearDown();
        Pad.reset();
        Stick.reset();
    }

    static SDL_Event PadPress(SDL_JoystickID Id, int Button) {
        SDL_Event event{};
        event.type = SDL_EVENT_GAMEPAD_BUTTON_DOWN;
        event.gbutton.which = Id;
        event.gbutton.button = static_cast<Uint8>(Button);
        event.gbutton.down = true;
        return event;
    }

    static SDL_Event StickPress(SDL_JoystickID Id, int Button) {
        SDL_Event event{};
        event.type = SDL_EVENT_JOYSTICK_BUTTON_DOWN;
        event.jbutton.which = Id;
        event.jbutton.button = static_cast<Uint8>(Button);
        event.jbutton.down = true;
        return event;
    }

    /// Expects both devices' presses to be let through and to change nothing.
    void ExpectBothLetThrough(const GameState &Before) const {
        for (const SDL_Event &event : {PadPress(Pad->Id, 5), StickPress(Stick->Id, 5)}) {
            ExpectLetThrough(Before, event);
        }
    }

    void ExpectLetThrough(const GameState &Before, const SDL_Event &Event) const {
        GameState state = Before;
        EXPECT_FALSE(CaptureButton(state, Devices, Event)) << "event " << Event.type;
        EXPECT_TRUE(SameState(state, Before)) << "event " << Event.type;
    }

    std::optional<VirtualDevice> Pad;
    std::optional<VirtualDevice> Stick;
};

TEST_F(CaptureButtons, EveryButtonOfTheGamepadIsBoundSilently) {
    for (std::int32_t row = 0; row < 5; ++row) {
        for (int button = 0; button < 26; ++button) {
            GameState state = Capturing(CaptureKindGamepad);
            state.CaptureGamepadRow = row;
            GameState expected = state;
            EXPECT_TRUE(CaptureButton(state, Devices, PadPress(Pad->Id, button)));
            expected.PendingGamepad.at(static_cast<std::size_t>(row)) = button;
            ExpectIdle(expected);
            EXPECT_TRUE(SameState(state, expected)) << row << " button " << button;
        }
    }
}

TEST_F(CaptureButtons, AGamepadButtonOf26OrMoreEndsTheCaptureAndLeavesTheTable) {
    for (const int button : {26, 27, 255}) {
        GameState state = Capturing(CaptureKindGamepad);
        GameState expected = state;
        EXPECT_TRUE(CaptureButton(state, Devices, PadPress(Pad->Id, button))) << button;
        ExpectIdle(expected);
        EXPECT_TRUE(SameState(state, expected)) << button;
    }
}

TEST_F(CaptureButtons, EveryButtonOfTheJoystickIsBoundSilently) {
    for (std::int32_t row = 0; row < 5; ++row) {
        for (int button = 0; button < 256; ++button) {
            GameState state = Capturing(CaptureKindJoystick);
            state.CaptureJoystickRow = row;
            GameState expected = state;
            EXPECT_TRUE(CaptureButton(state, Devices, StickPress(Stick->Id, button)));
            expected.PendingJoystick.at(static_cast<std::size_t>(row)) = button;
            ExpectIdle(expected);
            EXPECT_TRUE(SameState(state, expected)) << row << " button " << button;
        }
    }
}

TEST_F(CaptureButtons, APressOfTheOtherKindIsLetThrough) {
    ExpectLetThrough(Capturing(CaptureKindGamepad), StickPress(Stick->Id, 0));
    ExpectLetThrough(Capturing(CaptureKindJoystick), PadPress(Pad->Id, 0));
    ExpectBothLetThrough(Capturing(CaptureKindKeyboard));
    ExpectBothLetThrough(Capturing(CaptureKindNone));
}

TEST_F(CaptureButtons, WithoutACaptureAPressIsLetThrough) {
    for (const enum CaptureKind kind : AllKinds) {
        GameState state = Capturing(kind);
        state.CaptureActive = false;
        ExpectBothLetThrough(state);
    }
}

TEST_F(CaptureButtons, OnAnotherScreenAPressIsLetThrough) {
    for (const enum CaptureKind kind : AllKinds) {
        for (const enum Screen screen :
            {ScreenMainMenu, ScreenHelp, ScreenPlaying, ScreenPaused, ScreenCredits, ScreenGameOver}) {
            GameState state = Capturing(kind);
            state.Screen = screen;
            ExpectBothLetThrough(state);
        }
    }
}

TEST_F(CaptureButtons, ThePageOfTheOptionsHasNoSay) {
    for (const enum OptionsPage page :
        {OptionsPageMain, OptionsPageControls, OptionsPageGraphics, OptionsPageAudio}) {
        GameState state = Capturing(CaptureKindGamepad);
        state.OptionsPage = page;
        EXPECT_TRUE(CaptureButton(state, Devices, PadPress(Pad->Id, 7))) << page;
        EXPECT_EQ(state.PendingGamepad[2], 7) << page;
        EXPECT_FALSE(state.CaptureActive) << page;
    }
}

TEST_F(CaptureButtons, OnlyTheOpenDevicesAreHeard) {
    const VirtualDevice otherPad(GamepadShape);
    const VirtualDevice otherStick(JoystickShape);
    for (const SDL_JoystickID id : {otherPad.Id, otherStick.Id, SDL_JoystickID{0}, SDL_JoystickID{99999}}) {
        ExpectLetThrough(Capturing(CaptureKindGamepad), PadPress(id, 4));
        ExpectLetThrough(Capturing(CaptureKindJoystick), StickPress(id, 4));
    }
    ExpectLetThrough(Capturing(CaptureKindGamepad), PadPress(Stick->Id, 4));
    ExpectLetThrough(Capturing(CaptureKindJoystick), StickPress(Pad->Id, 4));
    CloseInputDevices(Devices);
    for (const SDL_JoystickID id : {Pad->Id, Stick->Id, SDL_JoystickID{0}}) {
        ExpectLetThrough(Capturing(CaptureKindGamepad), PadPress(id, 4));
        ExpectLetThrough(Capturing(CaptureKindJoystick), StickPress(id, 4));
    }
}

TEST_F(CaptureButtons, NothingButAButtonThatGoesDownIsTaken) {
    for (const SDL_EventType type : {SDL_EVENT_GAMEPAD_BUTTON_UP, SDL_EVENT_JOYSTICK_BUTTON_UP,
             SDL_EVENT_GAMEPAD_AXIS_MOTION, SDL_EVENT_JOYSTICK_AXIS_MOTION, SDL_EVENT_JOYSTICK_HAT_MOTION,
             SDL_EVENT_KEY_DOWN, SDL_EVENT_GAMEPAD_ADDED, SDL_EVENT_JOYSTICK_REMOVED}) {
        for (const enum CaptureKind kind : AllKinds) {
            SDL_Event padEvent = PadPress(Pad->Id, 4);
            SDL_Event stickEvent = StickPress(Stick->Id, 4);
            padEvent.type = type;
            stickEvent.type = type;
            ExpectLetThrough(Capturing(kind), padEvent);
            ExpectLetThrough(Capturing(kind), stickEvent);
        }
    }
}

TEST_F(CaptureButtons, GoToTheAppliedTablesWhileThePageIsNotInEdit) {
    GameState pad = Capturing(CaptureKindGamepad);
    pad.PendingControlsValid = false;
    GameState expected = pad;
    EXPECT_TRUE(CaptureButton(pad, Devices, PadPress(Pad->Id, 25)));
    expected.GamepadBindings[2] = 25;
    ExpectIdle(expected);
    EXPECT_TRUE(SameState(pad, expected));

    GameState stick = Capturing(CaptureKindJoystick);
    stick.PendingControlsValid = false;
    expected = stick;
    EXPECT_TRUE(CaptureButton(stick, Devices, StickPress(Stick->Id, 25)));
    expected.JoystickBindings[3] = 25;
    ExpectIdle(expected);
    EXPECT_TRUE(SameState(stick, expected));
}

TEST_F(CaptureButtons, AButtonMayStandInSeveralRows) {
    GameState state = Capturing(CaptureKindGamepad);
    EXPECT_TRUE(CaptureButton(state, Devices, PadPress(Pad->Id, 15))); // what row 0 has
    EXPECT_EQ(state.PendingGamepad, (BindingTable{15, 16, 15, 18, 19}));
}

} // namespace
