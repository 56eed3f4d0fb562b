#include "store/Words.hpp"

#include "state/Ascii.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>

namespace {

constexpr auto TrueWords = std::to_array<std::string_view>({"1", "true", "yes", "on"});
constexpr auto FalseWords = std::to_array<std::string_view>({"0", "false", "no", "off"});

bool IsOneOf(std::span<const std::string_view> Words, std::string_view Text) {
    return std::ranges::any_of(Words, [Text](std::string_view Word) {
        return std::ranges::equal(Text, Word, {}, ToLowerAscii);
    });
}

} // namespace

bool ParseBoolWord(std::string_view Text, bool Default) {
    if (IsOneOf(TrueWords, Text)) {
        return true;
    }
    return IsOneOf(FalseWords, Text) ? false : Default;
}

bool ParseInt32(std::string_view Text, std::int32_t &Out) {
    std::int32_t number = 0;
    const char *const end = Text.data() + Text.size();
    const std::from_chars_result result = std::from_chars(Text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        return false;
    }
    Out = number;
    return true;
}
