#include "state/Bindings.hpp"

#include <gtest/gtest.h>

#include <limits>

TEST(Bindings, TheKeyboardStartsWithTheArrowsLeftControlXAndSpace) {
    EXPECT_EQ(BindingOf(DefaultKeyboardBindings, KeyboardAction::MoveLeft), 80);
    EXPECT_EQ(BindingOf(DefaultKeyboardBindings, KeyboardAction::MoveRight), 79);
    EXPECT_EQ(BindingOf(DefaultKeyboardBindings, KeyboardAction::Fire), 224);
    EXPECT_EQ(BindingOf(DefaultKeyboardBindings, KeyboardAction::Bomb), 27);
    EXPECT_EQ(BindingOf(DefaultKeyboardBindings, KeyboardAction::Heal), 44);
    EXPECT_EQ(DefaultKeyboardBindings, (BindingTable{80, 79, 224, 27, 44}));
}

TEST(Bindings, AGamepadStartsWithFireAndConfirmOnTheSameButton) {
    EXPECT_EQ(BindingOf(DefaultGamepadBindings, PadAction::Fire), 0);
    EXPECT_EQ(BindingOf(DefaultGamepadBindings, PadAction::Bomb), 2);
    EXPECT_EQ(BindingOf(DefaultGamepadBindings, PadAction::Heal), 3);
    EXPECT_EQ(BindingOf(DefaultGamepadBindings, PadAction::Confirm), 0);
    EXPECT_EQ(BindingOf(DefaultGamepadBindings, PadAction::Back), 1);
    EXPECT_EQ(DefaultGamepadBindings, (BindingTable{0, 2, 3, 0, 1}));
}

TEST(Bindings, AJoystickStartsWithFireAndConfirmOnTheSameButton) {
    EXPECT_EQ(BindingOf(DefaultJoystickBindings, PadAction::Fire), 0);
    EXPECT_EQ(BindingOf(DefaultJoystickBindings, PadAction::Bomb), 1);
    EXPECT_EQ(BindingOf(DefaultJoystickBindings, PadAction::Heal), 2);
    EXPECT_EQ(BindingOf(DefaultJoystickBindings, PadAction::Confirm), 0);
    EXPECT_EQ(BindingOf(DefaultJoystickBindings, PadAction::Back), 3);
    EXPECT_EQ(DefaultJoystickBindings, (BindingTable{0, 1, 2, 0, 3}));
}

TEST(Bindings, RowsFollowTheOrderOfTheActions) {
    constexpr BindingTable table{10, 11, 12, 13, 14};
    EXPECT_EQ(BindingOf(table, KeyboardAction::MoveLeft), 10);
    EXPECT_EQ(BindingOf(table, KeyboardAction::Heal), 14);
    EXPECT_EQ(BindingOf(table, PadAction::Fire), 10);
    EXPECT_EQ(BindingOf(table, PadAction::Back), 14);
}

TEST(Bindings, ScancodesGoFrom1To511AndGamepadButtonsFrom0To25) {
    for (const std::int32_t value : {std::numeric_limits<std::int32_t>::min(), -1, 0, 1, 25, 26, 511, 512,
             std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(IsScancode(value), value >= 1 && value <= 511) << value;
        EXPECT_EQ(IsGamepadButton(value), value >= 0 && value <= 25) << value;
    }
    EXPECT_EQ(FirstScancode, 1);
    EXPECT_EQ(LastScancode, 511);
    EXPECT_EQ(LastGamepadButton, 25);
}

TEST(Bindings, TheControlsPageCountsItsDevicesFromTheKeyboard) {
    EXPECT_EQ(static_cast<int>(ControlsDeviceKeyboard), 0);
    EXPECT_EQ(static_cast<int>(ControlsDeviceGamepad), 1);
    EXPECT_EQ(static_cast<int>(ControlsDeviceJoystick), 2);
}
