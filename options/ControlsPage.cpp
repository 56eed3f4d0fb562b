#include "options/ControlsPage.hpp"

#include "input/Capture.hpp"
#include "state/GameState.hpp"
#include "state/MenuKeys.hpp"
#include "state/MenuRows.hpp"

namespace {

constexpr std::int32_t DeviceCount = 3;

/// Shows another device's table, also where no such device is open.
void CycleDevice(GameState &State, std::int32_t Direction) {
    State.PendingControlsDevice =
        static_cast<enum ControlsDevice>(StepRound(State.PendingControlsDevice, Direction, DeviceCount));
}

void UseDefaults(GameState &State) {
    State.PendingKeyboard = DefaultKeyboardBindings;
    State.PendingGamepad = DefaultGamepadBindings;
    State.PendingJoystick = DefaultJoystickBindings;
    State.PendingControlsDevice = ControlsDeviceKeyboard;
}

void Apply(GameState &State) {
    if (ControlsEditDirty(State)) {
        State.KeyboardBindings = State.PendingKeyboard;
        State.GamepadBindings = State.PendingGamepad;
        State.JoystickBindings = State.PendingJoystick;
        State.ControlsDevice = State.PendingControlsDevice;
        State.OptionsDirty = true;
    }
    BeginControlsEdit(State);
}

/// NOT-BUGS: A page that is left drops what was not applied
void Leave(GameState &State) {
    if (ControlsEditDirty(State)) {
        BeginControlsEdit(State);
    }
    State.PendingControlsValid = false;
    State.OptionsPage = OptionsPageMain;
}

void Activate(GameState &State) {
    const std::int32_t selection = State.ControlsSelection;
    switch (static_cast<ControlsRow>(selection)) {
    case ControlsRow::Device:
        break;
    case ControlsRow::DefaultSettings:
        UseDefaults(State);
        break;
    case ControlsRow::Apply:
        Apply(State);
        break;
    case ControlsRow::Revert:
        BeginControlsEdit(State);
        break;
    case ControlsRow::Back:
        Leave(State);
        break;
    default: // a row of the table
        BeginCapture(State, selection - static_cast<std::int32_t>(ControlsRow::FirstBinding));
        break;
    }
}

} // namespace

void BeginControlsEdit(GameState &State) {
    State.PendingKeyboard = State.KeyboardBindings;
    State.PendingGamepad = State.GamepadBindings;
    State.PendingJoystick = State.JoystickBindings;
    State.PendingControlsDevice = State.ControlsDevice;
    State.PendingControlsValid = true;
    EndCapture(State);
}

bool ControlsEditDirty(const GameState &State) {
    return State.PendingControlsValid && (State.PendingKeyboard != State.KeyboardBindings ||
                                             State.PendingGamepad != State.GamepadBindings ||
                                             State.PendingJoystick != State.JoystickBindings ||
                                             State.PendingControlsDevice != State.ControlsDevice);
}

void HandleControlsPageKey(GameState &State, std::int32_t Scancode) {
    if (State.CaptureActive) {
        HandleCaptureKey(State, Scancode);
        return;
    }
    if (!State.PendingControlsValid) {
        BeginControlsEdit(State);
    }
    const bool onDevice = State.ControlsSelection == static_cast<std::int32_t>(ControlsRow::Device);
    if (IsKeyLeft(Scancode) && onDevice) {
        CycleDevice(State, -1);
    } else if (IsKeyRight(Scancode) && onDevice) {
        CycleDevice(State, 1);
    } else if (IsKeyActivate(Scancode)) {
        Activate(State);
    } else if (IsKeyEscape(Scancode)) {
        Leave(State);
    } else {
        MoveSelection(State.ControlsSelection, ControlsRowCount, Scancode);
    }
}
