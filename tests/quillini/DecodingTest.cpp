#include "tests/quillini/IniTest.hpp"

#include <stdexcept>

using namespace quillINI;

namespace {

std::string Note(const std::string &Name) {
    return "INI file starts with " + Name +
           " BOM! Please note that by default the BOM will be skipped, and removed in case the INI file gets "
           "saved "
           "and the BOM was not specified!\n";
}

const std::string Utf8Mark = Bytes({0xEF, 0xBB, 0xBF});
const std::string Utf16LeMark = Bytes({0xFF, 0xFE});
const std::string Utf16BeMark = Bytes({0xFE, 0xFF});
const std::string Utf32LeMark = Bytes({0xFF, 0xFE, 0x00, 0x00});
const std::string Utf32BeMark = Bytes({0x00, 0x00, 0xFE, 0xFF});

/// The units as bytes; the lowest byte of each first if LittleEndian.
std::string Units(const std::vector<std::uint32_t> &Values, std::size_t Size, bool LittleEndian) {
    std::string bytes;
    for (const std::uint32_t value : Values) {
        for (std::size_t i = 0; i < Size; ++i) {
            const std::size_t place = LittleEndian ? i : Size - 1 - i;
            bytes.push_back(static_cast<char>(static_cast<unsigned char>(value >> 8 * place & 0xFFU)));
        }
    }
    return bytes;
}

std::vector<std::uint32_t> UnitsOf(std::string_view Ascii) {
    return {Ascii.begin(), Ascii.end()};
}

std::string Utf16(std::string_view Ascii, bool LittleEndian) {
    return Units(UnitsOf(Ascii), 2, LittleEndian);
}

std::string Utf32(std::string_view Ascii, bool LittleEndian) {
    return Units(UnitsOf(Ascii), 4, LittleEndian);
}

} // namespace

TEST(Decoding, KnowsEachEncodingByItsFirstBytes) {
    const struct {
        std::string File;
        std::string Name;
    } rows[] = {
        {Utf32LeMark + Utf32("k=v", true), "UTF-32 Little Endian"},
        {Utf16LeMark + Utf16("k=v", true), "UTF-16 Little Endian"},
        {Utf16BeMark + Utf16("k=v", false), "UTF-16 Big Endian"},
        {Utf8Mark + "k=v", "UTF-8"},
        {Utf32BeMark + Utf32("k=v", false), "UTF-32 Big Endian"},
        {Utf32("k=v", true), "UTF-32 Little Endian"},
        {Utf16("k=v", true), "UTF-16 Little Endian"},
        {Utf32("k=v", false), "UTF-32 Big Endian"},
        {Utf16("k=v", false), "UTF-16 Big Endian"},
    };
    for (const auto &row : rows) {
        const ReadResult result = Read(row.File);
        EXPECT_TRUE(result.Success);
        EXPECT_EQ(result.Output, Note(row.Name));
        EXPECT_EQ(Shown(result.Document), (ShownLines{"[QI_Global]", "k=v"})) << row.Name;
    }
}

TEST(Decoding, SaysNothingAboutUtf8WithoutAMark) {
    const ReadResult result = Read("key=v\xC3\xBC");
    EXPECT_TRUE(result.Success);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(Shown(result.Document), (ShownLines{"[QI_Global]", "key=v\xC3\xBC"}));
}

TEST(Decoding, GivesEqualDocumentsWithAMarkAndWithout) {
    const std::string text = "; note\r\n[S]\r\nkey=\"v\xC3\xBC\" ; c\r\n\r\na[]=1\r\n";
    const ReadResult marked = Read(Utf8Mark + text);
    EXPECT_EQ(marked.Output, Note("UTF-8"));
    EXPECT_EQ(marked.Document, ReadQuietly(text));
}

TEST(Decoding, NeedsTheWholePatternOfAFileWithoutAMark) {
    // One byte away from each of the four patterns found by their zero bytes: plain UTF-8.
    for (const auto &first :
        {Bytes({'a', 0, 0, 'b'}), Bytes({'a', 'b', 0, 0}), Bytes({0, 0, 'a', 'b'}), Bytes({0, 'a', 'b', 0}),
            Bytes({0, 0, 0, 0}), Bytes({'a', 0, 'b', 'c'}), Bytes({0, 'a', 'b', 'c'})}) {
        const ReadResult result = Read(first + "=v");
        EXPECT_EQ(result.Output, "");
        EXPECT_EQ(GetIniValue(result.Document, "QI_Global", first, "absent"), "v");
    }
}

TEST(Decoding, NeedsTheWholeMark) {
    for (const auto &first :
        {Bytes({0xEF, 0xBB}), Bytes({0xEF, 'a', 0xBF}), Bytes({0xFF, 'a'}), Bytes({0xFE, 'a'})}) {
        const ReadResult result = Read(first + "key=v");
        EXPECT_EQ(result.Output, "");
        EXPECT_EQ(GetIniValue(result.Document, "QI_Global", first + "key", "absent"), "v");
    }
}

TEST(Decoding, TakesUtf16LittleEndianWhoseSecondUnitIsNulForUtf32) {
    const ReadResult result = Read(Utf16LeMark + Bytes({0, 0, 'k', 0, 0, 0, '=', 0, 0, 0}));
    EXPECT_EQ(result.Output, Note("UTF-32 Little Endian"));
    EXPECT_EQ(Shown(result.Document), (ShownLines{"[QI_Global]", "k="}));
}

