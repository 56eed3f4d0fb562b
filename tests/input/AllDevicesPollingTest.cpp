#include "input/Polling.hpp"
#include "state/GameState.hpp"
#include "tests/input/InputTest.hpp"

#include <array>

namespace {

class AllDevicesPolling : public InputTest {
protected:
    StepInput Poll() const {
        return PollGameplayInput(State, Keys.data(), Devices);
    }

    GameState State;
    std::array<bool, 512> Keys{};
};

TEST_F(AllDevicesPolling, LeftOnTheGamepadAndRightOnTheJoystickAreBothHeld) {
    VirtualDevice pad(GamepadShape);
    VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    pad.SetAxis(SDL_GAMEPAD_AXIS_LEFTX, -11000);
    stick.SetAxis(0, 11000);
    EXPECT_EQ(Poll(), (StepInput{true, true, false, false}));
}

TEST_F(AllDevicesPolling, RightOnTheGamepadAndLeftOnTheJoystickAreBothHeld) {
    VirtualDevice pad(GamepadShape);
    VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    pad.SetButton(SDL_GAMEPAD_BUTTON_DPAD_RIGHT, true);
    stick.SetHat(0, SDL_HAT_LEFT);
    EXPECT_EQ(Poll(), (StepInput{true, true, false, false}));
}

TEST_F(AllDevicesPolling, EachDeviceAddsWhatItHolds) {
    VirtualDevice pad(GamepadShape);
    VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    Keys[80] = true;
    EXPECT_EQ(Poll(), (StepInput{true, false, false, false}));
    pad.SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    EXPECT_EQ(Poll(), (StepInput{true, false, true, false}));
    stick.SetButton(1, true);
    EXPECT_EQ(Poll(), (StepInput{true, false, true, true}));
    stick.SetAxis(0, 32767);
    EXPECT_EQ(Poll(), (StepInput{true, true, true, true}));
}

TEST_F(AllDevicesPolling, WhatOneDeviceHoldsAnotherDoesNotRelease) {
    VirtualDevice pad(GamepadShape);
    VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    Keys[80] = true;
    Keys[224] = true;
    pad.SetAxis(SDL_GAMEPAD_AXIS_LEFTX, -20000);
    pad.SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    stick.SetHat(0, SDL_HAT_LEFT);
    stick.SetButton(0, true);
    Keys[80] = false;
    Keys[224] = false;
    pad.SetAxis(SDL_GAMEPAD_AXIS_LEFTX, 0);
    EXPECT_EQ(Poll(), (StepInput{true, false, true, false}));
    pad.SetButton(SDL_GAMEPAD_BUTTON_SOUTH, false);
    EXPECT_EQ(Poll(), (StepInput{true, false, true, false}));
    stick.SetHat(0, SDL_HAT_CENTERED);
    stick.SetButton(0, false);
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(AllDevicesPolling, WhatTheControlsPageShowsHasNoSayInIt) {
    VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    stick.SetButton(0, true);
    for (const enum ControlsDevice shown :
        {ControlsDeviceKeyboard, ControlsDeviceGamepad, ControlsDeviceJoystick}) {
        State.ControlsDevice = shown;
        EXPECT_TRUE(Poll().Fire);
    }
}

} // namespace
