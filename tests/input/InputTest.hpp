#pragma once

#include "input/Devices.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/VirtualDevice.hpp"
#include "tests/support/watch/SdlWatch.hpp"

/// A test with SDL up and watched, no real pad in the way, and the game's devices, which are closed at the
/// end.
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

    SdlWatch Watch;
    InputDevices Devices;
};
