#include "tests/e2e/PageSight.hpp"
#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/StoredFiles.hpp"
#include "tests/e2e/TextSight.hpp"

#include <string>

// The languages that ship with the game, on the screen.

namespace {

constexpr Pixel SelectedColor{0xF5, 0xF5, 0xF5};
constexpr Pixel RowColor{0xB9, 0xB9, 0xB9};
constexpr Pixel HudColor{0xEB, 0xEB, 0xEB};
constexpr Pixel TitleColor{0xF0, 0xF0, 0xF0};

constexpr Pixel SectionColor{0x69, 0xAF, 0xFF};

enum AudioRow { Language = 5, DefaultSettings, Apply };

// A row of the main menu without a run.
Sight MenuRowShows(int Row, const std::string &Text) {
    return [Row, Text](const Screenshot &Seen) {
        return ShowsText(Seen, Text, 375 + Row * 36, 4, {SelectedColor, RowColor});
    };
}

Sight HudShows(int Top, const std::string &Text) {
    return [Top, Text](const Screenshot &Seen) {
        return ShowsText(Seen, Text, Top, 3, {HudColor});
    };
}

Sight OptionsTitleIs(const std::string &Text) {
    return [Text](const Screenshot &Seen) {
        return ShowsText(Seen, Text, 42, 6, {TitleColor});
    };
}

Sight SectionIs(const std::string &Text) {
    return [Text](const Screenshot &Seen) {
        return ShowsText(Seen, Text, 100, 4, {SectionColor});
    };
}

Sight Both(const Sight &One, const Sight &Other) {
    return [One, Other](const Screenshot &Seen) {
        return One(Seen) && Other(Seen);
    };
}

std::string OptionsWithLanguage(const std::string &Code) {
    return "[Options]\r\nLanguage=\"" + Code + "\"\r\n";
}

struct SpokenLanguage {
    const char *Code;
    const char *Name; // as the Audio page shows it
    const char *OptionsTitle;
    const char *NewGame;
    const char *Quit;
    const char *Score;
};

constexpr SpokenLanguage English{"en", "ENGLISH", "OPTIONS", "NEW GAME", "QUIT", "SCORE"};
constexpr SpokenLanguage German{"de", "DEUTSCH", "OPTIONEN", "NEUES SPIEL", "BEENDEN", "PUNKTE"};
constexpr SpokenLanguage Dutch{"nl", "NEDERLANDS", "OPTIES", "NIEUW SPEL", "AFSLUITEN", "SCORE"};
constexpr SpokenLanguage Finnish{"fi", "SUOMI", "ASETUKSET", "UUSI PELI", "LOPETA", "PISTEET"};

} // namespace

TEST(Language, TheOptionsFileChoosesIt) {
    for (const SpokenLanguage &language : {German, Dutch, Finnish}) {
        const PreparedHome home;
        home.Put(OptionsFile, OptionsWithLanguage(language.Code));
        OpenedGame game(home, Both(MenuRowShows(0, language.NewGame), MenuRowShows(4, language.Quit)));
        EXPECT_FALSE(MenuRowShows(0, English.NewGame)(game.Person().Look()));
        EXPECT_TRUE(game.Tap(Key::Return, HudShows(92, language.Score))) << language.Code;
        EXPECT_EQ(game.Close(), std::optional(0));
        EXPECT_EQ(game.Program().Output(), "");
    }
}

TEST(Language, CapitalsAndBlanksInTheOptionsFileDoNotMatter) {
    const PreparedHome home;
    home.Put(OptionsFile, OptionsWithLanguage(" DE "));
    OpenedGame game(home, MenuRowShows(0, German.NewGame));
    EXPECT_EQ(game.Close(), std::optional(0));
}

TEST(Language, AnUnknownOneGivesWayToEnglishInTheFileToo) {
    const PreparedHome home;
    home.Put(OptionsFile, OptionsWithLanguage("xx"));
    OpenedGame game({}, {}, &home); // it waits for the English menu
    EXPECT_TRUE(WaitUntil([&home] {
        return StoredOption(home, "Options", "Language") == "en";
    }));
    EXPECT_EQ(game.Close(), std::optional(0));
}

// Changed in the middle of a run, which goes on in the new language.
TEST(Language, AChangeOnTheAudioPageShowsAtOnceAndIsKept) {
    const PreparedHome home;
    {
        PlayedGame game({}, {}, &home);
        ASSERT_TRUE(game.Tap(Key::Right, CarInLane(8)));
        ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(0)));
        ASSERT_TRUE(game.Tap(Key::Down, PauseMenu(1)));
        ASSERT_TRUE(game.Tap(Key::Return, OptionsMenu(0)));
        ASSERT_NO_FATAL_FAILURE(OpenPage(game, Page::Audio));
        ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Audio, Language));
        ASSERT_TRUE(game.Tap(Key::Right, RowShows(Language, German.Name)));
        EXPECT_TRUE(OptionsTitleIs("OPTIONS")(game.Person().Look())) << "changed without APPLY";
        EXPECT_EQ(StoredOption(home, "Options", "Language"), "en");
        ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Audio, Apply, OptionsTitleIs(German.OptionsTitle)));
        ASSERT_TRUE(game.Tap(Key::Escape, SectionIs("MEN\u00DC")));
        game.TapInOneFrame({Key::Escape, Key::Escape}); // out of the options and out of the pause
        ASSERT_TRUE(game.StaysFor(5, CarInLane(8)));
        EXPECT_TRUE(HudShows(92, German.Score)(game.Person().Look()));
        EXPECT_EQ(game.Close(), std::optional(0));
        EXPECT_EQ(game.Program().Output(), "");
    }
    EXPECT_EQ(StoredOption(home, "Options", "Language"), German.Code);
    // Below the row that continues the run, or in the first one if all this took less than the 0.8 seconds
    // after which a new run is saved.
    OpenedGame game(home, [](const Screenshot &Seen) {
        return ShowsText(Seen, German.NewGame, 393, 4, {RowColor}) ||
               ShowsText(Seen, German.NewGame, 375, 4, {SelectedColor});
    });
}

TEST(Language, TheAudioPageOffersAllFourInTurn) {
    const PreparedHome home;
    OpenedGame game({}, {}, &home);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Audio));
    ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Audio, Language));
    for (const SpokenLanguage &language : {German, Dutch, Finnish, English}) {
        ASSERT_TRUE(game.Tap(Key::Right, RowShows(Language, language.Name))) << language.Name;
        ASSERT_TRUE(game.Tap(Key::Down, SelectedRowIs(DefaultSettings)));
        ASSERT_TRUE(game.Tap(Key::Down, SelectedRowIs(Apply)));
        ASSERT_TRUE(game.Tap(Key::Return, OptionsTitleIs(language.OptionsTitle))) << language.Name;
        EXPECT_EQ(StoredOption(home, "Options", "Language"), language.Code);
        ASSERT_TRUE(game.Tap(Key::Up, SelectedRowIs(DefaultSettings)));
        ASSERT_TRUE(game.Tap(Key::Up, SelectedRowIs(Language)));
    }
    ASSERT_TRUE(game.Tap(Key::Left, RowShows(Language, Finnish.Name))) << "it goes round both ends";
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(game.Program().Output(), "");
}
