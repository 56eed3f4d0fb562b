#include "gfx/Text.hpp"

#include "gfx/Draw.hpp"
#include "tests/gfx/ExpectedGlyphs.hpp"
#include "tests/gfx/GfxTest.hpp"

namespace {

constexpr int Width = 320;
constexpr int Height = 64;
constexpr std::uint32_t Ink = 0xFF143CC8;

} // namespace

class TextDraw : public GfxTest {
protected:
    TextDraw() {
        OpenWithoutLogicalScreen(Width, Height);
    }

    /// The bytes, drawn from (10, 20), show these letters.
    void ExpectLetters(std::string_view Bytes, std::u32string_view Letters, int Scale = 1) {
        Clear();
        DrawText(Renderer(), Bytes, 10.0F, 20.0F, Scale, Ink);
        ExpectedPicture expected(Width, Height);
        ExpectText(expected, Letters, 10, 20, Scale, Ink);
        EXPECT_TRUE(expected.IsShownBy(Shown())) << ::testing::PrintToString(std::string(Bytes));
    }
};

TEST_F(TextDraw, StartsAtTheTopLeftCornerAndGoesRight) {
    ExpectLetters("Score 1,000!", U"Score 1,000!");
    ExpectLetters("HIGH SCORE", U"HIGH SCORE", 3);
    ExpectLetters("READY", U"READY", 5);
}

TEST_F(TextDraw, DrawsNothingForAnEmptyText) {
    ExpectLetters("", U"");
    ExpectLetters(std::string_view(), U"");
}

TEST_F(TextDraw, StopsAtTheEndOfTheView) {
    ExpectLetters(std::string_view("SCORE").substr(1, 3), U"COR");
}

TEST_F(TextDraw, AdvancesOverSpaces) {
    ExpectLetters("A   B ", U"A   B", 2);
    ExpectLetters("  A", U"  A", 2);
}

TEST_F(TextDraw, DrawsNothingForALineEndAndStaysOnItsLine) {
    ExpectLetters("A\nB", U"A B", 2);
    ExpectLetters("A\r\nB", U"A  B", 2);
    ExpectLetters("\tA\x7F"
                  "B",
        U" A B");
    ExpectLetters(std::string_view("A\0B", 3), U"A B");
}

TEST_F(TextDraw, DrawsLettersBeyondAscii) {
    ExpectLetters("\xC3\x84\xC3\x96\xC3\x9C\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F\xC3\x89\xC3\xA9\xE1\xBA\x9E",
        U"\u00C4\u00D6\u00DC\u00E4\u00F6\u00FC\u00DF\u00C9\u00E9\u1E9E", 3);
}

TEST_F(TextDraw, DrawsQuestionMarksForInvalidBytes) {
    ExpectLetters("\xC3", U"?");
    ExpectLetters("A\xC3", U"A?");
    ExpectLetters("\xE2"
                  "ab",
        U"?ab");
    ExpectLetters("\xED\xA0\x80", U"???");
    ExpectLetters("\xC0\x80", U"??");
    ExpectLetters("\xFF\xFE", U"??");
}

TEST_F(TextDraw, DrawsOneQuestionMarkForWhatTheFontDoesNotHave) {
    ExpectLetters("A\xE2\x82\xAC"
                  "B",
        U"A?B", 3);
    ExpectLetters("\xF0\x9F\x9A\x97!", U"?!");
}

