#include "tests/store/OptionsTest.hpp"

#include "state/LogicalScreen.hpp"
#include "tests/support/Sdl.hpp"

namespace {

using Lines = std::vector<std::string>;
using Rates = std::vector<std::int32_t>;
using Sizes = std::vector<Resolution>;

using LoadOptionsTest = OptionsTest;

// The file.

TEST_F(LoadOptionsTest, IsFalseWithoutAFileAndChangesNothing) {
    const LogCatcher log;
    EXPECT_FALSE(Load());
    EXPECT_EQ(Printed, "");
    EXPECT_EQ(log.Lines, Lines{});
    EXPECT_EQ(Names(), Lines{});
    EXPECT_EQ(Written(), DefaultOptionsText);
}

TEST_F(LoadOptionsTest, IsFalseForAFileTooShortToBeRead) {
    LogicalWidth = 7;
    State.RefreshRate = 60;
    EXPECT_FALSE(Load("[a]\r\n"));
    EXPECT_EQ(Printed, "INI file cannot be smaller than 6 bytes! (Size in bytes: 5)\n");
    EXPECT_FALSE(Load(""));
    EXPECT_EQ(Printed, "");
    EXPECT_EQ(LogicalWidth, 7);
    EXPECT_EQ(State.RefreshRate, 60);
    EXPECT_TRUE(State.RefreshRates.empty());
}

TEST_F(LoadOptionsTest, IsTrueForAFileThatSaysNothing) {
    EXPECT_TRUE(Load("\r\n\r\n\r\n"));
    EXPECT_EQ(Written(), DefaultOptionsText);
}

TEST_F(LoadOptionsTest, TakesTheDefaultFile) {
    EXPECT_TRUE(Load(DefaultOptionsText));
    EXPECT_EQ(Printed, "");
    EXPECT_TRUE(State.Resolutions.empty());
    EXPECT_EQ(Written(), DefaultOptionsText);
}

TEST_F(LoadOptionsTest, TakesTheKeysBeforeASyntaxError) {
    EXPECT_TRUE(
        Load("[Options]\nLanguage=\"de\"\n[Audio]\nMasterVolume=\"10\"\nno separator\nMusicVolume=\"20\"\n"));
    EXPECT_EQ(Printed, "Error while reading INI file: No \"=\" or \":\" sign found!\n\n");
    EXPECT_EQ(State.Language, "de");
    EXPECT_EQ(State.MasterVolume, 10);
    EXPECT_EQ(State.MusicVolume, 50);
}

TEST_F(LoadOptionsTest, TakesAnyEncodingOfTheReader) {
    const std::string text = "[Audio]\r\nMasterVolume=\"33\"\r\n";
    std::string little;
    std::string big;
    for (const char character : text) {
        little += character;
        little += '\0';
        big += '\0';
        big += character;
    }
    for (const std::string &bytes :
        {"\xFF\xFE" + little, "\xFE\xFF" + big, "\xEF\xBB\xBF" + text, little, big}) {
        State = {};
        EXPECT_TRUE(Load(bytes));
        EXPECT_EQ(State.MasterVolume, 33);
        EXPECT_NE(Printed.find(" BOM! Please note"), std::string::npos);
    }
}

TEST_F(LoadOptionsTest, TakesQuotedApostrophedAndBareValues) {
    LoadSection(
        "Audio", "MasterVolume = 11 ; loud\nMusicVolume='12'\nSfxVolume : \"13\" # more\nMusicEnabled=off");
    EXPECT_EQ(State.MasterVolume, 11);
    EXPECT_EQ(State.MusicVolume, 12);
    EXPECT_EQ(State.SfxVolume, 13);
    EXPECT_FALSE(State.MusicEnabled);
}

TEST_F(LoadOptionsTest, TakesKeysInAnyOrderAndTheLaterOfTwo) {
    EXPECT_TRUE(Load("[Audio]\nSfxVolume=1\nMasterVolume=2\n[Options]\nLanguage=fr\n[Audio]\nMasterVolume="
                     "3\n[Options]\nLanguage=de\n"));
    EXPECT_EQ(State.SfxVolume, 1);
    EXPECT_EQ(State.MasterVolume, 3);
    EXPECT_EQ(State.Language, "de");
}

TEST_F(LoadOptionsTest, KnowsSectionsAndKeysToTheLetter) {
    EXPECT_TRUE(Load("MasterVolume=1\n[audio]\nMasterVolume=2\n[Audio]\nmasterVolume=3\nMasterVolum=4\n["
                     "Options]\nMasterVolume=5\n"
                     "[ControlsGamepad]\nMoveLeft=6\n[ControlsKeyboard]\nConfirm=7\n[Mine]\nFire=8\n"));
    EXPECT_EQ(Written(), DefaultOptionsText);
}

TEST_F(LoadOptionsTest, ChangesNothingWhateverFailsOnTheWay) {
    Store("Config.ini", "[Options]\nLanguage=\"de\"\n");
    const CallNames failed = FailEach(
        [this] {
            State = {};
            return LoadOptions(State);
        },
        [this](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
            EXPECT_EQ(State.Language, IsUntouched ? "de" : "en");
            EXPECT_EQ(State.RefreshRates.empty(), !IsUntouched);
            EXPECT_EQ(Names(), Lines{"Config.ini"});
        });
    EXPECT_EQ(failed, (CallNames{Watch.GetPrefPath, Watch.OpenUserStorage, Watch.StorageReady,
                          Watch.GetStoragePathInfo, Watch.ReadStorageFile, Watch.SaveFile}));
}

TEST_F(LoadOptionsTest, TakesNothingFromALeftStagingFile) {
    Store(".Config.ini.tmp", "[Options]\nLanguage=\"de\"\n");
    EXPECT_FALSE(Load());
    EXPECT_EQ(State.Language, "en");
    EXPECT_EQ(Names(), Lines{});
}

// Numbers: each key, what it takes, and what it makes of the rest.

struct NumberKey {
    const char *Section;
    const char *Key;
    std::function<std::int32_t &(GameState &)> Field;
    std::int64_t Least;
    std::int64_t Most;
    bool IsClamped = false; ///< otherwise what is out of range is refused
};

NumberKey Binding(const char *Section, const char *Key, BindingTable GameState::*Table, std::size_t Row,
    std::int64_t Least, std::int64_t Most) {
    return {Section, Key,
        [Table, Row](GameState &State) -> std::int32_t & {
            return (State.*Table)[Row];
        },
        Least, Most};
}

NumberKey Volume(const char *Key, std::int32_t GameState::*Percent) {
    return {"Audio", Key,
        [Percent](GameState &State) -> std::int32_t & {
            return State.*Percent;
        },
        0, 100, true};
}

constexpr std::int64_t Most32 = 2147483647;

const NumberKey NumberKeys[] = {
    Binding("ControlsKeyboard", "MoveLeft", &GameState::KeyboardBindings, 0, 0, 511),
    Binding("ControlsKeyboard", "MoveRight", &GameState::KeyboardBindings, 1, 0, 511),
    Binding("ControlsKeyboard", "Fire", &GameState::KeyboardBindings, 2, 0, 511),
    Binding("ControlsKeyboard", "Bomb", &GameState::KeyboardBindings, 3, 0, 511),
    Binding("ControlsKeyboard", "Heal", &GameState::KeyboardBindings, 4, 0, 511),
    Binding("ControlsGamepad", "Fire", &GameState::GamepadBindings, 0, -1, 25),
    Binding("ControlsGamepad", "Bomb", &GameState::GamepadBindings, 1, -1, 25),
    Binding("ControlsGamepad", "Heal", &GameState::GamepadBindings, 2, -1, 25),
    Binding("ControlsGamepad", "Confirm", &GameState::GamepadBindings, 3, -1, 25),
    Binding("ControlsGamepad", "Back", &GameState::GamepadBindings, 4, -1, 25),
    Binding("ControlsJoystick", "Fire", &GameState::JoystickBindings, 0, -1, Most32),
    Binding("ControlsJoystick", "Bomb", &GameState::JoystickBindings, 1, -1, Most32),
    Binding("ControlsJoystick", "Heal", &GameState::JoystickBindings, 2, -1, Most32),
    Binding("ControlsJoystick", "Confirm", &GameState::JoystickBindings, 3, -1, Most32),
    Binding("ControlsJoystick", "Back", &GameState::JoystickBindings, 4, -1, Most32),
    Volume("MasterVolume", &GameState::MasterVolume),
    Volume("MusicVolume", &GameState::MusicVolume),
    Volume("SfxVolume", &GameState::SfxVolume),
};

constexpr const char *BadNumbers[] = {"", " ", "x", "+5", " 5", "5 ", "5.0", "5,0", "0x5", "--5", "5-", "1e1",
    "true", "2147483648", "-2147483649", "99999999999999999999"};

class NumberOptions : public OptionsTest {
protected:
    /// What a key is after loading a text for it, where it was 17 before.
    std::int32_t Loaded(const NumberKey &Key, const std::string &Text) {
        State = {};
        Key.Field(State) = 17;
        GameState others = State;
        LoadSection(Key.Section, std::string(Key.Key) + "=\"" + Text + "\"");
        const std::int32_t found = Key.Field(State);
        // No other key goes with it.
        Key.Field(others) = found;
        EXPECT_EQ(others.KeyboardBindings, State.KeyboardBindings);
        EXPECT_EQ(others.GamepadBindings, State.GamepadBindings);
        EXPECT_EQ(others.JoystickBindings, State.JoystickBindings);
        EXPECT_EQ(others.MasterVolume, State.MasterVolume);
        EXPECT_EQ(others.MusicVolume, State.MusicVolume);
        EXPECT_EQ(others.SfxVolume, State.SfxVolume);
        return found;
    }
};

TEST_F(NumberOptions, AreTakenWithinTheirRange) {
    for (const NumberKey &key : NumberKeys) {
        SCOPED_TRACE(std::string(key.Section) + "." + key.Key);
        for (const std::int64_t value : {key.Least, key.Least + 1, std::int64_t{5}, key.Most - 1, key.Most}) {
            EXPECT_EQ(Loaded(key, std::to_string(value)), value);
        }
    }
}

TEST_F(NumberOptions, BeyondTheirRangeAreRefusedOrClamped) {
    for (const NumberKey &key : NumberKeys) {
        SCOPED_TRACE(std::string(key.Section) + "." + key.Key);
        for (const std::int64_t value : {key.Least - 1, std::int64_t{-1000}, -Most32 - 1}) {
            EXPECT_EQ(Loaded(key, std::to_string(value)), key.IsClamped ? key.Least : 17) << value;
        }
        if (key.Most < Most32) {
            for (const std::int64_t value : {key.Most + 1, std::int64_t{1000}, Most32}) {
                EXPECT_EQ(Loaded(key, std::to_string(value)), key.IsClamped ? key.Most : 17) << value;
            }
        }
    }
}

TEST_F(NumberOptions, ThatAreNoneLeaveWhatWasThere) {
    for (const NumberKey &key : NumberKeys) {
        for (const char *bad : BadNumbers) {
            EXPECT_EQ(Loaded(key, bad), 17) << key.Section << "." << key.Key << " \"" << bad << '"';
        }
    }
}

TEST_F(NumberOptions, ThatAreBadDoNotSpoilTheNext) {
    LoadSection("ControlsKeyboard", "MoveLeft=512\nMoveRight=x\nFire=30\nBomb=-1\nHeal=31\n");
    EXPECT_EQ(State.KeyboardBindings, (BindingTable{80, 79, 30, 27, 31}));
}

TEST_F(NumberOptions, OfAVolumeOutOfRangeAlreadyAreClampedWithoutAKey) {
    State.MasterVolume = 250;
    LoadSection("Audio", "MusicVolume=-5\nSfxVolume=250\n");
    EXPECT_EQ(State.MasterVolume, 100);
    EXPECT_EQ(State.MusicVolume, 0);
    EXPECT_EQ(State.SfxVolume, 100);
}

// Switches.

struct SwitchKey {
    const char *Section;
    const char *Key;
    bool GameState::*Field;
};

constexpr SwitchKey SwitchKeys[] = {{"Graphics", "Fullscreen", &GameState::Fullscreen},
    {"Graphics", "VSync", &GameState::VSync}, {"Audio", "MusicEnabled", &GameState::MusicEnabled},
    {"Audio", "SfxEnabled", &GameState::SfxEnabled}};

TEST_F(LoadOptionsTest, TakesSwitchesByTheirWords) {
    const std::vector<std::pair<const char *, int>> rows{{"1", 1}, {"true", 1}, {"YES", 1}, {"On", 1},
        {"0", 0}, {"False", 0}, {"no", 0}, {"OFF", 0}, {"", -1}, {" ", -1}, {"2", -1}, {" 1", -1}, {"0 ", -1},
        {"maybe", -1}};
    for (const SwitchKey &key : SwitchKeys) {
        for (const auto &[word, meaning] : rows) {
            for (const bool before : {false, true}) {
                State.*key.Field = before;
                LoadSection(key.Section, std::string(key.Key) + "=\"" + word + "\"");
                EXPECT_EQ(State.*key.Field, meaning < 0 ? before : meaning == 1)
                    << key.Key << " \"" << word << '"';
            }
        }
    }
}

// Words.

TEST_F(LoadOptionsTest, TakesTheDeviceByItsWord) {
    const std::vector<std::pair<const char *, int>> rows{{"keyboard", 0}, {"gamepad", 1}, {"joystick", 2},
        {"KeyBoard", 0}, {"GAMEPAD", 1}, {"Joystick", 2}, {"", -1}, {" gamepad", -1}, {"gamepad ", -1},
        {"pad", -1}, {"1", -1}};
    for (const auto &[word, device] : rows) {
        for (const int before : {0, 1, 2}) {
            State.ControlsDevice = static_cast<ControlsDevice>(before);
            LoadSection("Options", std::string("ControlsDevice=\"") + word + "\"");
            EXPECT_EQ(State.ControlsDevice, device < 0 ? before : device) << '"' << word << '"';
        }
    }
}

TEST_F(LoadOptionsTest, TakesTheLanguageInLowerCaseWithoutBlanks) {
    const std::vector<std::pair<const char *, const char *>> rows{{"de", "de"}, {"  DE ", "de"},
        {"D e", "de"}, {"pt-BR", "pt-br"}, {"   ", "en"}, {"\t", "en"}, {"", "fr"}, {"anything", "anything"}};
    for (const auto &[word, expected] : rows) {
        State.Language = "fr";
        LoadSection("Options", std::string("Language=\"") + word + "\"");
        EXPECT_EQ(State.Language, expected) << '"' << word << '"';
    }
}

TEST_F(LoadOptionsTest, NormalizesTheLanguageThatStands) {
    State.Language = " FR";
    LoadSection("Options", "ControlsDevice=gamepad");
    EXPECT_EQ(State.Language, "fr");
}

TEST_F(LoadOptionsTest, TakesTheAspectModeByItsWord) {
    const std::vector<std::pair<const char *, int>> rows{{"widescreen", 0}, {"classic4x3", 1},
        {"WideScreen", 0}, {"Classic4X3", 1}, {"", -1}, {"classic", -1}, {" classic4x3", -1}, {"4:3", -1},
        {"1", -1}};
    for (const auto &[word, mode] : rows) {
        for (const int before : {0, 1}) {
            State = {};
            State.AspectMode = static_cast<AspectMode>(before);
            LoadGraphics(std::string("AspectMode=\"") + word + "\"");
            EXPECT_EQ(State.AspectMode, mode < 0 ? before : mode) << '"' << word << '"';
        }
    }
}

// The resolution.

class ResolutionOptions : public OptionsTest {
protected:
    void ExpectChosen(std::int32_t Index, const Sizes &List, std::int32_t Across) const {
        EXPECT_EQ(State.ResolutionIndex, Index);
        EXPECT_EQ(State.Resolutions, List);
        EXPECT_EQ(LogicalWidth, Across);
    }
};

TEST_F(ResolutionOptions, SelectASizeOfTheBuiltInList) {
    LoadGraphics("ResolutionWidth=1600\nResolutionHeight=900");
    ExpectChosen(7, {}, 1280);
    LoadGraphics("ResolutionWidth=3440\nResolutionHeight=1440");
    ExpectChosen(17, {}, 1728);
    LoadGraphics("ResolutionWidth=1280\nResolutionHeight=800");
    ExpectChosen(4, {}, 1152);
    LoadGraphics("ResolutionWidth=5120\nResolutionHeight=1440");
    ExpectChosen(20, {}, 2560);
}

TEST_F(ResolutionOptions, SelectASizeThatIsListed) {
    State.Resolutions = {{1280, 720}, {1920, 1080}, {2160, 1440}};
    LoadGraphics("ResolutionWidth=2160\nResolutionHeight=1440");
    ExpectChosen(2, {{1280, 720}, {1920, 1080}, {2160, 1440}}, 1080);
}

TEST_F(ResolutionOptions, AddASizeThatFitsAndIsNotListed) {
    State.Resolutions = {{1280, 720}, {1920, 1080}};
    LoadGraphics("ResolutionWidth=1760\nResolutionHeight=990");
    ExpectChosen(2, {{1280, 720}, {1920, 1080}, {1760, 990}}, 1280);
    LoadGraphics("ResolutionWidth=1760\nResolutionHeight=990");
    ExpectChosen(2, {{1280, 720}, {1920, 1080}, {1760, 990}}, 1280);
}

TEST_F(ResolutionOptions, MakeASizeThatFitsTheOnlyOneOfAnEmptyList) {
    LoadGraphics("ResolutionWidth=2400\nResolutionHeight=1000"); // 12:5
    ExpectChosen(0, {{2400, 1000}}, 1728);
}

TEST_F(ResolutionOptions, KeepNoSizeThatDoesNotFit) {
    for (const char *size : {"ResolutionWidth=1280\nResolutionHeight=1024",
             "ResolutionWidth=1024\nResolutionHeight=768", "ResolutionWidth=0\nResolutionHeight=720",
             "ResolutionWidth=-1280\nResolutionHeight=-720", "ResolutionWidth=1600"}) {
        State = {};
        State.ResolutionIndex = 9;
        LoadGraphics(size);
        ExpectChosen(9, {}, 1280);
    }
}

TEST_F(ResolutionOptions, ClampTheIndexWhereASizeDoesNotFit) {
    State.ResolutionIndex = 99;
    LoadGraphics("ResolutionWidth=1280\nResolutionHeight=1024");
    ExpectChosen(20, {}, 2560);
    State.ResolutionIndex = -4;
    LoadGraphics("ResolutionWidth=1280\nResolutionHeight=1024");
    ExpectChosen(0, {}, 1280);
    State.Resolutions = {{1280, 720}, {2160, 1440}};
    State.ResolutionIndex = 5;
    LoadGraphics("ResolutionWidth=1280\nResolutionHeight=1024");
    ExpectChosen(1, {{1280, 720}, {2160, 1440}}, 1080);
}

TEST_F(ResolutionOptions, AreReadBehindTheAspectModeWhereverThatStands) {
    LoadGraphics("ResolutionWidth=1600\nResolutionHeight=1200\nAspectMode=classic4x3");
    ExpectChosen(5, {}, 960);
    LoadGraphics("ResolutionWidth=1920\nResolutionHeight=1080\nAspectMode=widescreen");
    ExpectChosen(9, {}, 1280);
    LoadGraphics("ResolutionWidth=1920\nResolutionHeight=1080\nAspectMode=classic4x3");
    ExpectChosen(6, {}, 960); // 16:9 does not fit, and the list has seven rows
}

TEST_F(ResolutionOptions, StayAsTheyAreWithoutKeysOrWithBadOnes) {
    for (const char *bad : BadNumbers) {
        State = {};
        State.ResolutionIndex = 9;
        LogicalWidth = 1;
        LoadGraphics(std::string("ResolutionWidth=\"") + bad + "\"\nResolutionHeight=\"" + bad + "\"");
        ExpectChosen(9, {}, 1280);
    }
    State.ResolutionIndex = 17;
    LoadSection("Audio", "MusicVolume=5");
    ExpectChosen(17, {}, 1728);
}

TEST_F(ResolutionOptions, TakeAMissingSideFromThePresentSize) {
    State.ResolutionIndex = 3; // 1280x720
    LoadGraphics("ResolutionHeight=800");
    ExpectChosen(4, {}, 1152);
}

// The refresh rate.

class RateOptions : public OptionsTest {
protected:
    RateOptions() {
        Modes = {{1280, 720, 60}, {1280, 720, 144}, {1280, 720, 1000}, {1920, 1080, 240}, {1280, 720, 0}};
    }
    /// The rate that a text for it becomes with these modes, from a fresh record.
    std::int32_t Loaded(
        const std::vector<DisplayMode> &Offered, const std::string &Rate, const std::string &More = "") {
        State = {};
        State.DisplayModes = Offered;
        LoadGraphics("RefreshRate=\"" + Rate + "\"\n" + More);
        return State.RefreshRate;
    }

