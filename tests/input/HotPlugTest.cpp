#include "tests/input/InputTest.hpp"

namespace {

class HotPlug : public InputTest {
protected:
    void Handle(SDL_EventType Type, SDL_JoystickID Id) {
        SDL_Event event{};
        event.type = Type;
        if (Type == SDL_EVENT_GAMEPAD_ADDED || Type == SDL_EVENT_GAMEPAD_REMOVED) {
            event.gdevice.which = Id;
        } else {
            event.jdevice.which = Id;
        }
        HandleHotPlug(Devices, event);
    }

    /// Hands SDL's own events of a real plugging or unplugging on.
    void HandleQueue() {
        SDL_Event event;
        while (SDL_PollEvent(&event)) {
            HandleHotPlug(Devices, event);
        }
    }

    void SetAllLatches() {
        Devices.GamepadLeftLatch = Devices.GamepadRightLatch = true;
        Devices.GamepadUpLatch = Devices.GamepadDownLatch = true;
        Devices.JoystickLeftLatch = Devices.JoystickRightLatch = true;
        Devices.JoystickUpLatch = Devices.JoystickDownLatch = true;
    }

    void ExpectGamepadLatches(bool Set) const {
        EXPECT_EQ(Devices.GamepadLeftLatch, Set);
        EXPECT_EQ(Devices.GamepadRightLatch, Set);
        EXPECT_EQ(Devices.GamepadUpLatch, Set);
        EXPECT_EQ(Devices.GamepadDownLatch, Set);
    }

    void ExpectJoystickLatches(bool Set) const {
        EXPECT_EQ(Devices.JoystickLeftLatch, Set);
        EXPECT_EQ(Devices.JoystickRightLatch, Set);
        EXPECT_EQ(Devices.JoystickUpLatch, Set);
        EXPECT_EQ(Devices.JoystickDownLatch, Set);
    }
};

TEST_F(HotPlug, AnAddedGamepadIsOpened) {
    const VirtualDevice pad(GamepadShape);
    Handle(SDL_EVENT_GAMEPAD_ADDED, pad.Id);
    EXPECT_NE(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.GamepadId, pad.Id);
}

TEST_F(HotPlug, AnAddedGamepadThatDoesNotOpenIsSilent) {
    const VirtualDevice pad(GamepadShape);
    const LogCatcher log;
    Watch.OpenGamepad.Refuse();
    Handle(SDL_EVENT_GAMEPAD_ADDED, pad.Id);
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.GamepadId, 0U);
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(HotPlug, ASecondGamepadDoesNothing) {
    const VirtualDevice first(GamepadShape);
    Handle(SDL_EVENT_GAMEPAD_ADDED, first.Id);
    SDL_Gamepad *const opened = Devices.Gamepad;
    const VirtualDevice second(GamepadShape);
    Watch.Forget();
    Handle(SDL_EVENT_GAMEPAD_ADDED, second.Id);
    Handle(SDL_EVENT_JOYSTICK_ADDED, second.Id);
    EXPECT_EQ(Devices.Gamepad, opened);
    EXPECT_EQ(Devices.GamepadId, first.Id);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Watch.OpenGamepad.Count(), 0);
}

TEST_F(HotPlug, ARemovedGamepadIsClosedAndItsLatchesClear) {
    const VirtualDevice stick(JoystickShape);
    VirtualDevice pad(GamepadShape);
    OpenFirstInputDevices(Devices);
    SetAllLatches();
    Watch.Forget();
    Watch.OpenGamepad.Refuse(); // the device of this event is still in SDL's list
    Handle(SDL_EVENT_GAMEPAD_REMOVED, pad.Id);
    EXPECT_EQ(Watch.CloseGamepad.Count(), 1);
    EXPECT_EQ(Watch.CloseJoystick.Count(), 0);
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.GamepadId, 0U);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
    ExpectGamepadLatches(false);
    ExpectJoystickLatches(true);
}

TEST_F(HotPlug, TheRemovalOfAnotherGamepadIsIgnored) {
    const VirtualDevice first(GamepadShape);
    const VirtualDevice second(GamepadShape);
    OpenFirstInputDevices(Devices);
    SetAllLatches();
    Watch.Forget();
    Handle(SDL_EVENT_GAMEPAD_REMOVED, second.Id);
    EXPECT_EQ(Devices.GamepadId, first.Id);
    EXPECT_EQ(Watch.CloseGamepad.Count(), 0);
    EXPECT_EQ(Watch.GetGamepads.Count(), 0);
    EXPECT_EQ(Watch.GetJoysticks.Count(), 0);
    ExpectGamepadLatches(true);
}

TEST_F(HotPlug, AGamepadRemovalWithAnEmptySlotIsIgnored) {
    Watch.Forget();
    Handle(SDL_EVENT_GAMEPAD_REMOVED, 0);
    EXPECT_EQ(Watch.CloseGamepad.Count(), 0);
    EXPECT_EQ(Watch.GetGamepads.Count(), 0);
}