TEST_F(TextDraw, AdvancesEightSquaresOverTheCopyrightSign) {
    DrawText(Renderer(),
        "\xC2\xA9"
        "A\xC2\xA9",
        10.0F, 20.0F, 3, Ink);
    ExpectedPicture expected(Width, Height);
    ExpectGlyph(expected, *FindExpectedGlyph(0xA9), 10, 20, 3, Ink);
    ExpectGlyph(expected, *FindExpectedGlyph('A'), 34, 20, 3, Ink);
    ExpectGlyph(expected, *FindExpectedGlyph(0xA9), 55, 20, 3, Ink);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(TextDraw, BlendsEachSquareOnceByTheAlphaOfTheColor) {
    constexpr std::uint32_t translucent = 0x64143CC8;
    DrawText(Renderer(), "H8", 10.0F, 20.0F, 3, translucent);
    ExpectedPicture expected(Width, Height);
    ExpectText(expected, U"H8", 10, 20, 3, translucent);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
    // The top left square of the H: 100 parts of the colour and 155 of the ground.
    const std::uint32_t shown = Shown().At(13, 20);
    EXPECT_NEAR(static_cast<int>(shown & 0xFFU), (0xC8 * 100 + 0xFF * 155) / 255.0, 2);
    EXPECT_NEAR(static_cast<int>(shown >> 8U & 0xFFU), 0x3C * 100 / 255.0, 2);
    EXPECT_NEAR(static_cast<int>(shown >> 16U & 0xFFU), (0x14 * 100 + 0xFF * 155) / 255.0, 2);
}

TEST_F(TextDraw, InATransparentColorShowsNothing) {
    DrawText(Renderer(), "H8", 10.0F, 20.0F, 3, 0x00143CC8);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
}

TEST_F(TextDraw, StaysAtAHalfPixel) {
    Open(1280, 2560, 1440);
    DrawText(Renderer(), "Ag", 20.5F, 30.5F, 1, Ink);
    ExpectedPicture expected(160, 120);
    ExpectText(expected, U"Ag", 41, 61, 2, Ink);
    EXPECT_TRUE(expected.IsShownBy(Shown(), {0, 0, 160, 120}));
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 24); // from column 1 of the A to column 5 of the g
}

TEST_F(TextDraw, IsNotSnappedInASmallWindow) {
    Open(1280, 640, 360);
    ASSERT_EQ(GetPixelSnapStep(Renderer()), 2);
    DrawText(Renderer(), "A", 21.0F, 31.0F, 2, Ink);
    ExpectedPicture expected(640, 360);
    ExpectText(expected, U"A", 10, 15, 1, Ink); // from 10.5 and 15.5 on; snapped, from 11 and 16
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(TextDraw, IsCutByTheEdgesOfThePicture) {
    DrawText(Renderer(), "MMM", -7.0F, -3.0F, 1, Ink);
    DrawText(Renderer(), "MMM", 308.0F, 60.0F, 1, Ink);
    ExpectedPicture expected(Width, Height);
    ExpectText(expected, U"MMM", -7, -3, 1, Ink);
    ExpectText(expected, U"MMM", 308, 60, 1, Ink);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(TextDraw, HasNeitherShadowNorOutline) {
    DrawText(Renderer(), "Shadow", 10.0F, 20.0F, 4, Ink);
    const Picture shown = Shown();
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x) {
            ASSERT_TRUE(shown.At(x, y) == Backdrop || shown.At(x, y) == Ink) << x << ", " << y;
        }
    }
}

TEST_F(TextDraw, CentredIsHalfOfItsMeasureToEachSide) {
    DrawTextCentered(Renderer(), "READY", 160.0F, 20.0F, 2, Ink); // 70 wide
    ExpectedPicture expected(Width, Height);
    ExpectText(expected, U"READY", 125, 20, 2, Ink);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(TextDraw, CentredCountsTheBlankColumnsOfTheLastLetter) {
    DrawTextCentered(Renderer(), "AB  ", 160.0F, 20.0F, 4, Ink); // 112 wide
    ExpectedPicture expected(Width, Height);
    ExpectText(expected, U"AB", 104, 20, 4, Ink);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(TextDraw, CentredCountsTheEighthColumnOfTheCopyrightSign) {
    DrawTextCentered(Renderer(), "\xC2\xA9", 160.0F, 20.0F, 2, Ink);
    ExpectedPicture expected(Width, Height);
    ExpectGlyph(expected, *FindExpectedGlyph(0xA9), 152, 20, 2, Ink);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(TextDraw, CentredStaysAtAHalfPixelIfItsMeasureIsOdd) {
    Open(1280, 2560, 1440);
    DrawTextCentered(Renderer(), "A", 40.0F, 20.0F, 1, Ink); // from 36.5 on
    ExpectedPicture expected(160, 120);
    ExpectText(expected, U"A", 73, 40, 2, Ink);
    EXPECT_TRUE(expected.IsShownBy(Shown(), {0, 0, 160, 120}));
}

TEST_F(TextDraw, CentredOfAnEmptyTextDrawsNothing) {
    DrawTextCentered(Renderer(), "", 160.0F, 20.0F, 2, Ink);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
}
