#include "text/Languages.hpp"

#include "state/GameState.hpp"
#include "state/LanguageCode.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/watch/ProgramFolder.hpp"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace {

constexpr const char *Catalogue = "Localization/Languages.ini";
constexpr const char *English = "Localization/En.ini";
constexpr const char *German = "Localization/De.ini";

constexpr const char *NoCatalogueLine =
    "Localization catalog 'Localization/Languages.ini' could not be loaded; using built-in defaults";

/// English, German and French, with a file each, and English for what is missing.
constexpr const char *ThreeLanguages = "[Languages]\n"
                                       "Default = \"en\"\n"
                                       "Fallback = \"en\"\n"
                                       "[Language.en]\n"
                                       "Name = \"English\"\n"
                                       "File = \"Localization/En.ini\"\n"
                                       "[Language.de]\n"
                                       "Name = \"Deutsch\"\n"
                                       "File = \"Localization/De.ini\"\n"
                                       "[Language.fr]\n"
                                       "Name = \"Fran\xC3\xA7"
                                       "ais\"\n"
                                       "File = \"Localization/Fr.ini\"\n";

using Lines = std::vector<std::string>;

/// The catalogue in force, an entry as "code|name|file".
Lines Languages() {
    Lines lines;
    for (const LanguageEntry &entry : Localization.Languages) {
        lines.push_back(entry.Code + "|" + entry.Name + "|" + entry.File);
    }
    return lines;
}

const Lines BuiltInLanguages{"en|English|Localization/En.ini", "de|Deutsch|Localization/De.ini"};

} // namespace

/// Starts with an empty program folder and an untouched table, and puts the old table back.
class LanguagesTest : public ::testing::Test {
protected:
    LanguagesTest() : OldLocalization(std::exchange(Localization, {})) {}
    ~LanguagesTest() override {
        Localization = std::move(OldLocalization);
    }

    void Load(const std::string &Wanted) {
        State.Language = Wanted;
        LoadLanguage(State);
    }

    /// What came of it: the option and the record say the same.
    void ExpectInForce(const std::string &Code) const {
        EXPECT_EQ(State.Language, Code);
        EXPECT_EQ(Localization.CurrentLanguage, Code);
    }

    static void ExpectCodes(const std::string &Default, const std::string &Fallback) {
        EXPECT_EQ(Localization.DefaultLanguage, Default);
        EXPECT_EQ(Localization.FallbackLanguage, Fallback);
    }

    SdlWatch Watch;
    const ProgramFolder Folder{Watch};
    LogCatcher Log;
    GameState State;

private:
    LocalizationTable OldLocalization;
};

// The catalogue.

TEST_F(LanguagesTest, WithoutACatalogueTheBuiltInOneStands) {
    Load("en");
    EXPECT_EQ(Languages(), BuiltInLanguages);
    ExpectCodes("en", "en");
    EXPECT_EQ(Log.Lines, Lines{NoCatalogueLine});
    ExpectInForce("en");
}

TEST_F(LanguagesTest, ACatalogueWithoutAUsableLanguageIsNone) {
    for (const char *text : {
             "",
             "[a]\n\n", // empty and too short to be read
             "[Languages]\nDefault = de\nFallback = de\n",
             "[Language.de]\nName = Deutsch\n",
             "[Language.de]\nName = Deutsch\nFile = \"\"\n",
             "File = a.ini\nName = A\n",
             "[language.de]\nFile = a.ini\n[LANGUAGE.de]\nFile = a.ini\n",
             "[Language]\nFile = a.ini\n[XLanguage.de]\nFile = a.ini\n",
         }) {
        Folder.Write(Catalogue, text);
        Log.Lines.clear();
        Load("en");
        EXPECT_EQ(Languages(), BuiltInLanguages) << text;
        ExpectCodes("en", "en");
        EXPECT_EQ(Log.Lines, Lines{NoCatalogueLine}) << text;
    }
}

