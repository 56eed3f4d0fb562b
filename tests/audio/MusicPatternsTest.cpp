#include "audio/MusicPatterns.hpp"

#include "tests/audio/GameFolder.hpp"
#include "tests/audio/OggFile.hpp"
#include "tests/support/SpecialFiles.hpp"

#include <algorithm>
#include <array>

namespace {

using Lines = std::vector<std::string>;

/// A role's key, its place in the runtime and its name at first.
struct Role {
    const char *Key;
    std::string MusicRuntime::*Pattern;
    const char *Name;
};

constexpr std::array<Role, 6> Roles{{
    {"MenuPattern", &MusicRuntime::MenuPattern, "MENU"},
    {"GameplayPattern", &MusicRuntime::GameplayPattern, "GAMEPLAY"},
    {"WaterPattern", &MusicRuntime::WaterPattern, "WATER"},
    {"GameOverPattern", &MusicRuntime::GameOverPattern, "GAMEOVER"},
    {"InvincibilityPattern", &MusicRuntime::InvincibilityPattern, "INVINCIBILITY"},
    {"DualWeaponPattern", &MusicRuntime::DualWeaponPattern, "DUALWEAPON"},
}};

struct Fade {
    const char *Key;
    std::int32_t MusicRuntime::*Milliseconds;
};

constexpr std::array<Fade, 2> Fades{{
    {"FadeInMs", &MusicRuntime::FadeInMs},
    {"FadeOutMs", &MusicRuntime::FadeOutMs},
}};

std::string MissingRole(const std::string &Key, const std::string &Name, const std::string &Instead) {
    return "Music pattern '" + Key + "' points to missing pattern '" + Name + "'; using '" + Instead +
           "' instead";
}

std::string MissingNext(const std::string &Name, const std::string &Next) {
    return "Music pattern '" + Name + "' has missing NextPatternName '" + Next + "'; using self loop";
}

std::string Unsafe(const std::string &Name, const std::string &File) {
    return "Music pattern '" + Name + "' has unsafe FileName '" + File + "'; skipping";
}

/// The lines that are not about roles, which most documents here leave unnamed.
Lines WithoutRoles(const Lines &All) {
    Lines others;
    std::ranges::copy_if(All, std::back_inserter(others), [](const std::string &Line) {
        return Line.find("' points to missing pattern '") == std::string::npos;
    });
    return others;
}

/// A real mixer that renders to memory, and two pieces of music beside the program.
class MusicPatterns : public GameFolderTest {
protected:
    MusicPatterns() {
        AddMusic("Music/A.ogg", 4410);
        AddMusic("Music/B.ogg", 4410);
        EXPECT_TRUE(MIX_Init());
        const SDL_AudioSpec format{SDL_AUDIO_F32LE, 2, 44100};
        Runtime.Mixer = MIX_CreateMixer(&format);
        EXPECT_NE(Runtime.Mixer, nullptr) << SDL_GetError();
    }
    ~MusicPatterns() override {
        DestroyMusicPatterns(Runtime.Player);
        MIX_DestroyMixer(Runtime.Mixer);
        MIX_Quit();
    }

    bool Load(std::string_view Text) {
        Log.Lines.clear();
        return LoadMusicPatterns(Read(Text), Runtime);
    }

    Lines Names() const {
        Lines names;
        for (const MusicPattern &pattern : Runtime.Player.Patterns) {
            names.push_back(pattern.Name);
            EXPECT_NE(pattern.Audio, nullptr);
        }
        return names;
    }

    MusicRuntime Runtime;
};

/// A document of plain values, section by section.
struct DefaultSection {
    const char *Name;
    std::vector<std::pair<const char *, const char *>> Values;
};

} // namespace

