#include "state/Bindings.hpp"

#include "input/Thresholds.hpp"
#include "state/GameState.hpp"

#include <SDL3/SDL.h>

#include <gtest/gtest.h>

namespace {

TEST(BindingTables, TheKeyboardStartsWithArrowsControlXAndSpace) {
    const BindingTable expected{
        SDL_SCANCODE_LEFT, SDL_SCANCODE_RIGHT, SDL_SCANCODE_LCTRL, SDL_SCANCODE_X, SDL_SCANCODE_SPACE};
    EXPECT_EQ(GameState{}.KeyboardBindings, expected);
    EXPECT_EQ(GameState{}.KeyboardBindings, (BindingTable{80, 79, 224, 27, 44}));
}

TEST(BindingTables, TheGamepadStartsWithSouthForFireAndConfirm) {
    const BindingTable expected{SDL_GAMEPAD_BUTTON_SOUTH, SDL_GAMEPAD_BUTTON_WEST, SDL_GAMEPAD_BUTTON_NORTH,
        SDL_GAMEPAD_BUTTON_SOUTH, SDL_GAMEPAD_BUTTON_EAST};
    EXPECT_EQ(GameState{}.GamepadBindings, expected);
    EXPECT_EQ(GameState{}.GamepadBindings, (BindingTable{0, 2, 3, 0, 1}));
}

TEST(BindingTables, TheJoystickStartsWithItsFirstFourButtons) {
    EXPECT_EQ(GameState{}.JoystickBindings, (BindingTable{0, 1, 2, 0, 3}));
}

TEST(BindingTables, RowsAreReadByTheirAction) {
    const BindingTable table{10, 11, 12, 13, 14};
    EXPECT_EQ(BindingOf(table, KeyboardAction::MoveLeft), 10);
    EXPECT_EQ(BindingOf(table, KeyboardAction::MoveRight), 11);
    EXPECT_EQ(BindingOf(table, KeyboardAction::Fire), 12);
    EXPECT_EQ(BindingOf(table, KeyboardAction::Bomb), 13);
    EXPECT_EQ(BindingOf(table, KeyboardAction::Heal), 14);
    EXPECT_EQ(BindingOf(table, PadAction::Fire), 10);
    EXPECT_EQ(BindingOf(table, PadAction::Bomb), 11);
    EXPECT_EQ(BindingOf(table, PadAction::Heal), 12);
    EXPECT_EQ(BindingOf(table, PadAction::Confirm), 13);
    EXPECT_EQ(BindingOf(table, PadAction::Back), 14);
}

TEST(BindingTables, TheLastGamepadButtonIsTheLastThatSdlKnows) {
    EXPECT_EQ(LastGamepadButton, SDL_GAMEPAD_BUTTON_COUNT - 1);
    EXPECT_EQ(LastGamepadButton, 25);
}

TEST(Thresholds, AreThoseOfTheAxisValues) {
    EXPECT_EQ(GameplayAxisThreshold, 11000);
    EXPECT_EQ(MenuAxisPress, 19000);
    EXPECT_EQ(MenuAxisRelease, 9000);
}

} // namespace
