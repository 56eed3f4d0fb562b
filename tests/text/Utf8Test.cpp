#include "text/Utf8.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace {

constexpr std::uint32_t QuestionMark = 0x3F;
constexpr std::uint32_t LastCodePoint = 0x10FFFF;

bool IsSurrogate(std::uint32_t CodePoint) {
    return CodePoint >= 0xD800 && CodePoint <= 0xDFFF;
}

struct Piece {
    std::uint32_t CodePoint;
    std::size_t Length;

    bool operator==(const Piece &) const = default;
};

void PrintTo(const Piece &Decoded, std::ostream *Stream) {
    *Stream << "U+" << std::hex << Decoded.CodePoint << std::dec << " from " << Decoded.Length;
}

Piece DecodeAt(std::string_view Text, std::size_t Index = 0) {
    const DecodedCodePoint decoded = DecodeUtf8(Text, Index);
    return {decoded.CodePoint, decoded.Length};
}

/// Every code point of a text with the bytes that it takes.
std::vector<Piece> Decode(std::string_view Text) {
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < Text.size() && pieces.size() <= Text.size(); i += pieces.back().Length) {
        pieces.push_back(DecodeAt(Text, i));
        if (pieces.back().Length == 0) {
            ADD_FAILURE() << "no byte is taken at " << i;
            break;
        }
    }
    return pieces;
}

/// That many question marks of a byte each.
std::vector<Piece> QuestionMarks(std::size_t Count) {
    return {Count, Piece{QuestionMark, 1}};
}

std::string Bytes(std::initializer_list<unsigned> Values) {
    std::string bytes;
    for (const unsigned value : Values) {
        bytes.push_back(static_cast<char>(static_cast<unsigned char>(value)));
    }
    return bytes;
}

std::string Encode(std::uint32_t CodePoint) {
    std::string text;
    AppendUtf8(text, CodePoint);
    return text;
}

/// Well-formed sequences by their first two bytes; all bytes behind the second go from 80 to BF.
struct WellFormed {
    unsigned FirstLead;
    unsigned LastLead;
    unsigned FirstSecond;
    unsigned LastSecond;
    std::size_t Length;
};

constexpr auto WellFormedSequences = std::to_array<WellFormed>({
    {0xC2, 0xDF, 0x80, 0xBF, 2},
    {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3},
    {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4},
    {0xF4, 0xF4, 0x80, 0x8F, 4},
});

/// How many bytes the well-formed sequence at the start of some bytes takes, or 0.
std::size_t WellFormedLength(std::string_view Text) {
    const auto byteAt = [Text](std::size_t Index) -> unsigned {
        return static_cast<unsigned char>(Text[Index]);
    };
    if (byteAt(0) < 0x80) {
        return 1;
    }
    for (const WellFormed &row : WellFormedSequences) {
        if (byteAt(0) < row.FirstLead || byteAt(0) > row.LastLead || Text.size() < row.Length ||
            byteAt(1) < row.FirstSecond || byteAt(1) > row.LastSecond) {
            continue;
        }
        bool good = true;
        for (std::size_t i = 2; i < row.Length; ++i) {
            good = good && byteAt(i) >= 0x80 && byteAt(i) <= 0xBF;
        }
        return good ? row.Length : 0;
    }
    return 0;
}

/// A sequence is taken whole if it is well formed, and as a question mark of one byte if not.
void ExpectByTheTable(const std::string &Text) {
    const std::size_t length = WellFormedLength(Text);
    const Piece piece = DecodeAt(Text);
    if (length == 0) {
        ASSERT_EQ(piece, (Piece{QuestionMark, 1})) << ::testing::PrintToString(Text);
    } else {
        ASSERT_EQ(piece.Length, length) << ::testing::PrintToString(Text);
        ASSERT_EQ(Encode(piece.CodePoint), Text.substr(0, length)) << ::testing::PrintToString(Text);
    }
}

