#include "input/ControllerHint.hpp"

#include "state/GameState.hpp"
#include "tests/input/InputTest.hpp"
#include "tests/support/TextScope.hpp"

#include <optional>

namespace {

/// The hint line with the devices that a test plugs in, in a language of the test's choice.
class Hint : public InputTest {
protected:
    void TearDown() override {
        InputTest::TearDown();
        Pad.reset();
        Stick.reset();
    }

    void PlugInPad() {
        Pad.emplace(GamepadShape);
        OpenFirstInputDevices(Devices);
        ASSERT_NE(Devices.Gamepad, nullptr);
    }

    void PlugInStick() {
        Stick.emplace(JoystickShape);
        OpenFirstInputDevices(Devices);
        ASSERT_NE(Devices.Joystick, nullptr);
    }

    std::string Line(std::string_view ConfirmLabel = "", std::string_view BackLabel = "") const {
        return ControllerHint(State, Devices, ConfirmLabel, BackLabel);
    }

    GameState State;
    std::optional<VirtualDevice> Pad;
    std::optional<VirtualDevice> Stick;

private:
    const TextScope Texts;
};

TEST_F(Hint, IsEmptyWithoutADevice) {
    EXPECT_EQ(Line(), "");
    EXPECT_EQ(Line("RESUME", "BACK"), "");
    EXPECT_EQ(Line("MAIN MENU", "MAIN MENU"), "");
}

TEST_F(Hint, NamesThePadsButtons) {
    PlugInPad();
    EXPECT_EQ(Line(), "PAD A SELECT B BACK");
}

TEST_F(Hint, NamesTheJoysticksButtons) {
    PlugInStick();
    EXPECT_EQ(Line(), "JOY BUTTON 0 SELECT BUTTON 3 BACK");
}

TEST_F(Hint, HoldsBothGroupsWithThreeBlanksBetween) {
    PlugInStick();
    PlugInPad();
    EXPECT_EQ(Line(), "PAD A SELECT B BACK   JOY BUTTON 0 SELECT BUTTON 3 BACK");
}

TEST_F(Hint, TakesTheCallersLabels) {
    PlugInPad();
    PlugInStick();
    EXPECT_EQ(Line("SELECT", "RESUME"), "PAD A SELECT B RESUME   JOY BUTTON 0 SELECT BUTTON 3 RESUME");
    EXPECT_EQ(Line("GO", ""), "PAD A GO B BACK   JOY BUTTON 0 GO BUTTON 3 BACK");
    EXPECT_EQ(Line("", "LEAVE"), "PAD A SELECT B LEAVE   JOY BUTTON 0 SELECT BUTTON 3 LEAVE");
}

TEST_F(Hint, SaysOrBetweenButtonsThatDoTheSame) {
    PlugInPad();
    EXPECT_EQ(Line("MAIN MENU", "MAIN MENU"), "PAD A OR B MAIN MENU");
    PlugInStick();
    EXPECT_EQ(Line("BACK", "BACK"), "PAD A OR B BACK   JOY BUTTON 0 OR BUTTON 3 BACK");
}

TEST_F(Hint, ComparesLabelsAfterTheEmptyOnesAreFilledIn) {
    PlugInPad();
    EXPECT_EQ(Line("BACK", ""), "PAD A OR B BACK");
    EXPECT_EQ(Line("", "SELECT"), "PAD A OR B SELECT");
}

TEST_F(Hint, TellsLabelsApartByEveryLetter) {
    PlugInPad();
    EXPECT_EQ(Line("BACK", "back"), "PAD A BACK B back");
    EXPECT_EQ(Line("MAIN", "MAIN MENU"), "PAD A MAIN B MAIN MENU");
    EXPECT_EQ(Line(" ", ""), "PAD A   B BACK"); // a blank is no empty label
}

TEST_F(Hint, FollowsRebinding) {
    PlugInPad();
    PlugInStick();
    State.GamepadBindings = {0, 2, 3, SDL_GAMEPAD_BUTTON_START, SDL_GAMEPAD_BUTTON_LEFT_SHOULDER};
    State.JoystickBindings = {0, 1, 2, 17, 0};
    EXPECT_EQ(Line(), "PAD START SELECT LEFTSHOULDER BACK   JOY BUTTON 17 SELECT BUTTON 0 BACK");
}

TEST_F(Hint, NamesUnboundAndImpossibleButtons) {
    PlugInPad();
    PlugInStick();
    State.GamepadBindings = {0, 2, 3, -1, 26};
    State.JoystickBindings = {0, 1, 2, 0, -1};
    EXPECT_EQ(Line(), "PAD UNBOUND SELECT UNBOUND BACK   JOY BUTTON 0 SELECT UNBOUND BACK");
}

TEST_F(Hint, DoesNotLookAtTheDeviceOfTheControlsPage) {
    PlugInPad();
    for (const enum ControlsDevice device :
        {ControlsDeviceKeyboard, ControlsDeviceGamepad, ControlsDeviceJoystick}) {
        State.ControlsDevice = device;
        EXPECT_EQ(Line(), "PAD A SELECT B BACK") << device;
    }
}

TEST_F(Hint, FollowsPluggingAndUnplugging) {
    PlugInPad();
    PlugInStick();
    SDL_Event event{};
    event.type = SDL_EVENT_JOYSTICK_REMOVED;
    event.jdevice.which = Pad->Id;
    Pad->Unplug();
    HandleHotPlug(Devices, event);
    EXPECT_EQ(Line(), "JOY BUTTON 0 SELECT BUTTON 3 BACK");
    event.jdevice.which = Stick->Id;
    Stick->Unplug();
    HandleHotPlug(Devices, event);
    EXPECT_EQ(Line(), "");
}

TEST_F(Hint, SpeaksTheLoadedLanguage) {
    PlugInPad();
    PlugInStick();
    Localization.Texts = {{"Controller.Hint.PadPrefix", "GAMEPAD"}, {"Controller.Hint.JoyPrefix", "STICK"},
        {"Controller.Hint.Or", "ODER"}, {"Controller.Hint.Select", "W\xC3\x84HLEN"},
        {"Controller.Hint.Back", "ZUR\xC3\x9C"
                                 "CK"},
        {"Controls.ButtonPrefix", "KNOPF"}};
    EXPECT_EQ(Line(), "GAMEPAD A W\xC3\x84HLEN B ZUR\xC3\x9C"
                      "CK   "
                      "STICK KNOPF 0 W\xC3\x84HLEN KNOPF 3 ZUR\xC3\x9C"
                      "CK");
    EXPECT_EQ(Line("X", "X"), "GAMEPAD A ODER B X   STICK KNOPF 0 ODER KNOPF 3 X");
}

TEST_F(Hint, OfALanguageWithOneWordForBothSaysOr) {
    PlugInPad();
    Localization.Texts = {{"Controller.Hint.Select", "OK"}, {"Controller.Hint.Back", "OK"}};
    EXPECT_EQ(Line(), "PAD A OR B OK");
}

TEST_F(Hint, FallsBackToEnglishForEmptyTexts) {
    PlugInPad();
    Localization.Texts = {{"Controller.Hint.PadPrefix", ""}, {"Controller.Hint.Select", ""},
        {"Controller.Hint.Back", ""}, {"Controller.Hint.Or", ""}};
    EXPECT_EQ(Line(), "PAD A SELECT B BACK");
    EXPECT_EQ(Line("X", "X"), "PAD A OR B X");
}

} // namespace
