#include "options/AudioPage.hpp"

#include "state/GameState.hpp"
#include "tests/support/Keys.hpp"
#include "tests/support/SameState.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "text/Localization.hpp"

#include <algorithm>
#include <array>
#include <functional>

namespace {

// Rows of the page.
constexpr std::int32_t MasterRow = 0;
constexpr std::int32_t MusicVolumeRow = 1;
constexpr std::int32_t SfxVolumeRow = 2;
constexpr std::int32_t MusicRow = 3;
constexpr std::int32_t SfxRow = 4;
constexpr std::int32_t LanguageRow = 5;
constexpr std::int32_t DefaultsRow = 6;
constexpr std::int32_t ApplyRow = 7;
constexpr std::int32_t RevertRow = 8;
constexpr std::int32_t BackRow = 9;

using Change = std::function<void(GameState &Expected)>;

const Change Nothing = [](GameState &) {};

template <auto Field, auto Value> void Set(GameState &State) {
    State.*Field = Value;
}

void ExpectPendingAsApplied(GameState &Expected) {
    Expected.PendingMasterVolume = Expected.MasterVolume;
    Expected.PendingMusicVolume = Expected.MusicVolume;
    Expected.PendingSfxVolume = Expected.SfxVolume;
    Expected.PendingMusicEnabled = Expected.MusicEnabled;
    Expected.PendingSfxEnabled = Expected.SfxEnabled;
    Expected.PendingLanguage = Expected.Language;
}

void ExpectLeft(GameState &Expected) {
    Expected.PendingAudioValid = false;
    Expected.OptionsPage = OptionsPageMain;
}

/// The record with the pending values, the row and the page of another one.
GameState WithEditOf(GameState State, const GameState &Edited) {
    State.PendingMasterVolume = Edited.PendingMasterVolume;
    State.PendingMusicVolume = Edited.PendingMusicVolume;
    State.PendingSfxVolume = Edited.PendingSfxVolume;
    State.PendingMusicEnabled = Edited.PendingMusicEnabled;
    State.PendingSfxEnabled = Edited.PendingSfxEnabled;
    State.PendingLanguage = Edited.PendingLanguage;
    State.PendingAudioValid = Edited.PendingAudioValid;
    State.AudioSelection = Edited.AudioSelection;
    State.OptionsPage = Edited.OptionsPage;
    return State;
}

/// The page in edit with a catalogue of three languages, every pending value another one than the applied.
class AudioPage : public SdlTest {
protected:
    AudioPage() : Before(Localization) {
        Localization = {};
        Localization.Languages = {{"en", "English", "En.ini"}, {"de", "Deutsch", "De.ini"},
            {"fr",
                "Fran\xC3\xA7"
                "ais",
                "Fr.ini"}};
        Localization.Texts = {{"Remembered", "text"}};
        State.Screen = ScreenOptions;
        State.OptionsPage = OptionsPageAudio;
        State.MasterVolume = 90;
        State.MusicVolume = 35;
        State.SfxVolume = 60;
        State.MusicEnabled = false;
        State.SfxEnabled = false;
        State.Language = "en";
        State.PendingMasterVolume = 80;
        State.PendingMusicVolume = 45;
        State.PendingSfxVolume = 15;
        State.PendingMusicEnabled = true;
        State.PendingSfxEnabled = true;
        State.PendingLanguage = "de";
        State.PendingAudioValid = true;
    }

    ~AudioPage() override {
        Localization = Before;
    }

    void PressOn(std::int32_t Row, std::int32_t Scancode) {
        State.AudioSelection = Row;
        HandleAudioPageKey(State, Scancode);
    }

    /// Expects each of Keys on a row to do Effect and nothing else.
    void ExpectKeys(std::int32_t Row, const Scancodes &Pressed, const Change &Effect) {
        State.AudioSelection = Row;
        for (const std::int32_t key : Pressed) {
            GameState state = State;
            GameState expected = State;
            HandleAudioPageKey(state, key);
            Effect(expected);
            EXPECT_TRUE(SameState(state, expected)) << "scancode " << key << " on row " << Row;
        }
    }