/// Bytes on both sides of every border between the kinds of bytes.
constexpr auto BorderBytes = std::to_array<unsigned>({0x00, 0x20, 0x3F, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F,
    0xA0, 0xBF, 0xC0, 0xC2, 0xDF, 0xE0, 0xF0, 0xF8, 0xFF});

} // namespace

TEST(DecodeUtf8, TakesEveryByteBelow80AsItIs) {
    for (unsigned byte = 0; byte < 0x80; ++byte) {
        EXPECT_EQ(DecodeAt(Bytes({byte})), (Piece{byte, 1}));
        EXPECT_EQ(DecodeAt(Bytes({byte, 0xBF, 0xBF, 0xBF})), (Piece{byte, 1}));
    }
}

TEST(DecodeUtf8, TakesEveryOtherByteAloneForAQuestionMark) {
    for (unsigned byte = 0x80; byte <= 0xFF; ++byte) {
        EXPECT_EQ(DecodeAt(Bytes({byte})), (Piece{QuestionMark, 1})) << byte;
    }
}

TEST(DecodeUtf8, KnowsEveryLeadByteBeforeContinuations) {
    for (unsigned lead = 0x80; lead <= 0xFF; ++lead) {
        const std::string text = Bytes({lead, 0x90 - (lead == 0xF4 ? 1U : 0U), 0x80, 0x80});
        Piece expected{QuestionMark, 1};
        if (lead >= 0xC2 && lead <= 0xDF) {
            expected = {(lead - 0xC0) * 0x40 + 0x10, 2};
        } else if (lead >= 0xE1 && lead <= 0xEF) { // E0 90 would be overlong
            expected = {(lead - 0xE0) * 0x1000 + 0x400, 3};
        } else if (lead >= 0xF0 && lead <= 0xF3) {
            expected = {(lead - 0xF0) * 0x40000 + 0x10000, 4};
        } else if (lead == 0xF4) {
            expected = {0x10F000, 4};
        }
        EXPECT_EQ(DecodeAt(text), expected) << std::hex << lead;
    }
}

TEST(DecodeUtf8, ReadsTheFirstAndTheLastCodePointOfEachLength) {
    EXPECT_EQ(Decode(Bytes({0x00})), (std::vector<Piece>{{0x0, 1}}));
    EXPECT_EQ(Decode(Bytes({0x7F})), (std::vector<Piece>{{0x7F, 1}}));
    EXPECT_EQ(Decode(Bytes({0xC2, 0x80})), (std::vector<Piece>{{0x80, 2}}));
    EXPECT_EQ(Decode(Bytes({0xDF, 0xBF})), (std::vector<Piece>{{0x7FF, 2}}));
    EXPECT_EQ(Decode(Bytes({0xE0, 0xA0, 0x80})), (std::vector<Piece>{{0x800, 3}}));
    EXPECT_EQ(Decode(Bytes({0xEF, 0xBF, 0xBF})), (std::vector<Piece>{{0xFFFF, 3}}));
    EXPECT_EQ(Decode(Bytes({0xF0, 0x90, 0x80, 0x80})), (std::vector<Piece>{{0x10000, 4}}));
    EXPECT_EQ(Decode(Bytes({0xF4, 0x8F, 0xBF, 0xBF})), (std::vector<Piece>{{0x10FFFF, 4}}));
}

TEST(DecodeUtf8, RefusesEverySequenceThatIsLongerThanItsCodePointNeeds) {
    EXPECT_EQ(Decode(Bytes({0xC0, 0x80})), QuestionMarks(2));
    EXPECT_EQ(Decode(Bytes({0xC1, 0xBF})), QuestionMarks(2));
    EXPECT_EQ(Decode(Bytes({0xE0, 0x80, 0x80})), QuestionMarks(3));
    EXPECT_EQ(Decode(Bytes({0xE0, 0x9F, 0xBF})), QuestionMarks(3));
    EXPECT_EQ(Decode(Bytes({0xF0, 0x80, 0x80, 0x80})), QuestionMarks(4));
    EXPECT_EQ(Decode(Bytes({0xF0, 0x8F, 0xBF, 0xBF})), QuestionMarks(4));
}

