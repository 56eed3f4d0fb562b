#include "gfx/Text.hpp"

#include <gtest/gtest.h>

TEST(MeasureText, OfAnEmptyTextIsZero) {
    EXPECT_EQ(MeasureText("", 1), 0);
    EXPECT_EQ(MeasureText("", 5), 0);
    EXPECT_EQ(MeasureText(std::string_view(), 3), 0);
}

TEST(MeasureText, AddsSevenSquaresForEachLetter) {
    EXPECT_EQ(MeasureText("A", 1), 7);
    EXPECT_EQ(MeasureText("i", 1), 7);
    EXPECT_EQ(MeasureText("SCORE", 1), 35);
    EXPECT_EQ(MeasureText("SCORE", 3), 105);
    EXPECT_EQ(MeasureText("READY", 5), 175);
    EXPECT_EQ(MeasureText("HIGH SCORE", 2), 140);
}

TEST(MeasureText, AddsSevenSquaresForASpaceAndAControlCharacter) {
    EXPECT_EQ(MeasureText(" ", 1), 7);
    EXPECT_EQ(MeasureText("\n", 1), 7);
    EXPECT_EQ(MeasureText("A\nB\tC", 2), 70);
    EXPECT_EQ(MeasureText("\x7F", 1), 7);
    EXPECT_EQ(MeasureText(std::string_view("\0A", 2), 1), 14);
}

TEST(MeasureText, AddsEightSquaresForTheCopyrightSignAlone) {
    EXPECT_EQ(MeasureText("\xC2\xA9", 1), 8);
    EXPECT_EQ(MeasureText("\xC2\xA9", 3), 24);
    EXPECT_EQ(MeasureText("\xC2\xA9 2001", 1), 43);
    EXPECT_EQ(MeasureText("\xC2\xA9\xC2\xA9", 2), 32);
    EXPECT_EQ(MeasureText("\xC2\xA8", 1), 7);
    EXPECT_EQ(MeasureText("\xC2\xAA", 1), 7);
}

TEST(MeasureText, CountsLettersAndNotBytes) {
    EXPECT_EQ(MeasureText("\xC3\x84", 1), 7);
    EXPECT_EQ(MeasureText("\xE1\xBA\x9E", 1), 7);
    EXPECT_EQ(MeasureText("\xE2\x82\xAC", 3), 21); // not in the font
    EXPECT_EQ(MeasureText("\xF0\x9F\x9A\x97", 1), 7);
}

TEST(MeasureText, CountsEveryInvalidByte) {
    EXPECT_EQ(MeasureText("\xC3", 1), 7);
    EXPECT_EQ(MeasureText("\xE2"
                          "ab",
                  1),
        21);
    EXPECT_EQ(MeasureText("\xED\xA0\x80", 1), 21);
    EXPECT_EQ(MeasureText("\xC0\x80", 1), 14);
    EXPECT_EQ(MeasureText("\xA9", 1), 7); // no copyright sign without its lead byte
}

TEST(MeasureText, StopsAtTheEndOfTheView) {
    EXPECT_EQ(MeasureText(std::string_view("SCORE").substr(0, 2), 1), 14);
}

TEST(MeasureTextVisible, OfAnEmptyTextIsZero) {
    EXPECT_EQ(MeasureTextVisible("", 1), 0);
    EXPECT_EQ(MeasureTextVisible(std::string_view(), 3), 0);
}

TEST(MeasureTextVisible, CutsTheBlankColumnsOfTheLastLetter) {
    EXPECT_EQ(MeasureTextVisible("A", 1), 6);
    EXPECT_EQ(MeasureTextVisible("A", 3), 18);
    EXPECT_EQ(MeasureTextVisible("l", 1), 5); // its foot ends in column 4
    EXPECT_EQ(MeasureTextVisible("!", 1), 4);
    EXPECT_EQ(MeasureTextVisible("`", 1), 5);
    EXPECT_EQ(MeasureTextVisible("\"", 1), 5);
    EXPECT_EQ(MeasureTextVisible("%", 1), 7);
    EXPECT_EQ(MeasureTextVisible("\xC3\x9F", 1), 6);
    EXPECT_EQ(MeasureTextVisible("QUIT", 3), 81);
    EXPECT_EQ(MeasureTextVisible("Al", 4), 48);
}

TEST(MeasureTextVisible, LooksForTheLastLettersEndInEveryRow) {
    EXPECT_EQ(MeasureTextVisible("L", 1), 6); // widest at its foot
    EXPECT_EQ(MeasureTextVisible("/", 1), 7); // widest at its head
    EXPECT_EQ(MeasureTextVisible(">", 1), 5); // widest in the middle
}

TEST(MeasureTextVisible, CutsNothingOfTheLettersBeforeTheLast) {
    EXPECT_EQ(MeasureTextVisible("!A", 1), 13);
    EXPECT_EQ(MeasureTextVisible("  A", 1), 20);
}

TEST(MeasureTextVisible, CutsTheCopyrightSignsEighthColumn) {
    EXPECT_EQ(MeasureTextVisible("\xC2\xA9", 1), 7);
    EXPECT_EQ(MeasureTextVisible("A\xC2\xA9", 2), 28);
    EXPECT_EQ(MeasureTextVisible("\xC2\xA9"
                                 "A",
                  1),
        14);
}

TEST(MeasureTextVisible, CutsOneTrailingSpaceWholeAndNoMore) {
    EXPECT_EQ(MeasureTextVisible(" ", 1), 0);
    EXPECT_EQ(MeasureTextVisible("A ", 1), 7);
    EXPECT_EQ(MeasureTextVisible("A ", 3), 21);
    EXPECT_EQ(MeasureTextVisible("A  ", 3), 42);
    EXPECT_EQ(MeasureTextVisible("A\n", 1), 7);
}

TEST(MeasureTextVisible, GoesByTheQuestionMarkForWhatTheFontDoesNotHave) {
    EXPECT_EQ(MeasureTextVisible("?", 1), 6);
    EXPECT_EQ(MeasureTextVisible("\xE2\x82\xAC", 1), 6);
    EXPECT_EQ(MeasureTextVisible("A\xC3", 2), 26);
    EXPECT_EQ(MeasureTextVisible("\xED\xA0\x80", 1), 20);
}

TEST(MeasureTextVisible, IsNeverBelowZero) {
    EXPECT_EQ(MeasureTextVisible("A", 0), 0);
    EXPECT_EQ(MeasureTextVisible("AB", -3), 0);
}
