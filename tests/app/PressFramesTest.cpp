#include "sim/NewRun.hpp"
#include "tests/app/DeviceTest.hpp"
#include "tests/support/SameState.hpp"
#include "tests/support/Screens.hpp"

namespace {

/// Presses on the main menu of a program with a run that can be continued.
class PressFrames : public DeviceTest {
protected:
    void SetUp() override {
        DeviceTest::SetUp();
        StartNewRun(State);
        ShowWithoutWaiting(ScreenMainMenu);
    }

    void TearDown() override {
        DeviceTest::TearDown();
        OtherPad.reset();
    }

    void PlugInOtherPad() {
        OtherPad.emplace(GamepadShape);
        DrainEvents(Program);
    }

    /// Shows a screen, with no sound waiting.
    void Show(enum Screen Screen) {
        State.Screen = Screen;
        State.PendingSounds.Count = 0;
    }

    void MoveAxis(VirtualDevice &Device, int Axis, Sint16 Value) {
        Device.SetAxis(Axis, Value);
        DrainEvents(Program);
    }

    void MoveHat(VirtualDevice &Device, Uint8 Value) {
        Device.SetHat(0, Value);
        DrainEvents(Program);
    }

    std::optional<VirtualDevice> OtherPad;
};

TEST_F(PressFrames, TheDirectionalPadMovesTheMenu) {
    PlugInPad();
    Tap(*Pad, SDL_GAMEPAD_BUTTON_DPAD_DOWN);
    EXPECT_EQ(State.MainMenuSelection, 1U);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_DPAD_DOWN);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_DPAD_UP);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_DPAD_UP);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_DPAD_UP);
    EXPECT_EQ(State.MainMenuSelection, 5U);
    EXPECT_EQ(State.PendingSounds.Count, 5U); // SDL's joystick events of the same pad are not heard as well
}

TEST_F(PressFrames, APadGoesThroughMenusByItsButtons) {
    PlugInPad();
    State.MainMenuSelection = 2;
    Tap(*Pad, SDL_GAMEPAD_BUTTON_SOUTH);
    EXPECT_EQ(State.Screen, ScreenOptions);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_EAST);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_START);
    EXPECT_EQ(State.Screen, ScreenOptions);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_BACK);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_WEST);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_LEFT_SHOULDER);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_TRUE(State.Running);
}

TEST_F(PressFrames, BackOnTheMainMenuQuits) {
    PlugInPad();
    Tap(*Pad, SDL_GAMEPAD_BUTTON_EAST);
    EXPECT_FALSE(State.Running);
}

TEST_F(PressFrames, TheStickMovesTheCursorOnceForEachExcursion) {
    PlugInPad();
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 15000);
    EXPECT_EQ(State.MainMenuSelection, 0U); // enough to steer in play, not here
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 18999);
    EXPECT_EQ(State.MainMenuSelection, 0U);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 19000);
    EXPECT_EQ(State.MainMenuSelection, 1U);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 9001);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    EXPECT_EQ(State.MainMenuSelection, 1U);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 9000);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 19000);
    EXPECT_EQ(State.MainMenuSelection, 2U);
}

TEST_F(PressFrames, AStickThatSwingsFromEndToEndPressesBothWays) {
    PlugInPad();
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    EXPECT_EQ(State.MainMenuSelection, 1U);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, -32768);
    EXPECT_EQ(State.MainMenuSelection, 0U);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    EXPECT_EQ(State.MainMenuSelection, 1U);
}

TEST_F(PressFrames, AHeldStickDoesNotRepeat) {
    PlugInPad();
    Pad->SetAxis(SDL_GAMEPAD_AXIS_LEFTY, 32767);
    for (int i = 0; i < 10; ++i) {
        RunFrame(Program);
    }
    EXPECT_EQ(State.MainMenuSelection, 1U);
}

TEST_F(PressFrames, TheRightStickMovesNothing) {
    PlugInPad();
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_RIGHTX, 32767);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_RIGHTY, 32767);
    EXPECT_EQ(State.MainMenuSelection, 0U);
    EXPECT_EQ(State.PendingSounds.Count, 0U);
}

