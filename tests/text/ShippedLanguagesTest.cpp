#include "quillini/quillini.hpp"
#include "state/GameState.hpp"
#include "tests/sim/RecordHash.hpp"
#include "tests/support/Figure.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/watch/ProgramFolder.hpp"
#include "text/Languages.hpp"
#include "text/Utf8.hpp"
#include "tools/support/Files.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <set>
#include <utility>

// The files of words that ship with the game.

namespace {

using Lines = std::vector<std::string>;

const Lines Codes{"en", "de", "nl", "fi"};
const Lines Files{"Localization/En.ini", "Localization/De.ini", "Localization/Nl.ini", "Localization/Fi.ini"};

constexpr std::array Prompts{
    TextKey::OptionsControlsBindPromptKeyboard,
    TextKey::OptionsControlsBindPromptGamepad,
    TextKey::OptionsControlsBindPromptJoystick,
    TextKey::OptionsControlsBindPromptAny,
};

bool IsPrompt(const std::string &Key) {
    return std::ranges::any_of(Prompts, [&Key](TextKey Prompt) {
        return Key == RowOf(Prompt).Key;
    });
}

std::filesystem::path ShippedPath(const std::string &Name) {
    return ShippedData() / Name;
}

/// A shipped file, read without a word of the reader's.
quillINI::IniDocument DocumentOf(const std::string &Name) {
    quillINI::IniDocument document;
    testing::internal::CaptureStdout();
    const bool isRead = quillINI::ReadIniFile(document, ShippedPath(Name).string());
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "") << Name;
    EXPECT_TRUE(isRead) << Name;
    return document;
}

/// The entries of a file that are neither comments nor blank lines.
std::vector<quillINI::IniEntry> EntriesOf(const std::string &Name) {
    std::vector<quillINI::IniEntry> entries;
    for (const quillINI::IniSection &section : DocumentOf(Name).Sections) {
        for (const quillINI::IniEntry &entry : section.Entries) {
            const bool isText =
                entry.Kind == quillINI::IniEntryKind::Value || entry.Kind == quillINI::IniEntryKind::Array;
            if (isText) {
                EXPECT_NE(section.Name, quillINI::IniGlobalSection) << Name << ": " << entry.Key;
                entries.push_back(entry);
            }
        }
    }
    return entries;
}

std::map<std::string, std::string> TextsOf(const std::string &Name) {
    std::map<std::string, std::string> texts;
    for (const quillINI::IniEntry &entry : EntriesOf(Name)) {
        texts[entry.Key] = entry.Value;
    }
    return texts;
}

std::vector<std::uint32_t> CodePointsOf(const std::string &Text) {
    std::vector<std::uint32_t> codePoints;
    for (std::size_t i = 0; i < Text.size();) {
        const DecodedCodePoint decoded = DecodeUtf8(Text, i);
        codePoints.push_back(decoded.CodePoint);
        i += decoded.Length;
    }
    return codePoints;
}

/// Whether the font has a letter, without those in small. A question mark would look like a missing one.
bool IsDrawnCapital(std::uint32_t CodePoint) {
    static const std::set<std::uint32_t> beyondAscii{0xC4, 0xC9, 0xD6, 0xDC, 0xDF, 0x1E9E};
    const bool isAscii = CodePoint >= 0x20 && CodePoint < 'a' && CodePoint != '?';
    return isAscii || beyondAscii.contains(CodePoint);
}

/// The lengths of the runs of two and more blanks, which hold a line's parts apart.
std::vector<std::size_t> Gaps(const std::string &Text) {
    std::vector<std::size_t> gaps;
    for (std::size_t start = Text.find("  "); start != std::string::npos; start = Text.find("  ", start)) {
        const std::size_t end = std::min(Text.find_first_not_of(' ', start), Text.size());
        gaps.push_back(end - start);
        start = end;
    }
    return gaps;
}

std::size_t Count(const std::string &Text, const std::string &Piece) {
    std::size_t count = 0;
    for (std::size_t at = Text.find(Piece); at != std::string::npos; at = Text.find(Piece, at + 1)) {
        ++count;
    }
    return count;
}

} // namespace