TEST(DecodeUtf8, RefusesTheSurrogatesAndNothingBesideThem) {
    EXPECT_EQ(Decode(Bytes({0xED, 0x9F, 0xBF})), (std::vector<Piece>{{0xD7FF, 3}}));
    EXPECT_EQ(Decode(Bytes({0xED, 0xA0, 0x80})), QuestionMarks(3)); // U+D800
    EXPECT_EQ(Decode(Bytes({0xED, 0xAF, 0xBF})), QuestionMarks(3));
    EXPECT_EQ(Decode(Bytes({0xED, 0xB0, 0x80})), QuestionMarks(3));
    EXPECT_EQ(Decode(Bytes({0xED, 0xBF, 0xBF})), QuestionMarks(3)); // U+DFFF
    EXPECT_EQ(Decode(Bytes({0xEE, 0x80, 0x80})), (std::vector<Piece>{{0xE000, 3}}));
}

TEST(DecodeUtf8, RefusesWhatLiesAboveTheLastCodePoint) {
    EXPECT_EQ(Decode(Bytes({0xF4, 0x90, 0x80, 0x80})), QuestionMarks(4));
    EXPECT_EQ(Decode(Bytes({0xF5, 0x80, 0x80, 0x80})), QuestionMarks(4));
    EXPECT_EQ(Decode(Bytes({0xF7, 0xBF, 0xBF, 0xBF})), QuestionMarks(4));
    EXPECT_EQ(Decode(Bytes({0xF8, 0x88, 0x80, 0x80, 0x80})), QuestionMarks(5));
    EXPECT_EQ(Decode(Bytes({0xFC, 0x84, 0x80, 0x80, 0x80, 0x80})), QuestionMarks(6));
    EXPECT_EQ(Decode(Bytes({0xFE, 0xFF})), QuestionMarks(2));
}

TEST(DecodeUtf8, TakesOneByteOfASequenceThatTheTextsEndCutsShort) {
    for (const std::string &whole :
        {Bytes({0xC3, 0xA4}), Bytes({0xE2, 0x82, 0xAC}), Bytes({0xF0, 0x9F, 0x9A, 0x97})}) {
        for (std::size_t length = 1; length < whole.size(); ++length) {
            EXPECT_EQ(Decode(std::string_view(whole).substr(0, length)), QuestionMarks(length));
            EXPECT_EQ(Decode("A" + whole.substr(0, length)).size(), 1 + length);
        }
        EXPECT_EQ(Decode(whole).size(), 1U);
    }
}

TEST(DecodeUtf8, StopsAtTheEndOfTheViewThoughMoreBytesLieBehind) {
    const std::string whole = Bytes({0xC3, 0xA4});
    EXPECT_EQ(DecodeAt(std::string_view(whole).substr(0, 1)), (Piece{QuestionMark, 1}));
    EXPECT_EQ(DecodeAt(whole), (Piece{0xE4, 2}));
}

TEST(DecodeUtf8, ReadsTheBytesBehindAnInvalidOneOnTheirOwn) {
    EXPECT_EQ(Decode("\xE2"
                     "ab"),
        (std::vector<Piece>{{QuestionMark, 1}, {'a', 1}, {'b', 1}}));
    EXPECT_EQ(Decode("\xE2\x82"
                     "a"),
        (std::vector<Piece>{{QuestionMark, 1}, {QuestionMark, 1}, {'a', 1}}));
    EXPECT_EQ(Decode("\xF0\x9F\x9A"
                     "a"),
        (std::vector<Piece>{{QuestionMark, 1}, {QuestionMark, 1}, {QuestionMark, 1}, {'a', 1}}));
    EXPECT_EQ(Decode("\xC3\xC3\xA4"), (std::vector<Piece>{{QuestionMark, 1}, {0xE4, 2}}));
    EXPECT_EQ(Decode("\xE2\xC3\xA4"), (std::vector<Piece>{{QuestionMark, 1}, {0xE4, 2}}));
    EXPECT_EQ(Decode("\xF0\x9F\xE2\x82\xAC"),
        (std::vector<Piece>{{QuestionMark, 1}, {QuestionMark, 1}, {0x20AC, 3}}));
    EXPECT_EQ(Decode("\x80\xBF!"), (std::vector<Piece>{{QuestionMark, 1}, {QuestionMark, 1}, {'!', 1}}));
}