TEST_F(PressFrames, AJoystickMovesMenusByAxesAndHat) {
    PlugInStick();
    MoveAxis(*Stick, 1, 32767);
    EXPECT_EQ(State.MainMenuSelection, 1U);
    MoveHat(*Stick, SDL_HAT_DOWN);
    EXPECT_EQ(State.MainMenuSelection, 2U);
    MoveHat(*Stick, SDL_HAT_CENTERED);
    EXPECT_EQ(State.MainMenuSelection, 2U);
    MoveHat(*Stick, SDL_HAT_LEFTUP); // counts as up
    EXPECT_EQ(State.MainMenuSelection, 1U);
    MoveAxis(*Stick, 1, -32768);
    EXPECT_EQ(State.MainMenuSelection, 0U);
    EXPECT_EQ(State.PendingSounds.Count, 4U);
}

TEST_F(PressFrames, AJoystickSoundsLeftAndRightInTheOptions) {
    PlugInStick();
    Show(ScreenOptions);
    MoveAxis(*Stick, 0, -32768);
    MoveAxis(*Stick, 0, 32767);
    MoveHat(*Stick, SDL_HAT_LEFT);
    MoveHat(*Stick, SDL_HAT_RIGHT);
    EXPECT_EQ(State.PendingSounds.Count, 4U);
    EXPECT_EQ(State.OptionsMainSelection, 0);
}

TEST_F(PressFrames, AJoystickConfirmsAndGoesBack) {
    PlugInStick();
    State.MainMenuSelection = 3;
    Tap(*Stick, 0);
    EXPECT_EQ(State.Screen, ScreenHelp);
    Tap(*Stick, 1); // bomb
    EXPECT_EQ(State.Screen, ScreenHelp);
    Tap(*Stick, 3);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
}

TEST_F(PressFrames, TwoDevicesOfOneFrameAreBothHeard) {
    PlugInPad();
    PlugInStick();
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_DOWN, true);
    Stick->SetHat(0, SDL_HAT_DOWN);
    Pad->SetAxis(SDL_GAMEPAD_AXIS_LEFTY, 32767);
    Stick->SetAxis(1, 32767);
    PushKey(SDL_SCANCODE_S);
    RunFrame(Program);
    EXPECT_EQ(State.MainMenuSelection, 5U);
}

TEST_F(PressFrames, LeftAndRightOnTwoDevicesReachTheRunAsBothAndCancelOut) {
    PlugInPad();
    PlugInStick();
    Show(ScreenPlaying);
    Pad->SetAxis(SDL_GAMEPAD_AXIS_LEFTX, -32768);
    Stick->SetAxis(0, 32767);
    RunFrame(Program);
    EXPECT_EQ(State.PlayerLane, 4);
    Stick->SetAxis(0, 0);
    RunFrame(Program);
    EXPECT_EQ(State.PlayerLane, 3);
}

TEST_F(PressFrames, InPlaySouthFiresAndItsReturnIsIgnored) {
    PlugInPad();
    Show(ScreenPlaying);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    RunFrame(Program);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(State.Bullets.size(), 1U);
}

TEST_F(PressFrames, InPlayOnlyStartPausesAGamepadsGame) {
    PlugInPad();
    Show(ScreenPlaying);
    const GameState before = State;
    Tap(*Pad, SDL_GAMEPAD_BUTTON_EAST);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_BACK);
    EXPECT_TRUE(SameState(State, before));
    Tap(*Pad, SDL_GAMEPAD_BUTTON_START);
    EXPECT_EQ(State.Screen, ScreenPaused);
    EXPECT_EQ(State.PendingSounds.Count, 1U);
    EXPECT_EQ(State.PendingSounds.Ids[0], SfxId::UiBack);
}

TEST_F(PressFrames, InPlayTheJoysticksBackButtonPauses) {
    PlugInStick();
    Show(ScreenPlaying);
    Tap(*Stick, 3);
    EXPECT_EQ(State.Screen, ScreenPaused);
}