TEST_F(LanguagesTest, AReadableCatalogueReplacesTheBuiltInOneWithoutAWord) {
    Folder.Write(Catalogue, "[Language.fi]\nName = Suomi\nFile = Localization/Fi.ini\n"
                            "[Language.nl]\nName = Nederlands\nFile = Localization/Nl.ini\n");
    Load("nl");
    EXPECT_EQ(Languages(), (Lines{"fi|Suomi|Localization/Fi.ini", "nl|Nederlands|Localization/Nl.ini"}));
    EXPECT_EQ(Log.Lines, Lines{});
    ExpectInForce("nl");
}

TEST_F(LanguagesTest, OtherSectionsAndTheKeysBeforeTheFirstAreNoLanguages) {
    Folder.Write(Catalogue, "File = global.ini\n"
                            "[Dialect.de]\nFile = dialect.ini\n"
                            "[Language.en]\nFile = Localization/En.ini\nAuthor = A\n"
                            "[language.de]\nFile = small.ini\n"
                            "[Languages.de]\nFile = many.ini\n");
    Load("en");
    EXPECT_EQ(Languages(), Lines{"en|en|Localization/En.ini"});
    EXPECT_EQ(Log.Lines, Lines{});
}

TEST_F(LanguagesTest, ALanguageWithoutANameIsNamedByItsCode) {
    Folder.Write(Catalogue, "[Language.DE]\nFile = Localization/De.ini\n");
    Load("de");
    EXPECT_EQ(Languages(), Lines{"de|de|Localization/De.ini"});
}

TEST_F(LanguagesTest, AnEmptyNameStaysEmpty) {
    Folder.Write(Catalogue, "[Language.de]\nName = \"\"\nFile = Localization/De.ini\n");
    Load("de");
    EXPECT_EQ(Languages(), Lines{"de||Localization/De.ini"});
}

TEST_F(LanguagesTest, ALanguageWithoutAFileIsSkippedWithoutAWord) {
    Folder.Write(Catalogue, "[Language.de]\nName = Deutsch\n"
                            "[Language.nl]\nName = Nederlands\nFile = \"\"\n"
                            "[Language.en]\nName = English\nFile = Localization/En.ini\n");
    Load("de");
    EXPECT_EQ(Languages(), Lines{"en|English|Localization/En.ini"});
    EXPECT_EQ(Log.Lines, Lines{});
    ExpectInForce("en");
}

TEST_F(LanguagesTest, ASecondSectionForACodeIsLoggedAndDropped) {
    Folder.Write(Catalogue, "[Language.en]\nFile = Localization/En.ini\n"
                            "[Language.de]\nName = Deutsch\nFile = Localization/De.ini\n"
                            "[Language.DE]\nName = Zweites\nFile = Localization/De2.ini\n"
                            "[Language.d\te]\nName = Drittes\nFile = Localization/De3.ini\n");
    Load("de");
    EXPECT_EQ(Languages(), (Lines{"en|en|Localization/En.ini", "de|Deutsch|Localization/De.ini"}));
    const char *line = "Duplicate language code 'de' in Localization/Languages.ini";
    EXPECT_EQ(Log.Lines, (Lines{line, line}));
}

TEST_F(LanguagesTest, ASectionWithoutAFileIsNoDuplicateAndTakesNoCode) {
    Folder.Write(Catalogue, "[Language.DE]\nName = Erstes\n"
                            "[Language.de]\nName = Zweites\nFile = Localization/De.ini\n"
                            "[Language.De]\nName = Drittes\n");
    Load("de");
    EXPECT_EQ(Languages(), Lines{"de|Zweites|Localization/De.ini"});
    EXPECT_EQ(Log.Lines, Lines{});
}

