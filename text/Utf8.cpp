#include "text/Utf8.hpp"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr std::uint32_t QuestionMark = 0x3F;
constexpr std::uint32_t LastCodePoint = 0x10FFFF;

/// A kind of sequence by the bits of its lead byte under LeadMask, and the code points that it may hold.
struct SequenceKind {
    std::uint8_t LeadMask;
    std::uint8_t Lead;
    std::size_t Continuations;
    std::uint32_t First; ///< below it a shorter sequence would do
    std::uint32_t Last;
};

constexpr auto SequenceKinds = std::to_array<SequenceKind>({
    {0xE0, 0xC0, 1, 0x80, 0x7FF},
    {0xF0, 0xE0, 2, 0x800, 0xFFFF},
    {0xF8, 0xF0, 3, 0x10000, LastCodePoint},
});

bool IsSurrogate(std::uint32_t CodePoint) {
    return CodePoint >= 0xD800 && CodePoint <= 0xDFFF;
}

std::uint8_t ByteAt(std::string_view Text, std::size_t Index) {
    return static_cast<std::uint8_t>(Text[Index]);
}

/// The code point of a sequence of a kind at Index, or nothing if it is cut short, overlong or no code point.
std::optional<std::uint32_t> ReadSequence(
    std::string_view Text, std::size_t Index, const SequenceKind &Kind) {
    if (Text.size() - Index <= Kind.Continuations) {
        return std::nullopt;
    }
    std::uint32_t codePoint = ByteAt(Text, Index) & static_cast<std::uint8_t>(~Kind.LeadMask);
    for (std::size_t i = 1; i <= Kind.Continuations; ++i) {
        const std::uint8_t byte = ByteAt(Text, Index + i);
        if ((byte & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        codePoint = codePoint << 6U | (byte & 0x3FU);
    }
    if (codePoint < Kind.First || codePoint > Kind.Last || IsSurrogate(codePoint)) {
        return std::nullopt;
    }
    return codePoint;
}

std::uint32_t ToUpperCodePoint(std::uint32_t CodePoint) {
    if (CodePoint >= 'a' && CodePoint <= 'z') {
        return CodePoint - 'a' + 'A';
    }
    switch (CodePoint) {
    case 0xE4: // a with diaeresis
        return 0xC4;
    case 0xF6: // o with diaeresis
        return 0xD6;
    case 0xFC: // u with diaeresis
        return 0xDC;
    case 0xE9: // e with acute
        return 0xC9;
    case 0x1E9E: // NOT-BUGS: The capital sharp s (U+1E9E) becomes the small one
        return 0xDF;
    default:
        return CodePoint;
    }
}

} // namespace

DecodedCodePoint DecodeUtf8(std::string_view Text, std::size_t Index) {
    const std::uint8_t lead = ByteAt(Text, Index);
    if (lead < 0x80) {
        return {lead, 1};
    }
    for (const SequenceKind &kind : SequenceKinds) {
        if ((lead & kind.LeadMask) == kind.Lead) {
            const std::optional<std::uint32_t> codePoint = ReadSequence(Text, Index, kind);
            if (codePoint) {
                return {*codePoint, kind.Continuations + 1};
            }
        }
    }
    return {QuestionMark, 1};
}

void AppendUtf8(std::string &Text, std::uint32_t CodePoint) {
    const auto append = [&Text](std::uint32_t Byte) {
        Text.push_back(static_cast<char>(Byte));
    };
    if (CodePoint < 0x80 || CodePoint > LastCodePoint) {
        append(CodePoint < 0x80 ? CodePoint : QuestionMark);
        return;
    }
    const SequenceKind &kind = *std::ranges::lower_bound(SequenceKinds, CodePoint, {}, &SequenceKind::Last);
    append(kind.Lead | CodePoint >> 6 * kind.Continuations);
    for (std::size_t left = kind.Continuations; left > 0; --left) {
        append(0x80U | (CodePoint >> 6 * (left - 1) & 0x3FU));
    }
}

std::string ToUpperUtf8(std::string_view Text) {
    std::string upper;
    upper.reserve(Text.size());
    for (std::size_t i = 0; i < Text.size();) {
        const DecodedCodePoint decoded = DecodeUtf8(Text, i);
        AppendUtf8(upper, ToUpperCodePoint(decoded.CodePoint));
        i += decoded.Length;
    }
    return upper;
}
