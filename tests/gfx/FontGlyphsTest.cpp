#include "gfx/FontGlyphs.hpp"

#include "gfx/Text.hpp"
#include "tests/gfx/ExpectedGlyphs.hpp"
#include "tests/gfx/GfxTest.hpp"
#include "text/Utf8.hpp"

namespace {

constexpr std::uint32_t White = 0xFFFFFFFF;

std::string Encode(std::uint32_t CodePoint) {
    std::string text;
    AppendUtf8(text, CodePoint);
    return text;
}

/// What the game's table holds of a glyph, as rows of '#' and '.'.
std::array<std::string, 8> RowsOf(Glyph Glyph) {
    std::array<std::string, 8> rows;
    for (int row = 0; row < GlyphRows; ++row) {
        for (int column = 0; column < GlyphColumns; ++column) {
            rows.at(static_cast<std::size_t>(row)) += IsSet(Glyph, row, column) ? '#' : '.';
        }
    }
    return rows;
}

bool HasOwnPicture(std::uint32_t CodePoint) {
    return FindExpectedGlyph(CodePoint) != nullptr;
}

} // namespace

class Font : public GfxTest {
protected:
    /// Draws one code point alone, and says whether exactly that letter (or nothing) shows, in a cell from
    /// (5, 6).
    ::testing::AssertionResult Shows(std::uint32_t CodePoint, const ExpectedGlyph *Letter, int Scale = 1) {
        Clear();
        DrawText(Renderer(), Encode(CodePoint), 5.0F, 6.0F, Scale, White);
        ExpectedPicture expected(64, 64);
        if (Letter != nullptr) {
            ExpectGlyph(expected, *Letter, 5, 6, Scale, White);
        }
        return expected.IsShownBy(Shown());
    }
};

TEST_F(Font, ShowsEachGlyphsPixels) {
    OpenWithoutLogicalScreen(64, 64);
    for (const ExpectedGlyph &glyph : ExpectedGlyphs) {
        EXPECT_TRUE(Shows(glyph.CodePoint, &glyph)) << static_cast<std::uint32_t>(glyph.CodePoint);
    }
}

TEST_F(Font, ShowsEachGlyphsSquaresAtScaleThree) {
    OpenWithoutLogicalScreen(64, 64);
    for (const ExpectedGlyph &glyph : ExpectedGlyphs) {
        EXPECT_TRUE(Shows(glyph.CodePoint, &glyph, 3)) << static_cast<std::uint32_t>(glyph.CodePoint);
    }
}

TEST_F(Font, ShowsNothingForControlCharactersAndTheSpace) {
    OpenWithoutLogicalScreen(64, 64);
    int blank = 0;
    for (std::uint32_t codePoint = 0; codePoint < 0x80; ++codePoint) {
        if (!HasOwnPicture(codePoint)) {
            EXPECT_TRUE(Shows(codePoint, nullptr)) << codePoint;
            ++blank;
        }
    }
    EXPECT_EQ(blank, 34); // 00 to 20, and 7F
}

TEST_F(Font, ShowsAQuestionMarkForWhatItDoesNotHave) {
    OpenWithoutLogicalScreen(64, 64);
    const ExpectedGlyph *const questionMark = FindExpectedGlyph('?');
    for (const std::uint32_t codePoint : {0x80U, 0xA0U, 0xA8U, 0xAAU, 0xC0U, 0xC5U, 0xE7U, 0xFFU, 0x100U,
             0x1E9DU, 0x1E9FU, 0x20ACU, 0xFFFFU, 0x1F697U, 0x10FFFFU}) {
        EXPECT_TRUE(Shows(codePoint, questionMark)) << codePoint;
    }
}

TEST_F(Font, HasTheQuestionMarkForEveryOtherCodePointFrom80Up) {
    const std::uint64_t questionMark = FindGlyph('?').Rows;
    for (std::uint32_t codePoint = 0x80; codePoint <= 0x10FFFF; ++codePoint) {
        if (codePoint > 0x1E9E || !HasOwnPicture(codePoint)) {
            ASSERT_EQ(FindGlyph(codePoint).Rows, questionMark) << codePoint;
        }
    }
    EXPECT_EQ(FindGlyph(0xFFFFFFFF).Rows, questionMark);
}

TEST_F(Font, HoldsTheSamePicturesThatItShows) {
    for (const ExpectedGlyph &glyph : ExpectedGlyphs) {
        const std::array<std::string, 8> rows = RowsOf(FindGlyph(glyph.CodePoint));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i], glyph.Rows[i]) << static_cast<std::uint32_t>(glyph.CodePoint) << ", row " << i;
        }
    }
}

TEST_F(Font, UsesSevenBitsOfEachRow) {
    for (const ExpectedGlyph &glyph : ExpectedGlyphs) {
        EXPECT_EQ(FindGlyph(glyph.CodePoint).Rows & 0x8080808080808080U, 0U);
    }
}

TEST_F(Font, GivesBothSharpSOnePicture) {
    EXPECT_EQ(FindGlyph(0xDF).Rows, FindGlyph(0x1E9E).Rows);
    EXPECT_NE(FindGlyph(0xDF).Rows, FindGlyph('?').Rows);
}

TEST_F(Font, HasSmallLettersOfItsOwn) {
    for (std::uint32_t letter = 'a'; letter <= 'z'; ++letter) {
        EXPECT_NE(FindGlyph(letter).Rows, FindGlyph(letter - 'a' + 'A').Rows) << letter;
    }
}

TEST_F(Font, ReadsTheLetterAFromItsTopLeftSquare) {
    OpenWithoutLogicalScreen(7, 8);
    DrawText(Renderer(), "A", 0.0F, 0.0F, 1, White);
    const Picture shown = Shown();
    for (int column = 0; column < 7; ++column) {
        EXPECT_EQ(shown.At(column, 0) == White, column >= 2 && column <= 4) << column;
        EXPECT_EQ(shown.At(column, 3) == White, column >= 1 && column <= 5) << column;
        EXPECT_EQ(shown.At(column, 7), Backdrop) << column;
    }
}
