#pragma once

#include "input/Devices.hpp"
#include "state/Bindings.hpp"

#include <cstdint>

struct GameState;

// A row of the Controls page is bound by a capture: the next press of the right kind of device. No press is
// refused for being bound elsewhere: a value may stand in several rows.

/// Store a value in a row of a table. Rows outside 0 to 4 and values out of range are ignored: scancodes are
/// valid from 1 to 511, gamepad buttons below 26, joystick buttons are not tested.
void SetKeyboardBinding(BindingTable &Table, std::int32_t Row, std::int32_t Scancode);
void SetGamepadBinding(BindingTable &Table, std::int32_t Row, std::int32_t Button);
void SetJoystickBinding(BindingTable &Table, std::int32_t Row, std::int32_t Button);

/// Unbind a row of a table. Rows outside 0 to 4 are ignored.
void ClearKeyboardBinding(BindingTable &Table, std::int32_t Row);
void ClearGamepadBinding(BindingTable &Table, std::int32_t Row);
void ClearJoystickBinding(BindingTable &Table, std::int32_t Row);

/// Waits for a press for a row of the pending device's table. There is no time-out.
void BeginCapture(GameState &State, std::int32_t Row);

/// Ends a capture, if one runs; what is bound by then stays.
void EndCapture(GameState &State);

/// What a key means to a running capture: Escape ends it, Delete and Backspace unbind the row, and any other
/// key is bound if a key is waited for.
void HandleCaptureKey(GameState &State, std::int32_t Scancode);

/// Binds a button of the open gamepad or joystick if a capture waits for one of that kind; true if the press
/// is thereby used up. A press of the other kind is not: it goes on as the key that it means.
bool CaptureButton(GameState &State, const InputDevices &Devices, const SDL_Event &Event);