TEST_F(LanguagesTest, AnEmptyCodeIsEnglish) {
    Folder.Write(Catalogue, "[Language.]\nName = Nameless\nFile = a.ini\n"
                            "[Language.en]\nName = English\nFile = b.ini\n");
    Load("en");
    EXPECT_EQ(Languages(), Lines{"en|Nameless|a.ini"});
    EXPECT_EQ(Log.Lines, Lines{"Duplicate language code 'en' in Localization/Languages.ini"});
}

TEST_F(LanguagesTest, TheCatalogueNamesDefaultAndFallback) {
    const std::string languages = "[Language.en]\nFile = a.ini\n[Language.de]\nFile = b.ini\n"
                                  "[Language.fr]\nFile = c.ini\n";
    struct Case {
        const char *Lines;
        const char *Default;
        const char *Fallback;
    };
    constexpr std::array cases{
        Case{"[Languages]\n\n", "en", "en"}, Case{"[Languages]\nDefault = de\nFallback = fr\n", "de", "fr"},
        Case{"[Languages]\nDefault = \" D E\"\nFallback = \"\tFR \"\n", "de", "fr"},
        Case{"[Languages]\nDefault = de\n", "de", "en"}, Case{"[Languages]\nFallback = de\n", "en", "de"},
        Case{"[Languages]\nDefault =\nFallback = \"  \"\n", "en", "en"},
        Case{"[languages]\nDefault = de\nFallback = de\n", "en", "en"}, // another section
        Case{"Default = de\nFallback = de\n", "en", "en"},              // in no section
        Case{"[Languages]\nFallback = xx\nDefault = fr\n", "fr", "fr"}, // the fallback follows the default
    };
    for (const Case &told : cases) {
        Folder.Write(Catalogue, told.Lines + languages);
        Load("en");
        SCOPED_TRACE(told.Lines);
        ExpectCodes(told.Default, told.Fallback);
    }
    EXPECT_EQ(Log.Lines, Lines{});
}

TEST_F(LanguagesTest, ADefaultThatIsNotInTheCatalogueGivesWayToTheFirstEntry) {
    Folder.Write(Catalogue, "[Languages]\nDefault = fr\n[Language.en]\nFile = Localization/En.ini\n");
    Load("fr");
    ExpectCodes("en", "en");
    ExpectInForce("en");

    Folder.Write(
        Catalogue, "[Languages]\nDefault = fr\n[Language.nl]\nFile = a.ini\n[Language.en]\nFile = b.ini\n");
    Load("fr");
    ExpectCodes("nl", "en");
    ExpectInForce("nl");
}

TEST_F(LanguagesTest, ACatalogueWithoutEnglishNeedsNoWordAboutIt) {
    Folder.Write(Catalogue, "[Language.fi]\nFile = a.ini\n[Language.nl]\nFile = b.ini\n");
    Load("en");
    ExpectCodes("fi", "fi");
    ExpectInForce("fi");
}

TEST_F(LanguagesTest, AFallbackThatIsNotInTheCatalogueIsTheDefault) {
    Folder.Write(Catalogue, "[Languages]\nDefault = de\nFallback = xx\n"
                            "[Language.en]\nFile = Localization/En.ini\n"
                            "[Language.de]\nFile = Localization/De.ini\n");
    Folder.Write(English, "[T]\nHud.Stage = STAGE-EN\n");
    Folder.Write(German, "[T]\nHud.Stage = STAGE-DE\nHud.Score = SCORE-DE\n");
    Load("en");
    ExpectCodes("de", "de");
    ExpectInForce("en");
    EXPECT_EQ(GetText("Hud.Stage", "?"), "STAGE-EN");
    EXPECT_EQ(GetText("Hud.Score", "?"), "SCORE-DE");
}

