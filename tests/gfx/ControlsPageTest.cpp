#include "tests/gfx/OptionsPageTest.hpp"

#include <functional>
#include <iterator>
#include <utility>

namespace {

constexpr std::uint32_t PromptColor = 0xFFAAFF78;

constexpr BindingTable Unbound{-1, -1, -1, -1, -1};

const std::vector<std::u32string> KeyboardActions{U"MOVE LEFT", U"MOVE RIGHT", U"FIRE", U"BOMB", U"HEAL"};
const std::vector<std::u32string> PadActions{U"FIRE", U"BOMB", U"HEAL", U"CONFIRM", U"BACK"};

const std::vector<std::u32string> DefaultKeys{U"LEFT", U"RIGHT", U"LEFT CTRL", U"X", U"SPACE"};
const std::vector<std::u32string> DefaultPad{U"A", U"X", U"Y", U"A", U"B"};
const std::vector<std::u32string> DefaultStick{
    U"BUTTON 0", U"BUTTON 1", U"BUTTON 2", U"BUTTON 0", U"BUTTON 3"};

ToldPage Page(const std::u32string &Device, const std::vector<std::u32string> &Actions,
    const std::vector<std::u32string> &Bindings) {
    std::vector<ToldRow> rows{{U"DEVICE", Device}};
    for (std::size_t i = 0; i < 5; ++i) {
        rows.push_back({Actions.at(i), Bindings.at(i)});
    }
    for (const char32_t *const verb : {U"DEFAULT SETTINGS", U"APPLY", U"REVERT", U"BACK"}) {
        rows.push_back({verb});
    }
    return {.Section = U"CONTROLS",
        .Rows = rows,
        .FirstHint = U"ENTER REBIND   LEFT / RIGHT DEVICE",
        .FirstHintY = 498,
        .SecondHint = U"ESC BACK",
        .SecondHintY = 526};
}

ToldPage KeyboardPage() {
    return Page(U"KEYBOARD", KeyboardActions, DefaultKeys);
}

ToldPage GamepadPage(bool IsOpen = false) {
    return Page(IsOpen ? U"GAMEPAD (ON)" : U"GAMEPAD (OFF)", PadActions, DefaultPad);
}

ToldPage JoystickPage(bool IsOpen = false) {
    return Page(IsOpen ? U"JOYSTICK (ON)" : U"JOYSTICK (OFF)", PadActions, DefaultStick);
}

/// A page while a press is awaited.
ToldPage Prompting(ToldPage Told, const std::u32string &Prompt) {
    Told.FirstHint = Prompt;
    Told.FirstHintColor = PromptColor;
    Told.SecondHint = U"ESC CANCEL   DEL CLEAR";
    return Told;
}

/// Other words for all the texts of this page.
constexpr std::pair<const char *, const char *> Translation[] = {{"Options.Title", "T"},
    {"Options.Section.Controls", "S"}, {"Options.Controls.Device", "D"}, {"Device.Keyboard", "DK"},
    {"Device.Gamepad", "DG"}, {"Device.Joystick", "DJ"}, {"Common.On", "JA"}, {"Common.Off", "NEIN"},
    {"Action.MoveLeft", "AL"}, {"Action.MoveRight", "AR"}, {"Action.Fire", "AF"}, {"Action.Bomb", "AB"},
    {"Action.Heal", "AH"}, {"Action.Confirm", "AC"}, {"Action.Back", "AZ"}, {"Options.DefaultSettings", "V1"},
    {"Common.Apply", "V2"}, {"Common.Revert", "V3"}, {"Common.Back", "V4"},
    {"Options.Controls.Hint.RebindDevice", "H1"}, {"Options.Controls.Hint.EscBack", "H2"},
    {"Options.Controls.Hint.EscCancelDelClear", "H3"}, {"Options.Controls.BindPrompt.Keyboard", "PK "},
    {"Options.Controls.BindPrompt.Gamepad", "PG "}, {"Options.Controls.BindPrompt.Joystick", "PJ "},
    {"Options.Controls.BindPrompt.Any", "PA"}, {"Controller.Hint.Select", "C1"},
    {"Controller.Hint.Back", "C2"}, {"Controls.ButtonPrefix", "NR"}};

/// A page with a gamepad plugged in, in those words but for its actions, bindings and device.
ToldPage Translated(ToldPage Told) {
    Told.Title = U"T";
    Told.Section = U"S";
    Told.Rows[0].Label = U"D";
    for (std::size_t i = 0; i < 4; ++i) {
        Told.Rows[6 + i].Label = std::u32string(U"V") + static_cast<char32_t>(U'1' + i);
    }
    Told.FirstHint = U"H1";
    Told.SecondHint = U"PAD A C1 B C2";
    return Told;
}

class ControlsPage : public OptionsPageTest {
protected:
    ControlsPage() : OptionsPageTest(OptionsPageControls) {}