    /// Expects steps of one of the volumes, from From to To.
    void ExpectVolumeSteps(std::int32_t GameState::*Volume, std::int32_t Row) {
        struct Step {
            std::int32_t From;
            std::int32_t Down;
            std::int32_t Up;
        };
        for (const Step &step :
            {Step{50, 45, 55}, Step{0, 0, 5}, Step{100, 95, 100}, Step{5, 0, 10}, Step{95, 90, 100},
                Step{37, 32, 42}, Step{97, 92, 100}, Step{3, 0, 8}, Step{99, 94, 100}, Step{1, 0, 6}}) {
            State.*Volume = step.From;
            ExpectKeys(Row, LeftKeys, [&](GameState &Expected) {
                Expected.*Volume = step.Down;
            });
            ExpectKeys(Row, RightKeys, [&](GameState &Expected) {
                Expected.*Volume = step.Up;
            });
        }
    }

    static bool TextsAreAsBefore() {
        return Localization.Texts.contains("Remembered") && Localization.Texts["Remembered"] == "text";
    }

    /// The language that the page would change to.
    std::string After(const std::string &Pending, std::int32_t Direction) {
        State.PendingLanguage = Pending;
        CycleLanguage(State, Direction);
        return State.PendingLanguage;
    }

    GameState State;

private:
    const TemporaryHome Home;
    LocalizationTable Before;
};

TEST_F(AudioPage, BeginsWithTheAppliedValues) {
    State.PendingAudioValid = false;
    GameState expected = State;
    BeginAudioEdit(State);
    ExpectPendingAsApplied(expected);
    expected.PendingAudioValid = true;
    EXPECT_TRUE(SameState(State, expected));
    EXPECT_FALSE(AudioEditDirty(State));
}

TEST_F(AudioPage, BeginsWithTheLanguagesCodeInOrder) {
    State.Language = " D E\t";
    BeginAudioEdit(State);
    EXPECT_EQ(State.PendingLanguage, "de");
    EXPECT_EQ(State.Language, " D E\t"); // the option itself is left
    EXPECT_FALSE(AudioEditDirty(State));
    State.Language = "";
    BeginAudioEdit(State);
    EXPECT_EQ(State.PendingLanguage, "en");
}

TEST_F(AudioPage, IsDirtyByEachOfItsValues) {
    BeginAudioEdit(State);
    constexpr std::array changes{Set<&GameState::PendingMasterVolume, 1>,
        Set<&GameState::PendingMusicVolume, 1>, Set<&GameState::PendingSfxVolume, 1>,
        Set<&GameState::PendingMusicEnabled, true>, Set<&GameState::PendingSfxEnabled, true>};
    GameState changed = State;
    changed.PendingLanguage = "fr";
    EXPECT_TRUE(AudioEditDirty(changed));
    changed.PendingAudioValid = false;
    EXPECT_FALSE(AudioEditDirty(changed));
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changed = State;
        changes.at(i)(changed);
        EXPECT_TRUE(AudioEditDirty(changed)) << i;
        changed.PendingAudioValid = false;
        EXPECT_FALSE(AudioEditDirty(changed)) << i;
    }
}

TEST_F(AudioPage, IsNotDirtyByTheSpellingOfALanguage) {
    BeginAudioEdit(State);
    State.PendingLanguage = " EN ";
    EXPECT_FALSE(AudioEditDirty(State));
    State.Language = "D e";
    State.PendingLanguage = "de";
    EXPECT_FALSE(AudioEditDirty(State));
}

TEST_F(AudioPage, UpGoesThroughTheTenRowsAndWraps) {
    constexpr std::array next{9, 0, 1, 2, 3, 4, 5, 6, 7, 8};
    for (std::size_t row = 0; row < next.size(); ++row) {
        ExpectKeys(static_cast<std::int32_t>(row), UpKeys, [&](GameState &Expected) {
            Expected.AudioSelection = next.at(row);
        });
    }
}

