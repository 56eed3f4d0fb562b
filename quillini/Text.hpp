#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillINI {

/// The UTF-8 sequences of one length.
struct SequenceForm {
    std::uint32_t Limit; ///< the first code point that is too large for them
    std::uint8_t Mask;   ///< the bits of the first byte that tell the length
    std::uint8_t Lead;   ///< what these bits are
    std::size_t Length;  ///< bytes
};

inline constexpr auto SequenceForms = std::to_array<SequenceForm>({
    {0x80, 0x80, 0x00, 1},
    {0x800, 0xE0, 0xC0, 2},
    {0x10000, 0xF0, 0xE0, 3},
    {0x110000, 0xF8, 0xF0, 4},
});

/// The text without blanks and tabs at both ends.
std::string_view TrimBlanks(std::string_view Text);

/// The text of a comment without one leading blank and without the line feed at its end. Rest is what stands
/// behind the comment character.
std::string_view CommentText(std::string_view Rest);

/// The UTF-8 bytes of a code point, lone surrogates too; an empty text for 0 and above 0x10FFFF.
std::string EncodeCodePointUtf8(std::uint32_t CodePoint);

} // namespace quillINI