TEST(DecodeUtf8, ReadsAtAnyByteOfAText) {
    const std::string_view text = "a\xE2\x82\xACz";
    EXPECT_EQ(DecodeAt(text, 0), (Piece{'a', 1}));
    EXPECT_EQ(DecodeAt(text, 1), (Piece{0x20AC, 3}));
    EXPECT_EQ(DecodeAt(text, 2), (Piece{QuestionMark, 1}));
    EXPECT_EQ(DecodeAt(text, 3), (Piece{QuestionMark, 1}));
    EXPECT_EQ(DecodeAt(text, 4), (Piece{'z', 1}));
}

TEST(DecodeUtf8, ReadsAZeroByteLikeAnyOther) {
    EXPECT_EQ(Decode(std::string_view("a\0b", 3)), (std::vector<Piece>{{'a', 1}, {0, 1}, {'b', 1}}));
}

TEST(DecodeUtf8, AgreesWithTheTableOfWellFormedSequencesOnEveryPairOfBytes) {
    for (unsigned first = 0; first <= 0xFF; ++first) {
        for (unsigned second = 0; second <= 0xFF; ++second) {
            ASSERT_NO_FATAL_FAILURE(ExpectByTheTable(Bytes({first, second})));
        }
    }
}

TEST(DecodeUtf8, AgreesWithTheTableOfWellFormedSequencesOnLongerOnes) {
    for (unsigned lead = 0xC0; lead <= 0xFF; ++lead) {
        for (unsigned second = 0x7F; second <= 0xC0; ++second) {
            for (const unsigned third : BorderBytes) {
                ASSERT_NO_FATAL_FAILURE(ExpectByTheTable(Bytes({lead, second, third})));
                for (const unsigned fourth : BorderBytes) {
                    ASSERT_NO_FATAL_FAILURE(ExpectByTheTable(Bytes({lead, second, third, fourth})));
                }
            }
        }
    }
}