TEST_F(AudioPage, DownGoesThroughTheTenRowsAndWraps) {
    constexpr std::array next{1, 2, 3, 4, 5, 6, 7, 8, 9, 0};
    for (std::size_t row = 0; row < next.size(); ++row) {
        ExpectKeys(static_cast<std::int32_t>(row), DownKeys, [&](GameState &Expected) {
            Expected.AudioSelection = next.at(row);
        });
    }
}

TEST_F(AudioPage, TheMasterVolumeStepsByFiveAndStopsAtBothEnds) {
    ExpectVolumeSteps(&GameState::PendingMasterVolume, MasterRow);
}

TEST_F(AudioPage, TheMusicVolumeStepsByFiveAndStopsAtBothEnds) {
    ExpectVolumeSteps(&GameState::PendingMusicVolume, MusicVolumeRow);
}

TEST_F(AudioPage, TheSfxVolumeStepsByFiveAndStopsAtBothEnds) {
    ExpectVolumeSteps(&GameState::PendingSfxVolume, SfxVolumeRow);
}

TEST_F(AudioPage, StepsAreNotSnapped) {
    State.PendingMasterVolume = 37;
    for (const int expected : {42, 47, 52, 57, 62, 67, 72, 77, 82, 87, 92, 97, 100, 100, 95}) {
        PressOn(MasterRow, State.PendingMasterVolume == 100 && expected == 95 ? 80 : RightKey);
        EXPECT_EQ(State.PendingMasterVolume, expected);
    }
}

TEST_F(AudioPage, ActivatingAVolumeDoesNothing) {
    for (const std::int32_t row : {MasterRow, MusicVolumeRow, SfxVolumeRow}) {
        ExpectKeys(row, ActivateKeys, Nothing);
    }
}

TEST_F(AudioPage, LeftRightAndActivateToggleTheSwitches) {
    for (const bool before : {true, false}) {
        State.PendingMusicEnabled = before;
        State.PendingSfxEnabled = before;
        const Change music = [before](GameState &Expected) {
            Expected.PendingMusicEnabled = !before;
        };
        const Change sfx = [before](GameState &Expected) {
            Expected.PendingSfxEnabled = !before;
        };
        const Scancodes keys{80, 4, 79, 7, 40, 44, 88};
        ExpectKeys(MusicRow, keys, music);
        ExpectKeys(SfxRow, keys, sfx);
    }
}

TEST_F(AudioPage, LeftRightAndActivateStepTheLanguage) {
    ExpectKeys(LanguageRow, LeftKeys, [](GameState &Expected) {
        Expected.PendingLanguage = "en";
    });
    ExpectKeys(LanguageRow, RightKeys, [](GameState &Expected) {
        Expected.PendingLanguage = "fr";
    });
    ExpectKeys(LanguageRow, ActivateKeys, [](GameState &Expected) {
        Expected.PendingLanguage = "fr";
    });
    EXPECT_TRUE(TextsAreAsBefore());
}

TEST_F(AudioPage, LanguagesGoRoundBothEndsOfTheCatalogue) {
    EXPECT_EQ(After("en", 1), "de");
    EXPECT_EQ(After("de", 1), "fr");
    EXPECT_EQ(After("fr", 1), "en");
    EXPECT_EQ(After("en", -1), "fr");
    EXPECT_EQ(After("fr", -1), "de");
    EXPECT_EQ(After("de", -1), "en");
}

TEST_F(AudioPage, ALanguageStepReadsTheSpellingOfThePendingOne) {
    EXPECT_EQ(After(" D E", 1), "fr");
    EXPECT_EQ(After("", 1), "de"); // nothing is English
}

TEST_F(AudioPage, ALanguageStepOfAnUnknownOneStartsFromTheDefault) {
    Localization.DefaultLanguage = " F R";
    EXPECT_EQ(After("xx", 1), "en");
    EXPECT_EQ(After("xx", -1), "de");
}