TEST_F(LanguagesTest, TheCatalogueIsReadAnewEachTime) {
    Folder.Write(Catalogue, "[Languages]\nDefault = de\nFallback = de\n[Language.de]\nFile = a.ini\n");
    Load("de");
    EXPECT_EQ(Languages(), Lines{"de|de|a.ini"});
    Folder.Write(Catalogue, "[Language.fi]\nFile = b.ini\n");
    Load("de");
    EXPECT_EQ(Languages(), Lines{"fi|fi|b.ini"});
    ExpectInForce("fi");
    Folder.Remove(Catalogue);
    Load("fi");
    EXPECT_EQ(Languages(), BuiltInLanguages);
    ExpectCodes("en", "en");
    ExpectInForce("en");
}

// The wanted language.

TEST_F(LanguagesTest, TheWantedCodeIsNormalised) {
    Folder.Write(German, "[Texts]\nHud.Stage = ETAPPE\n");
    Load("  DE \t");
    ExpectInForce("de");
    EXPECT_EQ(GetText("Hud.Stage", "STAGE"), "ETAPPE");
}

TEST_F(LanguagesTest, NoWantedCodeIsEnglish) {
    for (const char *wanted : {"", " ", "\t\r\n"}) {
        Load(wanted);
        ExpectInForce("en");
    }
}

TEST_F(LanguagesTest, AWantedLanguageThatIsGoneBecomesTheDefault) {
    Folder.Write(Catalogue, "[Languages]\nDefault = de\n[Language.en]\nFile = Localization/En.ini\n"
                            "[Language.de]\nFile = Localization/De.ini\n");
    Load("fi");
    ExpectInForce("de");
    EXPECT_EQ(Log.Lines, Lines{});
}

TEST_F(LanguagesTest, TheWantedLanguageIsNotTakenByItsName) {
    Load("Deutsch");
    ExpectInForce("en");
}

// The texts.

TEST_F(LanguagesTest, WithoutAnyFileEveryTextIsItsDefault) {
    Load("de");
    EXPECT_TRUE(Localization.Texts.empty());
    EXPECT_FALSE(Localization.TextsLoaded);
    EXPECT_EQ(GetText(TextKey::HudStage), "STAGE");
    ExpectInForce("de");
}

TEST_F(LanguagesTest, TheFallbackLiesBeneathTheCurrentLanguage) {
    Folder.Write(Catalogue, ThreeLanguages);
    Folder.Write(English, "[A]\nHud.Stage = STAGE-EN\nHud.Score = SCORE-EN\n");
    Folder.Write(German, "[B]\nHud.Stage = STAGE-DE\nHud.Ammo = AMMO-DE\n");
    Load("de");
    EXPECT_EQ(GetText("Hud.Stage", "?"), "STAGE-DE");
    EXPECT_EQ(GetText("Hud.Score", "?"), "SCORE-EN");
    EXPECT_EQ(GetText("Hud.Ammo", "?"), "AMMO-DE");
    EXPECT_EQ(GetText("Hud.Health", "HEALTH"), "HEALTH");
}

TEST_F(LanguagesTest, AnEmptyTextOfTheCurrentLanguageShowsTheDefaultAndNotTheFallback) {
    Folder.Write(English, "[T]\nHud.Stage = STAGE-EN\n");
    Folder.Write(German, "[T]\nHud.Stage = \"\"\n");
    Load("de");
    EXPECT_EQ(Localization.Texts.at("Hud.Stage"), "");
    EXPECT_EQ(GetText("Hud.Stage", "STAGE"), "STAGE");
}

TEST_F(LanguagesTest, FilesAreReadInOrderAndTheFallbackIsNotReadTwice) {
    Folder.Write(Catalogue, ThreeLanguages);
    Folder.Write(English, "[T]\nHud.Stage = STAGE-EN\n");
    Folder.Write(German, "[T]\nHud.Stage = STAGE-DE\n");
    Load("en");
    EXPECT_EQ(Folder.FilesRead(), (Lines{Catalogue, English}));
    Watch.Forget();
    Load("de");
    EXPECT_EQ(Folder.FilesRead(), (Lines{Catalogue, English, German}));
}