TEST(AppendUtf8, WritesTheBytesOfEachLength) {
    EXPECT_EQ(Encode(0x00), std::string(1, '\0'));
    EXPECT_EQ(Encode(0x41), "A");
    EXPECT_EQ(Encode(0x7F), "\x7F");
    EXPECT_EQ(Encode(0x80), "\xC2\x80");
    EXPECT_EQ(Encode(0xA9), "\xC2\xA9");
    EXPECT_EQ(Encode(0xDF), "\xC3\x9F");
    EXPECT_EQ(Encode(0x7FF), "\xDF\xBF");
    EXPECT_EQ(Encode(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(Encode(0x1E9E), "\xE1\xBA\x9E");
    EXPECT_EQ(Encode(0x20AC), "\xE2\x82\xAC");
    EXPECT_EQ(Encode(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(Encode(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(Encode(0x1F697), "\xF0\x9F\x9A\x97");
    EXPECT_EQ(Encode(0x10FFFF), "\xF4\x8F\xBF\xBF");
}

TEST(AppendUtf8, WritesAQuestionMarkForWhatLiesAboveTheLastCodePoint) {
    EXPECT_EQ(Encode(0x110000), "?");
    EXPECT_EQ(Encode(0x1FFFFF), "?");
    EXPECT_EQ(Encode(0xFFFFFFFF), "?");
}

TEST(AppendUtf8, AppendsToWhatStandsThere) {
    std::string text = "a";
    AppendUtf8(text, 0xE4);
    AppendUtf8(text, 0x110000);
    AppendUtf8(text, 'z');
    EXPECT_EQ(text, "a\xC3\xA4?z");
}

TEST(AppendUtf8, WritesWhatDecodeUtf8ReadsForEveryCodePoint) {
    for (std::uint32_t codePoint = 0; codePoint <= LastCodePoint; ++codePoint) {
        if (!IsSurrogate(codePoint)) {
            const std::string text = Encode(codePoint);
            ASSERT_EQ(DecodeAt(text), (Piece{codePoint, text.size()}));
        }
    }
}

TEST(ToUpperUtf8, RaisesTheLettersOfTheAlphabet) {
    EXPECT_EQ(ToUpperUtf8("abcdefghijklmnopqrstuvwxyz"), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(ToUpperUtf8("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(ToUpperUtf8("Left Shift"), "LEFT SHIFT");
}

TEST(ToUpperUtf8, RaisesTheFiveLettersThatTheFontHasInBothCases) {
    EXPECT_EQ(ToUpperUtf8("\xC3\xA4"), "\xC3\x84");
    EXPECT_EQ(ToUpperUtf8("\xC3\xB6"), "\xC3\x96");
    EXPECT_EQ(ToUpperUtf8("\xC3\xBC"), "\xC3\x9C");
    EXPECT_EQ(ToUpperUtf8("\xC3\xA9"), "\xC3\x89");
    EXPECT_EQ(ToUpperUtf8("Fran\xC3\xA7"
                          "ais"),
        "FRAN\xC3\xA7"
        "AIS"); // the font has no such capital
}

TEST(ToUpperUtf8, MakesBothSharpSTheSmallOne) {
    EXPECT_EQ(ToUpperUtf8("\xC3\x9F"), "\xC3\x9F");
    EXPECT_EQ(ToUpperUtf8("\xE1\xBA\x9E"), "\xC3\x9F");
    EXPECT_EQ(ToUpperUtf8("stra\xC3\x9F"
                          "e"),
        "STRA\xC3\x9F"
        "E");
    EXPECT_EQ(ToUpperUtf8("STRA\xE1\xBA\x9E"
                          "E"),
        "STRA\xC3\x9F"
        "E");
}

TEST(ToUpperUtf8, LeavesEveryOtherCodePointAsItIs) {
    for (std::uint32_t codePoint = 0; codePoint <= LastCodePoint; ++codePoint) {
        const bool raised = (codePoint >= 'a' && codePoint <= 'z') || codePoint == 0xE4 ||
                            codePoint == 0xF6 || codePoint == 0xFC || codePoint == 0xE9 ||
                            codePoint == 0x1E9E;
        if (!raised && !IsSurrogate(codePoint)) {
            const std::string text = Encode(codePoint);
            ASSERT_EQ(ToUpperUtf8(text), text) << codePoint;
        }
    }
}

TEST(ToUpperUtf8, TurnsEveryInvalidByteIntoAQuestionMark) {
    EXPECT_EQ(ToUpperUtf8("a\xC3"), "A?");
    EXPECT_EQ(ToUpperUtf8("\xE2"
                          "ab"),
        "?AB");
    EXPECT_EQ(ToUpperUtf8("\xED\xA0\x80"), "???");
    EXPECT_EQ(ToUpperUtf8("\xC0\x80"), "??");
    EXPECT_EQ(ToUpperUtf8("x\x80y"), "X?Y");
}

TEST(ToUpperUtf8, OfAnEmptyTextIsEmpty) {
    EXPECT_EQ(ToUpperUtf8(""), "");
}

TEST(ToUpperUtf8, KeepsAZeroByte) {
    EXPECT_EQ(ToUpperUtf8(std::string_view("a\0b", 3)), std::string("A\0B", 3));
}
