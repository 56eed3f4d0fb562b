#pragma once

#include "input/Presses.hpp"
#include "state/GameState.hpp"
#include "tests/input/InputTest.hpp"

#include <array>
#include <optional>

inline constexpr std::array<enum Screen, 6> MenuScreens{
    ScreenMainMenu, ScreenOptions, ScreenHelp, ScreenPaused, ScreenCredits, ScreenGameOver};

/// A test with an open gamepad and an open joystick, and events of theirs made by hand. What each gives is a
/// scancode, 0 for none.
class PressTest : public InputTest {
protected:
    void SetUp() override {
        InputTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        Pad.emplace(GamepadShape);
        Stick.emplace(JoystickShape);
        OpenFirstInputDevices(Devices);
        ASSERT_EQ(Devices.GamepadId, Pad->Id);
        ASSERT_EQ(Devices.JoystickId, Stick->Id);
    }

    void TearDown() override {
        InputTest::TearDown();
        Pad.reset();
        Stick.reset();
    }

    std::int32_t GamepadButton(std::int32_t Button, std::optional<SDL_JoystickID> Which = {}) {
        SDL_Event event{};
        event.type = SDL_EVENT_GAMEPAD_BUTTON_DOWN;
        event.gbutton.which = Which.value_or(Devices.GamepadId);
        event.gbutton.button = static_cast<Uint8>(Button);
        event.gbutton.down = true;
        return TranslatePress(State, Devices, event);
    }

    std::int32_t GamepadAxis(std::int32_t Axis, Sint16 Value, std::optional<SDL_JoystickID> Which = {}) {
        SDL_Event event{};
        event.type = SDL_EVENT_GAMEPAD_AXIS_MOTION;
        event.gaxis.which = Which.value_or(Devices.GamepadId);
        event.gaxis.axis = static_cast<Uint8>(Axis);
        event.gaxis.value = Value;
        return TranslatePress(State, Devices, event);
    }

    std::int32_t JoystickButton(std::int32_t Button, std::optional<SDL_JoystickID> Which = {}) {
        SDL_Event event{};
        event.type = SDL_EVENT_JOYSTICK_BUTTON_DOWN;
        event.jbutton.which = Which.value_or(Devices.JoystickId);
        event.jbutton.button = static_cast<Uint8>(Button);
        event.jbutton.down = true;
        return TranslatePress(State, Devices, event);
    }

    std::int32_t JoystickAxis(std::int32_t Axis, Sint16 Value, std::optional<SDL_JoystickID> Which = {}) {
        SDL_Event event{};
        event.type = SDL_EVENT_JOYSTICK_AXIS_MOTION;
        event.jaxis.which = Which.value_or(Devices.JoystickId);
        event.jaxis.axis = static_cast<Uint8>(Axis);
        event.jaxis.value = Value;
        return TranslatePress(State, Devices, event);
    }

    std::int32_t Hat(std::int32_t Index, std::int32_t Value, std::optional<SDL_JoystickID> Which = {}) {
        SDL_Event event{};
        event.type = SDL_EVENT_JOYSTICK_HAT_MOTION;
        event.jhat.which = Which.value_or(Devices.JoystickId);
        event.jhat.hat = static_cast<Uint8>(Index);
        event.jhat.value = static_cast<Uint8>(Value);
        return TranslatePress(State, Devices, event);
    }

    /// The latches as letters, gamepad then joystick, each in the order left, right, up, down; a dot for one
    /// that is not set.
    std::string Latches() const {
        std::string text = "LRUD lrud";
        const std::array<bool, 9> set{Devices.GamepadLeftLatch, Devices.GamepadRightLatch,
            Devices.GamepadUpLatch, Devices.GamepadDownLatch, true, Devices.JoystickLeftLatch,
            Devices.JoystickRightLatch, Devices.JoystickUpLatch, Devices.JoystickDownLatch};
        for (std::size_t i = 0; i < set.size(); ++i) {
            text[i] = set[i] ? text[i] : '.';
        }
        return text;
    }

    void SetAllLatches() {
        Devices.GamepadLeftLatch = Devices.GamepadRightLatch = true;
        Devices.GamepadUpLatch = Devices.GamepadDownLatch = true;
        Devices.JoystickLeftLatch = Devices.JoystickRightLatch = true;
        Devices.JoystickUpLatch = Devices.JoystickDownLatch = true;
    }

    GameState State;
    std::optional<VirtualDevice> Pad;
    std::optional<VirtualDevice> Stick;
};
