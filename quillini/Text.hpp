#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillINI {

/// A length of UTF-8 sequence, in bytes: which code points take it, those below Limit that no shorter one
/// holds, and how its first byte is known, by the bits Lead under Mask.
struct SequenceForm {
    std::uint32_t Limit;
    std::uint8_t Mask;
    std::uint8_t Lead;
    std::size_t Length;
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

/// The number of a text that is an optional "-" and digits. Throws std::invalid_argument for any other text,
/// and std::out_of_range for a number beyond 32 bits.
std::int32_t NumberFromText(std::string_view Text);

/// The UTF-8 bytes of a code point, lone surrogates too; an empty text for 0 and above 0x10FFFF.
std::string EncodeCodePointUtf8(std::uint32_t CodePoint);

} // namespace quillINI
