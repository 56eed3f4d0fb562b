#pragma once

#include "input/Devices.hpp"
#include "state/GameState.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <ostream>
#include <vector>

/// All that the Controls page and its captures may touch, to compare two records by.
struct ControlsRecord {
    enum Screen Screen;
    enum OptionsPage Page;
    std::int32_t Selection;
    bool CaptureActive;
    std::int32_t CaptureKind;
    std::array<std::int32_t, 3> CaptureRows; ///< keyboard, gamepad, joystick
    std::array<BindingTable, 3> Applied;
    std::int32_t AppliedDevice;
    std::array<BindingTable, 3> Pending;
    std::int32_t PendingDevice;
    bool PendingValid;
    bool OptionsDirty;
    std::vector<SfxId> Sounds;

    bool operator==(const ControlsRecord &) const = default;
};

inline ControlsRecord ControlsOf(const GameState &State) {
    const auto first = State.PendingSounds.Ids.begin();
    return {State.Screen, State.OptionsPage, State.ControlsSelection, State.CaptureActive, State.CaptureKind,
        {State.CaptureKeyboardRow, State.CaptureGamepadRow, State.CaptureJoystickRow},
        {State.KeyboardBindings, State.GamepadBindings, State.JoystickBindings}, State.ControlsDevice,
        {State.PendingKeyboard, State.PendingGamepad, State.PendingJoystick}, State.PendingControlsDevice,
        State.PendingControlsValid, State.OptionsDirty,
        {first, first + static_cast<std::ptrdiff_t>(State.PendingSounds.Count)}};
}

/// Makes a failed comparison readable.
inline void PrintTo(const ControlsRecord &Record, std::ostream *Out) {
    *Out << "screen " << Record.Screen << ", page " << Record.Page << ", row " << Record.Selection
         << ", capture " << Record.CaptureActive << " of kind " << Record.CaptureKind << " for rows "
         << ::testing::PrintToString(Record.CaptureRows) << "\napplied "
         << ::testing::PrintToString(Record.Applied) << " device " << Record.AppliedDevice << "\npending "
         << ::testing::PrintToString(Record.Pending) << " device " << Record.PendingDevice << " valid "
         << Record.PendingValid << "\ndirty " << Record.OptionsDirty << ", sounds " << Record.Sounds.size();
}

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