TEST_F(PressFrames, StartResumesFromTheFirstRowOfThePauseMenu) {
    PlugInPad();
    Show(ScreenPlaying);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_START);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_START);
    EXPECT_EQ(State.Screen, ScreenPlaying);
}

TEST_F(PressFrames, HealOnEitherDeviceUsesAKitInPlay) {
    PlugInPad();
    PlugInStick();
    Show(ScreenPlaying);
    State.FirstAidKits = 2;
    State.Player.Hp = 20;
    Tap(*Pad, SDL_GAMEPAD_BUTTON_NORTH);
    EXPECT_EQ(State.Player.Hp, 55);
    Tap(*Stick, 2);
    EXPECT_EQ(State.Player.Hp, 90);
    EXPECT_EQ(State.FirstAidKits, 0);
}

TEST_F(PressFrames, HealDependsOnTheKeyboardsRow) {
    PlugInPad();
    Show(ScreenPlaying);
    State.FirstAidKits = 1;
    State.Player.Hp = 20;
    State.KeyboardBindings[4] = 0; // unbound
    const GameState before = State;
    Tap(*Pad, SDL_GAMEPAD_BUTTON_NORTH);
    EXPECT_TRUE(SameState(State, before));
    State.KeyboardBindings[4] = SDL_SCANCODE_H;
    Tap(*Pad, SDL_GAMEPAD_BUTTON_NORTH);
    EXPECT_EQ(State.Player.Hp, 55);
}

TEST_F(PressFrames, HealIsSilentInMenus) {
    PlugInPad();
    PlugInStick();
    State.FirstAidKits = 1;
    State.Player.Hp = 20;
    for (const enum Screen screen : OtherScreens) {
        Show(screen);
        const GameState before = State;
        Tap(*Pad, SDL_GAMEPAD_BUTTON_NORTH);
        Tap(*Stick, 2);
        EXPECT_TRUE(SameState(State, before));
    }
}

TEST_F(PressFrames, AButtonThatFiresAndGoesBackFiresInPlayAndDoesNothingInMenus) {
    PlugInPad();
    State.GamepadBindings = {SDL_GAMEPAD_BUTTON_EAST, 2, 3, 0, SDL_GAMEPAD_BUTTON_EAST};
    Show(ScreenPaused);
    const GameState before = State;
    Tap(*Pad, SDL_GAMEPAD_BUTTON_EAST);
    EXPECT_TRUE(SameState(State, before));
    Show(ScreenPlaying);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_EAST, true);
    RunFrame(Program);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(State.Bullets.size(), 1U);
    Show(ScreenHelp);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_BACK); // BACK and Escape remain
    EXPECT_NE(State.Screen, ScreenHelp);
}

TEST_F(PressFrames, SticksAndHatsPressNothingInPlay) {
    PlugInPad();
    PlugInStick();
    Show(ScreenPlaying);
    State.KeyboardBindings[4] = SDL_SCANCODE_DOWN; // what such a press would do is seen
    State.FirstAidKits = 3;
    State.Player.Hp = 20;
    const GameState before = State;
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    MoveAxis(*Stick, 1, 32767);
    MoveHat(*Stick, SDL_HAT_DOWN);
    EXPECT_TRUE(SameState(State, before));
    EXPECT_FALSE(Program.Devices.GamepadDownLatch);
    EXPECT_FALSE(Program.Devices.JoystickDownLatch);
}

TEST_F(PressFrames, ALatchKeepsItsStateThroughPlay) {
    PlugInPad();
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    ASSERT_EQ(State.MainMenuSelection, 1U);
    Show(ScreenPlaying);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 0); // let go in play
    EXPECT_TRUE(Program.Devices.GamepadDownLatch);
    Show(ScreenMainMenu);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    EXPECT_EQ(State.MainMenuSelection, 1U); // still latched
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 0);
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    EXPECT_EQ(State.MainMenuSelection, 2U);
}

