#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Rows of the keyboard table: what can be rebound on the keyboard.
enum class KeyboardAction : std::int32_t {
    MoveLeft = 0,
    MoveRight = 1,
    Fire = 2,
    Bomb = 3,
    Heal = 4,
};

/// Rows of the gamepad and the joystick table. Steering is fixed on these devices, confirm and back on the
/// keyboard, so the two kinds of table differ.
enum class PadAction : std::int32_t {
    Fire = 0,
    Bomb = 1,
    Heal = 2,
    Confirm = 3,
    Back = 4,
};

/// Which table the Controls page shows.
/// NOT-BUGS: DEVICE chooses what the page shows, not what the game listens to
enum ControlsDevice : std::int32_t {
    ControlsDeviceKeyboard = 0,
    ControlsDeviceGamepad = 1,
    ControlsDeviceJoystick = 2,
};

/// The device whose next press a row of the Controls page waits for.
enum CaptureKind : std::int32_t {
    CaptureKindNone = 0,
    CaptureKindKeyboard = 1,
    CaptureKindGamepad = 2,
    CaptureKindJoystick = 3,
};

/// The values that an SDL scancode and an SDL gamepad button of a table may have; the buttons begin at 0.
inline constexpr std::int32_t FirstScancode = 1;
inline constexpr std::int32_t LastScancode = 511;
inline constexpr std::int32_t LastGamepadButton = 25;

/// What stands in a row that nothing is bound to.
inline constexpr std::int32_t UnboundKey = 0;
inline constexpr std::int32_t UnboundButton = -1;

/// One value for each row of a table: a scancode from FirstScancode to LastScancode, a gamepad button from 0
/// to LastGamepadButton, or a joystick button from 0. Any other value is unbound.
using BindingTable = std::array<std::int32_t, 5>;

/// What a row of a table is bound to.
constexpr std::int32_t BindingOf(const BindingTable &Table, KeyboardAction Action) {
    return Table[static_cast<std::size_t>(Action)];
}

constexpr std::int32_t BindingOf(const BindingTable &Table, PadAction Action) {
    return Table[static_cast<std::size_t>(Action)];
}

/// The arrow keys left and right, left control, X, space bar (SDL scancodes).
inline constexpr BindingTable DefaultKeyboardBindings{80, 79, 224, 27, 44};

/// South, west, north, south, east (SDL gamepad buttons).
/// NOT-BUGS: Fire and confirm share a button
inline constexpr BindingTable DefaultGamepadBindings{0, 2, 3, 0, 1};

/// Joystick button indices; fire and confirm share one here too.
inline constexpr BindingTable DefaultJoystickBindings{0, 1, 2, 0, 3};

/// Whether a value stands for a key of the keyboard.
constexpr bool IsScancode(std::int32_t Value) {
    return Value >= FirstScancode && Value <= LastScancode;
}

/// Whether a value stands for a button of a gamepad.
constexpr bool IsGamepadButton(std::int32_t Value) {
    return Value >= 0 && Value <= LastGamepadButton;
}
