#include "tests/app/ProgramTest.hpp"
#include "tests/app/PushEvents.hpp"
#include "tests/support/VirtualDevice.hpp"

namespace {

/// Devices that come and go while frames run, through SDL's own event queue.
class HotPlugFrames : public PlayingTest {
protected:
    void SetUp() override {
        PlayingTest::SetUp();
        if (HasRealDevices()) {
            GTEST_SKIP() << "a real pad or joystick is plugged in";
        }
    }
};

TEST_F(HotPlugFrames, APluggedInGamepadSteersInTheNextFrame) {
    RunFrame(Program);
    ASSERT_EQ(Program.Devices.Gamepad, nullptr);
    VirtualDevice pad(GamepadShape);
    RunFrame(Program);
    EXPECT_EQ(Program.Devices.GamepadId, pad.Id);
    pad.SetButton(SDL_GAMEPAD_BUTTON_DPAD_RIGHT, true);
    RunFrame(Program);
    EXPECT_EQ(State.PlayerLane, 5);
    Stop();
}

TEST_F(HotPlugFrames, AnUnpluggedGamepadPausesNothing) {
    VirtualDevice pad(GamepadShape);
    RunFrame(Program);
    ASSERT_EQ(Program.Devices.GamepadId, pad.Id);
    pad.Unplug();
    LetTimePass(1000);
    const float before = State.GameTime;
    RunFrame(Program);
    EXPECT_EQ(Program.Devices.Gamepad, nullptr);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_FLOAT_EQ(State.GameTime, before + 0.033F);
}

TEST_F(HotPlugFrames, TheSecondGamepadTakesOver) {
    VirtualDevice first(GamepadShape);
    VirtualDevice second(GamepadShape);
    RunFrame(Program);
    ASSERT_EQ(Program.Devices.GamepadId, first.Id);
    second.SetAxis(SDL_GAMEPAD_AXIS_LEFTX, -32768);
    RunFrame(Program);
    EXPECT_EQ(State.PlayerLane, 4); // unheard
    first.Unplug();
    RunFrame(Program);
    EXPECT_EQ(Program.Devices.GamepadId, second.Id);
    EXPECT_EQ(State.PlayerLane, 3);
    Stop();
}

TEST_F(HotPlugFrames, AnUnpluggedJoystickLeavesTheGamepad) {
    VirtualDevice pad(GamepadShape);
    VirtualDevice stick(JoystickShape);
    RunFrame(Program);
    ASSERT_EQ(Program.Devices.JoystickId, stick.Id);
    stick.Unplug();
    RunFrame(Program);
    EXPECT_EQ(Program.Devices.Joystick, nullptr);
    EXPECT_EQ(Program.Devices.GamepadId, pad.Id);
    Stop();
}

TEST_F(HotPlugFrames, ADeviceThatDoesNotOpenIsSilent) {
    const VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    const LogCatcher log;
    Watch.Forget();
    Watch.OpenGamepad.Refuse();
    Watch.OpenJoystick.Refuse();
    RunFrame(Program);
    EXPECT_EQ(Program.Devices.Gamepad, nullptr);
    EXPECT_EQ(Program.Devices.Joystick, nullptr);
    EXPECT_EQ(log.Lines, std::vector<std::string>{});
    EXPECT_GE(Watch.OpenGamepad.Count(), 1);
    EXPECT_GE(Watch.OpenJoystick.Count(), 1);
    Stop();
}

TEST_F(HotPlugFrames, EventsBehindAQuitRequestAreNotActedOn) {
    RunFrame(Program);
    PushEvent(SDL_EVENT_QUIT);
    const VirtualDevice pad(GamepadShape);
    RunFrame(Program);
    EXPECT_FALSE(State.Running);
    EXPECT_EQ(Program.Devices.Gamepad, nullptr);
    Stop();
}

} // namespace
