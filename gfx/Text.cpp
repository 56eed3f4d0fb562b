#include "gfx/Text.hpp"

#include "gfx/Draw.hpp"
#include "gfx/FontGlyphs.hpp"
#include "text/Utf8.hpp"

#include <algorithm>

namespace {

constexpr std::uint32_t Space = 0x20;
constexpr std::uint32_t CopyrightSign = 0xA9;

/// In squares.
/// NOT-BUGS: © is wider than every other character
int AdvanceOf(std::uint32_t CodePoint) {
    return CodePoint == CopyrightSign ? 8 : 7;
}

/// Calls Visit with each code point of a text, in order.
template <typename Visitor> void ForEachCodePoint(std::string_view Text, Visitor Visit) {
    for (std::size_t i = 0; i < Text.size();) {
        const DecodedCodePoint decoded = DecodeUtf8(Text, i);
        Visit(decoded.CodePoint);
        i += decoded.Length;
    }
}

/// How many columns a glyph reaches from the left; 0 for a blank one.
int ColumnsUsed(Glyph Letter) {
    int used = 0;
    for (int row = 0; row < GlyphRows; ++row) {
        for (int column = used; column < GlyphColumns; ++column) {
            if (IsSet(Letter, row, column)) {
                used = column + 1;
            }
        }
    }
    return used;
}

void DrawGlyph(
    SDL_Renderer *Renderer, Glyph Letter, float X, float Y, float Scale, std::uint32_t PackedColor) {
    SetDrawColor(Renderer, PackedColor);
    for (int row = 0; row < GlyphRows; ++row) {
        for (int column = 0; column < GlyphColumns; ++column) {
            if (IsSet(Letter, row, column)) {
                const SDL_FRect square{X + static_cast<float>(column) * Scale,
                    Y + static_cast<float>(row) * Scale, Scale, Scale};
                SDL_RenderFillRect(Renderer, &square);
            }
        }
    }
}

} // namespace

int MeasureText(std::string_view Text, int Scale) {
    int width = 0;
    ForEachCodePoint(Text, [&width, Scale](std::uint32_t CodePoint) {
        width += AdvanceOf(CodePoint) * Scale;
    });
    return width;
}

int MeasureTextVisible(std::string_view Text, int Scale) {
    const int total = MeasureText(Text, Scale);
    if (Text.empty()) {
        return total;
    }
    std::uint32_t last = 0;
    ForEachCodePoint(Text, [&last](std::uint32_t CodePoint) {
        last = CodePoint;
    });
    const int trailing = AdvanceOf(last) - ColumnsUsed(FindGlyph(last));
    return std::max(total - Scale * trailing, 0);
}

void DrawText(
    SDL_Renderer *Renderer, std::string_view Text, float X, float Y, int Scale, std::uint32_t PackedColor) {
    float x = X;
    ForEachCodePoint(Text, [&](std::uint32_t CodePoint) {
        if (CodePoint != Space) {
            DrawGlyph(Renderer, FindGlyph(CodePoint), x, Y, static_cast<float>(Scale), PackedColor);
        }
        x += static_cast<float>(AdvanceOf(CodePoint) * Scale);
    });
}

void DrawTextCentered(SDL_Renderer *Renderer, std::string_view Text, float CenterX, float Y, int Scale,
    std::uint32_t PackedColor) {
    const float x = CenterX - static_cast<float>(MeasureText(Text, Scale)) * 0.5F;
    DrawText(Renderer, Text, x, Y, Scale, PackedColor);
}
