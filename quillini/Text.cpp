#include "quillini/Text.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace quillINI {

namespace {

/// A length of sequence, for the code points below Limit that no shorter one holds: the fixed bits of its
/// lead byte, and how many continuation bytes follow.
struct SequenceLength {
    std::uint32_t Limit;
    std::uint32_t Lead;
    unsigned Continuations;
};

constexpr auto SequenceLengths = std::to_array<SequenceLength>({
    {0x80, 0x00, 0},
    {0x800, 0xC0, 1},
    {0x10000, 0xE0, 2},
    {0x110000, 0xF0, 3},
});

} // namespace

std::string_view TrimBlanks(std::string_view Text) {
    constexpr std::string_view blanks = " \t";
    Text.remove_prefix(std::min(Text.find_first_not_of(blanks), Text.size()));
    return Text.substr(0, Text.find_last_not_of(blanks) + 1);
}

std::int32_t NumberFromText(std::string_view Text) {
    std::int32_t number = 0;
    const char *const end = Text.data() + Text.size();
    const auto read = std::from_chars(Text.data(), end, number);
    if (read.ec == std::errc::invalid_argument || read.ptr != end) {
        throw std::invalid_argument("An array's key is not a number!");
    }
    if (read.ec == std::errc::result_out_of_range) {
        throw std::out_of_range("An array's key is out of range!");
    }
    return number;
}

std::string EncodeCodePointUtf8(std::uint32_t CodePoint) {
    std::string bytes;
    const auto length = std::ranges::upper_bound(SequenceLengths, CodePoint, {}, &SequenceLength::Limit);
    if (CodePoint == 0 || length == SequenceLengths.end()) {
        return bytes;
    }
    bytes.push_back(static_cast<char>(length->Lead | CodePoint >> 6 * length->Continuations));
    for (unsigned left = length->Continuations; left > 0; --left) {
        bytes.push_back(static_cast<char>(0x80U | (CodePoint >> 6 * (left - 1) & 0x3FU)));
    }
    return bytes;
}

std::vector<std::string> SplitAny(std::string_view Text, std::string_view Delimiters) {
    std::vector<std::string> pieces;
    std::size_t begin = Text.find_first_not_of(Delimiters);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(Text.find_first_of(Delimiters, begin), Text.size());
        pieces.emplace_back(Text.substr(begin, end - begin));
        begin = Text.find_first_not_of(Delimiters, end);
    }
    if (pieces.empty()) {
        pieces.emplace_back(Text);
    }
    return pieces;
}

} // namespace quillINI
