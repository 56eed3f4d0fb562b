#pragma once

#include "input/Devices.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/VirtualDevice.hpp"

/// A test with SDL up, no real pad in the way, and the game's devices, which are closed at the end.
class InputTest : public SdlTest {
protected:
    void SetUp() override {
        if (HasRealDevices()) {
            GTEST_SKIP() << "a real pad or joystick is plugged in";
        }
    }

    void TearDown() override {
        CloseInputDevices(Devices);
    }

    InputDevices Devices;
};
