#pragma once

#include "app/Events.hpp"
#include "tests/app/ProgramTest.hpp"
#include "tests/app/PushEvents.hpp"
#include "tests/support/VirtualDevice.hpp"

#include <optional>

/// A started program to which a test plugs in devices, heard through SDL's own events. It is skipped where a
/// real device would be heard as well.
class DeviceTest : public RunningTest {
protected:
    void SetUp() override {
        RunningTest::SetUp();
        if (HasRealDevices()) {
            GTEST_SKIP() << "a real pad or joystick is plugged in";
        }
        ForgetEvents();
    }

    void TearDown() override {
        Stop(); // before the devices go
        Pad.reset();
        Stick.reset();
    }

    void PlugInPad() {
        Pad.emplace(GamepadShape);
        DrainEvents(Program);
        ASSERT_EQ(Program.Devices.GamepadId, Pad->Id);
    }

    void PlugInStick() {
        Stick.emplace(JoystickShape);
        DrainEvents(Program);
        ASSERT_EQ(Program.Devices.JoystickId, Stick->Id);
    }

    /// Presses a button and lets go of it, with the events read in between.
    void Tap(VirtualDevice &Device, int Button) {
        Device.SetButton(Button, true);
        DrainEvents(Program);
        Device.SetButton(Button, false);
        DrainEvents(Program);
    }

    std::optional<VirtualDevice> Pad;
    std::optional<VirtualDevice> Stick;
};
