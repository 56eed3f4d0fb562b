#include "options/ControlsPage.hpp"

#include "input/BindingLabels.hpp"
#include "tests/support/EditedControls.hpp"
#include "tests/support/Keys.hpp"
#include "tests/support/SameState.hpp"
#include "tests/support/TextScope.hpp"

#include <algorithm>
#include <functional>

namespace {

// Rows of the page.
constexpr std::int32_t DeviceRow = 0;
constexpr std::int32_t DefaultsRow = 6;
constexpr std::int32_t ApplyRow = 7;
constexpr std::int32_t RevertRow = 8;
constexpr std::int32_t BackRow = 9;

using Change = std::function<void(GameState &Expected)>;

const Change Nothing = [](GameState &) {};

/// Expects each key to do Effect and nothing else to a copy of a record.
void ExpectKeys(const GameState &Before, const Scancodes &Pressed, const Change &Effect) {
    for (const std::int32_t key : Pressed) {
        GameState state = Before;
        GameState expected = Before;
        HandleControlsPageKey(state, key);
        Effect(expected);
        EXPECT_TRUE(SameState(state, expected))
            << "scancode " << key << " on row " << Before.ControlsSelection;
    }
}

void ExpectLeft(GameState &Expected) {
    Expected.PendingControlsValid = false;
    Expected.OptionsPage = OptionsPageMain;
}

void ExpectPendingAsApplied(GameState &Expected) {
    Expected.PendingKeyboard = Expected.KeyboardBindings;
    Expected.PendingGamepad = Expected.GamepadBindings;
    Expected.PendingJoystick = Expected.JoystickBindings;
    Expected.PendingControlsDevice = Expected.ControlsDevice;
}

void ExpectAppliedAsPending(GameState &Expected) {
    Expected.KeyboardBindings = Expected.PendingKeyboard;
    Expected.GamepadBindings = Expected.PendingGamepad;
    Expected.JoystickBindings = Expected.PendingJoystick;
    Expected.ControlsDevice = Expected.PendingControlsDevice;
}

/// The page in edit on a row, with nothing changed yet.
GameState FreshPage(std::int32_t Row = DeviceRow) {
    GameState state = EditedControls();
    BeginControlsEdit(state);
    state.ControlsSelection = Row;
    return state;
}

/// The page in edit on a row, with every pending value changed.
GameState ChangedPage(std::int32_t Row) {
    GameState state = EditedControls();
    state.ControlsSelection = Row;
    return state;
}

/// Changes one pending value of the sixteen: five of each table, and the device.
void ChangePending(GameState &State, std::size_t Which) {
    switch (Which / 5) {
    case 0:
        State.PendingKeyboard.at(Which % 5) = 200;
        break;
    case 1:
        State.PendingGamepad.at(Which % 5) = 25;
        break;
    case 2:
        State.PendingJoystick.at(Which % 5) = 200;
        break;
    default:
        State.PendingControlsDevice = ControlsDeviceKeyboard;
        break;
    }
}

constexpr std::size_t PendingValues = 16;

TEST(ControlsEdit, BeginsWithTheAppliedValuesAndEndsACapture) {
    for (const enum CaptureKind kind : {CaptureKindKeyboard, CaptureKindGamepad, CaptureKindJoystick}) {
        GameState state = Capturing(kind);
        state.PendingControlsValid = false;
        GameState expected = state;
        BeginControlsEdit(state);
        ExpectPendingAsApplied(expected);
        expected.PendingControlsValid = true;
        ExpectIdle(expected);
        EXPECT_TRUE(SameState(state, expected)) << kind;
    }
}

TEST(ControlsEdit, IsDirtyByEachOfItsSixteenValues) {
    EXPECT_FALSE(ControlsEditDirty(FreshPage()));
    for (std::size_t value = 0; value < PendingValues; ++value) {
        GameState state = FreshPage();
        ChangePending(state, value);
        EXPECT_TRUE(ControlsEditDirty(state)) << value;
        state.PendingControlsValid = false;
        EXPECT_FALSE(ControlsEditDirty(state)) << value;
    }
}

TEST(ControlsPage, UpGoesThroughTheTenRowsAndWraps) {
    constexpr std::array next{9, 0, 1, 2, 3, 4, 5, 6, 7, 8};
    for (std::size_t row = 0; row < next.size(); ++row) {
        ExpectKeys(ChangedPage(static_cast<std::int32_t>(row)), UpKeys, [&](GameState &Expected) {
            Expected.ControlsSelection = next.at(row);
        });
    }
}

TEST(ControlsPage, DownGoesThroughTheTenRowsAndWraps) {
    constexpr std::array next{1, 2, 3, 4, 5, 6, 7, 8, 9, 0};
    for (std::size_t row = 0; row < next.size(); ++row) {
        ExpectKeys(ChangedPage(static_cast<std::int32_t>(row)), DownKeys, [&](GameState &Expected) {
            Expected.ControlsSelection = next.at(row);
        });
    }
}

TEST(ControlsPage, LeftAndRightOnTheFirstRowGoRoundTheDevices) {
    struct Case {
        enum ControlsDevice Shown;
        enum ControlsDevice AfterLeft;
        enum ControlsDevice AfterRight;
    };
    for (const Case &device : {Case{ControlsDeviceKeyboard, ControlsDeviceJoystick, ControlsDeviceGamepad},
             Case{ControlsDeviceGamepad, ControlsDeviceKeyboard, ControlsDeviceJoystick},
             Case{ControlsDeviceJoystick, ControlsDeviceGamepad, ControlsDeviceKeyboard}}) {
        GameState state = ChangedPage(DeviceRow);
        state.PendingControlsDevice = device.Shown;
        ExpectKeys(state, LeftKeys, [&](GameState &Expected) {
            Expected.PendingControlsDevice = device.AfterLeft;
        });
        ExpectKeys(state, RightKeys, [&](GameState &Expected) {
            Expected.PendingControlsDevice = device.AfterRight;
        });
    }
}

TEST(ControlsPage, LeftAndRightDoNothingOnTheOtherRows) {
    for (std::int32_t row = 1; row < 10; ++row) {
        ExpectKeys(ChangedPage(row), LeftKeys, Nothing);
        ExpectKeys(ChangedPage(row), RightKeys, Nothing);
    }
}

TEST(ControlsPage, ActivatingTheDeviceDoesNothing) {
    ExpectKeys(ChangedPage(DeviceRow), ActivateKeys, Nothing);
}

TEST(ControlsPage, ActivatingABindingWaitsForItsDevice) {
    for (std::int32_t row = 1; row < 6; ++row) {
        GameState state = ChangedPage(row);
        state.PendingControlsDevice = ControlsDeviceKeyboard;
        ExpectKeys(state, ActivateKeys, [row](GameState &Expected) {
            Expected.CaptureActive = true;
            Expected.CaptureKind = CaptureKindKeyboard;
            Expected.CaptureKeyboardRow = row - 1;
        });
        state.PendingControlsDevice = ControlsDeviceGamepad;
        ExpectKeys(state, ActivateKeys, [row](GameState &Expected) {
            Expected.CaptureActive = true;
            Expected.CaptureKind = CaptureKindGamepad;
            Expected.CaptureGamepadRow = row - 1;
        });
        state.PendingControlsDevice = ControlsDeviceJoystick;
        ExpectKeys(state, ActivateKeys, [row](GameState &Expected) {
            Expected.CaptureActive = true;
            Expected.CaptureKind = CaptureKindJoystick;
            Expected.CaptureJoystickRow = row - 1;
        });
    }
}

TEST(ControlsPage, DefaultSettingsGoIntoThePendingValuesOnly) {
    ExpectKeys(ChangedPage(DefaultsRow), ActivateKeys, [](GameState &Expected) {
        Expected.PendingKeyboard = {80, 79, 224, 27, 44};
        Expected.PendingGamepad = {0, 2, 3, 0, 1};
        Expected.PendingJoystick = {0, 1, 2, 0, 3};
        Expected.PendingControlsDevice = ControlsDeviceKeyboard;
    });
}

TEST(ControlsPage, ApplyTakesEachPendingValueOver) {
    for (std::size_t value = 0; value < PendingValues; ++value) {
        GameState state = FreshPage(ApplyRow);
        ChangePending(state, value);
        ExpectKeys(state, ActivateKeys, [](GameState &Expected) {
            ExpectAppliedAsPending(Expected);
            Expected.OptionsDirty = true;
        });
    }
    ExpectKeys(ChangedPage(ApplyRow), ActivateKeys, [](GameState &Expected) {
        ExpectAppliedAsPending(Expected);
        Expected.OptionsDirty = true;
    });
}

TEST(ControlsPage, ApplyWithNothingChangedMarksNothing) {
    GameState state = FreshPage(ApplyRow);
    ExpectKeys(state, ActivateKeys, Nothing);
    state.OptionsDirty = true; // a write that failed stays due
    ExpectKeys(state, ActivateKeys, Nothing);
}

TEST(ControlsPage, RevertBringsTheAppliedValuesBackAndStaysInEdit) {
    ExpectKeys(ChangedPage(RevertRow), ActivateKeys, ExpectPendingAsApplied);
}

TEST(ControlsPage, BackDropsUnappliedValuesWithoutAQuestion) {
    ExpectKeys(ChangedPage(BackRow), ActivateKeys, [](GameState &Expected) {
        ExpectPendingAsApplied(Expected);
        ExpectLeft(Expected);
    });
    ExpectKeys(FreshPage(BackRow), ActivateKeys, ExpectLeft);
}

TEST(ControlsPage, EscapeLeavesFromEveryRow) {
    for (std::int32_t row = 0; row < 10; ++row) {
        ExpectKeys(ChangedPage(row), {EscapeKey}, [](GameState &Expected) {
            ExpectPendingAsApplied(Expected);
            ExpectLeft(Expected);
        });
    }
}

TEST(ControlsPage, NoOtherKeyDoesAnything) {
    for (std::int32_t row = 0; row < 10; ++row) {
        for (std::int32_t key = 1; key < 512; ++key) {
            if (!IsMenuKey(key)) {
                ExpectKeys(ChangedPage(row), {key}, Nothing);
            }
        }
    }
}

TEST(ControlsPage, BeginsItsEditWithAKeyIfItIsNotInOne) {
    GameState state = ChangedPage(DeviceRow);
    state.PendingControlsValid = false;
    ExpectKeys(state, RightKeys, [](GameState &Expected) {
        ExpectPendingAsApplied(Expected);
        Expected.PendingControlsValid = true;
        Expected.PendingControlsDevice = ControlsDeviceKeyboard; // on from the applied joystick
    });
    ExpectKeys(state, {1}, [](GameState &Expected) { // a key that means nothing
        ExpectPendingAsApplied(Expected);
        Expected.PendingControlsValid = true;
    });
}

TEST(ControlsPage, WhileADeviceIsCapturedNeitherRowNorDeviceChange) {
    for (const enum CaptureKind kind : {CaptureKindGamepad, CaptureKindJoystick}) {
        for (std::int32_t row = 0; row < 10; ++row) {
            GameState state = Capturing(kind);
            state.ControlsSelection = row;
            ExpectKeys(state, RowKeys, Nothing);
        }
    }
}

TEST(ControlsPage, WhileAKeyIsCapturedTheMenuKeysAreBound) {
    for (const std::int32_t key : RowKeys) {
        for (std::int32_t row = 0; row < 10; ++row) {
            GameState state = Capturing(CaptureKindKeyboard);
            state.ControlsSelection = row;
            ExpectKeys(state, {key}, [key](GameState &Expected) {
                Expected.PendingKeyboard[1] = key;
                ExpectIdle(Expected);
            });
        }
    }
}

TEST(ControlsPage, EscapeOfACaptureStaysOnThePage) {
    for (const enum CaptureKind kind : {CaptureKindKeyboard, CaptureKindGamepad, CaptureKindJoystick}) {
        ExpectKeys(Capturing(kind), {EscapeKey}, ExpectIdle);
    }
}

TEST(ControlsPage, ACaptureComesBeforeTheBeginningOfAnEdit) {
    GameState state = Capturing(CaptureKindGamepad);
    state.PendingControlsValid = false;
    ExpectKeys(state, ActivateKeys, Nothing);
}

TEST(ControlsPage, TheKeyThatBeginsACaptureDoesNotBind) {
    GameState state = FreshPage(1);
    state.PendingControlsDevice = ControlsDeviceKeyboard;
    HandleControlsPageKey(state, EnterKey);
    EXPECT_TRUE(state.CaptureActive);
    EXPECT_EQ(state.PendingKeyboard[0], 101);
    HandleControlsPageKey(state, EnterKey); // the next press does
    EXPECT_FALSE(state.CaptureActive);
    EXPECT_EQ(state.PendingKeyboard[0], EnterKey);
}

TEST(ControlsPage, AClearedRowReadsUnbound) {
    const TextScope texts;
    for (std::int32_t row = 1; row < 6; ++row) {
        const auto binding = static_cast<std::size_t>(row - 1);
        for (const enum ControlsDevice device :
            {ControlsDeviceKeyboard, ControlsDeviceGamepad, ControlsDeviceJoystick}) {
            GameState state = FreshPage(row);
            state.PendingControlsDevice = device;
            HandleControlsPageKey(state, EnterKey);
            HandleControlsPageKey(state, DeleteKey);
            EXPECT_EQ(KeyboardBindingLabel(state.PendingKeyboard.at(binding)) == "UNBOUND",
                device == ControlsDeviceKeyboard);
            EXPECT_EQ(GamepadBindingLabel(state.PendingGamepad.at(binding)) == "UNBOUND",
                device == ControlsDeviceGamepad);
            EXPECT_EQ(JoystickBindingLabel(state.PendingJoystick.at(binding)) == "UNBOUND",
                device == ControlsDeviceJoystick);
        }
    }
}

TEST(ControlsPage, DefaultSettingsThenBackLeaveTheAppliedBindings) {
    GameState state = FreshPage(DefaultsRow);
    GameState expected = state;
    HandleControlsPageKey(state, EnterKey);
    state.ControlsSelection = BackRow;
    HandleControlsPageKey(state, EnterKey);
    expected.ControlsSelection = BackRow;
    ExpectLeft(expected);
    EXPECT_TRUE(SameState(state, expected));
    EXPECT_FALSE(state.OptionsDirty);
}

TEST(ControlsPage, DefaultSettingsTakeEffectWithApply) {
    GameState state = FreshPage(DefaultsRow);
    HandleControlsPageKey(state, EnterKey);
    state.ControlsSelection = ApplyRow;
    HandleControlsPageKey(state, EnterKey);
    EXPECT_EQ(state.KeyboardBindings, (BindingTable{80, 79, 224, 27, 44}));
    EXPECT_EQ(state.GamepadBindings, (BindingTable{0, 2, 3, 0, 1}));
    EXPECT_EQ(state.JoystickBindings, (BindingTable{0, 1, 2, 0, 3}));
    EXPECT_EQ(state.ControlsDevice, ControlsDeviceKeyboard);
    EXPECT_TRUE(state.OptionsDirty);
}

TEST(ControlsPage, RevertAfterACaptureRestoresTheRow) {
    GameState state = FreshPage(3);
    state.PendingControlsDevice = ControlsDeviceKeyboard;
    HandleControlsPageKey(state, EnterKey);
    HandleControlsPageKey(state, 200);
    ASSERT_EQ(state.PendingKeyboard[2], 200);
    ASSERT_EQ(state.KeyboardBindings[2], 103);
    state.ControlsSelection = RevertRow;
    HandleControlsPageKey(state, EnterKey);
    EXPECT_EQ(state.PendingKeyboard[2], 103);
    EXPECT_TRUE(state.PendingControlsValid);
}

TEST(ControlsPage, OpensOnTheAppliedDeviceNotTheLastPendingOne) {
    GameState state = FreshPage(DeviceRow);
    HandleControlsPageKey(state, RightKey);
    ASSERT_EQ(state.PendingControlsDevice, ControlsDeviceKeyboard);
    HandleControlsPageKey(state, EscapeKey);
    BeginControlsEdit(state);
    EXPECT_EQ(state.PendingControlsDevice, ControlsDeviceJoystick);
}

TEST(ControlsPage, AChangedDeviceAloneIsAppliedAndMarked) {
    GameState state = FreshPage(DeviceRow);
    HandleControlsPageKey(state, RightKey);
    EXPECT_EQ(state.ControlsDevice, ControlsDeviceJoystick);
    state.ControlsSelection = ApplyRow;
    HandleControlsPageKey(state, EnterKey);
    EXPECT_EQ(state.ControlsDevice, ControlsDeviceKeyboard);
    EXPECT_TRUE(state.OptionsDirty);
    EXPECT_FALSE(ControlsEditDirty(state));
}

} // namespace
