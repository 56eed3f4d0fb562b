#pragma once

#include "input/Devices.hpp"

#include <cstdint>

struct GameState;

/// What a press gives that means nothing; no key has this scancode.
inline constexpr std::int32_t NoKey = 0;

/// Turns the positions of an axis into single presses: the scancode of a side when Value reaches that side,
/// otherwise NoKey. The latches remember which side has pressed: the press of a side sets its own and clears
/// the other one, and near the centre both are cleared.
std::int32_t AxisToMenuKey(std::int16_t Value, bool &NegativeLatch, bool &PositiveLatch,
    std::int32_t NegativeScancode, std::int32_t PositiveScancode);

/// What a press on the open gamepad or joystick means, as a scancode of the keyboard; NoKey if it means
/// nothing on this screen, and for every other event. Off ScreenPlaying a stick's motion changes the latches
/// of its device.
std::int32_t TranslatePress(const GameState &State, InputDevices &Devices, const SDL_Event &Event);
