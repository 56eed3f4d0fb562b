#include "tests/quillini/IniTest.hpp"

#include "quillini/Text.hpp"

using namespace quillINI;

TEST(SplitAny, GivesTheNonEmptyPieces) {
    const struct {
        std::string_view Text;
        std::string_view Delimiters;
        std::vector<std::string> Expected;
    } rows[] = {
        {"a=b", "=", {"a", "b"}},
        {"a", "=", {"a"}},
        {"==a==b==", "=", {"a", "b"}},
        {"a,b;c", ",;", {"a", "b", "c"}},
        {",;a;,b", ";,", {"a", "b"}},
        {" a ", "=", {" a "}},
        {"ab", "", {"ab"}},
        {"", "=", {""}},
        {"===", "=", {"==="}},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(SplitAny(row.Text, row.Delimiters), row.Expected) << row.Text;
    }
}

TEST(EncodeCodePointUtf8, ChangesItsLengthAtTheLimits) {
    const struct {
        std::uint32_t CodePoint;
        std::string Expected;
    } rows[] = {
        {0x0, ""},
        {0x1, "\x01"},
        {0x7F, "\x7F"},
        {0x80, "\xC2\x80"},
        {0xFC, "\xC3\xBC"},
        {0x7FF, "\xDF\xBF"},
        {0x800, "\xE0\xA0\x80"},
        {0xD800, "\xED\xA0\x80"},
        {0xDFFF, "\xED\xBF\xBF"},
        {0xFFFF, "\xEF\xBF\xBF"},
        {0x10000, "\xF0\x90\x80\x80"},
        {0x1F600, "\xF0\x9F\x98\x80"},
        {0x10FFFF, "\xF4\x8F\xBF\xBF"},
        {0x110000, ""},
        {0xFFFFFFFF, ""},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(EncodeCodePointUtf8(row.CodePoint), row.Expected) << std::hex << row.CodePoint;
    }
}
