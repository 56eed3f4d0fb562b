#include "quillini/LineCutter.hpp"

#include "quillini/Text.hpp"

#include <algorithm>
#include <charconv>
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
    CutText Cut;
};

/// The hex digits before any other character, at most four.
struct EscapeDigits {
    std::uint32_t Value = 0;
    std::size_t Count = 0;
};

/// The digits that a text begins with. Throws if it ends before the fourth or another character.
EscapeDigits ReadDigits(std::string_view Text) {
    const std::string_view window = Text.substr(0, DigitsOfEscape);
    EscapeDigits digits;
    const auto read = std::from_chars(window.data(), window.data() + window.size(), digits.Value, 16);
    digits.Count = static_cast<std::size_t>(read.ptr - window.data());
    if (digits.Count == Text.size() && digits.Count < DigitsOfEscape) {
        throw std::runtime_error("Read beyond end of file, and found invalid unicode escape sequence!");
    }
    return digits;
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

/// The value of the escape that Text begins with and that stands right behind another one.
std::uint32_t ReadSecondEscape(std::string_view Text) {
    const EscapeDigits digits = ReadDigits(Text.substr(EscapeBegin.size()));
    if (digits.Count < DigitsOfEscape) {
        throw std::runtime_error("Invalid code point for UTF-16 low surrogate pair!");
    }
    return digits.Value;
}

/// Appends what an escape stands for whose digits are taken, and takes a low surrogate's escape behind it.
void FinishEscape(LineCutter &Cutter, std::uint32_t Value) {
    const std::string_view rest = Cutter.Text.substr(Cutter.Index);
    if (!rest.starts_with(EscapeBegin)) {
        Cutter.Cut.Text += EncodeCodePointUtf8(Value);
        return;
    }
    // NOT-BUGS: An escape right behind another one ends the program if it has not all four digits
    const std::uint32_t second = ReadSecondEscape(rest);
    if (!IsHighSurrogate(Value)) {
        Cutter.Cut.Text += EncodeCodePointUtf8(Value);
        return;
    }
    Cutter.Cut.Text += EncodeCodePointUtf8(CodePointOfPair(Value, second));
    Cutter.Index += EscapeBegin.size() + DigitsOfEscape;
}

void TakeEscape(LineCutter &Cutter) {
    const std::size_t begin = Cutter.Index + EscapeBegin.size();
    const EscapeDigits digits = ReadDigits(Cutter.Text.substr(begin));
    Cutter.Index = begin + digits.Count;
    if (digits.Count < DigitsOfEscape) { // no escape: it loses its backslash
        Cutter.Cut.Text += 'x';
        Cutter.Cut.Text += Cutter.Text.substr(begin, digits.Count);
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
        // NOT-BUGS: A backslash at the end of a line takes the line break with it
        Cutter.Cut.Text += pair;
    }
    Cutter.Index += pair.size();
}

void EndLine(LineCutter &Cutter) {
    Cutter.Cut.Text += '\n';
    Cutter.Cut.LineEnds.push_back(Cutter.Cut.Text.size());
}

void TakeCarriageReturn(LineCutter &Cutter) {
    if (Cutter.Index + 1 < Cutter.Text.size()) { // as the last byte it is dropped
        EndLine(Cutter);
    }
    // NOT-BUGS: A lone carriage return eats the character behind it
    Cutter.Index += 2;
}

bool HasMeaning(char Character) {
    return Character == '\r' || Character == '\n' || Character == '\\';
}

/// Takes all characters before the next one that has a meaning here.
void TakeOrdinary(LineCutter &Cutter) {
    const std::string_view rest = Cutter.Text.substr(Cutter.Index);
    const std::string_view ordinary(rest.begin(), std::ranges::find_if(rest, HasMeaning));
    Cutter.Cut.Text += ordinary;
    Cutter.Index += ordinary.size();
}

void TakeNext(LineCutter &Cutter) {
    switch (Cutter.Text[Cutter.Index]) {
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
        TakeOrdinary(Cutter);
    }
}

} // namespace

CutText CutLines(std::string_view Text) {
    LineCutter cutter;
    cutter.Text = Text;
    cutter.Cut.Text.reserve(Text.size() + 1); // only a last line that nothing ended grows
    while (cutter.Index < Text.size()) {
        TakeNext(cutter);
    }
    const std::vector<std::size_t> &ends = cutter.Cut.LineEnds;
    if (cutter.Cut.Text.size() > (ends.empty() ? 0 : ends.back())) {
        EndLine(cutter);
    }
    return std::move(cutter.Cut);
}

} // namespace quillINI
