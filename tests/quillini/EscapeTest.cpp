#include "tests/quillini/IniTest.hpp"

#include "quillini/Escapes.hpp"

#include <stdexcept>

using namespace quillINI;

TEST(EscapeIniText, EscapesByTheTable) {
    const struct {
        std::string Text;
        std::string Expected;
    } rows[] = {
        {"", ""},
        {"\x22", R"(\")"},
        {"\x5C", R"(\\)"},
        {"\x08", R"(\b)"},
        {"\x09", R"(\t)"},
        {"\x0A", R"(\n)"},
        {"\x0B", R"(\v)"},
        {"\x0C", R"(\f)"},
        {"\x0D", R"(\r)"},
        {"'", "'"},
        {"\x7F", "\x7F"},
        {"\xC2\x80", R"(\x0080)"},
        {"\xC3\xBC", R"(\x00fc)"},
        {"\xDF\xBF", R"(\x07ff)"},
        {"\xE0\xA0\x80", R"(\x0800)"},
        {"\xE2\x82\xAC", R"(\x20ac)"},
        {"\xEF\xBF\xBF", R"(\xffff)"},
        {"\xF0\x90\x80\x80", R"(\xd800\xdc00)"},
        {"\xF0\x9F\x98\x80", R"(\xd83d\xde00)"},
        {"\xF4\x8F\xBF\xBF", R"(\xdbff\xdfff)"},
        {"a\"b\\c\xC3\xBC"
         "d\n",
            R"(a\"b\\c\x00fcd\n)"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(EscapeIniText(row.Text), row.Expected);
    }
}

TEST(EscapeIniText, WritesOtherControlCharactersAsFourHexDigits) {
    const std::string digits = "0123456789abcdef";
    for (char control = 0; control <= 0x1E; ++control) {
        if (control >= 0x08 && control <= 0x0D) {
            continue;
        }
        const auto code = static_cast<unsigned char>(control);
        const std::string expected = std::string("\\x00") + digits[code / 16] + digits[code % 16];
        EXPECT_EQ(EscapeIniText(std::string(1, control)), expected);
    }
}

TEST(EscapeIniText, LeavesTheRestOfAsciiAlone) {
    for (char character = 0x1F; character > 0 && character <= 0x7E; ++character) {
        if (character == '"' || character == '\\') {
            continue;
        }
        EXPECT_EQ(EscapeIniText(std::string(1, character)), std::string(1, character));
    }
}

TEST(EscapeIniText, DoesNotCheckCodePoints) {
    EXPECT_EQ(EscapeIniText("\xC0\x80"), R"(\x0000)");
    EXPECT_EQ(EscapeIniText("\xE0\x80\xAF"), R"(\x002f)");
    EXPECT_EQ(EscapeIniText("\xED\xA0\x80"), R"(\xd800)");
    // 0x110000: 0x100000 above 0x10000, whose upper ten bits and more are 0x400.
    EXPECT_EQ(EscapeIniText("\xF4\x90\x80\x80"), R"(\xdc00\xdc00)");
    // 0x1FFFFF: 0x1EFFFF above 0x10000, that is 0x7BF and 0x3FF.
    EXPECT_EQ(EscapeIniText("\xF7\xBF\xBF\xBF"), R"(\xdfbf\xdfff)");
}

TEST(EscapeIniText, RefusesWhatIsNotOfTheFormOfUtf8) {
    for (const std::string_view text :
        {"\x80", "\xBF", "\xF8\x88\x80\x80\x80", "\xFE", "\xFF", "\xC3", "\xE2\x82", "\xF0\x9F\x98",
            "\xC3"
            "a",
            "\xE2\x82"
            "a",
            "\xE2"
            "a\x82",
            "\xF0\x9F\x98"
            "a",
            "\xC3\xC3", "fine \xC3"}) {
        EXPECT_EQ(MessageOf<std::runtime_error>([&] {
            EscapeIniText(text);
        }),
            "Invalid UTF-8 sequence!");
    }
}

TEST(EscapeIniText, StopsAtTheEndOfAView) {
    const std::string_view whole = "\xE2\x82\xAC";
    EXPECT_THROW(EscapeIniText(whole.substr(0, 2)), std::runtime_error);
}

TEST(RestoreQuotesAndBackslashes, UndoesTheseTwoOnly) {
    for (const std::string_view text :
        {"", "\"", "\\", "\\\"", "\"\\", "\\\\", "\\\\\"", "a\"b\\n\\x0041\\", "\\x"}) {
        EXPECT_EQ(RestoreQuotesAndBackslashes(EscapeIniText(text)), text);
    }
    EXPECT_EQ(RestoreQuotesAndBackslashes(EscapeIniText("\n\xC3\xBC")), R"(\n\x00fc)");
}
