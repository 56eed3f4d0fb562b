#include "tests/input/PressTest.hpp"

#include <string>
#include <vector>

namespace {

using GamepadPress = PressTest;

/// By button, 0 to 25, with the default bindings.
constexpr std::array<std::int32_t, 26> KeysInMenus{
    40, 41, 0, 0, 41, 0, 40, 0, 0, 0, 0, 82, 81, 80, 79, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
constexpr std::array<std::int32_t, 26> KeysInPlay{
    40, 0, 0, 44, 0, 0, 41, 0, 0, 0, 0, 82, 81, 80, 79, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};

/// A button with bindings in the order Fire, Bomb, Heal, Confirm, Back.
struct ButtonRow {
    const char *Case;
    BindingTable Bindings;
    std::int32_t Button;
    std::int32_t KeyInPlay;
    std::int32_t KeyInMenus;
};

constexpr std::int32_t South = SDL_GAMEPAD_BUTTON_SOUTH;
constexpr std::int32_t Start = SDL_GAMEPAD_BUTTON_START;
constexpr std::int32_t Back = SDL_GAMEPAD_BUTTON_BACK;
constexpr std::int32_t Free = SDL_GAMEPAD_BUTTON_GUIDE; // means nothing unless it is bound
constexpr std::int32_t PadUp = SDL_GAMEPAD_BUTTON_DPAD_UP;
constexpr std::int32_t PadDown = SDL_GAMEPAD_BUTTON_DPAD_DOWN;
constexpr std::int32_t PadLeft = SDL_GAMEPAD_BUTTON_DPAD_LEFT;
constexpr std::int32_t PadRight = SDL_GAMEPAD_BUTTON_DPAD_RIGHT;
constexpr std::int32_t None = -1;

TEST_F(GamepadPress, EveryButtonHasItsKeyInEveryMenu) {
    for (const enum Screen screen : MenuScreens) {
        State.Screen = screen;
        for (std::int32_t button = 0; button < 26; ++button) {
            EXPECT_EQ(GamepadButton(button), KeysInMenus.at(static_cast<std::size_t>(button)))
                << "button " << button << " on screen " << screen;
        }
    }
}

TEST_F(GamepadPress, EveryButtonHasItsKeyInPlay) {
    State.Screen = ScreenPlaying;
    for (std::int32_t button = 0; button < 26; ++button) {
        EXPECT_EQ(GamepadButton(button), KeysInPlay.at(static_cast<std::size_t>(button)))
            << "button " << button;
    }
}

constexpr auto RowsOfSeveralCases = std::to_array<ButtonRow>({
    {"START bound to Back pauses all the same", {0, 2, 3, 0, Start}, Start, 41, 40},
    {"START bound to Heal pauses, and means nothing in menus", {0, 2, Start, 0, 1}, Start, 41, 0},
    {"START bound to Confirm", {0, 2, 3, Start, 1}, Start, 41, 40},
    {"START bound to Fire and Bomb still confirms", {Start, Start, 3, 0, 1}, Start, 41, 40},
    {"BACK bound to Heal", {0, 2, Back, 0, 1}, Back, 0, 0},
    {"BACK bound to Confirm", {0, 2, 3, Back, 1}, Back, 0, 40},
    {"BACK bound to Fire", {Back, 2, 3, 0, 1}, Back, 0, 0},
    {"BACK bound to Bomb", {0, Back, 3, 0, 1}, Back, 0, 0},
    {"BACK bound to Back and Fire", {Back, 2, 3, 0, Back}, Back, 0, 0},
    {"BACK beside a Back binding that fires", {1, 2, 3, 0, 1}, Back, 0, 41},
    {"up bound to Back", {0, 2, 3, 0, PadUp}, PadUp, 0, 82},
    {"down bound to Heal", {0, 2, PadDown, 0, 1}, PadDown, 81, 81},
    {"left bound to Confirm", {0, 2, 3, PadLeft, 1}, PadLeft, 80, 80},
    {"right bound to Fire", {PadRight, 2, 3, 0, 1}, PadRight, 79, 79},
    {"Heal alone", {0, 2, Free, 0, 1}, Free, 44, 0},
    {"Heal and Confirm", {0, 2, Free, Free, 1}, Free, 44, 0},
    {"Heal and Back", {0, 2, Free, 0, Free}, Free, 0, 0},
    {"Heal and Fire", {Free, 2, Free, 0, 1}, Free, 44, 0},
    {"Confirm alone", {0, 2, 3, Free, 1}, Free, 40, 40},
    {"Confirm and Back", {0, 2, 3, Free, Free}, Free, 0, 40},
    {"Confirm and Bomb", {0, Free, 3, Free, 1}, Free, 40, 40},
    {"Back alone", {0, 2, 3, 0, Free}, Free, 0, 41},
    {"Back and Fire", {Free, 2, 3, 0, Free}, Free, 0, 0},
    {"Back and Bomb", {0, Free, 3, 0, Free}, Free, 0, 0},
    {"Confirm, Back and Fire", {Free, 2, 3, Free, Free}, Free, 0, 40},
    {"Fire alone", {Free, 2, 3, 0, 1}, Free, 0, 0},
    {"Bomb alone", {0, Free, 3, 0, 1}, Free, 0, 0},
    {"not bound", {0, 2, 3, 0, 1}, Free, 0, 0},
    {"SOUTH no longer bound", {1, 2, 3, Free, 1}, South, 0, 0},
    {"START with nothing bound", {None, None, None, None, None}, Start, 41, 40},
    {"BACK with nothing bound", {None, None, None, None, None}, Back, 0, 41},
    {"the first button with nothing bound", {None, None, None, None, None}, South, 0, 0},
    {"the last button bound to Confirm", {0, 2, 3, 25, 1}, 25, 40, 40},
    {"the last button with impossible values bound", {26, 281, -231, 26, 26}, 25, 0, 0},
});

TEST_F(GamepadPress, TheFirstCaseThatFitsWins) {
    for (const ButtonRow &row : RowsOfSeveralCases) {
        State.GamepadBindings = row.Bindings;
        State.Screen = ScreenPlaying;
        EXPECT_EQ(GamepadButton(row.Button), row.KeyInPlay) << row.Case << ", in play";
        for (const enum Screen screen : MenuScreens) {
            State.Screen = screen;
            EXPECT_EQ(GamepadButton(row.Button), row.KeyInMenus) << row.Case << ", on screen " << screen;
        }
    }
}

TEST_F(GamepadPress, HealIsTheKeyboardsKeyForIt) {
    State.Screen = ScreenPlaying;
    for (const std::int32_t key : {1, 41, 98, 511, 0}) {
        State.KeyboardBindings[4] = key;
        EXPECT_EQ(GamepadButton(SDL_GAMEPAD_BUTTON_NORTH), key);
    }
}

TEST_F(GamepadPress, TheJoysticksBindingsHaveNoSay) {
    State.JoystickBindings = {Free, Free, Free, Free, Free};
    EXPECT_EQ(GamepadButton(Free), 0);
    EXPECT_EQ(GamepadButton(South), 40);
}

TEST_F(GamepadPress, TheLeftStickPressesTheArrowsInEveryMenu) {
    for (const enum Screen screen : MenuScreens) {
        State.Screen = screen;
        EXPECT_EQ(GamepadAxis(0, -19000), 80);
        EXPECT_EQ(Latches(), "L... ....");
        EXPECT_EQ(GamepadAxis(0, 19000), 79);
        EXPECT_EQ(Latches(), ".R.. ....");
        EXPECT_EQ(GamepadAxis(1, -19000), 82);
        EXPECT_EQ(Latches(), ".RU. ....");
        EXPECT_EQ(GamepadAxis(1, 19000), 81);
        EXPECT_EQ(Latches(), ".R.D ....");
        EXPECT_EQ(GamepadAxis(0, 9000), 0);
        EXPECT_EQ(Latches(), "...D ....");
        EXPECT_EQ(GamepadAxis(1, -9000), 0);
        EXPECT_EQ(Latches(), ".... ....");
    }
}

TEST_F(GamepadPress, TheOtherAxesPressNothingAndLetNothingGo) {
    for (std::int32_t axis = 2; axis < 8; ++axis) {
        EXPECT_EQ(GamepadAxis(axis, -32768), 0) << axis;
        EXPECT_EQ(GamepadAxis(axis, 32767), 0) << axis;
        EXPECT_EQ(Latches(), ".... ....") << axis;
    }
    SetAllLatches();
    for (std::int32_t axis = 2; axis < 8; ++axis) {
        EXPECT_EQ(GamepadAxis(axis, 0), 0) << axis;
        EXPECT_EQ(Latches(), "LRUD lrud") << axis;
    }
}

TEST_F(GamepadPress, InPlayTheStickPressesNothingAndTheLatchesStay) {
    State.Screen = ScreenPlaying;
    for (const std::int32_t axis : {0, 1}) {
        EXPECT_EQ(GamepadAxis(axis, -32768), 0);
        EXPECT_EQ(GamepadAxis(axis, 32767), 0);
        EXPECT_EQ(Latches(), ".... ....");
    }
    SetAllLatches();
    for (const std::int32_t axis : {0, 1}) {
        EXPECT_EQ(GamepadAxis(axis, 0), 0);
        EXPECT_EQ(GamepadAxis(axis, 32767), 0);
        EXPECT_EQ(Latches(), "LRUD lrud");
    }
}

TEST_F(GamepadPress, OnlyTheOpenGamepadIsHeard) {
    const VirtualDevice other(GamepadShape);
    for (const enum Screen screen : {ScreenMainMenu, ScreenPlaying}) {
        State.Screen = screen;
        for (const SDL_JoystickID id : {other.Id, Stick->Id, SDL_JoystickID{0}, SDL_JoystickID{99999}}) {
            for (std::int32_t button = 0; button < 26; ++button) {
                EXPECT_EQ(GamepadButton(button, id), 0);
            }
            EXPECT_EQ(GamepadAxis(0, -32768, id), 0);
            EXPECT_EQ(GamepadAxis(1, 32767, id), 0);
        }
    }
    EXPECT_EQ(Latches(), ".... ....");
}

TEST_F(GamepadPress, WithoutAnOpenGamepadNoneIsHeard) {
    const SDL_JoystickID id = Pad->Id;
    CloseInputDevices(Devices);
    for (const SDL_JoystickID which : {id, SDL_JoystickID{0}}) {
        EXPECT_EQ(GamepadButton(South, which), 0);
        EXPECT_EQ(GamepadAxis(0, -32768, which), 0);
    }
    EXPECT_EQ(Latches(), ".... ....");
}

TEST_F(GamepadPress, OtherEventsPressNothing) {
    for (const SDL_EventType type : {SDL_EVENT_GAMEPAD_BUTTON_UP, SDL_EVENT_JOYSTICK_BUTTON_UP,
             SDL_EVENT_GAMEPAD_ADDED, SDL_EVENT_GAMEPAD_REMOVED, SDL_EVENT_JOYSTICK_ADDED,
             SDL_EVENT_JOYSTICK_REMOVED, SDL_EVENT_GAMEPAD_UPDATE_COMPLETE, SDL_EVENT_JOYSTICK_BALL_MOTION,
             SDL_EVENT_GAMEPAD_TOUCHPAD_DOWN, SDL_EVENT_KEY_DOWN, SDL_EVENT_MOUSE_BUTTON_DOWN}) {
        for (const SDL_JoystickID id : {Pad->Id, Stick->Id}) {
            SDL_Event event{};
            event.type = type;
            event.gbutton.which = id; // at the same place in every event of a device
            EXPECT_EQ(TranslatePress(State, Devices, event), 0) << type;
        }
    }
}

TEST_F(GamepadPress, SdlsOwnEventsOfOnePressGiveOneKey) {
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_EAST, true);
    Pad->SetAxis(SDL_GAMEPAD_AXIS_LEFTX, -32768);
    Pad->SetButton(SDL_GAMEPAD_BUTTON_EAST, false);
    std::vector<std::int32_t> keys;
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        const std::int32_t key = TranslatePress(State, Devices, event);
        if (key != 0) {
            keys.push_back(key);
        }
    }
    EXPECT_EQ(keys, (std::vector<std::int32_t>{41, 80}));
}

} // namespace
