#include "tests/input/InputTest.hpp"
#include "tests/support/watch/SdlWatch.hpp"

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
    const SdlWatch watch;
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.GamepadId, pad.Id);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(watch.Count("SDL_OpenJoystick"), 0);
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
    const SdlWatch watch;
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(
        watch.NamesAmong({"SDL_GetGamepads", "SDL_OpenGamepad", "SDL_GetJoysticks", "SDL_OpenJoystick"}),
        (std::vector<std::string>{
            "SDL_GetGamepads", "SDL_OpenGamepad", "SDL_GetJoysticks", "SDL_OpenJoystick"}));
}

TEST_F(OpenDevices, AFilledSlotIsLeftAlone) {
    const VirtualDevice pad(GamepadShape);
    OpenFirstInputDevices(Devices);
    SDL_Gamepad *const opened = Devices.Gamepad;
    const VirtualDevice stick(JoystickShape);
    const SdlWatch watch;
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.Gamepad, opened);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
    EXPECT_EQ(watch.Count("SDL_OpenGamepad"), 0);
}

TEST_F(OpenDevices, AGamepadThatDoesNotOpenIsSkippedWithoutAWord) {
    const VirtualDevice broken(GamepadShape);
    const VirtualDevice working(GamepadShape);
    const LogCatcher log;
    SdlWatch watch;
    watch.Refuse("SDL_OpenGamepad", 1);
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.GamepadId, working.Id);
    EXPECT_EQ(watch.CallsOf("SDL_OpenGamepad"),
        (std::vector<SdlCall>{{"SDL_OpenGamepad", {broken.Id}}, {"SDL_OpenGamepad", {working.Id}}}));
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(OpenDevices, AJoystickThatDoesNotOpenIsSkippedWithoutAWord) {
    const VirtualDevice broken(JoystickShape);
    const VirtualDevice working(JoystickShape);
    const LogCatcher log;
    SdlWatch watch;
    watch.Refuse("SDL_OpenJoystick", 1);
    OpenFirstInputDevices(Devices);
    EXPECT_EQ(Devices.JoystickId, working.Id);
    EXPECT_EQ(watch.CallsOf("SDL_OpenJoystick"),
        (std::vector<SdlCall>{{"SDL_OpenJoystick", {broken.Id}}, {"SDL_OpenJoystick", {working.Id}}}));
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(OpenDevices, WhenNoneOpensTheSlotsStayEmptyWithoutAWord) {
    const VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    const LogCatcher log;
    SdlWatch watch;
    watch.Refuse("SDL_OpenGamepad");
    watch.Refuse("SDL_OpenJoystick");
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
    SdlWatch watch;
    watch.Refuse("SDL_GetGamepads");
    watch.Refuse("SDL_GetJoysticks");
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
    SdlWatch watch;
    watch.Refuse("SDL_OpenJoystick");
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
    const SdlWatch watch;
    CloseInputDevices(Devices);
    EXPECT_EQ(watch.NamesAmong({"SDL_CloseGamepad", "SDL_CloseJoystick"}),
        (std::vector<std::string>{"SDL_CloseGamepad", "SDL_CloseJoystick"}));
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.Joystick, nullptr);
}

TEST_F(OpenDevices, ClosingEmptySlotsClosesNothing) {
    const SdlWatch watch;
    CloseInputDevices(Devices);
    EXPECT_EQ(watch.Count("SDL_CloseGamepad"), 0);
    EXPECT_EQ(watch.Count("SDL_CloseJoystick"), 0);
}

} // namespace
