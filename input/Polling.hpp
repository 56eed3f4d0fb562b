#pragma once

#include "input/Devices.hpp"
#include "sim/StepInput.hpp"

#include <cstdint>

struct GameState;

// KeyboardState is SDL's array of the keys that are down, by scancode: null, or with 512 entries.

/// Whether a key is down. False without an array and for a scancode outside 1 to 511, so for an unbound row.
bool ReadKey(const bool *KeyboardState, std::int32_t Scancode);

/// What is held in this frame on keyboard, gamepad and joystick together, by the applied bindings.
StepInput PollGameplayInput(const GameState &State, const bool *KeyboardState, const InputDevices &Devices);