    std::vector<DisplayMode> Modes;
};

TEST_F(RateOptions, AreTakenUpToAThousandWhereNoDisplayHasToldItsModes) {
    const std::vector<std::pair<const char *, std::int32_t>> rows{{"1", 1}, {"60", 60}, {"144", 144},
        {"999", 999}, {"1000", 1000}, {"1001", 1000}, {"5000", 1000}, {"2147483647", 1000}, {"0", 0},
        {"-1", 0}, {"-60", 0}};
    for (const auto &[text, rate] : rows) {
        EXPECT_EQ(Loaded({}, text), rate) << text;
        EXPECT_EQ(State.RefreshRates, Rates{0}) << text;
    }
}

TEST_F(RateOptions, AreTakenIfTheDisplayOffersThemAtTheSize) {
    EXPECT_EQ(Loaded(Modes, "60"), 60);
    EXPECT_EQ(State.RefreshRates, (Rates{0, 60, 144, 1000}));
    EXPECT_EQ(Loaded(Modes, "144"), 144);
    EXPECT_EQ(Loaded(Modes, "5000"), 1000);
    for (const char *other : {"0", "-60", "1", "59", "240", "999"}) {
        EXPECT_EQ(Loaded(Modes, other), 0) << other;
    }
    EXPECT_EQ(Loaded(Modes, "240", "ResolutionWidth=1920\nResolutionHeight=1080"), 240);
    EXPECT_EQ(Loaded(Modes, "144", "ResolutionWidth=1920\nResolutionHeight=1080"), 0);
}

TEST_F(RateOptions, AreReadBehindTheSwitches) {
    EXPECT_EQ(Loaded(Modes, "144", "Fullscreen=0"), 0);
    EXPECT_EQ(State.RefreshRates, Rates{0});
    EXPECT_EQ(Loaded({}, "144", "Fullscreen=0"), 144);
    State.Fullscreen = false;
    State.RefreshRate = 0;
    State.DisplayModes = Modes;
    LoadGraphics("RefreshRate=144\nFullscreen=1");
    EXPECT_EQ(State.RefreshRate, 144);
}

TEST_F(RateOptions, ThatAreBadOrMissingLeaveWhatIsStillOffered) {
    for (const char *bad : BadNumbers) {
        State = {};
        State.RefreshRate = 144;
        State.DisplayModes = Modes;
        LoadGraphics(std::string("RefreshRate=\"") + bad + "\"");
        EXPECT_EQ(State.RefreshRate, 144) << bad;
        State.DisplayModes.clear();
        LoadGraphics(std::string("RefreshRate=\"") + bad + "\"");
        EXPECT_EQ(State.RefreshRate, 144) << bad;
    }
    State.RefreshRate = 75;
    State.DisplayModes = Modes;
    LoadSection("Audio", "MusicVolume=5");
    EXPECT_EQ(State.RefreshRate, 0);
}

TEST_F(RateOptions, OfZeroMakeAChosenRateAutomaticOnlyIfItIsNotOffered) {
    State.RefreshRate = 75;
    LoadGraphics("RefreshRate=0");
    EXPECT_EQ(State.RefreshRate, 0);
    State.RefreshRate = 144;
    State.DisplayModes = Modes;
    LoadGraphics("RefreshRate=0");
    EXPECT_EQ(State.RefreshRate, 144); // it stays as the rebuilt list left it
}

} // namespace