TEST_F(AudioPage, ALanguageStepStartsFromTheFirstWhereTheDefaultIsUnknownToo) {
    Localization.DefaultLanguage = "yy";
    EXPECT_EQ(After("xx", 1), "de");
    EXPECT_EQ(After("xx", -1), "fr");
}

TEST_F(AudioPage, WithOneLanguageNothingChanges) {
    Localization.Languages = {{"de", "Deutsch", "De.ini"}};
    for (const std::int32_t direction : {1, -1}) {
        EXPECT_EQ(After("de", direction), "de");
        EXPECT_EQ(After(" DE ", direction), " DE "); // not even its spelling
        EXPECT_EQ(After("xx", direction), "de");
    }
}

TEST_F(AudioPage, WithoutLanguagesNothingChanges) {
    Localization.Languages.clear();
    for (const std::int32_t direction : {1, -1}) {
        EXPECT_EQ(After("de", direction), "de");
        EXPECT_EQ(After("xx", direction), "xx");
    }
}

TEST_F(AudioPage, LeftAndRightDoNothingOnTheOtherRows) {
    for (std::int32_t row = DefaultsRow; row <= BackRow; ++row) {
        ExpectKeys(row, LeftKeys, Nothing);
        ExpectKeys(row, RightKeys, Nothing);
    }
}

TEST_F(AudioPage, NoOtherKeyDoesAnything) {
    for (std::int32_t row = 0; row < 10; ++row) {
        for (std::int32_t key = 1; key < 512; ++key) {
            if (!IsMenuKey(key)) {
                ExpectKeys(row, {key}, Nothing);
            }
        }
    }
}

TEST_F(AudioPage, BeginsItsEditWithAKeyIfItIsNotInOne) {
    State.PendingAudioValid = false;
    PressOn(MasterRow, RightKey);
    EXPECT_TRUE(State.PendingAudioValid);
    EXPECT_EQ(State.PendingMasterVolume, 95); // on from the applied 90
    EXPECT_EQ(State.PendingMusicVolume, 35);
    EXPECT_EQ(State.PendingLanguage, "en");
}

TEST_F(AudioPage, DefaultSettingsGoIntoThePendingValuesAndLeaveTheLanguage) {
    State.PendingMusicEnabled = false;
    State.PendingSfxEnabled = false;
    ExpectKeys(DefaultsRow, ActivateKeys, [](GameState &Expected) {
        Expected.PendingMasterVolume = 100;
        Expected.PendingMusicVolume = 50;
        Expected.PendingSfxVolume = 75;
        Expected.PendingMusicEnabled = true;
        Expected.PendingSfxEnabled = true;
    });
}

TEST_F(AudioPage, ApplyTakesEveryValueOverAndLoadsTheLanguage) {
    const LogCatcher log; // there is no catalogue beside the tests
    ExpectKeys(ApplyRow, ActivateKeys, [](GameState &Expected) {
        Expected.MasterVolume = 80;
        Expected.MusicVolume = 45;
        Expected.SfxVolume = 15;
        Expected.MusicEnabled = true;
        Expected.SfxEnabled = true;
        Expected.Language = "de";
        Expected.OptionsDirty = true;
    });
    EXPECT_FALSE(Localization.Texts.contains("Remembered")); // what was remembered is gone
    EXPECT_EQ(Localization.CurrentLanguage, "de");
}

/// A value of the page, changed while it waits and when it is applied.
struct ValueCase {
    void (*Pend)(GameState &Pending);
    void (*Apply)(GameState &Expected);
};

