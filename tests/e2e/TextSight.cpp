#include "tests/e2e/TextSight.hpp"

#include "gfx/FontGlyphs.hpp"
#include "text/Utf8.hpp"

#include <algorithm>
#include <cstdint>

namespace {

// A letter's neighbours keep at most one column free beside it, so two that are free belong to none.
constexpr int FreeColumns = 2;

// Which squares of a text are lit, row by row.
struct LitSquares {
    int Columns = 0;
    std::vector<bool> Lit;

    bool At(int Column, int Row) const {
        return Column >= 0 && Column < Columns &&
               Lit[static_cast<std::size_t>(Row) * static_cast<std::size_t>(Columns) +
                   static_cast<std::size_t>(Column)];
    }
};

LitSquares SquaresOf(std::string_view Text) {
    std::vector<Glyph> glyphs;
    for (std::size_t position = 0; position < Text.size();) {
        const DecodedCodePoint letter = DecodeUtf8(Text, position);
        glyphs.push_back(FindGlyph(letter.CodePoint));
        position += letter.Length;
    }
    LitSquares squares{static_cast<int>(glyphs.size()) * GlyphColumns, {}};
    for (int row = 0; row < GlyphRows; ++row) {
        for (const Glyph &glyph : glyphs) {
            for (int column = 0; column < GlyphColumns; ++column) {
                squares.Lit.push_back(IsSet(glyph, row, column));
            }
        }
    }
    return squares;
}

bool Stands(const Screenshot &Seen, const LitSquares &Squares, Area Place, int Scale, Pixel Color) {
    for (int y = Place.Top; y < Place.Bottom; ++y) {
        for (int x = Place.Left - FreeColumns * Scale; x < Place.Right + FreeColumns * Scale; ++x) {
            // Shifted, so that what stands before the text rounds to columns before it.
            const int column = (x - Place.Left + FreeColumns * Scale) / Scale - FreeColumns;
            const bool isLit = PixelAt(Seen, x, y) == Color;
            if (isLit != Squares.At(column, (y - Place.Top) / Scale)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

bool ShowsText(
    const Screenshot &Seen, std::string_view Text, int Top, int Scale, const std::vector<Pixel> &Colors) {
    const LitSquares squares = SquaresOf(Text);
    const int width = squares.Columns * Scale;
    for (int left = FreeColumns * Scale; left + width + FreeColumns * Scale <= Seen.Width; ++left) {
        const Area place{left, Top, left + width, Top + GlyphRows * Scale};
        if (std::any_of(Colors.begin(), Colors.end(), [&](const Pixel &Color) {
                return Stands(Seen, squares, place, Scale, Color);
            })) {
            return true;
        }
    }
    return false;
}
