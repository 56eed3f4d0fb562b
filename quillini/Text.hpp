#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillINI {

/// The text without blanks and tabs at both ends.
std::string_view TrimBlanks(std::string_view Text);

/// The number of a text that is an optional "-" and digits. Throws std::invalid_argument for any other text,
/// and std::out_of_range for a number beyond 32 bits.
std::int32_t NumberFromText(std::string_view Text);

/// The UTF-8 bytes of a code point, lone surrogates too; an empty text for 0 and above 0x10FFFF.
std::string EncodeCodePointUtf8(std::uint32_t CodePoint);

} // namespace quillINI