TEST(DefaultMusic, IsTheBuiltInDocumentEntryByEntry) {
    const std::vector<DefaultSection> expected{
        {"QI_Global", {}},
        {"Music", {{"MenuPattern", "MENU"}, {"GameplayPattern", "GAMEPLAY"}, {"WaterPattern", "WATER"},
                      {"GameOverPattern", "GAMEOVER"}, {"InvincibilityPattern", "INVINCIBILITY"},
                      {"DualWeaponPattern", "DUALWEAPON"}, {"FadeInMs", "350"}, {"FadeOutMs", "1500"}}},
        {"Pattern.MENU", {{"FileName", "Music/MenuCredits.ogg"}, {"NextPatternName", "MENU"}}},
        {"Pattern.GAMEPLAY", {{"FileName", "Music/Gameplay.ogg"}, {"NextPatternName", "GAMEPLAY"}}},
        {"Pattern.WATER", {{"FileName", "Music/Water.ogg"}, {"NextPatternName", "WATER"}}},
        {"Pattern.GAMEOVER", {{"FileName", "Music/GameOver.ogg"}, {"NextPatternName", "GAMEOVER"}}},
        {"Pattern.INVINCIBILITY",
            {{"FileName", "Music/Invincibility.ogg"}, {"NextPatternName", "INVINCIBILITY"}}},
        {"Pattern.DUALWEAPON", {{"FileName", "Music/DualWeapon.ogg"}, {"NextPatternName", "DUALWEAPON"}}},
    };
    quillINI::IniDocument document;
    BuildDefaultMusicPatterns(document);
    ASSERT_EQ(document.Sections.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const quillINI::IniSection &section = document.Sections[i];
        EXPECT_EQ(section.Name, expected[i].Name);
        ASSERT_EQ(section.Entries.size(), expected[i].Values.size()) << section.Name;
        for (std::size_t j = 0; j < section.Entries.size(); ++j) {
            EXPECT_EQ(section.Entries[j].Key, expected[i].Values[j].first);
            EXPECT_EQ(section.Entries[j].Value, expected[i].Values[j].second);
            EXPECT_EQ(section.Entries[j].Kind, quillINI::IniEntryKind::Value);
            EXPECT_FALSE(section.Entries[j].Quoted) << section.Entries[j].Key;
        }
    }
}

TEST(FindMusicPattern, GivesTheFirstOfANameAndComparesExactly) {
    MusicPlayer player;
    player.Patterns.resize(4);
    player.Patterns[0].Name = "A";
    player.Patterns[1].Name = "B";
    player.Patterns[2].Name = "B";
    player.Patterns[3].Name = std::string("A\0B", 3);
    EXPECT_EQ(FindMusicPattern(player, "B"), &player.Patterns[1]);
    EXPECT_EQ(FindMusicPattern(player, std::string_view("A\0B", 3)), &player.Patterns[3]);
    EXPECT_EQ(FindMusicPattern(player, "b"), nullptr);
    EXPECT_EQ(FindMusicPattern(player, "B "), nullptr);
    EXPECT_EQ(FindMusicPattern(player, ""), nullptr);
    EXPECT_EQ(FindMusicPattern(MusicPlayer(), "A"), nullptr);
}

