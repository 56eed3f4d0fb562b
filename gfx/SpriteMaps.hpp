#pragma once

#include "gfx/SpriteId.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

inline constexpr std::int32_t SpriteSize = 16; ///< width and height of a sprite's cell in pixels
inline constexpr char TransparentSymbol = '.';

/// A painted picture: the colours that its symbols stand for, and a row of symbols for each row of pixels.
struct SpriteMap {
    std::array<std::uint32_t, 10> Legend{}; ///< of 'A' to 'J', packed 0xAABBGGRR; 0 behind the last colour
    std::array<std::string_view, SpriteSize> Rows{};
};

/// The packed colour of a symbol; 0, which is fully transparent, for one that has none.
constexpr std::uint32_t SymbolColor(const SpriteMap &Map, char Symbol) {
    const int index = Symbol - 'A';
    if (index < 0 || index >= static_cast<int>(Map.Legend.size())) {
        return 0;
    }
    return Map.Legend[static_cast<std::size_t>(index)];
}

/// Calls Visit(Start, Length, Symbol) for each run of one symbol in a row, from the left, but for the
/// transparent ones.
template <typename Visitor> void ForEachRun(std::string_view Row, Visitor Visit) {
    std::size_t start = 0;
    while (start < Row.size()) {
        const char symbol = Row[start];
        const std::size_t end = std::min(Row.find_first_not_of(symbol, start), Row.size());
        if (symbol != TransparentSymbol) {
            Visit(start, end - start, symbol);
        }
        start = end;
    }
}

/// The picture of a sprite; Id is one of the enumeration.
const SpriteMap &MapOf(SpriteId Id);

/// Whether no pixel of a sprite lets the ground show through; Id is one of the enumeration.
bool IsOpaque(SpriteId Id);
