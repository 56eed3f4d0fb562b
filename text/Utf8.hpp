#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

struct DecodedCodePoint {
    std::uint32_t CodePoint = 0;
    std::size_t Length = 0; ///< bytes consumed, at least 1
};

/// The code point at a byte of a text that may hold any bytes; Index is below its length. An invalid sequence
/// reads as a question mark one byte long.
DecodedCodePoint DecodeUtf8(std::string_view Text, std::size_t Index);

/// Appends a code point's UTF-8 bytes; one above U+10FFFF appends a question mark.
void AppendUtf8(std::string &Text, std::uint32_t CodePoint);

/// The text in capitals, as far as the built-in font has them; each invalid byte becomes a question mark.
std::string ToUpperUtf8(std::string_view Text);
