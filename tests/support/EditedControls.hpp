#pragma once

#include "state/GameState.hpp"

/// The page in edit, every table and both devices at values of their own, so that a mix-up is seen.
inline GameState EditedControls() {
    GameState state;
    state.Screen = ScreenOptions;
    state.OptionsPage = OptionsPageControls;
    state.KeyboardBindings = {101, 102, 103, 104, 105};
    state.GamepadBindings = {10, 11, 12, 13, 14};
    state.JoystickBindings = {20, 21, 22, 23, 24};
    state.ControlsDevice = ControlsDeviceJoystick;
    state.PendingKeyboard = {111, 112, 113, 114, 115};
    state.PendingGamepad = {15, 16, 17, 18, 19};
    state.PendingJoystick = {30, 31, 32, 33, 34};
    state.PendingControlsDevice = ControlsDeviceGamepad;
    state.PendingControlsValid = true;
    return state;
}

/// The same with a capture running: row 1 of the keyboard, row 2 of the gamepad or row 3 of the joystick.
inline GameState Capturing(enum CaptureKind Kind) {
    GameState state = EditedControls();
    state.CaptureActive = true;
    state.CaptureKind = Kind;
    state.CaptureKeyboardRow = 1;
    state.CaptureGamepadRow = 2;
    state.CaptureJoystickRow = 3;
    return state;
}

/// Ends a capture in a record that is expected.
inline void ExpectIdle(GameState &Expected) {
    Expected.CaptureActive = false;
    Expected.CaptureKind = CaptureKindNone;
}
