#include "input/Polling.hpp"
#include "state/GameState.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

class KeyboardPolling : public ::testing::Test {
protected:
    StepInput Poll() const {
        return PollGameplayInput(State, Keys.data(), InputDevices{});
    }

    GameState State;
    std::array<bool, 512> Keys{};
};

TEST_F(KeyboardPolling, GivesNothingWhileNothingIsHeld) {
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(KeyboardPolling, ReadsEachActionFromItsOwnRow) {
    Keys[80] = true;
    EXPECT_EQ(Poll(), (StepInput{true, false, false, false}));
    Keys[80] = false;
    Keys[79] = true;
    EXPECT_EQ(Poll(), (StepInput{false, true, false, false}));
    Keys[79] = false;
    Keys[224] = true;
    EXPECT_EQ(Poll(), (StepInput{false, false, true, false}));
    Keys[224] = false;
    Keys[27] = true;
    EXPECT_EQ(Poll(), (StepInput{false, false, false, true}));
}

TEST_F(KeyboardPolling, DoesNotTakeHealAsHeld) {
    Keys[44] = true;
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(KeyboardPolling, LetsOppositeKeysBothThrough) {
    Keys[80] = true;
    Keys[79] = true;
    EXPECT_EQ(Poll(), (StepInput{true, true, false, false}));
}

TEST_F(KeyboardPolling, FollowsAChangedTable) {
    State.KeyboardBindings = {4, 7, 26, 22, 20};
    Keys[80] = true; // bound no more
    Keys[4] = true;
    Keys[26] = true;
    EXPECT_EQ(Poll(), (StepInput{true, false, true, false}));
}

TEST_F(KeyboardPolling, OneKeyMayDoTwoThings) {
    State.KeyboardBindings = {80, 79, 27, 27, 44};
    Keys[27] = true;
    EXPECT_EQ(Poll(), (StepInput{false, false, true, true}));
}

TEST_F(KeyboardPolling, TakesUnboundAndInvalidValuesAsNotHeld) {
    State.KeyboardBindings = {0, -1, 512, 100000, 44};
    Keys.fill(true);
    EXPECT_EQ(Poll(), StepInput{});
}

TEST_F(KeyboardPolling, GivesNothingWithoutAnArray) {
    EXPECT_EQ(PollGameplayInput(State, nullptr, InputDevices{}), StepInput{});
}

} // namespace