TEST_F(LanguagesTest, TextsAreLoadedIfEitherFileCouldBeRead) {
    struct Case {
        bool HasEnglish;
        bool HasGerman;
        const char *Wanted;
        bool IsLoaded;
    };
    constexpr std::array cases{
        Case{false, false, "en", false},
        Case{false, false, "de", false},
        Case{true, false, "en", true},
        Case{true, false, "de", true},
        Case{false, true, "en", false}, // the German file is not looked at
        Case{false, true, "de", true},
        Case{true, true, "en", true},
        Case{true, true, "de", true},
    };
    for (const Case &told : cases) {
        std::filesystem::remove_all(Folder.Path + "Localization");
        Folder.Write(Catalogue, ThreeLanguages);
        if (told.HasEnglish) {
            Folder.Write(English, "[T]\nHud.Stage = STAGE-EN\n");
        }
        if (told.HasGerman) {
            Folder.Write(German, "[T]\nHud.Stage = STAGE-DE\n");
        }
        Load(told.Wanted);
        EXPECT_EQ(Localization.TextsLoaded, told.IsLoaded)
            << told.HasEnglish << told.HasGerman << told.Wanted;
        ExpectInForce(told.Wanted);
    }
    EXPECT_EQ(Log.Lines, Lines{}); // a missing language file is not worth a line
}

TEST_F(LanguagesTest, AFileWithoutATextCountsAsLoaded) {
    Folder.Write(English, "; nothing here yet\n");
    Load("en");
    EXPECT_TRUE(Localization.TextsLoaded);
    EXPECT_TRUE(Localization.Texts.empty());
}

TEST_F(LanguagesTest, AFileOutsideTheProgramsFolderIsNotRead) {
    Folder.Write(Catalogue, "[Language.en]\nFile = \"../En.ini\"\n");
    Folder.Write("../En.ini", "[T]\nHud.Stage = OUTSIDE\n");
    Load("en");
    EXPECT_FALSE(Localization.TextsLoaded);
    EXPECT_EQ(GetText("Hud.Stage", "STAGE"), "STAGE");
    EXPECT_EQ(Log.Lines, Lines{});
}

TEST_F(LanguagesTest, AFileLiesWhereverTheCatalogueSays) {
    Folder.Write(Catalogue, "[Language.en]\nFile = \"Words/of the game.ini\"\n");
    Folder.Write("Words/of the game.ini", "[T]\nHud.Stage = WORD\n");
    Load("en");
    EXPECT_EQ(GetText("Hud.Stage", "STAGE"), "WORD");
}

TEST_F(LanguagesTest, ASwitchDropsTheOldTextsAndTheRememberedDefaults) {
    Folder.Write(German, "[T]\nHud.Stage = ETAPPE\nHud.Score = PUNKTE\n");
    Load("en");
    ASSERT_EQ(GetText(TextKey::HudStage), "STAGE"); // remembered from now on
    Load("de");
    EXPECT_EQ(GetText(TextKey::HudStage), "ETAPPE");
    Load("en");
    EXPECT_TRUE(Localization.Texts.empty());
    EXPECT_FALSE(Localization.TextsLoaded);
    EXPECT_EQ(GetText(TextKey::HudScore), "SCORE");
}

// Language files.

TEST_F(LanguagesTest, TheNamesOfSectionsHaveNoMeaningAndALaterTextReplacesAnEarlierOne) {
    Folder.Write(English, "[One]\nHud.Stage = FIRST\nHud.Score = POINTS\nHud.Score = SCORES\n"
                          "[Two]\nHud.Stage = SECOND\n"
                          "[One]\nHud.Ammo = AMMO\n");
    Load("en");
    EXPECT_EQ(Localization.Texts.size(), 3U);
    EXPECT_EQ(Localization.Texts.at("Hud.Stage"), "SECOND");
    EXPECT_EQ(Localization.Texts.at("Hud.Score"), "SCORES");
    EXPECT_EQ(Localization.Texts.at("Hud.Ammo"), "AMMO");
}

