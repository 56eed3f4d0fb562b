#include "store/Words.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

struct WordRow {
    const char *Text;
    int Meaning; ///< 1 true, 0 false, -1 neither
};

constexpr WordRow Words[] = {
    {"1", 1},
    {"true", 1},
    {"yes", 1},
    {"on", 1},
    {"TRUE", 1},
    {"True", 1},
    {"yEs", 1},
    {"ON", 1},
    {"0", 0},
    {"false", 0},
    {"no", 0},
    {"off", 0},
    {"FALSE", 0},
    {"No", 0},
    {"oFF", 0},
    {"", -1},
    {" 1", -1},
    {"1 ", -1},
    {"\ttrue", -1},
    {"true\n", -1},
    {"2", -1},
    {"-1", -1},
    {"01", -1},
    {"10", -1},
    {"00", -1},
    {"t", -1},
    {"f", -1},
    {"y", -1},
    {"n", -1},
    {"o", -1},
    {"tru", -1},
    {"truee", -1},
    {"of", -1},
    {"offf", -1},
    {"enabled", -1},
    {"y\xC3\xA9s", -1},
};

TEST(BoolWords, MeanWhatTheTableSaysInAnyCaseAndElseTheDefault) {
    for (const WordRow &row : Words) {
        EXPECT_EQ(ParseBoolWord(row.Text, false), row.Meaning == 1) << '"' << row.Text << '"';
        EXPECT_EQ(ParseBoolWord(row.Text, true), row.Meaning != 0) << '"' << row.Text << '"';
    }
}

TEST(BoolWords, AreNoneWithAZeroByteInOrBehindThem) {
    EXPECT_TRUE(ParseBoolWord(std::string_view("0\0", 2), true));
    EXPECT_FALSE(ParseBoolWord(std::string_view("1\0", 2), false));
}

struct NumberRow {
    const char *Text;
    std::int32_t Number;
};

constexpr NumberRow Numbers[] = {{"0", 0}, {"-0", 0}, {"7", 7}, {"-7", -7}, {"007", 7}, {"-007", -7},
    {"80", 80}, {"1000000", 1000000}, {"2147483647", 2147483647}, {"-2147483647", -2147483647},
    {"-2147483648", -2147483647 - 1}, {"00000000000000000000002147483647", 2147483647}};

constexpr const char *NoNumbers[] = {"", "-", "+1", "+", "--1", "-+1", " 1", "1 ", "- 1", "1 2", "\t1", "1\n",
    "1.", "1.0", "1e3", "0x10", "x", "1x", "12a", "a12", "2147483648", "-2147483649", "4294967296",
    "4294967297", "99999999999999999999999", "\xD9\xA1", "1,000", "1_0", "\"1\""};

TEST(WholeNumbers, AreAnOptionalMinusAndDigitsThatFit32Bits) {
    for (const NumberRow &row : Numbers) {
        std::int32_t number = 12345;
        EXPECT_TRUE(ParseInt32(row.Text, number)) << '"' << row.Text << '"';
        EXPECT_EQ(number, row.Number) << '"' << row.Text << '"';
    }
}

TEST(WholeNumbers, AreNothingElseAndThenTheTargetStays) {
    for (const char *text : NoNumbers) {
        std::int32_t number = 12345;
        EXPECT_FALSE(ParseInt32(text, number)) << '"' << text << '"';
        EXPECT_EQ(number, 12345) << '"' << text << '"';
    }
}

TEST(WholeNumbers, AreNoneWithoutTextOrWithAZeroByte) {
    std::int32_t number = 12345;
    EXPECT_FALSE(ParseInt32({}, number));
    EXPECT_FALSE(ParseInt32(std::string_view("1\0", 2), number));
    EXPECT_EQ(number, 12345);
}

} // namespace
