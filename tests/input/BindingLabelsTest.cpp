#include "input/BindingLabels.hpp"

#include "tests/support/TextScope.hpp"
#include "tests/support/watch/SdlWatch.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();

class BindingLabels : public ::testing::Test {
protected:
    /// Makes SDL say this of every gamepad button.
    void NameButtons(const char *Name) {
        Watch.GetGamepadStringForButton.Answer = [Name](SDL_GamepadButton) {
            return Name;
        };
    }

private:
    SdlWatch Watch;
    const TextScope Texts;
};

/// Capitals of the letters that SDL's names are made of.
std::string Capitals(std::string Name) {
    for (char &character : Name) {
        if (character >= 'a' && character <= 'z') {
            character = static_cast<char>(character - 'a' + 'A');
        }
    }
    return Name;
}

TEST_F(BindingLabels, OfEveryNamedKeyIsItsNameInCapitals) {
    int named = 0;
    for (std::int32_t scancode = 1; scancode < 512; ++scancode) {
        const std::string name = SDL_GetScancodeName(static_cast<SDL_Scancode>(scancode));
        if (!name.empty()) {
            ++named;
            EXPECT_EQ(KeyboardBindingLabel(scancode), Capitals(name)) << scancode;
        }
    }
    EXPECT_GT(named, 200);
}

TEST_F(BindingLabels, OfEveryNamelessKeyIsItsNumber) {
    int nameless = 0;
    for (std::int32_t scancode = 1; scancode < 512; ++scancode) {
        const std::string name = SDL_GetScancodeName(static_cast<SDL_Scancode>(scancode));
        if (name.empty()) {
            ++nameless;
            EXPECT_EQ(KeyboardBindingLabel(scancode), "SCANCODE " + std::to_string(scancode));
        }
    }
    EXPECT_GT(nameless, 100);
}

TEST_F(BindingLabels, OfWellKnownKeys) {
    EXPECT_EQ(KeyboardBindingLabel(80), "LEFT");
    EXPECT_EQ(KeyboardBindingLabel(79), "RIGHT");
    EXPECT_EQ(KeyboardBindingLabel(224), "LEFT CTRL");
    EXPECT_EQ(KeyboardBindingLabel(27), "X");
    EXPECT_EQ(KeyboardBindingLabel(44), "SPACE");
    EXPECT_EQ(KeyboardBindingLabel(88), "KEYPAD ENTER");
    EXPECT_EQ(KeyboardBindingLabel(1), "SCANCODE 1");
    EXPECT_EQ(KeyboardBindingLabel(511), "SCANCODE 511");
}

TEST_F(BindingLabels, OfAKeyWithLettersBeyondAscii) {
    ASSERT_TRUE(SDL_SetScancodeName(static_cast<SDL_Scancode>(500), "Taste \xC3\xB6"));
    EXPECT_EQ(KeyboardBindingLabel(500), "TASTE \xC3\x96");
    ASSERT_TRUE(SDL_SetScancodeName(static_cast<SDL_Scancode>(500), ""));
    EXPECT_EQ(KeyboardBindingLabel(500), "SCANCODE 500");
}

TEST_F(BindingLabels, OfKeysOutOfRangeAreUnbound) {
    for (const std::int32_t value : {0, -1, -44, Lowest, 512, 513, 65536 + 44, Highest}) {
        EXPECT_EQ(KeyboardBindingLabel(value), "UNBOUND") << value;
    }
}

TEST_F(BindingLabels, OfEveryGamepadButtonIsSdlsWordInCapitals) {
    for (std::int32_t button = 0; button < 26; ++button) {
        const char *name = SDL_GetGamepadStringForButton(static_cast<SDL_GamepadButton>(button));
        ASSERT_NE(name, nullptr) << button;
        EXPECT_EQ(GamepadBindingLabel(button), Capitals(name)) << button;
    }
}

TEST_F(BindingLabels, OfWellKnownGamepadButtons) {
    const std::array<std::string, 15> labels{"A", "B", "X", "Y", "BACK", "GUIDE", "START", "LEFTSTICK",
        "RIGHTSTICK", "LEFTSHOULDER", "RIGHTSHOULDER", "DPUP", "DPDOWN", "DPLEFT", "DPRIGHT"};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        EXPECT_EQ(GamepadBindingLabel(static_cast<std::int32_t>(i)), labels.at(i));
    }
}

TEST_F(BindingLabels, OfGamepadButtonsWithoutAWordAreTheirNumbers) {
    for (const char *name : {static_cast<const char *>(nullptr), ""}) {
        NameButtons(name);
        EXPECT_EQ(GamepadBindingLabel(0), "BUTTON 0");
        EXPECT_EQ(GamepadBindingLabel(25), "BUTTON 25");
        EXPECT_EQ(GamepadBindingLabel(26), "UNBOUND");
    }
}

TEST_F(BindingLabels, OfGamepadButtonsOutOfRangeAreUnbound) {
    for (const std::int32_t value : {-1, -2, Lowest, 26, 27, 256, 65536, Highest}) {
        EXPECT_EQ(GamepadBindingLabel(value), "UNBOUND") << value;
    }
}

TEST_F(BindingLabels, OfJoystickButtonsAreTheirNumbers) {
    EXPECT_EQ(JoystickBindingLabel(0), "BUTTON 0");
    EXPECT_EQ(JoystickBindingLabel(3), "BUTTON 3");
    EXPECT_EQ(JoystickBindingLabel(26), "BUTTON 26");
    EXPECT_EQ(JoystickBindingLabel(1000), "BUTTON 1000");
    EXPECT_EQ(JoystickBindingLabel(Highest), "BUTTON 2147483647");
}

TEST_F(BindingLabels, OfNegativeJoystickButtonsAreUnbound) {
    for (const std::int32_t value : {-1, -2, Lowest}) {
        EXPECT_EQ(JoystickBindingLabel(value), "UNBOUND") << value;
    }
}

TEST_F(BindingLabels, SpeakTheLoadedLanguage) {
    Localization.Texts = {{"Controls.Unbound", "FREI"}, {"Controls.ButtonPrefix", "TASTE"},
        {"Controls.ScancodePrefix", "CODE"}};
    EXPECT_EQ(KeyboardBindingLabel(0), "FREI");
    EXPECT_EQ(GamepadBindingLabel(-1), "FREI");
    EXPECT_EQ(JoystickBindingLabel(-1), "FREI");
    EXPECT_EQ(KeyboardBindingLabel(511), "CODE 511");
    EXPECT_EQ(JoystickBindingLabel(4), "TASTE 4");
    NameButtons(nullptr);
    EXPECT_EQ(GamepadBindingLabel(4), "TASTE 4");
}

TEST_F(BindingLabels, LeaveWordsOfTheLanguageInTheirLetters) {
    Localization.Texts = {{"Controls.Unbound", "frei"}, {"Controls.ButtonPrefix", "Taste"}};
    EXPECT_EQ(JoystickBindingLabel(-1), "frei");
    EXPECT_EQ(JoystickBindingLabel(4), "Taste 4");
}

} // namespace