TEST(ShippedLanguages, AreFourWithEnglishAsDefaultAndFallback) {
    const LocalizationTable old = std::exchange(Localization, {});
    SdlWatch watch;
    const ProgramFolder folder(watch, ShippedData());
    GameState state;
    LoadLanguage(state);
    Lines codes;
    Lines names;
    Lines files;
    for (const LanguageEntry &entry : Localization.Languages) {
        codes.push_back(entry.Code);
        names.push_back(LanguageDisplayName(entry.Code));
        files.push_back(entry.File);
    }
    EXPECT_EQ(codes, Codes);
    EXPECT_EQ(names, (Lines{"ENGLISH", "DEUTSCH", "NEDERLANDS", "SUOMI"}));
    EXPECT_EQ(files, Files);
    EXPECT_EQ(Localization.DefaultLanguage, "en");
    EXPECT_EQ(Localization.FallbackLanguage, "en");
    Localization = old;
}

TEST(ShippedLanguages, LoadWithoutAWord) {
    const LocalizationTable old = std::exchange(Localization, {});
    SdlWatch watch;
    const ProgramFolder folder(watch, ShippedData());
    for (std::size_t i = 0; i < Codes.size(); ++i) {
        const LogCatcher log;
        watch.Forget();
        GameState state;
        state.Language = Codes[i];
        testing::internal::CaptureStdout();
        LoadLanguage(state);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "") << Codes[i];
        EXPECT_EQ(log.Lines, Lines{}) << Codes[i];
        EXPECT_EQ(state.Language, Codes[i]);
        EXPECT_TRUE(Localization.TextsLoaded) << Codes[i];
        EXPECT_EQ(Localization.Texts.size(), TextTable.size()) << Codes[i];
        EXPECT_EQ(folder.FilesRead().back(), Files[i]);
    }
    Localization = old;
}

TEST(ShippedLanguages, AreReadAlikeOnEveryMachine) {
    const LocalizationTable old = std::exchange(Localization, {});
    SdlWatch watch;
    const ProgramFolder folder(watch, ShippedData());
    RecordHash hash;
    for (const std::string &code : Codes) {
        GameState state;
        state.Language = code;
        LoadLanguage(state);
        for (const TextRow &row : TextTable) {
            hash.AddText(GetText(row.Id));
            hash.AddText("\n");
        }
    }
    TellFigure("languages", hash.Value());
    // Changes only when a shipped text changes.
    EXPECT_EQ(hash.Value(), 0x7EB866C03908A353U);
    Localization = old;
}

TEST(ShippedLanguages, AreAllThereIsInTheirFolder) {
    std::set<std::string> expected{"Languages.ini"};
    for (const std::string &file : Files) {
        expected.insert(std::filesystem::path(file).filename().string());
    }
    std::set<std::string> found;
    for (const auto &entry : std::filesystem::directory_iterator(ShippedPath("Localization"))) {
        found.insert(entry.path().filename().string());
    }
    EXPECT_EQ(found, expected);
}

TEST(ShippedLanguages, HaveEveryTextOnceAndNoOther) {
    std::set<std::string> expected;
    for (const TextRow &row : TextTable) {
        expected.insert(row.Key);
    }
    for (const std::string &file : Files) {
        std::set<std::string> keys;
        for (const quillINI::IniEntry &entry : EntriesOf(file)) {
            EXPECT_TRUE(keys.insert(entry.Key).second) << file << ": twice " << entry.Key;
            EXPECT_TRUE(expected.contains(entry.Key)) << file << ": unknown " << entry.Key;
        }
        for (const std::string &key : expected) {
            EXPECT_TRUE(keys.contains(key)) << file << ": missing " << key;
        }
        // A key that stands twice in one section is one entry to the reader.
        EXPECT_EQ(Count(ReadBytes(ShippedPath(file)), " = \""), expected.size()) << file;
    }
}

TEST(ShippedLanguages, QuoteEveryText) {
    for (const std::string &file : Files) {
        for (const quillINI::IniEntry &entry : EntriesOf(file)) {
            EXPECT_EQ(entry.Kind, quillINI::IniEntryKind::Value) << file << ": " << entry.Key;
            EXPECT_TRUE(entry.Quoted) << file << ": " << entry.Key;
            EXPECT_FALSE(entry.Comment.has_value()) << file << ": " << entry.Key;
        }
    }
}

TEST(ShippedLanguages, AreUtf8WithoutAByteOrderMarkAndWithPlainLineEnds) {
    for (const std::string &file : Files) {
        const std::string bytes = ReadBytes(ShippedPath(file));
        EXPECT_FALSE(bytes.starts_with("\xEF\xBB\xBF")) << file;
        EXPECT_EQ(bytes.find('\r'), std::string::npos) << file;
        EXPECT_TRUE(bytes.ends_with("\n")) << file;
        const std::vector<std::uint32_t> codePoints = CodePointsOf(bytes);
        EXPECT_EQ(std::ranges::count(codePoints, std::uint32_t{'?'}), 0) << file; // so none is invalid
    }
}

