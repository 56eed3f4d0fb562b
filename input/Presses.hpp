#pragma once

#include "input/Devices.hpp"

#include <cstdint>

struct GameState;

/// One press for each excursion of a stick: the scancode of the side that Value has reached, or 0. The
/// latches are set by a press and let go near the centre.
std::int32_t AxisToMenuKey(std::int16_t Value, bool &NegativeLatch, bool &PositiveLatch,
    std::int32_t NegativeScancode, std::int32_t PositiveScancode);

/// What a press on the open gamepad or joystick means, as a scancode of the keyboard; 0 if it means nothing
/// on this screen, and for every other event. Sticks move the latches of their device.
std::int32_t TranslatePress(const GameState &State, InputDevices &Devices, const SDL_Event &Event);
