#pragma once

#include <cwchar>
#include <locale>
#include <string>
#include <string_view>

namespace quillINI {

namespace quillINIStream {

/// The standard conversion between UTF-8 and char16_t or char32_t, with a public destructor.
// NOLINTNEXTLINE(readability-identifier-naming): named after the library
template <class Unit> struct quillINICodeCvt : std::codecvt<Unit, char8_t, std::mbstate_t> {
    using std::codecvt<Unit, char8_t, std::mbstate_t>::codecvt;
    ~quillINICodeCvt() override = default;
};

} // namespace quillINIStream

// Each throws std::range_error if the text is invalid, or ends within a character.

std::string Utf8From(std::u16string_view Text);
std::string Utf8From(std::u32string_view Text);
std::u16string Utf16From(std::string_view Text);
std::u32string Utf32From(std::string_view Text);

} // namespace quillINI
