#include "input/Polling.hpp"
#include "state/GameState.hpp"
#include "tests/input/InputTest.hpp"

#include <array>
#include <limits>
#include <optional>

namespace {

class GamepadPolling : public InputTest {
protected:
    void SetUp() override {
        InputTest::SetUp();
        if (!IsSkipped()) {
            Pad.emplace(GamepadShape);
            OpenFirstInputDevices(Devices);
            ASSERT_EQ(Devices.GamepadId, Pad->Id);
        }
    }

    void TearDown() override {
        InputTest::TearDown();
        Pad.reset();
    }

    StepInput Poll() const {
        return PollGameplayInput(State, Keys.data(), Devices);
    }

    StepInput PollWithStickAt(Sint16 Value) {
        Pad->SetAxis(SDL_GAMEPAD_AXIS_LEFTX, Value);
        return Poll();
    }

    GameState State;
    std::array<bool, 512> Keys{};
    std::optional<VirtualDevice> Pad;
};

TEST_F(GamepadPolling, GivesNothingWhileNothingIsHeld) {
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(GamepadPolling, TheStickSteersRightFrom11000) {
    EXPECT_FALSE(PollWithStickAt(10999).MoveRight);
    EXPECT_EQ(PollWithStickAt(11000), (StepInput{false, true, false, false}));
    EXPECT_EQ(PollWithStickAt(32767), (StepInput{false, true, false, false}));
}

TEST_F(GamepadPolling, TheStickSteersLeftFromMinus11000) {
    EXPECT_FALSE(PollWithStickAt(-10999).MoveLeft);
    EXPECT_EQ(PollWithStickAt(-11000), (StepInput{true, false, false, false}));
    EXPECT_EQ(PollWithStickAt(-32768), (StepInput{true, false, false, false}));
}

TEST_F(GamepadPolling, TheStickHasNoDeadZoneState) {
    EXPECT_TRUE(PollWithStickAt(20000).MoveRight);
    EXPECT_FALSE(PollWithStickAt(10999).MoveRight);
    EXPECT_TRUE(PollWithStickAt(11000).MoveRight);
}

TEST_F(GamepadPolling, OtherAxesDoNotSteer) {
    for (const SDL_GamepadAxis axis : {SDL_GAMEPAD_AXIS_LEFTY, SDL_GAMEPAD_AXIS_RIGHTX,
             SDL_GAMEPAD_AXIS_RIGHTY, SDL_GAMEPAD_AXIS_LEFT_TRIGGER, SDL_GAMEPAD_AXIS_RIGHT_TRIGGER}) {
        Pad->SetAxis(axis, 32767);
    }
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(GamepadPolling, TheDirectionButtonsSteer) {
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_LEFT, true);
    EXPECT_EQ(Poll(), (StepInput{true, false, false, false}));
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_LEFT, false);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_RIGHT, true);
    EXPECT_EQ(Poll(), (StepInput{false, true, false, false}));
}

TEST_F(GamepadPolling, StickAndDirectionButtonsMaySteerAgainstEachOther) {
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_LEFT, true);
    EXPECT_EQ(PollWithStickAt(11000), (StepInput{true, true, false, false}));
}

TEST_F(GamepadPolling, UpAndDownDoNothing) {
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_UP, true);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_DPAD_DOWN, true);
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(GamepadPolling, SouthFiresAndWestBombs) {
    Pad->SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    EXPECT_EQ(Poll(), (StepInput{false, false, true, false}));
    Pad->SetButton(SDL_GAMEPAD_BUTTON_SOUTH, false);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_WEST, true);
    EXPECT_EQ(Poll(), (StepInput{false, false, false, true}));
}

TEST_F(GamepadPolling, HealConfirmAndBackAreNotHeldActions) {
    Pad->SetButton(SDL_GAMEPAD_BUTTON_NORTH, true);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_EAST, true);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_START, true);
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(GamepadPolling, FollowsAChangedTable) {
    State.GamepadBindings = {SDL_GAMEPAD_BUTTON_RIGHT_SHOULDER, SDL_GAMEPAD_BUTTON_LEFT_SHOULDER, 3, 0, 1};
    Pad->SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true); // bound no more
    EXPECT_EQ(Poll(), StepInput{});
    Pad->SetButton(SDL_GAMEPAD_BUTTON_RIGHT_SHOULDER, true);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_LEFT_SHOULDER, true);
    EXPECT_EQ(Poll(), (StepInput{false, false, true, true}));
}

TEST_F(GamepadPolling, TheLastButtonCanBeBound) {
    State.GamepadBindings = {25, 0, 3, 0, 1};
    Watch.Forget();
    Poll();
    EXPECT_EQ(Watch.GetGamepadButton.Calls.at(2), std::tuple(Devices.Gamepad, 25)); // after two directions
}

TEST_F(GamepadPolling, InvalidBindingsAreUnboundAndNeverReachSdl) {
    for (int button = 0; button < SDL_GAMEPAD_BUTTON_COUNT; ++button) {
        if (button < SDL_GAMEPAD_BUTTON_DPAD_UP || button > SDL_GAMEPAD_BUTTON_DPAD_RIGHT) {
            Pad->SetButton(button, true);
        }
    }
    const std::int32_t largest = std::numeric_limits<std::int32_t>::max();
    const std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
    for (const std::int32_t value : {-1, 26, 1000, largest, smallest}) {
        State.GamepadBindings = {value, value, 3, 0, 1};
        Watch.Forget();
        EXPECT_EQ(Poll(), StepInput{}) << value;
        EXPECT_EQ(Watch.GetGamepadButton.Calls,
            (std::vector{std::tuple{Devices.Gamepad, SDL_GAMEPAD_BUTTON_DPAD_LEFT},
                std::tuple{Devices.Gamepad, SDL_GAMEPAD_BUTTON_DPAD_RIGHT}}))
            << value;
    }
}

TEST_F(GamepadPolling, IsNotReadForWhatTheKeyboardHasSet) {
    for (const std::int32_t scancode : {80, 79, 224, 27}) {
        Keys.at(static_cast<std::size_t>(scancode)) = true;
    }
    Watch.Forget();
    EXPECT_EQ(Poll(), (StepInput{true, true, true, true}));
    EXPECT_EQ(Watch.GetGamepadAxis.Count(), 0);
    EXPECT_EQ(Watch.GetGamepadButton.Count(), 0);
}

TEST_F(GamepadPolling, KeyboardAndGamepadAddUp) {
    Keys[80] = true;
    Pad->SetButton(SDL_GAMEPAD_BUTTON_WEST, true);
    EXPECT_EQ(PollWithStickAt(11000), (StepInput{true, true, false, true}));
}

TEST_F(GamepadPolling, ASecondGamepadStaysUnheard) {
    VirtualDevice second(GamepadShape);
    second.SetAxis(SDL_GAMEPAD_AXIS_LEFTX, 32767);
    second.SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    EXPECT_EQ(Poll(), StepInput{});
}

} // namespace