TEST_F(HotPlug, AnAddedJoystickIsOpened) {
    const VirtualDevice stick(JoystickShape);
    Handle(SDL_EVENT_JOYSTICK_ADDED, stick.Id);
    EXPECT_NE(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
}

TEST_F(HotPlug, AnAddedJoystickThatDoesNotOpenIsSilent) {
    const VirtualDevice stick(JoystickShape);
    const LogCatcher log;
    Watch.OpenJoystick.Refuse();
    Handle(SDL_EVENT_JOYSTICK_ADDED, stick.Id);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(HotPlug, TheJoystickEventOfAGamepadOpensNoJoystick) {
    const VirtualDevice pad(GamepadShape);
    Watch.Forget();
    Handle(SDL_EVENT_JOYSTICK_ADDED, pad.Id);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Watch.OpenJoystick.Count(), 0);
}

TEST_F(HotPlug, UnpluggingTheJoystickLeavesTheGamepadWorking) {
    const VirtualDevice pad(GamepadShape);
    VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    SetAllLatches();
    stick.Unplug();
    Watch.Forget();
    Handle(SDL_EVENT_JOYSTICK_REMOVED, stick.Id);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.JoystickId, 0U);
    EXPECT_EQ(Devices.GamepadId, pad.Id);
    EXPECT_TRUE(SDL_GamepadConnected(Devices.Gamepad));
    EXPECT_EQ(Watch.CloseJoystick.Count(), 1);
    EXPECT_EQ(Watch.CloseGamepad.Count(), 0);
    EXPECT_EQ(Watch.GetJoysticks.Count(), 1); // looked for the next one
    ExpectJoystickLatches(false);
    ExpectGamepadLatches(true);
}

TEST_F(HotPlug, TheNextJoystickTakesTheSlot) {
    VirtualDevice first(JoystickShape);
    const VirtualDevice second(JoystickShape);
    OpenFirstInputDevices(Devices);
    ASSERT_EQ(Devices.JoystickId, first.Id);
    first.Unplug();
    Handle(SDL_EVENT_JOYSTICK_REMOVED, first.Id);
    EXPECT_EQ(Devices.JoystickId, second.Id);
    EXPECT_TRUE(SDL_JoystickConnected(Devices.Joystick));
}

TEST_F(HotPlug, AJoystickRemovalWithTheGamepadsIdClosesTheGamepad) {
    VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    OpenFirstInputDevices(Devices);
    SetAllLatches();
    pad.Unplug();
    Handle(SDL_EVENT_JOYSTICK_REMOVED, pad.Id);
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.GamepadId, 0U);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
    ExpectGamepadLatches(false);
    ExpectJoystickLatches(true);
}

TEST_F(HotPlug, AnyJoystickRemovalLooksForDevicesAnew) {
    const VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    Handle(SDL_EVENT_JOYSTICK_REMOVED, 99999);
    EXPECT_EQ(Devices.GamepadId, pad.Id);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
}

TEST_F(HotPlug, AJoystickRemovalWithEmptySlotsClosesNothing) {
    Watch.Forget();
    Handle(SDL_EVENT_JOYSTICK_REMOVED, 0);
    EXPECT_EQ(Watch.CloseGamepad.Count(), 0);
    EXPECT_EQ(Watch.CloseJoystick.Count(), 0);
}

TEST_F(HotPlug, OtherEventsAreIgnored) {
    const VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    for (const SDL_EventType type :
        {SDL_EVENT_GAMEPAD_REMAPPED, SDL_EVENT_JOYSTICK_UPDATE_COMPLETE, SDL_EVENT_JOYSTICK_BATTERY_UPDATED,
            SDL_EVENT_GAMEPAD_UPDATE_COMPLETE, SDL_EVENT_KEY_DOWN, SDL_EVENT_WINDOW_FOCUS_LOST}) {
        Handle(type, pad.Id);
        Handle(type, stick.Id);
    }
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.Joystick, nullptr);
}

TEST_F(HotPlug, SdlsOwnEventsOpenWhatIsPluggedIn) {
    const VirtualDevice pad(GamepadShape);
    const VirtualDevice stick(JoystickShape);
    HandleQueue();
    EXPECT_EQ(Devices.GamepadId, pad.Id);
    EXPECT_EQ(Devices.JoystickId, stick.Id);
}

TEST_F(HotPlug, SdlsOwnEventsHandTheSlotToTheSecondGamepad) {
    VirtualDevice first(GamepadShape);
    VirtualDevice second(GamepadShape);
    HandleQueue();
    ASSERT_EQ(Devices.GamepadId, first.Id);
    Devices.GamepadLeftLatch = true;
    first.Unplug();
    HandleQueue();
    EXPECT_EQ(Devices.GamepadId, second.Id);
    EXPECT_TRUE(SDL_GamepadConnected(Devices.Gamepad));
    EXPECT_FALSE(Devices.GamepadLeftLatch);
    EXPECT_EQ(Devices.Joystick, nullptr);
    second.SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    EXPECT_TRUE(SDL_GetGamepadButton(Devices.Gamepad, SDL_GAMEPAD_BUTTON_SOUTH));
}

TEST_F(HotPlug, SdlsOwnEventsEmptyTheSlotsWhenTheLastDevicesGo) {
    VirtualDevice pad(GamepadShape);
    VirtualDevice stick(JoystickShape);
    HandleQueue();
    SetAllLatches();
    pad.Unplug();
    stick.Unplug();
    HandleQueue();
    EXPECT_EQ(Devices.Gamepad, nullptr);
    EXPECT_EQ(Devices.GamepadId, 0U);
    EXPECT_EQ(Devices.Joystick, nullptr);
    EXPECT_EQ(Devices.JoystickId, 0U);
    ExpectGamepadLatches(false);
    ExpectJoystickLatches(false);
}

} // namespace
