#pragma once

#include <cstdint>

inline constexpr int GlyphRows = 8;
inline constexpr int GlyphColumns = 7;

/// A picture of 7 by 8 squares: a byte a row, the top row in the highest byte, bit 6 the leftmost column.
struct Glyph {
    std::uint64_t Rows = 0;
};

/// Whether a square is drawn: Row 0 to 7 from the top, Column 0 to 6 from the left.
constexpr bool IsSet(Glyph Letter, int Row, int Column) {
    const int bit = (GlyphRows - 1 - Row) * 8 + (GlyphColumns - 1 - Column);
    return (Letter.Rows >> static_cast<unsigned>(bit) & 1U) != 0;
}

/// The built-in font's picture of a code point. What the font lacks is blank below U+0080 and a question mark
/// above.
Glyph FindGlyph(std::uint32_t CodePoint);