TEST(Decoding, TakesAMarkOfUtf16BigEndianWithAnyPairBehindIt) {
    const ReadResult result = Read(Utf16BeMark + Bytes({0, 0}) + Utf16("=v", false));
    EXPECT_EQ(result.Output, Note("UTF-16 Big Endian"));
    EXPECT_EQ(GetIniValue(result.Document, "QI_Global", std::string(1, '\0'), "absent"), "v");
}

TEST(Decoding, HonoursSurrogatePairsAndLongSequences) {
    const std::vector<std::uint32_t> utf16{'k', '=', 0xFC, 0x20AC, 0xD83D, 0xDE00};
    const std::vector<std::uint32_t> utf32{'k', '=', 0xFC, 0x20AC, 0x1F600};
    const ShownLines expected{"[QI_Global]", "k=\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80"};
    for (const bool little : {true, false}) {
        EXPECT_EQ(
            Shown(Read((little ? Utf16LeMark : Utf16BeMark) + Units(utf16, 2, little)).Document), expected);
        EXPECT_EQ(
            Shown(Read((little ? Utf32LeMark : Utf32BeMark) + Units(utf32, 4, little)).Document), expected);
    }
}

TEST(Decoding, DropsALastUnitThatIsCutShort) {
    const ShownLines expected{"[QI_Global]", "k=v"};
    for (std::size_t more = 1; more < 4; ++more) {
        const std::string rest(more, 'x');
        EXPECT_EQ(Shown(Read(Utf32LeMark + Utf32("k=v", true) + rest).Document), expected);
        EXPECT_EQ(Shown(Read(Utf32BeMark + Utf32("k=v", false) + rest).Document), expected);
    }
    EXPECT_EQ(Shown(Read(Utf16LeMark + Utf16("k=v", true) + "x").Document), expected);
    EXPECT_EQ(Shown(Read(Utf16BeMark + Utf16("k=v", false) + "x").Document), expected);
}

TEST(Decoding, ReadsAMarkWithLessThanAUnitBehindItAsNothing) {
    const ReadResult result = Read(Utf32LeMark + "ab");
    EXPECT_TRUE(result.Success);
    EXPECT_EQ(result.Output, Note("UTF-32 Little Endian"));
    EXPECT_EQ(result.Document, IniDocument());
}

TEST(Decoding, RefusesInvalidUtf16) {
    const std::vector<std::vector<std::uint32_t>> invalid{
        {'k', '=', 0xD800},         // a high surrogate at the end
        {'k', '=', 0xD800, 'a'},    // one before another character
        {'k', '=', 0xDC00, 'a'},    // a low one alone
        {'k', '=', 0xD800, 0xD800}, // two high ones
        {'k', '=', 0xDC00, 0xD800}, // a pair the wrong way round
    };
    for (const auto &units : invalid) {
        EXPECT_THROW(Read(Utf16LeMark + Units(units, 2, true)), std::range_error);
        EXPECT_THROW(Read(Utf16BeMark + Units(units, 2, false)), std::range_error);
    }
}

TEST(Decoding, RefusesASurrogatePairWhoseLowHalfIsCutShort) {
    EXPECT_THROW(Read(Utf16LeMark + Units({'k', '=', 0xD83D}, 2, true) + "x"), std::range_error);
}

TEST(Decoding, RefusesInvalidUtf32) {
    for (const std::uint32_t unit : {0x110000U, 0xFFFFFFFFU, 0xD800U, 0xDFFFU}) {
        EXPECT_THROW(Read(Utf32LeMark + Units({'k', '=', unit}, 4, true)), std::range_error)
            << std::hex << unit;
        EXPECT_THROW(Read(Utf32BeMark + Units({'k', '=', unit}, 4, false)), std::range_error)
            << std::hex << unit;
    }
}

TEST(Decoding, TakesTheLastCodePointOfUtf32) {
    const ReadResult result = Read(Utf32LeMark + Units({'k', '=', 0x10FFFF}, 4, true));
    EXPECT_EQ(GetIniValue(result.Document, "QI_Global", "k", ""), "\xF4\x8F\xBF\xBF");
}

TEST(Decoding, LeavesTheDocumentAloneWhenItThrows) {
    const ScratchFile file;
    file.Fill(Utf16LeMark + Units({'k', '=', 'v', '\n', 0xDC00}, 2, true));
    IniDocument document;
    OutputCatcher output;
    EXPECT_THROW(ReadIniFile(document, file.Path()), std::range_error);
    EXPECT_EQ(output.Text(), Note("UTF-16 Little Endian")); // the note comes first
    EXPECT_EQ(document, IniDocument());
}

TEST(Decoding, TakesUtf8AsItIsValidOrNot) {
    // Cut short, overlong, a surrogate, a byte that never stands in UTF-8, a continuation byte alone.
    for (const std::string_view value :
        {"\xE2\x82", "\xC0\x80", "\xED\xA0\x80", "\xFF!", "\x80!", "\xF0\x9F"}) {
        const IniDocument document = ReadQuietly("key=" + std::string(value));
        EXPECT_EQ(GetIniValue(document, "QI_Global", "key", ""), value);
    }
}
