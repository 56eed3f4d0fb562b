#include "quillini/Escapes.hpp"

#include "quillini/Text.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillINI {

namespace {

struct ShortEscape {
    char Character;
    std::string_view Escape;
};

// Reading resolves only the first two again (ValueScan), and the escapes of AppendUnit (LineCutter).
constexpr auto ShortEscapes = std::to_array<ShortEscape>({
    {'"', "\\\""},
    {'\\', "\\\\"},
    {'\b', "\\b"},
    {'\t', "\\t"},
    {'\n', "\\n"},
    {'\v', "\\v"},
    {'\f', "\\f"},
    {'\r', "\\r"},
});

// NOT-BUGS: The character 0x1F is written as it is
constexpr std::uint8_t LastEscapedControl = 0x1E;

[[noreturn]] void RefuseSequence() {
    throw std::runtime_error("Invalid UTF-8 sequence!");
}

std::uint8_t ByteAt(std::string_view Text, std::size_t Index) {
    return static_cast<std::uint8_t>(Text[Index]);
}

void AppendUnit(std::string &Escaped, std::uint32_t Unit) {
    constexpr std::string_view digits = "0123456789abcdef";
    Escaped += "\\x";
    for (const unsigned shift : {12U, 8U, 4U, 0U}) {
        Escaped += digits[Unit >> shift & 0xFU];
    }
}

void AppendCodePoint(std::string &Escaped, std::uint32_t CodePoint) {
    if (CodePoint <= 0xFFFF) {
        AppendUnit(Escaped, CodePoint);
        return;
    }
    AppendUnit(Escaped, 0xD800 + ((CodePoint - 0x10000) >> 10U));
    AppendUnit(Escaped, 0xDC00 + ((CodePoint - 0x10000) & 0x3FFU));
}

void AppendAscii(std::string &Escaped, char Character) {
    const auto escape = std::ranges::find(ShortEscapes, Character, &ShortEscape::Character);
    if (escape != ShortEscapes.end()) {
        Escaped += escape->Escape;
    } else if (static_cast<std::uint8_t>(Character) <= LastEscapedControl) {
        AppendUnit(Escaped, static_cast<std::uint8_t>(Character));
    } else {
        Escaped += Character;
    }
}

const SequenceForm &FormOf(std::uint8_t Lead) {
    for (const SequenceForm &form : SequenceForms) {
        if ((Lead & form.Mask) == form.Lead) {
            return form;
        }
    }
    RefuseSequence();
}

/// The code point of a sequence, whatever its value: only the form of the bytes is looked at.
std::uint32_t CodePointOf(std::string_view Sequence, const SequenceForm &Form) {
    std::uint32_t codePoint = ByteAt(Sequence, 0) & static_cast<std::uint8_t>(~Form.Mask);
    for (std::size_t i = 1; i < Form.Length; ++i) {
        if (i >= Sequence.size() || (ByteAt(Sequence, i) & 0xC0U) != 0x80U) {
            RefuseSequence();
        }
        codePoint = codePoint << 6U | (ByteAt(Sequence, i) & 0x3FU);
    }
    return codePoint;
}

} // namespace

std::string EscapeIniText(std::string_view Text) {
    std::string escaped;
    escaped.reserve(Text.size());
    for (std::size_t i = 0; i < Text.size();) {
        if (ByteAt(Text, i) < 0x80) {
            AppendAscii(escaped, Text[i]);
            ++i;
        } else {
            const SequenceForm &form = FormOf(ByteAt(Text, i));
            AppendCodePoint(escaped, CodePointOf(Text.substr(i, form.Length), form));
            i += form.Length;
        }
    }
    return escaped;
}

std::string RestoreQuotesAndBackslashes(std::string_view Escaped) {
    std::string restored;
    restored.reserve(Escaped.size());
    for (std::size_t i = 0; i < Escaped.size(); ++i) {
        const std::string_view pair = Escaped.substr(i, 2);
        if (pair == "\\\"" || pair == "\\\\") {
            ++i;
        }
        restored += Escaped[i];
    }
    return restored;
}

} // namespace quillINI