TEST(ShippedLanguages, UseCapitalsThatTheFontHas) {
    for (const std::string &file : Files) {
        for (const auto &[key, text] : TextsOf(file)) {
            EXPECT_TRUE(std::ranges::all_of(CodePointsOf(text), IsDrawnCapital)) << file << ": " << key;
        }
    }
}

TEST(ShippedLanguages, EndTheirPromptsInABlankAndNothingElse) {
    for (const std::string &file : Files) {
        for (const auto &[key, text] : TextsOf(file)) {
            const std::string bare =
                IsPrompt(key) && text.ends_with(' ') ? text.substr(0, text.size() - 1) : text;
            EXPECT_EQ(text.ends_with(' '), IsPrompt(key)) << file << ": " << key;
            ASSERT_FALSE(bare.empty()) << file << ": " << key;
            EXPECT_NE(bare.front(), ' ') << file << ": " << key;
            EXPECT_NE(bare.back(), ' ') << file << ": " << key;
        }
    }
}

TEST(ShippedLanguages, AreBuiltLikeTheEnglishTexts) {
    for (const std::string &file : Files) {
        std::map<std::string, std::string> texts = TextsOf(file);
        for (const TextRow &row : TextTable) {
            const std::string &text = texts[row.Key];
            EXPECT_EQ(Gaps(text), Gaps(row.Default)) << file << ": " << row.Key;
            for (const char *piece : {"ENTER ", "ESC ", " / ", "4:3", "&"}) {
                EXPECT_EQ(Count(text, piece), Count(row.Default, piece)) << file << ": " << row.Key;
            }
        }
    }
}

TEST(ShippedLanguages, CallAThingTheSameInEveryHint) {
    for (const std::string &file : Files) {
        std::map<std::string, std::string> texts = TextsOf(file);
        const std::string enter = "ENTER " + texts["Controller.Hint.Select"];
        const std::string back = "ESC " + texts["Controller.Hint.Back"];
        EXPECT_EQ(texts["Options.Controls.Hint.EscBack"], back) << file;
        EXPECT_EQ(texts["Options.Hint.EnterSelectEscBack"], enter + "     " + back) << file;
        EXPECT_EQ(texts["Pause.Hint.Primary"], enter + "   ESC " + texts["Controller.Hint.Resume"]) << file;
        EXPECT_EQ(texts["Help.Hint.BackToMainMenu"], texts["GameOver.Hint.BackToMainMenu"]) << file;
        for (const char *key : {"Options.Hint.MainBackToPauseMenu", "Options.Hint.MainBackToMainMenu"}) {
            EXPECT_TRUE(texts[key].starts_with(enter + "   " + back + " ")) << file << ": " << key;
        }
        for (const char *page : {"Controls", "Graphics", "Audio"}) {
            const std::string section = std::string("Options.Section.") + page;
            EXPECT_EQ(texts[section], texts[std::string("Options.Main.") + page]) << file;
        }
    }
}

TEST(ShippedLanguages, SayInEnglishWhatIsBuiltIn) {
    std::map<std::string, std::string> texts = TextsOf(Files.front());
    for (const TextRow &row : TextTable) {
        EXPECT_EQ(texts[row.Key], row.Default) << row.Key;
    }
}

TEST(ShippedLanguages, AreTranslatedButForWordsThatAreTheSame) {
    static const std::set<std::string> same{"Controls.ScancodePrefix", "Controller.Hint.PadPrefix",
        "Controller.Hint.JoyPrefix", "Device.Gamepad", "Device.Joystick", "Hud.Score", "MainMenu.Help",
        "Help.Title", "Pause.Menu.Help", "GameOver.Title", "Options.Section.Menu", "Options.Section.Audio",
        "Options.Main.Audio", "Options.Graphics.AspectMode.Classic4x3", "Options.Graphics.Vsync"};
    for (std::size_t i = 1; i < Files.size(); ++i) {
        std::map<std::string, std::string> texts = TextsOf(Files[i]);
        for (const TextRow &row : TextTable) {
            EXPECT_TRUE(texts[row.Key] != row.Default || same.contains(row.Key))
                << Files[i] << ": " << row.Key;
        }
    }
}
