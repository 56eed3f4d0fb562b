#pragma once

#include <cstdint>
#include <string>

// What the Controls page and the hints call the values of the binding tables. A value outside its range reads
// as unbound.

/// A scancode's name; Value is valid from 1 to 511.
std::string KeyboardBindingLabel(std::int32_t Value);

/// A gamepad button's name; Value is valid from 0 to 25.
std::string GamepadBindingLabel(std::int32_t Value);

/// A joystick button's number; Value is valid from 0.
std::string JoystickBindingLabel(std::int32_t Value);
