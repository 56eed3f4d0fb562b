#include "input/Polling.hpp"
#include "state/GameState.hpp"
#include "tests/input/InputTest.hpp"

#include <array>
#include <limits>
#include <optional>

namespace {

class JoystickPolling : public InputTest {
protected:
    void Plug(const DeviceShape &Shape) {
        Stick.emplace(Shape);
        OpenFirstInputDevices(Devices);
        ASSERT_EQ(Devices.JoystickId, Stick->Id);
        ASSERT_EQ(SDL_GetNumJoystickAxes(Devices.Joystick), Shape.Axes);
        ASSERT_EQ(SDL_GetNumJoystickButtons(Devices.Joystick), Shape.Buttons);
        ASSERT_EQ(SDL_GetNumJoystickHats(Devices.Joystick), Shape.Hats);
    }

    void TearDown() override {
        InputTest::TearDown();
        Stick.reset();
    }

    StepInput Poll() const {
        return PollGameplayInput(State, Keys.data(), Devices);
    }

    StepInput PollWithStickAt(Sint16 Value) {
        Stick->SetAxis(0, Value);
        return Poll();
    }

    StepInput PollWithHatAt(Uint8 Value) {
        Stick->SetHat(0, Value);
        return Poll();
    }

    GameState State;
    std::array<bool, 512> Keys{};
    std::optional<VirtualDevice> Stick;
};

constexpr StepInput Left{true, false, false, false};
constexpr StepInput Right{false, true, false, false};

TEST_F(JoystickPolling, AxisZeroSteersRightFrom11000) {
    Plug(JoystickShape);
    EXPECT_EQ(PollWithStickAt(10999), StepInput{});
    EXPECT_EQ(PollWithStickAt(11000), Right);
    EXPECT_EQ(PollWithStickAt(32767), Right);
}

TEST_F(JoystickPolling, AxisZeroSteersLeftFromMinus11000) {
    Plug(JoystickShape);
    EXPECT_EQ(PollWithStickAt(-10999), StepInput{});
    EXPECT_EQ(PollWithStickAt(-11000), Left);
    EXPECT_EQ(PollWithStickAt(-32768), Left);
}

TEST_F(JoystickPolling, AxisOneDoesNotSteer) {
    Plug(JoystickShape);
    Stick->SetAxis(1, 32767);
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(JoystickPolling, TheHatSteersAlsoOnItsDiagonals) {
    Plug(JoystickShape);
    EXPECT_EQ(PollWithHatAt(SDL_HAT_LEFT), Left);
    EXPECT_EQ(PollWithHatAt(SDL_HAT_LEFTUP), Left);
    EXPECT_EQ(PollWithHatAt(SDL_HAT_LEFTDOWN), Left);
    EXPECT_EQ(PollWithHatAt(SDL_HAT_RIGHT), Right);
    EXPECT_EQ(PollWithHatAt(SDL_HAT_RIGHTUP), Right);
    EXPECT_EQ(PollWithHatAt(SDL_HAT_RIGHTDOWN), Right);
}

TEST_F(JoystickPolling, TheHatDoesNothingUpDownAndCentred) {
    Plug(JoystickShape);
    EXPECT_EQ(PollWithHatAt(SDL_HAT_UP), StepInput{});
    EXPECT_EQ(PollWithHatAt(SDL_HAT_DOWN), StepInput{});
    EXPECT_EQ(PollWithHatAt(SDL_HAT_CENTERED), StepInput{});
}

TEST_F(JoystickPolling, OnlyTheFirstHatSteers) {
    Plug({SDL_JOYSTICK_TYPE_FLIGHT_STICK, 2, 4, 2});
    Stick->SetHat(1, SDL_HAT_LEFT);
    EXPECT_EQ(Poll(), StepInput{});
    EXPECT_EQ(PollWithHatAt(SDL_HAT_RIGHT), Right);
}

TEST_F(JoystickPolling, AxisAndHatMaySteerAgainstEachOther) {
    Plug(JoystickShape);
    Stick->SetHat(0, SDL_HAT_LEFT);
    EXPECT_EQ(PollWithStickAt(11000), (StepInput{true, true, false, false}));
}

TEST_F(JoystickPolling, ADeviceWithoutHatsSteersByItsAxis) {
    Plug({SDL_JOYSTICK_TYPE_FLIGHT_STICK, 2, 4, 0});
    EXPECT_EQ(Poll(), StepInput{});
    EXPECT_EQ(PollWithStickAt(-11000), Left);
}

TEST_F(JoystickPolling, ADeviceWithoutAxesSteersByItsHat) {
    Plug({SDL_JOYSTICK_TYPE_FLIGHT_STICK, 0, 4, 1});
    EXPECT_EQ(Poll(), StepInput{});
    EXPECT_EQ(PollWithHatAt(SDL_HAT_RIGHT), Right);
}

TEST_F(JoystickPolling, ADeviceWithButtonsAloneStillFires) {
    Plug({SDL_JOYSTICK_TYPE_FLIGHT_STICK, 0, 2, 0});
    Stick->SetButton(0, true);
    EXPECT_EQ(Poll(), (StepInput{false, false, true, false}));
}

TEST_F(JoystickPolling, ButtonZeroFiresAndButtonOneBombs) {
    Plug(JoystickShape);
    Stick->SetButton(0, true);
    EXPECT_EQ(Poll(), (StepInput{false, false, true, false}));
    Stick->SetButton(0, false);
    Stick->SetButton(1, true);
    EXPECT_EQ(Poll(), (StepInput{false, false, false, true}));
}

TEST_F(JoystickPolling, HealAndBackAreNotHeldActions) {
    Plug(JoystickShape);
    Stick->SetButton(2, true);
    Stick->SetButton(3, true);
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(JoystickPolling, ItsLastButtonCanBeBound) {
    Plug(JoystickShape);
    State.JoystickBindings = {3, 2, 1, 0, 0};
    Stick->SetButton(3, true);
    Stick->SetButton(2, true);
    EXPECT_EQ(Poll(), (StepInput{false, false, true, true}));
}

TEST_F(JoystickPolling, InvalidBindingsAreUnboundAndNeverReachSdl) {
    Plug(JoystickShape);
    for (int button = 0; button < 4; ++button) {
        Stick->SetButton(button, true);
    }
    const std::int32_t largest = std::numeric_limits<std::int32_t>::max();
    const std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
    for (const std::int32_t value : {-1, 4, 26, 1000, largest, smallest}) {
        State.JoystickBindings = {value, value, 2, 0, 3};
        Watch.Forget();
        EXPECT_EQ(Poll(), StepInput{}) << value;
        EXPECT_EQ(Watch.GetJoystickButton.Count(), 0) << value;
    }
}

TEST_F(JoystickPolling, ItsButtonsAreNotReadForWhatTheKeyboardHasSet) {
    Plug(JoystickShape);
    Keys[224] = true;
    Keys[27] = true;
    Watch.Forget();
    EXPECT_EQ(Poll(), (StepInput{false, false, true, true}));
    EXPECT_EQ(Watch.GetJoystickButton.Count(), 0);
}

} // namespace