TEST_F(LanguagesTest, KeysBeforeTheFirstSectionAreNotTaken) {
    Folder.Write(English, "Hud.Stage = GLOBAL\n[T]\nHud.Score = SCORES\n[QI_Global]\nHud.Ammo = GLOBAL\n");
    Load("en");
    EXPECT_EQ(Localization.Texts.size(), 1U);
    EXPECT_EQ(GetText("Hud.Stage", "STAGE"), "STAGE");
}

TEST_F(LanguagesTest, CommentsBlankLinesAndArraysAreNotTaken) {
    Folder.Write(
        English, "[T]\n; comment\n\n# comment\nHud.Stage[] = A\nHud.Stage[2] = B\nHud.Score = C ; d\n");
    Load("en");
    ASSERT_EQ(Localization.Texts.size(), 1U);
    EXPECT_EQ(Localization.Texts.at("Hud.Score"), "C");
}

TEST_F(LanguagesTest, UnknownKeysAreKeptAndDoNoHarm) {
    Folder.Write(English, "[T]\nHud.Altitude = HEIGHT\nHud.Stage = STAGES\n");
    Load("en");
    EXPECT_EQ(Localization.Texts.at("Hud.Altitude"), "HEIGHT");
    EXPECT_EQ(GetText(TextKey::HudStage), "STAGES");
}

TEST_F(LanguagesTest, TextsAreUtf8AndKeepTheirQuotedBlanks) {
    Folder.Write(English, "[T]\nPause.Title = \"R\xC3\x9C"
                          "CK  WEG \"\nHud.Ammo = \\x00DC  B\n");
    Load("en");
    EXPECT_EQ(GetText(TextKey::PauseTitle), "R\xC3\x9C"
                                            "CK  WEG ");
    EXPECT_EQ(GetText(TextKey::HudAmmo), "\xC3\x9C"
                                         "B");
}

TEST_F(LanguagesTest, TheTextsBeforeABadLineStand) {
    Folder.Write(English, "[T]\nHud.Stage = STAGES\nno separator here\nHud.Score = SCORES\n");
    Load("en");
    EXPECT_TRUE(Localization.TextsLoaded);
    EXPECT_EQ(Localization.Texts.size(), 1U);
    EXPECT_EQ(GetText(TextKey::HudStage), "STAGES");
    EXPECT_EQ(Log.Lines, Lines{NoCatalogueLine});
}

TEST_F(LanguagesTest, ABadEscapeIsNotCaught) {
    Folder.Write(English, "[T]\nHud.Stage = \"\\x12");
    EXPECT_ANY_THROW(Load("en"));
    Folder.Remove(English);
    Folder.Write(German, "[T]\nHud.Stage = \"\\xD800\\x0041\"\n");
    EXPECT_ANY_THROW(Load("de"));
    Folder.Write(Catalogue, "[Language.en]\nFile = \"\\x1");
    EXPECT_ANY_THROW(Load("en"));
}

TEST_F(LanguagesTest, LoadLanguageFileAddsToTheTextsThatAreThere) {
    Localization.Texts = {{"Hud.Stage", "OLD"}, {"Hud.Score", "OLD"}};
    Folder.Write("More.ini", "[T]\nHud.Stage = NEW\nHud.Ammo = NEW\n");
    EXPECT_TRUE(LoadLanguageFile("More.ini"));
    EXPECT_EQ(Localization.Texts.size(), 3U);
    EXPECT_EQ(Localization.Texts.at("Hud.Stage"), "NEW");
    EXPECT_EQ(Localization.Texts.at("Hud.Score"), "OLD");
    EXPECT_EQ(Localization.Texts.at("Hud.Ammo"), "NEW");
    EXPECT_FALSE(Localization.TextsLoaded); // LoadLanguage's to say
}

