#pragma once

#include "input/Devices.hpp"
#include "state/Bindings.hpp"

#include <cstdint>

struct GameState;

// A row of the Controls page is bound by a capture: the page waits for the next press of one kind of device.
// NOT-BUGS: The same key can be bound to several actions

/// Store a value in a row of a table, 0 to 4. Another row, a scancode outside 1 to 511 and a gamepad button
/// outside 0 to 25 leave the table as it is; a joystick button is stored whatever it is.
void SetKeyboardBinding(BindingTable &Table, std::int32_t Row, std::int32_t Scancode);
void SetGamepadBinding(BindingTable &Table, std::int32_t Row, std::int32_t Button);
void SetJoystickBinding(BindingTable &Table, std::int32_t Row, std::int32_t Button);

/// Unbind a row of a table, 0 to 4. Another row leaves the table as it is.
void ClearKeyboardBinding(BindingTable &Table, std::int32_t Row);
void ClearGamepadBinding(BindingTable &Table, std::int32_t Row);
void ClearJoystickBinding(BindingTable &Table, std::int32_t Row);

/// Begins a capture for a row (0 to 4) of the table of PendingControlsDevice. It waits without a time-out.
void BeginCapture(GameState &State, std::int32_t Row);

/// Ends a capture, if one runs, and changes no binding.
void EndCapture(GameState &State);

/// What a key means to a running capture: Escape ends it, Delete and Backspace unbind the row with the sound
/// of confirming, any other key is bound if the capture waits for a key, and does nothing if it waits for a
/// button. What binds or unbinds ends the capture. The table is the pending one while the page is in edit,
/// otherwise the applied one.
void HandleCaptureKey(GameState &State, std::int32_t Scancode);

/// Binds the button of a press on the open gamepad or joystick if a capture waits for one of that kind, and
/// ends the capture. False for every other event, which is then to be handled as if no capture ran.
bool CaptureButton(GameState &State, const InputDevices &Devices, const SDL_Event &Event);