constexpr std::array ValueCases{
    ValueCase{Set<&GameState::PendingMasterVolume, 1>, Set<&GameState::MasterVolume, 1>},
    ValueCase{Set<&GameState::PendingMusicVolume, 2>, Set<&GameState::MusicVolume, 2>},
    ValueCase{Set<&GameState::PendingSfxVolume, 3>, Set<&GameState::SfxVolume, 3>},
    ValueCase{Set<&GameState::PendingMusicEnabled, true>, Set<&GameState::MusicEnabled, true>},
    ValueCase{Set<&GameState::PendingSfxEnabled, true>, Set<&GameState::SfxEnabled, true>},
};

TEST_F(AudioPage, ApplyOfEachValueAloneMarksTheOptions) {
    BeginAudioEdit(State);
    const GameState fresh = State;
    for (const ValueCase &value : ValueCases) {
        State = fresh;
        value.Pend(State);
        ExpectKeys(ApplyRow, ActivateKeys, [&](GameState &Expected) {
            value.Apply(Expected);
            Expected.OptionsDirty = true;
        });
    }
    EXPECT_TRUE(TextsAreAsBefore()); // no language was loaded
}

TEST_F(AudioPage, ApplyWithNothingChangedMarksNothing) {
    BeginAudioEdit(State);
    ExpectKeys(ApplyRow, ActivateKeys, Nothing);
    State.OptionsDirty = true; // a write that failed stays due
    ExpectKeys(ApplyRow, ActivateKeys, Nothing);
    EXPECT_TRUE(TextsAreAsBefore());
}

TEST_F(AudioPage, ApplyOfAVolumePutsTheSpellingOfTheLanguageInOrder) {
    State.Language = " D E";
    BeginAudioEdit(State);
    State.PendingMasterVolume = 5;
    PressOn(ApplyRow, EnterKey);
    EXPECT_EQ(State.Language, "de");
    EXPECT_TRUE(TextsAreAsBefore()); // but it is the same language
}

TEST_F(AudioPage, ApplyOfALanguageThatIsGoneTakesTheOneInForce) {
    const LogCatcher log;
    State.PendingLanguage = "xx";
    PressOn(ApplyRow, EnterKey);
    EXPECT_EQ(State.Language, "en");
    EXPECT_EQ(State.PendingLanguage, "en");
    EXPECT_TRUE(State.OptionsDirty);
    EXPECT_FALSE(AudioEditDirty(State));
}

TEST_F(AudioPage, RevertBringsTheAppliedValuesBackAndStaysInEdit) {
    ExpectKeys(RevertRow, ActivateKeys, ExpectPendingAsApplied);
}

TEST_F(AudioPage, RevertAfterALanguageStepShowsTheAppliedOne) {
    BeginAudioEdit(State);
    PressOn(LanguageRow, RightKey);
    ASSERT_EQ(State.PendingLanguage, "de");
    PressOn(RevertRow, EnterKey);
    EXPECT_EQ(State.PendingLanguage, "en");
    EXPECT_TRUE(TextsAreAsBefore());
}

TEST_F(AudioPage, BackDropsUnappliedValuesWithoutAQuestion) {
    ExpectKeys(BackRow, ActivateKeys, [](GameState &Expected) {
        ExpectPendingAsApplied(Expected);
        ExpectLeft(Expected);
    });
    BeginAudioEdit(State);
    ExpectKeys(BackRow, ActivateKeys, ExpectLeft);
}

TEST_F(AudioPage, EscapeLeavesFromEveryRow) {
    for (std::int32_t row = 0; row < 10; ++row) {
        ExpectKeys(row, {EscapeKey}, [](GameState &Expected) {
            ExpectPendingAsApplied(Expected);
            ExpectLeft(Expected);
        });
    }
}

TEST_F(AudioPage, NothingIsAppliedWithoutApply) {
    const GameState before = State;
    for (std::int32_t row = 0; row < 10; ++row) {
        for (const std::int32_t key : {80, 79, 40}) {
            if (row != ApplyRow) {
                PressOn(row, key);
                EXPECT_TRUE(SameState(State, WithEditOf(before, State))) << row << " " << key;
            }
        }
    }
    EXPECT_FALSE(State.OptionsDirty);
}

} // namespace
