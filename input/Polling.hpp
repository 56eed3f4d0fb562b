#pragma once

#include "input/Devices.hpp"
#include "sim/StepInput.hpp"

#include <cstdint>

struct GameState;

/// Whether a key is down. False without an array and for a scancode outside 1 to 511, which is how an unbound
/// key reads.
bool ReadKey(const bool *KeyboardState, std::int32_t Scancode);

/// What is held in this frame on keyboard, gamepad and joystick together. KeyboardState is SDL's array.
StepInput PollGameplayInput(const GameState &State, const bool *KeyboardState, const InputDevices &Devices);
