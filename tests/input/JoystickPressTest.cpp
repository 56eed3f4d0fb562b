#include "tests/input/PressTest.hpp"

#include <string>
#include <vector>

namespace {

using JoystickPress = PressTest;

/// A button with bindings in the order Fire, Bomb, Heal, Confirm, Back.
struct ButtonRow {
    const char *Case;
    BindingTable Bindings;
    std::int32_t Button;
    std::int32_t KeyInPlay;
    std::int32_t KeyInMenus;
};

/// By value, 0 to 15: up 1, right 2, down 4, left 8.
constexpr std::array<std::int32_t, 16> HatKeys{0, 82, 79, 82, 81, 82, 81, 82, 80, 82, 80, 82, 81, 82, 81, 82};

TEST_F(JoystickPress, TheDefaultButtonsHaveTheirKeysInEveryMenu) {
    for (const enum Screen screen : MenuScreens) {
        State.Screen = screen;
        EXPECT_EQ(JoystickButton(0), 40) << screen; // confirm, and fire
        EXPECT_EQ(JoystickButton(1), 0) << screen;  // bomb
        EXPECT_EQ(JoystickButton(2), 0) << screen;  // heal
        EXPECT_EQ(JoystickButton(3), 41) << screen; // back
    }
}

TEST_F(JoystickPress, TheDefaultButtonsHaveTheirKeysInPlay) {
    State.Screen = ScreenPlaying;
    EXPECT_EQ(JoystickButton(0), 40);
    EXPECT_EQ(JoystickButton(1), 0);
    EXPECT_EQ(JoystickButton(2), 44);
    EXPECT_EQ(JoystickButton(3), 41);
}

TEST_F(JoystickPress, EveryOtherButtonMeansNothing) {
    for (const enum Screen screen : {ScreenMainMenu, ScreenOptions, ScreenPlaying}) {
        State.Screen = screen;
        for (std::int32_t button = 4; button < 256; ++button) {
            EXPECT_EQ(JoystickButton(button), 0)
                << button; // none is fixed as a pad's START, BACK or arrows are
        }
    }
}

TEST_F(JoystickPress, TheFirstCaseThatFitsWins) {
    const std::vector<ButtonRow> rows{
        {"Heal alone", {0, 1, 7, 0, 3}, 7, 44, 0},
        {"Heal and Confirm", {0, 1, 7, 7, 3}, 7, 44, 0},
        {"Heal and Back", {0, 1, 7, 0, 7}, 7, 44, 0},
        {"Heal and Fire", {7, 1, 7, 0, 3}, 7, 44, 0},
        {"Confirm alone", {0, 1, 2, 7, 3}, 7, 40, 40},
        {"Confirm and Back", {0, 1, 2, 7, 7}, 7, 40, 40},
        {"Confirm and Bomb", {0, 7, 2, 7, 3}, 7, 40, 40},
        {"Confirm, Back and Fire", {7, 1, 2, 7, 7}, 7, 40, 40},
        {"Back alone", {0, 1, 2, 0, 7}, 7, 41, 41},
        {"Back and Fire", {7, 1, 2, 0, 7}, 7, 0, 0},
        {"Back and Bomb", {0, 7, 2, 0, 7}, 7, 0, 0},
        {"Fire alone", {7, 1, 2, 0, 3}, 7, 0, 0},
        {"Bomb alone", {0, 7, 2, 0, 3}, 7, 0, 0},
        {"a pad's BACK and START are nothing here", {0, 1, 2, 0, 3}, 4, 0, 0},
        {"nothing bound", {-1, -1, -1, -1, -1}, 0, 0, 0},
        {"nothing bound, the highest button", {-1, -1, -1, -1, -1}, 255, 0, 0},
        {"the highest button bound to Back", {0, 1, 2, 0, 255}, 255, 41, 41},
    };
    for (const ButtonRow &row : rows) {
        State.JoystickBindings = row.Bindings;
        State.Screen = ScreenPlaying;
        EXPECT_EQ(JoystickButton(row.Button), row.KeyInPlay) << row.Case << ", in play";
        for (const enum Screen screen : MenuScreens) {
            State.Screen = screen;
            EXPECT_EQ(JoystickButton(row.Button), row.KeyInMenus) << row.Case << ", on screen " << screen;
        }
    }
}

TEST_F(JoystickPress, HealIsTheKeyboardsKeyForIt) {
    State.Screen = ScreenPlaying;
    for (const std::int32_t key : {1, 41, 98, 511, 0}) {
        State.KeyboardBindings[4] = key;
        EXPECT_EQ(JoystickButton(2), key);
    }
}

TEST_F(JoystickPress, TheGamepadsBindingsHaveNoSay) {
    State.GamepadBindings = {9, 9, 9, 9, 9};
    EXPECT_EQ(JoystickButton(9), 0);
    EXPECT_EQ(JoystickButton(3), 41);
}

TEST_F(JoystickPress, TheFirstTwoAxesPressTheArrowsInEveryMenu) {
    for (const enum Screen screen : MenuScreens) {
        State.Screen = screen;
        EXPECT_EQ(JoystickAxis(0, -19000), 80);
        EXPECT_EQ(Latches(), ".... l...");
        EXPECT_EQ(JoystickAxis(0, 19000), 79);
        EXPECT_EQ(Latches(), ".... .r..");
        EXPECT_EQ(JoystickAxis(1, -19000), 82);
        EXPECT_EQ(Latches(), ".... .ru.");
        EXPECT_EQ(JoystickAxis(1, 19000), 81);
        EXPECT_EQ(Latches(), ".... .r.d");
        EXPECT_EQ(JoystickAxis(0, -9000), 0);
        EXPECT_EQ(Latches(), ".... ...d");
        EXPECT_EQ(JoystickAxis(1, 9000), 0);
        EXPECT_EQ(Latches(), ".... ....");
    }
}

TEST_F(JoystickPress, TheOtherAxesPressNothingAndLetNothingGo) {
    SetAllLatches();
    for (std::int32_t axis = 2; axis < 10; ++axis) {
        EXPECT_EQ(JoystickAxis(axis, -32768), 0) << axis;
        EXPECT_EQ(JoystickAxis(axis, 32767), 0) << axis;
        EXPECT_EQ(JoystickAxis(axis, 0), 0) << axis;
        EXPECT_EQ(Latches(), "LRUD lrud") << axis;
    }
}

TEST_F(JoystickPress, AStickOfEachDeviceHasLatchesOfItsOwn) {
    EXPECT_EQ(GamepadAxis(1, 32767), 81);
    EXPECT_EQ(JoystickAxis(1, 32767), 81);
    EXPECT_EQ(GamepadAxis(1, 0), 0);
    EXPECT_EQ(Latches(), ".... ...d");
    EXPECT_EQ(JoystickAxis(1, 32767), 0);
    EXPECT_EQ(GamepadAxis(1, 32767), 81);
}

TEST_F(JoystickPress, EveryHatValueHasItsKeyInEveryMenu) {
    for (const enum Screen screen : MenuScreens) {
        State.Screen = screen;
        for (std::int32_t value = 0; value < 16; ++value) {
            EXPECT_EQ(Hat(0, value), HatKeys.at(static_cast<std::size_t>(value))) << value;
        }
    }
}

TEST_F(JoystickPress, AnyHatOfTheJoystickCounts) {
    for (const std::int32_t hat : {0, 1, 3, 255}) {
        EXPECT_EQ(Hat(hat, SDL_HAT_UP), 82) << hat;
        EXPECT_EQ(Hat(hat, SDL_HAT_RIGHTDOWN), 81) << hat;
    }
}

TEST_F(JoystickPress, AHatHasNoLatch) {
    EXPECT_EQ(Hat(0, SDL_HAT_LEFT), 80);
    EXPECT_EQ(Hat(0, SDL_HAT_LEFT), 80);
    EXPECT_EQ(Latches(), ".... ....");
}

TEST_F(JoystickPress, InPlayAxesAndHatsPressNothingAndTheLatchesStay) {
    State.Screen = ScreenPlaying;
    for (std::int32_t value = 0; value < 16; ++value) {
        EXPECT_EQ(Hat(0, value), 0) << value;
    }
    for (const std::int32_t axis : {0, 1}) {
        EXPECT_EQ(JoystickAxis(axis, -32768), 0);
        EXPECT_EQ(JoystickAxis(axis, 32767), 0);
        EXPECT_EQ(Latches(), ".... ....");
    }
    SetAllLatches();
    for (const std::int32_t axis : {0, 1}) {
        EXPECT_EQ(JoystickAxis(axis, 0), 0);
        EXPECT_EQ(JoystickAxis(axis, -32768), 0);
        EXPECT_EQ(Latches(), "LRUD lrud");
    }
}

TEST_F(JoystickPress, OnlyTheOpenJoystickIsHeard) {
    const VirtualDevice other(JoystickShape);
    for (const enum Screen screen : {ScreenMainMenu, ScreenPlaying}) {
        State.Screen = screen;
        for (const SDL_JoystickID id : {other.Id, Pad->Id, SDL_JoystickID{0}, SDL_JoystickID{99999}}) {
            for (std::int32_t button = 0; button < 5; ++button) {
                EXPECT_EQ(JoystickButton(button, id), 0);
            }
            EXPECT_EQ(JoystickAxis(0, -32768, id), 0);
            EXPECT_EQ(JoystickAxis(1, 32767, id), 0);
            EXPECT_EQ(Hat(0, SDL_HAT_UP, id), 0);
        }
    }
    EXPECT_EQ(Latches(), ".... ....");
}

TEST_F(JoystickPress, WithoutAnOpenJoystickNoneIsHeard) {
    const SDL_JoystickID id = Stick->Id;
    CloseInputDevices(Devices);
    for (const SDL_JoystickID which : {id, SDL_JoystickID{0}}) {
        EXPECT_EQ(JoystickButton(0, which), 0);
        EXPECT_EQ(JoystickAxis(0, -32768, which), 0);
        EXPECT_EQ(Hat(0, SDL_HAT_UP, which), 0);
    }
    EXPECT_EQ(Latches(), ".... ....");
}

TEST_F(JoystickPress, SdlsOwnEventsGiveTheirKeysInOrder) {
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
    Stick->SetHat(0, SDL_HAT_RIGHTDOWN);
    Stick->SetAxis(0, 32767);
    Stick->SetButton(3, true);
    Stick->SetHat(0, SDL_HAT_CENTERED);
    Stick->SetButton(3, false);
    std::vector<std::int32_t> keys;
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        const std::int32_t key = TranslatePress(State, Devices, event);
        if (key != 0) {
            keys.push_back(key);
        }
    }
    EXPECT_EQ(keys, (std::vector<std::int32_t>{81, 79, 41}));
}

} // namespace
