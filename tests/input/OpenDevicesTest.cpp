#include "tests/input/InputTest.hpp"

namespace {

using OpenDevices = InputTest;
using TryOpen = InputTest;

TEST_F(OpenDevices, WithoutDevicesBothSlotsStayEmpty) {
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.GamepadId, 0U);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.JoystickId, 0U);
}

TEST_F(OpenDevices, TheFirstOfEachKindIsTaken) {
    const VirtualDevice firstStick(JoystickShape);
    const VirtualDevice firstPad(GamepadShape);
    const VirtualDevice secondStick(JoystickShape);
    const VirtualDevice secondPad(GamepadShape);
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.GamepadId, firstPad.Id);
    EXPECT_EQ(SDL_GetGamepadID(Devices.Gamepad), firstPad.Id);
    EXPECT_EQ(Devices.JoystickId, firstStick.Id);
    EXPECT_EQ(SDL_GetJoystickID(Devices.Joystick), firstStick.Id);
}

TEST_F(OpenDevices, AGamepadIsNeverOpenedAsAJoystickToo) {
    const VirtualDevice pad(GamepadShape);
    Watch.Forget();
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.GamepadId, pad.Id);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Watch.OpenJoystick.Count(), 0);
}

TEST_F(OpenDevices, TheJoystickSlotSkipsTheGamepadsInTheList) {
    const VirtualDevice firstPad(GamepadShape);
    const VirtualDevice secondPad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
}

TEST_F(OpenDevices, AJoystickIsNotAGamepad) {
    const VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
}

TEST_F(OpenDevices, TheGamepadComesBeforeTheJoystick) {
    const VirtualDevice stick(JoystickShape);
    const VirtualDevice pad(GamepadShape);
    Watch.Forget();
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Watch.OrderOf({Watch.GetGamepads, Watch.OpenGamepad, Watch.GetJoysticks, Watch.OpenJoystick}),
        (CallNames{Watch.GetGamepads, Watch.OpenGamepad, Watch.GetJoysticks, Watch.OpenJoystick}));
}

TEST_F(OpenDevices, AFilledSlotIsLeftAlone) {
    const VirtualDevice pad(GamepadShape);
    OpenFirstInputDevices(Devices);
    SDL_Gamepad *const opened = Devices.Gamepad;
    const VirtualDevice stick(JoystickShape);
    Watch.Forget();
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.Gamepad, opened);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
    EXPECT_EQ(Watch.OpenGamepad.Count(), 0);
}

TEST_F(OpenDevices, AGamepadThatDoesNotOpenIsSkippedWithoutAWord) {
    const VirtualDevice broken(GamepadShape);
    const VirtualDevice working(GamepadShape);
    const LogCatcher log;
    Watch.Forget();
    Watch.OpenGamepad.Refuse(1);
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.GamepadId, working.Id);
    EXPECT_EQ(Watch.OpenGamepad.Calls, (std::vector{std::tuple{broken.Id}, std::tuple{working.Id}}));
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(OpenDevices, AJoystickThatDoesNotOpenIsSkippedWithoutAWord) {
    const VirtualDevice broken(JoystickShape);
    const VirtualDevice working(JoystickShape);
    const LogCatcher log;
    Watch.Forget();
    Watch.OpenJoystick.Refuse(1);
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.JoystickId, working.Id);
    EXPECT_EQ(Watch.OpenJoystick.Calls, (std::vector{std::tuple{broken.Id}, std::tuple{working.Id}}));
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(OpenDevices, WhenNoneOpensTheSlotsStayEmptyWithoutAWord) {
    const VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    const LogCatcher log;
    Watch.OpenGamepad.Refuse();
    Watch.OpenJoystick.Refuse();
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.GamepadId, 0U);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.JoystickId, 0U);
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(OpenDevices, MissingListsAreLikeEmptyOnes) {
    const VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    const LogCatcher log;
    Watch.GetGamepads.Refuse();
    Watch.GetJoysticks.Refuse();
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(TryOpen, TakesAJoystickIntoTheEmptySlot) {
    const VirtualDevice stick(JoystickShape);
    EXPECT_TRUE(TryOpenJoystick(Devices, stick.Id));
    EXPECT_NE(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
}

TEST_F(TryOpen, IsTrueForAnyIdOnceTheSlotIsOccupied) {
    const VirtualDevice stick(JoystickShape);
    const VirtualDevice other(JoystickShape);
    const VirtualDevice pad(GamepadShape);
    ASSERT_TRUE(TryOpenJoystick(Devices, stick.Id));
    SDL_Joystick *const opened = Devices.Joystick;
    EXPECT_TRUE(TryOpenJoystick(Devices, other.Id));
    EXPECT_TRUE(TryOpenJoystick(Devices, pad.Id));
    EXPECT_TRUE(TryOpenJoystick(Devices, 99999));
    EXPECT_EQ(Devices.Joystick, opened);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
}

TEST_F(TryOpen, IsFalseForAGamepad) {
    const VirtualDevice pad(GamepadShape);
    EXPECT_FALSE(TryOpenJoystick(Devices, pad.Id));
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.JoystickId, 0U);
}

TEST_F(TryOpen, IsFalseForADeviceThatDoesNotOpen) {
    const VirtualDevice stick(JoystickShape);
    Watch.OpenJoystick.Refuse();
    EXPECT_FALSE(TryOpenJoystick(Devices, stick.Id));
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.JoystickId, 0U);
}

TEST_F(TryOpen, IsFalseForADeviceThatIsNotThere) {
    EXPECT_FALSE(TryOpenJoystick(Devices, 99999));
    EXPECT_EQ(Devices.Joystick, nullptr);
}

TEST_F(OpenDevices, AreClosedGamepadFirst) {
    const VirtualDevice stick(JoystickShape);
    const VirtualDevice pad(GamepadShape);
    OpenFirstInputDevices(Devices);
    Watch.Forget();
    CloseInputDevices(Devices);
    EXPECT_EQ(Watch.OrderOf({Watch.CloseGamepad, Watch.CloseJoystick}),
        (CallNames{Watch.CloseGamepad, Watch.CloseJoystick}));
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.Joystick, nullptr);
}

TEST_F(OpenDevices, ClosingEmptySlotsClosesNothing) {
    Watch.Forget();
    CloseInputDevices(Devices);
    EXPECT_EQ(Watch.CloseGamepad.Count(), 0);
    EXPECT_EQ(Watch.CloseJoystick.Count(), 0);
}

} // namespace
