#include "tests/quillini/IniTest.hpp"

#include <exception>
#include <random>

using namespace quillINI;
using namespace std::string_view_literals;

// Files that nobody wrote on purpose: nothing may hang, overrun or grow without end.

namespace {

constexpr std::size_t Megabyte = 1U << 20U;

const std::string Nul(1, '\0');

/// What a file gives, with its failures told apart.
std::string OutcomeOf(std::string_view File) {
    try {
        const ReadResult result = Read(File);
        return result.Success ? "read" : "refused";
    } catch (const std::exception &) {
        return "thrown";
    }
}

std::string Repeated(std::string_view Piece, std::size_t Size) {
    std::string text;
    while (text.size() < Size) {
        text += Piece;
    }
    return text;
}

} // namespace

TEST(NulBytes, AreOrdinaryCharacters) {
    EXPECT_EQ(Shown(ReadQuietly("a" + Nul + "b=1" + Nul + "2;c" + Nul + "\n")),
        (ShownLines{"[QI_Global]", "a" + Nul + "b=1" + Nul + "2 ;c" + Nul}));
    EXPECT_EQ(Shown(ReadQuietly("ab=\"x" + Nul + "y\"\n[S" + Nul + "]\n;" + Nul + "\n")),
        (ShownLines{"[QI_Global]", "ab=\"x" + Nul + "y\"", "[S" + Nul + "]", "# QI_C_1=" + Nul}));
}

TEST(NulBytes, OpenNoString) {
    EXPECT_EQ(
        Shown(ReadQuietly("key=" + Nul + " a ;c\n")), (ShownLines{"[QI_Global]", "key=" + Nul + "a ;c"}));
}

TEST(NulBytes, AloneMakeALineWithoutASign) {
    const ReadResult result = Read(std::string(100, '\0'));
    EXPECT_TRUE(result.Success);
    EXPECT_EQ(result.Output, "Error while reading INI file: No \"=\" or \":\" sign found!\n\n");
}

TEST(HugeLine, OfEachKindIsRead) {
    const std::string text(Megabyte, 'x');
    EXPECT_EQ(GetIniValue(ReadQuietly("key=" + text), "QI_Global", "key", ""), text);
    EXPECT_EQ(GetIniValue(ReadQuietly("key=\"" + text + "\""), "QI_Global", "key", ""), text);
    EXPECT_EQ(GetIniValue(ReadQuietly(";" + text), "QI_Global", "QI_C_1", ""), text);
    EXPECT_EQ(GetIniValue(ReadQuietly(text + "=1"), "QI_Global", text, ""), "1");
    EXPECT_TRUE(HasIniSection(ReadQuietly("[" + text + "]"), text));
    EXPECT_EQ(ReadQuietly("key=1;" + text).Sections[0].Entries[0].Comment, text);
    EXPECT_EQ(ReadQuietly("a[" + text + "]=1").Sections[0].Entries[0].Elements[0].Key, text);
}

TEST(HugeLine, OfOneRepeatedPieceIsRead) {
    for (const std::string_view piece :
        {"=", ":", "[", "]", "\"", "'", "\\", ";", "#", " ", "\t", "[]", "\\\"", "\\\\", "a[", "=[", "\"\"",
            "\\\n", "\\x0041", "\\xd83d\\xde00", "\\x1", "\\xg", "\xC3\xBC", "\x80"}) {
        for (const std::string_view start : {"", "a=", "a=\"", "[", ";", "a["}) {
            EXPECT_EQ(OutcomeOf(std::string(start) + Repeated(piece, Megabyte / 4) + "\n=a\n"), "read")
                << start << piece;
        }
    }
}

TEST(HugeLine, IsWrittenAndReadBack) {
    IniDocument document;
    SetIniString(document, "S", "key", Repeated("a\"\\\xC3\xBC\xF0\x9F\x98\x80", Megabyte));
    for (const auto encoding : {IniEncoding::Utf8, IniEncoding::Utf16Be, IniEncoding::Utf32Le}) {
        EXPECT_EQ(Read(Written(document, false, encoding)).Document, document);
    }
}

TEST(CutFile, NeverOverrunsAtAnyLength) {
    const std::string file =
        "; c\r\n[S] ; d\r\n\r\nk = \"v \\\" \\\\ \\x00fc \\xd83d\\xde00\" ; e\r\na[]='x'\r\na[5]=y\r\n\\";
    for (std::size_t size = 0; size <= file.size(); ++size) {
        const std::string cut = file.substr(0, size);
        const std::string outcome = OutcomeOf(cut);
        // Only within the escapes is a cut a failure of its own.
        const std::size_t escape = cut.rfind("\\x");
        const bool withinEscape = escape != std::string::npos && cut.size() - escape < 6;
        EXPECT_EQ(outcome, size < 6 ? "refused" : withinEscape ? "thrown" : "read") << size;
    }
}

TEST(RandomBytes, EndInOneOfTheToldWays) {
    std::mt19937 random(20240611);
    constexpr std::string_view alphabet = "[]=:;#\"'\\x0dcC89 \t\r\n\0a\xEF\xBB\xBF\xFE\xFF"sv;
    int read = 0;
    for (int i = 0; i < 1000; ++i) {
        std::string file;
        for (std::size_t size = random() % 64; file.size() < size;) {
            file += alphabet[random() % alphabet.size()];
        }
        const std::string outcome = OutcomeOf(file);
        EXPECT_TRUE(outcome != "refused" || file.size() < 6);
        read += outcome == "read" ? 1 : 0;
    }
    EXPECT_GT(read, 300);
}

TEST(RandomDocuments, OfUtf8AreWrittenAndReadBackEqual) {
    std::mt19937 random(7);
    const std::vector<std::string> pieces{"a", " ", "\"", "'", "\\", "\\n", "\\x", "0041", ";", "#", "=", ":",
        "[", "]", "\x01", "\x1F", "\x7F", "\xC2\x80", "\xC3\xBC", "\xE2\x82\xAC", "\xEF\xBF\xBF",
        "\xF0\x9F\x98\x80"};
    for (int i = 0; i < 300; ++i) {
        IniDocument document;
        for (int key = 0; key < 5; ++key) {
            std::string value;
            for (std::size_t count = random() % 12; count > 0; --count) {
                value += pieces[random() % pieces.size()];
            }
            SetIniString(document, "Section", "key" + std::to_string(key), value);
        }
        const auto encoding = static_cast<IniEncoding>(random() % 6);
        EXPECT_EQ(Read(Written(document, false, encoding)).Document, document);
    }
}