TEST_F(LanguagesTest, LoadLanguageFileLeavesTheTextsWhereItCannotRead) {
    Localization.Texts = {{"Hud.Stage", "OLD"}};
    Folder.Write("Empty.ini", "");
    Folder.Write("Short.ini", "[T]\na");
    for (const char *path : {"Missing.ini", "Empty.ini", "Short.ini", "", "../Missing.ini", "/Missing.ini"}) {
        EXPECT_FALSE(LoadLanguageFile(path)) << path;
    }
    EXPECT_EQ(Localization.Texts.size(), 1U);
    EXPECT_EQ(Log.Lines, Lines{});
}

// Looking languages up.

TEST_F(LanguagesTest, FindLanguageKnowsExactCodesOnly) {
    Localization.Languages = {{"en", "English", "a.ini"}, {"de", "Deutsch", "b.ini"},
        {"de", "Zweites", "c.ini"}, {"", "Nameless", "d.ini"}};
    EXPECT_EQ(FindLanguage("en"), Localization.Languages.data());
    EXPECT_EQ(FindLanguage("de"), &Localization.Languages[1]); // from the front
    for (const char *code : {"", "DE", " de", "d", "deu", "fi"}) {
        EXPECT_EQ(FindLanguage(code), nullptr) << code;
    }
}

TEST_F(LanguagesTest, LanguageDisplayNameIsTheNameInCapitalsOrElseTheCode) {
    Localization.Languages = {{"de", "Deutsch", "a.ini"},
        {"fr",
            "Fran\xC3\xA7"
            "ais",
            "b.ini"},
        {"et", "v\xC3\xB5ru \xC3\xA4\xC3\xB6\xC3\xBC", "c.ini"}, {"xx", "", "d.ini"},
        {"en", "English", "e.ini"}};
    EXPECT_EQ(LanguageDisplayName("de"), "DEUTSCH");
    EXPECT_EQ(LanguageDisplayName(" D e\t"), "DEUTSCH");
    EXPECT_EQ(LanguageDisplayName("fr"), "FRAN\xC3\xA7"
                                         "AIS"); // the font has no such capital
    EXPECT_EQ(LanguageDisplayName("et"), "V\xC3\xB5RU \xC3\x84\xC3\x96\xC3\x9C");
    EXPECT_EQ(LanguageDisplayName("xx"), "XX");
    EXPECT_EQ(LanguageDisplayName("nl"), "NL");
    EXPECT_EQ(LanguageDisplayName("\xC3\xA4"), "\xC3\x84");
    EXPECT_EQ(LanguageDisplayName(""), "ENGLISH"); // no code is English
    EXPECT_EQ(LanguageDisplayName("  "), "ENGLISH");
    EXPECT_TRUE(Localization.Texts.empty()); // the word for an unknown one is not needed
}

TEST(LanguageCode, IsInSmallLettersWithoutAnyBlanks) {
    EXPECT_EQ(NormalizeLanguageCode("de"), "de");
    EXPECT_EQ(NormalizeLanguageCode("PT-BR"), "pt-br");
    EXPECT_EQ(NormalizeLanguageCode(" \t\n\v\f\rD \t\n\v\f\rE \t\n\v\f\r"), "de");
    EXPECT_EQ(NormalizeLanguageCode("\xC3\x84"), "\xC3\x84"); // beyond ASCII nothing changes
    EXPECT_EQ(NormalizeLanguageCode("\xC2\xA0"), "\xC2\xA0");
    EXPECT_EQ(NormalizeLanguageCode(std::string_view("A\0B", 3)), std::string_view("a\0b", 3));
}

TEST(LanguageCode, IsEnglishWhereNothingIsLeft) {
    EXPECT_EQ(NormalizeLanguageCode(""), "en");
    EXPECT_EQ(NormalizeLanguageCode(" \t\n\v\f\r"), "en");
}
