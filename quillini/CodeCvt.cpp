#include "quillini/CodeCvt.hpp"

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <locale>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillINI {

namespace {

constexpr std::size_t LongestSequence = 4;

void RefuseUnless(bool Valid) {
    if (!Valid) {
        throw std::range_error("Text cannot be converted between UTF-8 and its file's encoding!");
    }
}

template <class Unit> std::string ToUtf8(std::basic_string_view<Unit> Units) {
    std::u8string bytes(Units.size() * LongestSequence, u8'\0');
    const quillINIStream::quillINICodeCvt<Unit> facet;
    std::mbstate_t state{};
    const Unit *read = nullptr;
    char8_t *written = nullptr;
    const auto result = facet.out(state, Units.data(), Units.data() + Units.size(), read, bytes.data(),
        bytes.data() + bytes.size(), written);
    // One standard library's facet reports ok when it has stopped before a high surrogate at the very end.
    RefuseUnless(result == std::codecvt_base::ok && read == Units.data() + Units.size());
    return {bytes.data(), written};
}

template <class Unit> std::basic_string<Unit> FromUtf8(std::string_view Text) {
    const std::u8string bytes(Text.begin(), Text.end());
    std::basic_string<Unit> units(bytes.size(), Unit());
    const quillINIStream::quillINICodeCvt<Unit> facet;
    std::mbstate_t state{};
    const char8_t *read = nullptr;
    Unit *written = nullptr;
    const auto result = facet.in(state, bytes.data(), bytes.data() + bytes.size(), read, units.data(),
        units.data() + units.size(), written);
    RefuseUnless(result == std::codecvt_base::ok && read == bytes.data() + bytes.size());
    units.resize(static_cast<std::size_t>(written - units.data()));
    return units;
}

bool IsSurrogate(char32_t CodePoint) {
    return CodePoint >= 0xD800 && CodePoint <= 0xDFFF;
}

} // namespace

std::string Utf8From(std::u16string_view Text) {
    return ToUtf8(Text);
}

std::string Utf8From(std::u32string_view Text) {
    // Not every standard library's facet refuses these.
    RefuseUnless(std::ranges::none_of(Text, IsSurrogate));
    return ToUtf8(Text);
}

std::u16string Utf16From(std::string_view Text) {
    return FromUtf8<char16_t>(Text);
}

std::u32string Utf32From(std::string_view Text) {
    return FromUtf8<char32_t>(Text);
}

} // namespace quillINI