TEST_F(PressFrames, ASecondGamepadIsUnheard) {
    PlugInPad();
    PlugInOtherPad();
    const GameState before = State;
    Tap(*OtherPad, SDL_GAMEPAD_BUTTON_DPAD_DOWN);
    Tap(*OtherPad, SDL_GAMEPAD_BUTTON_SOUTH);
    MoveAxis(*OtherPad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    EXPECT_TRUE(SameState(State, before));
    EXPECT_FALSE(Program.Devices.GamepadDownLatch);
    EXPECT_EQ(Program.Devices.GamepadId, Pad->Id);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_DPAD_DOWN);
    EXPECT_EQ(State.MainMenuSelection, 1U);
}

TEST_F(PressFrames, ASecondJoystickIsUnheard) {
    PlugInStick();
    VirtualDevice other(JoystickShape);
    DrainEvents(Program);
    const GameState before = State;
    Tap(other, 0);
    MoveAxis(other, 1, 32767);
    MoveHat(other, SDL_HAT_DOWN);
    EXPECT_TRUE(SameState(State, before));
    EXPECT_EQ(Program.Devices.JoystickId, Stick->Id);
}

TEST_F(PressFrames, AGamepadThatGoesInMidPressLeavesNoLatchToTheNext) {
    PlugInPad();
    PlugInOtherPad();
    MoveAxis(*Pad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    ASSERT_TRUE(Program.Devices.GamepadDownLatch);
    Show(ScreenPlaying); // the centring that SDL reports on the way out is not heard here
    Pad->Unplug();
    DrainEvents(Program);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(Program.Devices.GamepadId, OtherPad->Id);
    EXPECT_FALSE(Program.Devices.GamepadDownLatch);
    Show(ScreenMainMenu);
    MoveAxis(*OtherPad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    EXPECT_EQ(State.MainMenuSelection, 2U);
}

TEST_F(PressFrames, AJoystickThatGoesInMidPressLeavesNoLatchToTheNext) {
    PlugInStick();
    MoveAxis(*Stick, 1, -32768);
    ASSERT_TRUE(Program.Devices.JoystickUpLatch);
    ASSERT_EQ(State.MainMenuSelection, 5U);
    Show(ScreenPlaying);
    Stick->Unplug();
    DrainEvents(Program);
    EXPECT_EQ(Program.Devices.Joystick, nullptr);
    EXPECT_FALSE(Program.Devices.JoystickUpLatch);
    PlugInStick(); // another one
    Show(ScreenMainMenu);
    MoveAxis(*Stick, 1, -32768);
    EXPECT_EQ(State.MainMenuSelection, 4U);
}

TEST_F(PressFrames, AGamepadThatGoesWithAButtonHeldPressesNothingMore) {
    PlugInPad();
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_DOWN, true);
    DrainEvents(Program);
    ASSERT_EQ(State.MainMenuSelection, 1U);
    Pad->Unplug();
    DrainEvents(Program);
    EXPECT_EQ(Program.Devices.Gamepad, nullptr);
    EXPECT_EQ(State.MainMenuSelection, 1U);
    EXPECT_EQ(State.PendingSounds.Count, 1U);
}

TEST_F(PressFrames, TheSecondGamepadTakesOverWhenTheFirstGoes) {
    PlugInPad();
    PlugInOtherPad();
    Pad->Unplug();
    DrainEvents(Program);
    ASSERT_EQ(Program.Devices.GamepadId, OtherPad->Id);
    Tap(*OtherPad, SDL_GAMEPAD_BUTTON_DPAD_DOWN);
    MoveAxis(*OtherPad, SDL_GAMEPAD_AXIS_LEFTY, 32767);
    EXPECT_EQ(State.MainMenuSelection, 2U);
}

TEST_F(PressFrames, AJoystickThatGoesLeavesTheGamepadHeard) {
    PlugInPad();
    PlugInStick();
    Stick->Unplug();
    DrainEvents(Program);
    EXPECT_EQ(Program.Devices.Joystick, nullptr);
    Tap(*Pad, SDL_GAMEPAD_BUTTON_DPAD_DOWN);
    EXPECT_EQ(State.MainMenuSelection, 1U);
}

} // namespace