    /// A page with each set of devices, on each screen.
    void ExpectEverywhere(const std::function<ToldPage(const DeviceCase &)> &Tell) {
        for (const int width : TestedWidths) {
            OpenWidth(width);
            for (const DeviceCase &devices : PageDeviceCases) {
                Plug(devices);
                ToldPage told = Tell(devices);
                told.Width = width;
                if (!devices.Line.empty()) {
                    told.SecondHint = devices.Line;
                }
                EXPECT_TRUE(Shows(told)) << width << " " << devices.HasGamepad << devices.HasJoystick;
            }
        }
    }

    void Capture(std::int32_t Kind, std::int32_t Row) {
        State.CaptureActive = true;
        State.CaptureKind = static_cast<enum CaptureKind>(Kind);
        State.CaptureKeyboardRow = Kind == 1 ? Row : 0;
        State.CaptureGamepadRow = Kind == 2 ? Row : 0;
        State.CaptureJoystickRow = Kind == 3 ? Row : 0;
    }
};

TEST_F(ControlsPage, ShowsTheKeyboardWithoutAWordAboutDevices) {
    ExpectEverywhere([](const DeviceCase &) {
        return KeyboardPage();
    });
}

TEST_F(ControlsPage, TellsWhetherAGamepadIsOpen) {
    State.ControlsDevice = ControlsDeviceGamepad;
    ExpectEverywhere([](const DeviceCase &Plugged) {
        return GamepadPage(Plugged.HasGamepad);
    });
}

TEST_F(ControlsPage, TellsWhetherAJoystickIsOpen) {
    State.ControlsDevice = ControlsDeviceJoystick;
    ExpectEverywhere([](const DeviceCase &Plugged) {
        return JoystickPage(Plugged.HasJoystick);
    });
}

TEST_F(ControlsPage, ShiftsItsColumnsAsADeviceComesAndGoes) {
    State.ControlsDevice = ControlsDeviceJoystick;
    const auto labelLeft = [this] {
        Draw();
        const Picture shown = Shown();
        for (int x = 0; x < ScreenWidth; ++x) {
            for (int y = 354; y < 378; ++y) { // DEFAULT SETTINGS, the widest label
                if (shown.At(x, y) != 0xFF000000) {
                    return x;
                }
            }
        }
        return -1;
    };
    // The ink of a D begins a square to the right of its cell.
    EXPECT_EQ(labelLeft(), 309 + 3); // 640 - (336 + 32 + 294) / 2, with "JOYSTICK (OFF)"
    Plug(false, true);
    EXPECT_EQ(labelLeft(), 319 + 3); // 640 - (336 + 32 + 273) / 2 = 319.5, with "JOYSTICK (ON)"
    Plug(false, false);
    EXPECT_EQ(labelLeft(), 309 + 3);
}

TEST_F(ControlsPage, MarksEachRowWhileItIsSelected) {
    for (int row = 0; row < 10; ++row) {
        State.ControlsSelection = row;
        ToldPage told = KeyboardPage();
        told.SelectedRow = row;
        EXPECT_TRUE(Shows(told)) << row;
    }
}

TEST_F(ControlsPage, MarksNoRowForASelectionThatIsNone) {
    for (const int selection : {-1, 10}) {
        State.ControlsSelection = selection;
        ToldPage told = KeyboardPage();
        told.SelectedRow = -1;
        EXPECT_TRUE(Shows(told)) << selection;
    }
}

TEST_F(ControlsPage, ShowsThePendingValuesWhileTheyAreValid) {
    State.PendingKeyboard = {4, 7, 44, 40, 0};
    State.PendingGamepad = {9, 10, -1, 6, 4};
    State.PendingJoystick = {10, -1, 255, 3, 7};
    const std::vector<std::u32string> keys{U"A", U"D", U"SPACE", U"RETURN", U"UNBOUND"};
    const std::vector<std::u32string> pad{U"LEFTSHOULDER", U"RIGHTSHOULDER", U"UNBOUND", U"START", U"BACK"};
    const std::vector<std::u32string> stick{
        U"BUTTON 10", U"UNBOUND", U"BUTTON 255", U"BUTTON 3", U"BUTTON 7"};
    State.PendingControlsValid = true;
    State.ControlsDevice = ControlsDeviceGamepad;
    State.PendingControlsDevice = ControlsDeviceKeyboard;
    EXPECT_TRUE(Shows(Page(U"KEYBOARD", KeyboardActions, keys)));
    State.PendingControlsDevice = ControlsDeviceGamepad;
    EXPECT_TRUE(Shows(Page(U"GAMEPAD (OFF)", PadActions, pad)));
    State.PendingControlsDevice = ControlsDeviceJoystick;
    EXPECT_TRUE(Shows(Page(U"JOYSTICK (OFF)", PadActions, stick)));
    State.PendingControlsValid = false;
    EXPECT_TRUE(Shows(GamepadPage()));
    State.ControlsDevice = ControlsDeviceJoystick;
    EXPECT_TRUE(Shows(JoystickPage()));
    State.ControlsDevice = ControlsDeviceKeyboard;
    EXPECT_TRUE(Shows(KeyboardPage()));
}

TEST_F(ControlsPage, ItsDeviceLineIsOfTheAppliedButtons) {
    Plug(true, true);
    State.PendingControlsValid = true;
    State.PendingControlsDevice = ControlsDeviceKeyboard;
    State.PendingGamepad = {4, 5, 6, 7, 8};
    State.PendingJoystick = {4, 5, 6, 7, 8};
    ToldPage told = KeyboardPage();
    told.SecondHint = PageDeviceCases[3].Line;
    EXPECT_TRUE(Shows(told));
}

TEST_F(ControlsPage, NamesWhatIsUnboundOrHasNoName) {
    State.KeyboardBindings = {0, 512, -3, 511, 1};
    EXPECT_TRUE(Shows(Page(
        U"KEYBOARD", KeyboardActions, {U"UNBOUND", U"UNBOUND", U"UNBOUND", U"SCANCODE 511", U"SCANCODE 1"})));
    State.ControlsDevice = ControlsDeviceGamepad;
    State.GamepadBindings = {-1, 26, 0, 1000, 3};
    EXPECT_TRUE(Shows(Page(U"GAMEPAD (OFF)", PadActions, {U"UNBOUND", U"UNBOUND", U"A", U"UNBOUND", U"Y"})));
}

TEST_F(ControlsPage, HasAWordForADeviceThatIsNone) {
    for (const int device : {-1, 3}) {
        State.ControlsDevice = static_cast<enum ControlsDevice>(device);
        State.KeyboardBindings = State.GamepadBindings = State.JoystickBindings = Unbound;
        Draw();
        // The widest label and the widest value have the same width whichever actions stand below.
        const std::vector<std::u32string> unbound(5, U"UNBOUND");
        const ExpectedScreen expected = ScreenOf(Page(U"UNKNOWN", KeyboardActions, unbound));
        EXPECT_TRUE(expected.IsShownBy(Shown(), 0, 184)) << device;
        EXPECT_TRUE(expected.IsShownBy(Shown(), 354, 720)) << device;
    }
}

TEST_F(ControlsPage, PromptsForEachKey) {
    for (std::size_t row = 0; row < 5; ++row) {
        Capture(1, static_cast<std::int32_t>(row));
        EXPECT_TRUE(Shows(Prompting(KeyboardPage(), U"PRESS A KEY FOR " + KeyboardActions[row]))) << row;
    }
}

TEST_F(ControlsPage, PromptsForEachGamepadButton) {
    State.ControlsDevice = ControlsDeviceGamepad;
    for (std::size_t row = 0; row < 5; ++row) {
        Capture(2, static_cast<std::int32_t>(row));
        EXPECT_TRUE(Shows(Prompting(GamepadPage(), U"PRESS A GAMEPAD BUTTON FOR " + PadActions[row]))) << row;
    }
}

TEST_F(ControlsPage, PromptsForEachJoystickButton) {
    State.ControlsDevice = ControlsDeviceJoystick;
    for (std::size_t row = 0; row < 5; ++row) {
        Capture(3, static_cast<std::int32_t>(row));
        EXPECT_TRUE(Shows(Prompting(JoystickPage(), U"PRESS A JOYSTICK BUTTON FOR " + PadActions[row])))
            << row;
    }
}

TEST_F(ControlsPage, PromptsForAnyInputOfAnotherKind) {
    for (const int kind : {0, 4, -1}) {
        Capture(kind, 2);
        EXPECT_TRUE(Shows(Prompting(KeyboardPage(), U"PRESS AN INPUT FOR "))) << kind;
    }
}

TEST_F(ControlsPage, PromptsByTheKindOfTheCaptureNotByTheShownDevice) {
    Capture(2, 3);
    EXPECT_TRUE(Shows(Prompting(KeyboardPage(), U"PRESS A GAMEPAD BUTTON FOR CONFIRM")));
    State.ControlsDevice = ControlsDeviceJoystick;
    Capture(1, 1);
    EXPECT_TRUE(Shows(Prompting(JoystickPage(), U"PRESS A KEY FOR MOVE RIGHT")));
}

TEST_F(ControlsPage, HasNoDeviceLineWhileItPrompts) {
    Capture(1, 0);
    for (const int width : TestedWidths) {
        OpenWidth(width);
        for (const DeviceCase &devices : PageDeviceCases) {
            Plug(devices);
            ToldPage told = Prompting(KeyboardPage(), U"PRESS A KEY FOR MOVE LEFT");
            told.Width = width;
            EXPECT_TRUE(Shows(told)) << width << " " << devices.HasGamepad << devices.HasJoystick;
        }
    }
}

TEST_F(ControlsPage, KindsWithoutACaptureDoNotPrompt) {
    for (const int kind : {1, 2, 3}) {
        Capture(kind, 1);
        State.CaptureActive = false;
        EXPECT_TRUE(Shows(KeyboardPage())) << kind;
    }
}

TEST_F(ControlsPage, StandsAtHalfPixelsWhereItsColumnsAreOdd) {
    OpenWidth(960, 2);
    ToldPage told = KeyboardPage(); // 336 + 32 + 189 wide
    told.Width = 960;
    EXPECT_TRUE(Shows(told, 2));
}

TEST_F(ControlsPage, ShiftsItsColumnsWithTheLanguage) {
    Localization.Texts["Options.DefaultSettings"] = "STANDARDEINSTELLUNGEN";
    Localization.Texts["Device.Keyboard"] = "TASTATUR AM SCHREIBTISCH";
    ToldPage told = Page(U"TASTATUR AM SCHREIBTISCH", KeyboardActions, DefaultKeys);
    told.Rows[6].Label = U"STANDARDEINSTELLUNGEN";
    EXPECT_TRUE(Shows(told));
    Localization.Texts["Action.MoveRight"] = "NACH RECHTS AUSWEICHEN \xC3\x9C";
    told.Rows[2].Label = U"NACH RECHTS AUSWEICHEN \u00DC";
    EXPECT_TRUE(Shows(told));
}

TEST_F(ControlsPage, IsWiderThanTheNarrowestScreenWhereItsTextsAreTooLong) {
    OpenWidth(960);
    const std::string longest(30, 'W'); // 630 + 32 + 630 wide: cut on both sides alike
    Localization.Texts["Options.DefaultSettings"] = longest;
    Localization.Texts["Device.Keyboard"] = longest;
    ToldPage told = Page(Letters(longest), KeyboardActions, DefaultKeys);
    told.Rows[6].Label = Letters(longest);
    told.Width = 960;
    EXPECT_TRUE(Shows(told));
}

TEST_F(ControlsPage, TakesEachOfItsTextsFromTheTableInEveryFrame) {
    Plug(true, false);
    ToldPage told = KeyboardPage();
    told.SecondHint = PageDeviceCases[1].Line;
    ASSERT_TRUE(Shows(told));
    Localization.Texts = {std::begin(Translation), std::end(Translation)};
    const std::vector<std::u32string> keyActions{U"AL", U"AR", U"AF", U"AB", U"AH"};
    const std::vector<std::u32string> padActions{U"AF", U"AB", U"AH", U"AC", U"AZ"};
    EXPECT_TRUE(Shows(Translated(Page(U"DK", keyActions, DefaultKeys))));
    State.ControlsDevice = ControlsDeviceGamepad;
    EXPECT_TRUE(Shows(Translated(Page(U"DG (JA)", padActions, DefaultPad))));
    State.ControlsDevice = ControlsDeviceJoystick;
    const ToldPage joystick =
        Translated(Page(U"DJ (NEIN)", padActions, {U"NR 0", U"NR 1", U"NR 2", U"NR 0", U"NR 3"}));
    EXPECT_TRUE(Shows(joystick));
    for (const int kind : {0, 1, 2, 3}) {
        Capture(kind, 1);
        ToldPage prompting = joystick;
        const std::array<std::u32string, 4> prompts{U"PA", U"PK AR", U"PG AB", U"PJ AB"};
        prompting.FirstHint = prompts.at(static_cast<std::size_t>(kind));
        prompting.FirstHintColor = PromptColor;
        prompting.SecondHint = U"H3";
        EXPECT_TRUE(Shows(prompting)) << kind;
    }
    State.CaptureActive = false;
    Plug(false, false);
    ToldPage alone = joystick;
    alone.SecondHint = U"H2";
    EXPECT_TRUE(Shows(alone));
}

} // namespace
