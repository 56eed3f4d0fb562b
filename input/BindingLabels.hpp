#pragma once

#include <cstdint>
#include <string>

// What the Controls page and the hints call the values of the binding tables, in UTF-8 and in capitals. A
// value outside its range gives "UNBOUND", and words that are not SDL's are those of the language in force.

/// SDL's name of a scancode, or "SCANCODE" and the number where it has none; Value is valid from 1 to 511.
std::string KeyboardBindingLabel(std::int32_t Value);

/// SDL's name of a gamepad button, or "BUTTON" and the number where it has none; Value is valid from 0 to 25.
std::string GamepadBindingLabel(std::int32_t Value);

/// "BUTTON" and the number of a joystick button; Value is valid from 0.
std::string JoystickBindingLabel(std::int32_t Value);
