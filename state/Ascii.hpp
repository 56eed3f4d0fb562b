#pragma once

#include <algorithm>
#include <string>

// Letters and blanks of ASCII, whatever the locale.

/// A letter A to Z made small; any other byte as it is.
constexpr char ToLowerAscii(char Character) {
    return Character >= 'A' && Character <= 'Z' ? static_cast<char>(Character - 'A' + 'a') : Character;
}

/// Blank, tab, line feed, vertical tab, form feed or carriage return.
constexpr bool IsSpaceAscii(char Character) {
    return Character == ' ' || (Character >= '\t' && Character <= '\r');
}

/// The text with its letters A to Z made small.
inline std::string LowerCased(std::string Text) {
    std::ranges::transform(Text, Text.begin(), ToLowerAscii);
    return Text;
}
