#include "quillini/LineCutter.hpp"

#include "quillini/Text.hpp"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillINI {

namespace {

constexpr std::size_t DigitsOfEscape = 4;
constexpr std::string_view EscapeBegin = "\\x";

struct LineCutter {
    std::string_view Text;
    std::size_t Index = 0;
    std::string Line;
    std::vector<std::string> Lines;
};

enum class DigitsEnd : std::uint8_t {
    Complete,
    OtherCharacter,
    EndOfText,
};

/// Up to four hex digits, and why there are no more.
struct EscapeDigits {
    std::uint32_t Value = 0;
    std::size_t Count = 0;
    DigitsEnd End = DigitsEnd::Complete;
};

int HexDigit(char Character) {
    if (Character >= '0' && Character <= '9') {
        return Character - '0';
    }
    if (Character >= 'a' && Character <= 'f') {
        return Character - 'a' + 10;
    }
    if (Character >= 'A' && Character <= 'F') {
        return Character - 'A' + 10;
    }
    return -1;
}

EscapeDigits ReadDigits(std::string_view Text) {
    EscapeDigits digits;
    for (; digits.Count < DigitsOfEscape; ++digits.Count) {
        if (digits.Count == Text.size()) {
            digits.End = DigitsEnd::EndOfText;
            break;
        }
        const int digit = HexDigit(Text[digits.Count]);
        if (digit < 0) {
            digits.End = DigitsEnd::OtherCharacter;
            break;
        }
        digits.Value = digits.Value * 16 + static_cast<std::uint32_t>(digit);
    }
    return digits;
}

void RefuseEndOfText(const EscapeDigits &Digits) {
    if (Digits.End == DigitsEnd::EndOfText) {
        throw std::runtime_error("Read beyond end of file, and found invalid unicode escape sequence!");
    }
}

bool IsHighSurrogate(std::uint32_t Value) {
    return Value >= 0xD800 && Value <= 0xDBFF;
}

std::uint32_t CodePointOfPair(std::uint32_t High, std::uint32_t Low) {
    if (Low < 0xDC00 || Low > 0xDFFF) {
        throw std::runtime_error("Invalid code point range for UTF-16 low surrogate pair!");
    }
    return (High - 0xD800) * 0x400 + (Low - 0xDC00) + 0x10000;
}

/// The value of the escape that Text begins with, as it stands behind another one.
std::uint32_t ReadSecondEscape(std::string_view Text) {
    const EscapeDigits digits = ReadDigits(Text.substr(EscapeBegin.size()));
    RefuseEndOfText(digits);
    if (digits.End == DigitsEnd::OtherCharacter) {
        throw std::runtime_error("Invalid code point for UTF-16 low surrogate pair!");
    }
    return digits.Value;
}

/// An escape whose value is known, with Index behind it.
void FinishEscape(LineCutter &Cutter, std::uint32_t Value) {
    const std::string_view rest = Cutter.Text.substr(Cutter.Index);
    if (!rest.starts_with(EscapeBegin)) {
        Cutter.Line += EncodeCodePointUtf8(Value);
        return;
    }
    // A second escape has to be whole even where the first needs none: this is on purpose.
    const std::uint32_t second = ReadSecondEscape(rest);
    if (!IsHighSurrogate(Value)) {
        Cutter.Line += EncodeCodePointUtf8(Value);
        return;
    }
    Cutter.Line += EncodeCodePointUtf8(CodePointOfPair(Value, second));
    Cutter.Index += EscapeBegin.size() + DigitsOfEscape;
}

void TakeEscape(LineCutter &Cutter) {
    const std::size_t begin = Cutter.Index + EscapeBegin.size();
    const EscapeDigits digits = ReadDigits(Cutter.Text.substr(begin));
    RefuseEndOfText(digits);
    Cutter.Index = begin + digits.Count;
    if (digits.End == DigitsEnd::OtherCharacter) {
        Cutter.Line += 'x';
        Cutter.Line += Cutter.Text.substr(begin, digits.Count);
        return;
    }
    FinishEscape(Cutter, digits.Value);
}

void TakeBackslash(LineCutter &Cutter) {
    const std::string_view pair = Cutter.Text.substr(Cutter.Index, 2);
    if (pair == EscapeBegin) {
        TakeEscape(Cutter);
        return;
    }
    if (pair.size() == 2) { // as the last byte it is dropped
        Cutter.Line += pair;
    }
    Cutter.Index += pair.size();
}

void EndLine(LineCutter &Cutter) {
    Cutter.Line += '\n';
    Cutter.Lines.push_back(std::exchange(Cutter.Line, {}));
}

void TakeCarriageReturn(LineCutter &Cutter) {
    if (Cutter.Index + 1 < Cutter.Text.size()) { // as the last byte it is dropped
        EndLine(Cutter);
    }
    Cutter.Index += 2; // the byte behind it is dropped, line feed or not; that stays
}

void TakeNext(LineCutter &Cutter) {
    const char character = Cutter.Text[Cutter.Index];
    switch (character) {
    case '\r':
        TakeCarriageReturn(Cutter);
        break;
    case '\n':
        EndLine(Cutter);
        ++Cutter.Index;
        break;
    case '\\':
        TakeBackslash(Cutter);
        break;
    default:
        Cutter.Line += character;
        ++Cutter.Index;
    }
}

} // namespace

std::vector<std::string> CutLines(std::string_view Text) {
    LineCutter cutter;
    cutter.Text = Text;
    while (cutter.Index < Text.size()) {
        TakeNext(cutter);
    }
    if (!cutter.Line.empty()) {
        EndLine(cutter);
    }
    return std::move(cutter.Lines);
}

} // namespace quillINI
