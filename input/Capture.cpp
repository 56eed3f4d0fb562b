#include "input/Capture.hpp"

#include "state/GameState.hpp"
#include "state/MenuKeys.hpp"

namespace {

void Store(BindingTable &Table, std::int32_t Row, std::int32_t Value) {
    if (Row >= 0 && Row < static_cast<std::int32_t>(Table.size())) {
        Table[static_cast<std::size_t>(Row)] = Value;
    }
}

/// The tables that a capture writes to: the pending ones while the page is in edit.
BindingTable &KeyboardTable(GameState &State) {
    return State.PendingControlsValid ? State.PendingKeyboard : State.KeyboardBindings;
}

BindingTable &GamepadTable(GameState &State) {
    return State.PendingControlsValid ? State.PendingGamepad : State.GamepadBindings;
}

BindingTable &JoystickTable(GameState &State) {
    return State.PendingControlsValid ? State.PendingJoystick : State.JoystickBindings;
}

void ClearRow(GameState &State) {
    if (State.CaptureKind == CaptureKindKeyboard) {
        ClearKeyboardBinding(KeyboardTable(State), State.CaptureKeyboardRow);
    } else if (State.CaptureKind == CaptureKindGamepad) {
        ClearGamepadBinding(GamepadTable(State), State.CaptureGamepadRow);
    } else if (State.CaptureKind == CaptureKindJoystick) {
        ClearJoystickBinding(JoystickTable(State), State.CaptureJoystickRow);
    }
}

bool WaitsFor(const GameState &State, enum CaptureKind Kind) {
    return State.Screen == ScreenOptions && State.CaptureActive && State.CaptureKind == Kind;
}

} // namespace

void SetKeyboardBinding(BindingTable &Table, std::int32_t Row, std::int32_t Scancode) {
    if (IsScancode(Scancode)) {
        Store(Table, Row, Scancode);
    }
}

void SetGamepadBinding(BindingTable &Table, std::int32_t Row, std::int32_t Button) {
    if (IsGamepadButton(Button)) {
        Store(Table, Row, Button);
    }
}

void SetJoystickBinding(BindingTable &Table, std::int32_t Row, std::int32_t Button) {
    Store(Table, Row, Button);
}

void ClearKeyboardBinding(BindingTable &Table, std::int32_t Row) {
    Store(Table, Row, UnboundKey);
}

void ClearGamepadBinding(BindingTable &Table, std::int32_t Row) {
    Store(Table, Row, UnboundButton);
}

void ClearJoystickBinding(BindingTable &Table, std::int32_t Row) {
    Store(Table, Row, UnboundButton);
}

void BeginCapture(GameState &State, std::int32_t Row) {
    State.CaptureActive = true;
    switch (State.PendingControlsDevice) {
    case ControlsDeviceKeyboard:
        State.CaptureKind = CaptureKindKeyboard;
        State.CaptureKeyboardRow = Row;
        break;
    case ControlsDeviceGamepad:
        State.CaptureKind = CaptureKindGamepad;
        State.CaptureGamepadRow = Row;
        break;
    case ControlsDeviceJoystick:
        State.CaptureKind = CaptureKindJoystick;
        State.CaptureJoystickRow = Row;
        break;
    }
}

void EndCapture(GameState &State) {
    State.CaptureActive = false;
    State.CaptureKind = CaptureKindNone;
}

void HandleCaptureKey(GameState &State, std::int32_t Scancode) {
    if (IsKeyEscape(Scancode)) {
        EndCapture(State);
    } else if (IsKeyClear(Scancode)) {
        ClearRow(State);
        PushSound(State, SfxId::UiConfirm);
        EndCapture(State);
    } else if (State.CaptureKind == CaptureKindKeyboard) {
        SetKeyboardBinding(KeyboardTable(State), State.CaptureKeyboardRow, Scancode);
        EndCapture(State);
    }
}

bool CaptureButton(GameState &State, const InputDevices &Devices, const SDL_Event &Event) {
    if (Event.type == SDL_EVENT_GAMEPAD_BUTTON_DOWN && IsOpenGamepad(Devices, Event.gbutton.which) &&
        WaitsFor(State, CaptureKindGamepad)) {
        SetGamepadBinding(GamepadTable(State), State.CaptureGamepadRow, Event.gbutton.button);
    } else if (Event.type == SDL_EVENT_JOYSTICK_BUTTON_DOWN && IsOpenJoystick(Devices, Event.jbutton.which) &&
               WaitsFor(State, CaptureKindJoystick)) {
        SetJoystickBinding(JoystickTable(State), State.CaptureJoystickRow, Event.jbutton.button);
    } else {
        return false;
    }
    EndCapture(State);
    return true;
}