TEST_F(MusicPatterns, OfAWholeDocumentLoadWithoutAWord) {
    EXPECT_TRUE(Load(R"([Music]
MenuPattern = "One"
GameplayPattern = "Two"
WaterPattern = "One"
GameOverPattern = "Two"
InvincibilityPattern = "One"
DualWeaponPattern = "Two"
FadeInMs = 10
FadeOutMs = 20
[Pattern.First]
PatternName = "One"
Enabled = yes
FileName = "Music/A.ogg"
NextPatternName = "Two"
[Pattern.Two]
FileName = "Music/B.ogg"
)"));
    EXPECT_EQ(Log.Lines, Lines());
    EXPECT_EQ(Names(), (Lines{"One", "Two"}));
    const std::vector<MusicPattern> &patterns = Runtime.Player.Patterns;
    EXPECT_EQ(patterns[0].NextName, "Two");
    EXPECT_EQ(patterns[1].NextName, "Two");
    EXPECT_EQ(patterns[0].ResolvedPath, PathOf("Music/A.ogg"));
    EXPECT_EQ(patterns[1].ResolvedPath, PathOf("Music/B.ogg"));
    EXPECT_EQ(MIX_GetAudioDuration(patterns[0].Audio), 4410);
    EXPECT_EQ(Runtime.MenuPattern, "One");
    EXPECT_EQ(Runtime.GameplayPattern, "Two");
    EXPECT_EQ(Runtime.WaterPattern, "One");
    EXPECT_EQ(Runtime.GameOverPattern, "Two");
    EXPECT_EQ(Runtime.InvincibilityPattern, "One");
    EXPECT_EQ(Runtime.DualWeaponPattern, "Two");
    EXPECT_EQ(Runtime.FadeInMs, 10);
    EXPECT_EQ(Runtime.FadeOutMs, 20);
}

TEST_F(MusicPatterns, AreDecodedWhileTheyPlay) {
    Load("[Pattern.A]\nFileName = Music/A.ogg\n");
    ASSERT_EQ(Watch.LoadAudio.Count(), 1);
    EXPECT_EQ(Watch.LoadAudio.Calls[0], std::tuple(Runtime.Mixer, PathOf("Music/A.ogg"), false));
}

TEST_F(MusicPatterns, KeepTheRolesThatTheDocumentDoesNotName) {
    for (const Role &role : Roles) {
        MusicRuntime runtime;
        runtime.Mixer = Runtime.Mixer;
        runtime.*role.Pattern = "KEPT";
        EXPECT_FALSE(LoadMusicPatterns(Read("[Music]\nOther = 1\n"), runtime));
        for (const Role &other : Roles) {
            EXPECT_EQ(runtime.*other.Pattern, other.Key == role.Key ? "KEPT" : other.Name) << other.Key;
        }
    }
}

TEST_F(MusicPatterns, TakeEachRoleFromItsKey) {
    for (const Role &role : Roles) {
        MusicRuntime runtime;
        runtime.Mixer = Runtime.Mixer;
        EXPECT_FALSE(LoadMusicPatterns(Read(std::string("[Music]\n") + role.Key + " = \"Mine\"\n"), runtime));
        for (const Role &other : Roles) {
            EXPECT_EQ(runtime.*other.Pattern, other.Key == role.Key ? "Mine" : other.Name) << other.Key;
        }
    }
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(MusicPatterns, ReadTheSectionAndItsKeysWithTheirCase) {
    EXPECT_FALSE(Load("[music]\nMenuPattern = X\nFadeInMs = 1\n[Music]\nmenupattern = X\nFADEINMS = 1\n"));
    EXPECT_EQ(Runtime.MenuPattern, "MENU");
    EXPECT_EQ(Runtime.FadeInMs, 350);
}

TEST_F(MusicPatterns, BringTheFadesIntoTheirRange) {
    struct Row {
        const char *Text;
        std::int32_t Milliseconds;
    };
    constexpr std::array<Row, 16> rows{{
        {"0", 0},
        {"1", 1},
        {"5000", 5000},
        {"5001", 5000},
        {"9000", 5000},
        {"2147483647", 5000},
        {"-1", 0},
        {"-2147483648", 0},
        {"\"20\"", 20},
        {"007", 7},
        {"2147483648", 777}, // no number of 32 bits
        {"abc", 777},
        {"12ms", 777},
        {"+5", 777},
        {"\" 5\"", 777},
        {"1.5", 777},
    }};
    for (const Fade &fade : Fades) {
        for (const Row &row : rows) {
            Runtime.FadeInMs = 777;
            Runtime.FadeOutMs = 777;
            Load(std::string("[Music]\n") + fade.Key + " = " + row.Text + "\n");
            for (const Fade &other : Fades) {
                EXPECT_EQ(Runtime.*other.Milliseconds, other.Key == fade.Key ? row.Milliseconds : 777)
                    << other.Key << " of " << row.Text;
            }
        }
    }
}

TEST_F(MusicPatterns, KeepAnEmptyFadeAsItWas) {
    Load("[Music]\nFadeInMs = \"\"\nFadeOutMs = \"\"\n");
    EXPECT_EQ(Runtime.FadeInMs, 350);
    EXPECT_EQ(Runtime.FadeOutMs, 1500);
}

TEST_F(MusicPatterns, BringAPresentFadeIntoItsRangeToo) {
    Runtime.FadeInMs = 6000;
    Runtime.FadeOutMs = -3;
    Load("[Music]\nOther = 1\n");
    EXPECT_EQ(Runtime.FadeInMs, 5000);
    EXPECT_EQ(Runtime.FadeOutMs, 0);
}

TEST_F(MusicPatterns, WithoutASectionOfRolesGiveEveryRoleToTheOnlyPattern) {
    EXPECT_TRUE(Load("[Pattern.ONLY]\nFileName = Music/A.ogg\n"));
    Lines lines;
    for (const Role &role : Roles) {
        lines.push_back(MissingRole(role.Key, role.Name, "ONLY"));
        EXPECT_EQ(Runtime.*role.Pattern, "ONLY") << role.Key;
    }
    EXPECT_EQ(Log.Lines, lines);
}

TEST_F(MusicPatterns, GiveEachMissingRoleItsOwnFallback) {
    // First in the list, the menu's and the gameplay's are three patterns.
    struct Row {
        const char *Key;
        const char *Fallback;
    };
    constexpr std::array<Row, 6> rows{{
        {"MenuPattern", "FIRST"},
        {"GameplayPattern", "MENU"},
        {"WaterPattern", "GAMEPLAY"},
        {"GameOverPattern", "GAMEPLAY"},
        {"InvincibilityPattern", "GAMEPLAY"},
        {"DualWeaponPattern", "GAMEPLAY"},
    }};
    for (const Row &row : rows) {
        for (const char *const name : {"NOWHERE", ""}) {
            std::string text = std::string("[Music]\n") + row.Key + " = \"" + name + "\"\n";
            for (const char *const pattern :
                {"FIRST", "MENU", "GAMEPLAY", "WATER", "GAMEOVER", "INVINCIBILITY", "DUALWEAPON"}) {
                text += std::string("[Pattern.") + pattern + "]\nFileName = Music/A.ogg\n";
            }
            Runtime.MenuPattern = "MENU";
            Runtime.GameplayPattern = "GAMEPLAY";
            Runtime.WaterPattern = "WATER";
            Runtime.GameOverPattern = "GAMEOVER";
            Runtime.InvincibilityPattern = "INVINCIBILITY";
            Runtime.DualWeaponPattern = "DUALWEAPON";
            EXPECT_TRUE(Load(text));
            EXPECT_EQ(Log.Lines, Lines{MissingRole(row.Key, name, row.Fallback)});
            for (const Role &role : Roles) {
                const bool isMissing = std::string(role.Key) == row.Key;
                EXPECT_EQ(Runtime.*role.Pattern, isMissing ? row.Fallback : role.Name) << role.Key;
            }
        }
    }
}

TEST_F(MusicPatterns, TreatARoleThatNamesASwitchedOffPatternAsMissing) {
    EXPECT_TRUE(Load(R"([Music]
MenuPattern = A
GameplayPattern = OFF
WaterPattern = A
GameOverPattern = A
InvincibilityPattern = A
DualWeaponPattern = A
[Pattern.OFF]
Enabled = no
FileName = Music/A.ogg
[Pattern.A]
FileName = Music/A.ogg
)"));
    EXPECT_EQ(Log.Lines, Lines{MissingRole("GameplayPattern", "OFF", "A")});
    EXPECT_EQ(Runtime.GameplayPattern, "A");
}

TEST_F(MusicPatterns, KeepRolesAndFadesOfADocumentWithoutMusic) {
    EXPECT_FALSE(Load("[Music]\nMenuPattern = X\nDualWeaponPattern = Y\nFadeInMs = 5\nFadeOutMs = 6\n"
                      "[Pattern.X]\nFileName = Music/None.ogg\n"));
    EXPECT_EQ(Runtime.MenuPattern, "X");
    EXPECT_EQ(Runtime.DualWeaponPattern, "Y");
    EXPECT_EQ(Runtime.GameplayPattern, "GAMEPLAY");
    EXPECT_EQ(Runtime.FadeInMs, 5);
    EXPECT_EQ(Runtime.FadeOutMs, 6);
    EXPECT_EQ(Log.Lines.size(), 1U);
}

TEST_F(MusicPatterns, TakeTheirNameFromTheSectionUnlessTheyHaveOne) {
    EXPECT_TRUE(Load("[Pattern.Suffix]\nFileName = Music/A.ogg\n[Pattern.Other]\nPatternName = \"Own name\"\n"
                     "FileName = Music/A.ogg\n[Pattern.With.Dot]\nFileName = Music/A.ogg\n"
                     "[Pattern.]\nPatternName = Named\nFileName = Music/A.ogg\n"));
    EXPECT_EQ(Names(), (Lines{"Suffix", "Own name", "With.Dot", "Named"}));
    EXPECT_EQ(WithoutRoles(Log.Lines), Lines());
}

TEST_F(MusicPatterns, WithoutANameAreSkippedSilently) {
    EXPECT_FALSE(Load(
        "[Pattern.]\nFileName = Music/A.ogg\n[Pattern.A]\nPatternName = \"\"\nFileName = Music/A.ogg\n"));
    EXPECT_EQ(Log.Lines, Lines());
    EXPECT_EQ(Watch.LoadAudio.Count(), 0);
}

TEST_F(MusicPatterns, OfOtherSectionsAreIgnored) {
    EXPECT_FALSE(Load("FileName = Music/A.ogg\n[pattern.A]\nFileName = Music/A.ogg\n[PATTERN.B]\n"
                      "FileName = Music/A.ogg\n[Patterns.C]\nFileName = Music/A.ogg\n[Pattern]\n"
                      "FileName = Music/A.ogg\n[My Pattern.D]\nFileName = Music/A.ogg\n"));
    EXPECT_EQ(Log.Lines, Lines());
    EXPECT_EQ(Watch.LoadAudio.Count(), 0);
}

TEST_F(MusicPatterns, AreReadInTheOrderOfTheFile) {
    EXPECT_TRUE(
        Load("[Pattern.Z]\nFileName = Music/A.ogg\n[Other]\nx = 1\n[Pattern.A]\nFileName = Music/B.ogg\n"
             "[Pattern.M]\nFileName = Music/A.ogg\n"));
    EXPECT_EQ(Names(), (Lines{"Z", "A", "M"}));
}

TEST_F(MusicPatterns, OfTheSameNameAreReportedAndTheFirstWins) {
    EXPECT_TRUE(
        Load("[Pattern.One]\nPatternName = SAME\nFileName = Music/A.ogg\n[Pattern.Two]\nPatternName = SAME\n"
             "FileName = Music/B.ogg\n[Pattern.SAME]\nFileName = Music/B.ogg\n"
             "[Pattern.Off]\nPatternName = SAME\nEnabled = 0\n"));
    EXPECT_EQ(Names(), Lines{"SAME"});
    EXPECT_EQ(Runtime.Player.Patterns[0].ResolvedPath, PathOf("Music/A.ogg"));
    const std::string line = "Duplicate music pattern name 'SAME' in section 'Pattern.";
    EXPECT_EQ(
        WithoutRoles(Log.Lines), (Lines{line + "Two'; ignoring duplicate", line + "SAME'; ignoring duplicate",
                                     line + "Off'; ignoring duplicate"}));
}

TEST_F(MusicPatterns, ThatWereSkippedLeaveTheirNameFree) {
    EXPECT_TRUE(Load("[Pattern.Off]\nPatternName = N\nEnabled = 0\nFileName = Music/A.ogg\n[Pattern.Bare]\n"
                     "PatternName = N\n[Pattern.On]\nPatternName = N\nFileName = Music/B.ogg\n"));
    EXPECT_EQ(Names(), Lines{"N"});
    EXPECT_EQ(Runtime.Player.Patterns[0].ResolvedPath, PathOf("Music/B.ogg"));
    EXPECT_EQ(WithoutRoles(Log.Lines), Lines());
}

TEST_F(MusicPatterns, OfTheSameFileAreIndependent) {
    EXPECT_TRUE(Load("[Pattern.A]\nFileName = Music/A.ogg\n[Pattern.B]\nFileName = Music/A.ogg\n"));
    ASSERT_EQ(Names(), (Lines{"A", "B"}));
    EXPECT_NE(Runtime.Player.Patterns[0].Audio, Runtime.Player.Patterns[1].Audio);
    EXPECT_EQ(WithoutRoles(Log.Lines), Lines());
}

TEST_F(MusicPatterns, AreSwitchedByTheWordsOfTheGamesFiles) {
    struct Row {
        const char *Word;
        bool IsOn;
    };
    constexpr std::array<Row, 20> rows{{
        {"1", true},
        {"true", true},
        {"yes", true},
        {"on", true},
        {"TRUE", true},
        {"Yes", true},
        {"0", false},
        {"false", false},
        {"no", false},
        {"off", false},
        {"FALSE", false},
        {"No", false},
        {"OFF", false},
        {"\"off\"", false},
        {"2", true}, // no boolean word
        {"maybe", true},
        {"n", true},
        {"\"\"", true},
        {"\"0 \"", true},
        {"\" false\"", true},
    }};
    for (const Row &row : rows) {
        const std::string text =
            std::string("[Pattern.A]\nEnabled = ") + row.Word + "\nFileName = Music/A.ogg\n";
        EXPECT_EQ(Load(text), row.IsOn) << row.Word;
        EXPECT_EQ(WithoutRoles(Log.Lines), Lines()) << row.Word;
    }
}

TEST_F(MusicPatterns, WithoutAFileNameAreSkippedSilently) {
    EXPECT_FALSE(Load("[Pattern.A]\nNextPatternName = B\n[Pattern.B]\nFileName = \"\"\n"));
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(MusicPatterns, WithAnUnsafeFileNameAreReportedAndSkipped) {
    for (const char *const file : {"/Music/A.ogg", "\\\\Music/A.ogg", "C:/Music/A.ogg", "C:A.ogg",
             "Music/A:B.ogg", "./Music/A.ogg", "Music/./A.ogg", "../A.ogg", "Music/../Music/A.ogg",
             "Music/..", ".", "..", "Music\\\\..\\\\A.ogg"}) {
        const std::string text = std::string("[Pattern.BAD]\nFileName = \"") + file + "\"\n";
        EXPECT_FALSE(Load(text));
        std::string told = file; // the document's text escapes backslashes
        for (std::size_t at = 0; (at = told.find("\\\\", at)) != std::string::npos; ++at) {
            told.erase(at, 1);
        }
        EXPECT_EQ(Log.Lines, Lines{Unsafe("BAD", told)});
    }
    EXPECT_EQ(Watch.LoadAudio.Count(), 0);
}

TEST_F(MusicPatterns, WithDotsWithinTheirNamesAreSafe) {
    AddMusic("Music/A..B.ogg", 441);
    AddMusic("Music/.hidden", 441);
    EXPECT_TRUE(Load("[Pattern.A]\nFileName = Music/A..B.ogg\n[Pattern.B]\nFileName = Music/.hidden\n"));
    EXPECT_EQ(Names(), (Lines{"A", "B"}));
}

TEST_F(MusicPatterns, WithoutAProgramFolderAreReportedLikeUnsafeOnes) {
    const quillINI::IniDocument document = Read("[Pattern.A]\nFileName = Music/A.ogg\n");
    Watch.GetBasePath.Answer = [] {
        return "";
    };
    EXPECT_FALSE(LoadMusicPatterns(document, Runtime));
    Watch.GetBasePath.Answer = []() -> const char * {
        return nullptr;
    };
    EXPECT_FALSE(LoadMusicPatterns(document, Runtime));
    EXPECT_EQ(Log.Lines, (Lines{Unsafe("A", "Music/A.ogg"), Unsafe("A", "Music/A.ogg")}));
    EXPECT_EQ(Watch.LoadAudio.Count(), 0);
}

TEST_F(MusicPatterns, AreLookedForBesideTheProgramWithOneSeparator) {
    const quillINI::IniDocument document = Read("[Pattern.A]\nFileName = Music/A.ogg\n");
    struct Row {
        const char *Base;
        const char *Path;
    };
    constexpr std::array<Row, 3> rows{{
        {"/games/kestrel", "/games/kestrel/Music/A.ogg"},
        {"/games/kestrel/", "/games/kestrel/Music/A.ogg"},
        {"C:\\games\\", "C:\\games\\Music/A.ogg"},
    }};
    Watch.LoadAudio.Refuse();
    for (const Row &row : rows) {
        MoveProgram(row.Base);
        EXPECT_FALSE(LoadMusicPatterns(document, Runtime));
        EXPECT_EQ(std::get<1>(Watch.LoadAudio.Calls.back()), row.Path);
    }
}

TEST_F(MusicPatterns, ThatCannotBeLoadedAreReportedOneByOneAndTheRestLoads) {
    Watch.LoadAudio.Refuse(1);
    EXPECT_TRUE(Load("[Pattern.Bad]\nPatternName = \"Bad one\"\nFileName = Music/A.ogg\n[Pattern.B]\n"
                     "FileName = Music/B.ogg\n"));
    EXPECT_EQ(Names(), Lines{"B"});
    EXPECT_EQ(WithoutRoles(Log.Lines),
        Lines{"MIX_LoadAudio failed for pattern 'Bad one' (configured='Music/A.ogg', resolved='" +
              PathOf("Music/A.ogg") + "'): refused for the test"});
}

TEST_F(MusicPatterns, OfMissingAndDamagedFilesAreReportedWithTheMixersReason) {
    WriteDamagedOgg(PathOf("Music/Damaged.ogg"));
    AddText("Music/Text.ogg", "This is no music at all, however long one looks at it.\n");
    AddText("Music/Empty.ogg", "");
    for (const char *const file :
        {"Music/None.ogg", "Music/Damaged.ogg", "Music/Text.ogg", "Music/Empty.ogg"}) {
        EXPECT_FALSE(Load(std::string("[Pattern.A]\nFileName = ") + file + "\n"));
        const std::string begin = std::string("MIX_LoadAudio failed for pattern 'A' (configured='") + file +
                                  "', resolved='" + PathOf(file) + "'): ";
        ASSERT_EQ(Log.Lines.size(), 1U) << file;
        EXPECT_TRUE(Log.Lines[0].starts_with(begin)) << Log.Lines[0];
        EXPECT_GT(Log.Lines[0].size(), begin.size()) << file;
    }
}

TEST_F(MusicPatterns, OfWhatIsNoRegularFileAreReportedAndNotOpened) {
    const TimeLimit limit;
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        const std::string path = PathOf("Music/Special.ogg");
        special.Make(path);
        EXPECT_FALSE(Load("[Pattern.A]\nFileName = Music/Special.ogg\n"));
        EXPECT_EQ(Log.Lines,
            Lines{"MIX_LoadAudio failed for pattern 'A' (configured='Music/Special.ogg', resolved='" + path +
                  "'): not a regular file"});
        std::filesystem::remove_all(path);
    }
    EXPECT_EQ(Watch.LoadAudio.Count(), 0);
}

TEST_F(MusicPatterns, FollowThemselvesUnlessTheyNameAnother) {
    EXPECT_TRUE(Load("[Pattern.A]\nFileName = Music/A.ogg\nNextPatternName = B\n[Pattern.B]\n"
                     "FileName = Music/B.ogg\n"));
    EXPECT_EQ(Runtime.Player.Patterns[0].NextName, "B");
    EXPECT_EQ(Runtime.Player.Patterns[1].NextName, "B");
    EXPECT_EQ(WithoutRoles(Log.Lines), Lines());
}

TEST_F(MusicPatterns, WhoseNextOneIsMissingLoopOnThemselvesWithOneReport) {
    EXPECT_TRUE(
        Load("[Pattern.A]\nFileName = Music/A.ogg\nNextPatternName = GONE\n[Pattern.GONE]\n"
             "FileName = Music/None.ogg\n[Pattern.B]\nFileName = Music/B.ogg\nNextPatternName = \"\"\n"
             "[Pattern.C]\nFileName = Music/B.ogg\nNextPatternName = a\n"));
    const Lines lines = WithoutRoles(Log.Lines);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_TRUE(lines[0].starts_with("MIX_LoadAudio failed for pattern 'GONE'"));
    EXPECT_EQ(lines[1], MissingNext("A", "GONE"));
    EXPECT_EQ(lines[2], MissingNext("B", ""));
    EXPECT_EQ(lines[3], MissingNext("C", "a"));
    for (const MusicPattern &pattern : Runtime.Player.Patterns) {
        EXPECT_EQ(pattern.NextName, pattern.Name);
    }
}

TEST_F(MusicPatterns, HaveTheirRolesMendedBeforeTheirChain) {
    EXPECT_TRUE(Load("[Pattern.A]\nFileName = Music/A.ogg\nNextPatternName = X\n"));
    ASSERT_EQ(Log.Lines.size(), 7U);
    EXPECT_EQ(Log.Lines[5], MissingRole("DualWeaponPattern", "DUALWEAPON", "A"));
    EXPECT_EQ(Log.Lines[6], MissingNext("A", "X"));
}

TEST_F(MusicPatterns, OfANewDocumentTakeThePlaceOfTheOldOnesAndTheirPlaying) {
    ASSERT_TRUE(Load("[Pattern.A]\nFileName = Music/A.ogg\n[Pattern.B]\nFileName = Music/B.ogg\n"));
    MusicPlayer &player = Runtime.Player;
    const std::array<MIX_Audio *, 2> old{player.Patterns[0].Audio, player.Patterns[1].Audio};
    player.CurrentPatternName = "A";
    player.NextPatternName = "B";
    player.RequestedPattern = &player.Patterns[1];
    player.LastPosition = 99;
    player.LoopBoundaryMs = 100;
    ASSERT_EQ(Watch.DestroyAudio.Count(), 0);
    EXPECT_FALSE(Load("[Music]\nOther = 1\n"));
    ASSERT_EQ(Watch.DestroyAudio.Count(), 2);
    EXPECT_EQ(Watch.DestroyAudio.Calls[0], std::tuple(old[0]));
    EXPECT_EQ(Watch.DestroyAudio.Calls[1], std::tuple(old[1]));
    EXPECT_TRUE(player.Patterns.empty());
    EXPECT_EQ(player.CurrentPatternName, "");
    EXPECT_EQ(player.NextPatternName, "");
    EXPECT_EQ(player.RequestedPattern, nullptr);
    EXPECT_EQ(player.LastPosition, -1);
    EXPECT_EQ(player.LoopBoundaryMs, 0);
}
