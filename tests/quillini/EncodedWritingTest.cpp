#include "tests/quillini/IniTest.hpp"

#include <sstream>
#include <stdexcept>

using namespace quillINI;

namespace {

std::string Encoded(std::string_view Text, IniEncoding Encoding) {
    std::ostringstream file;
    WriteIniEncoded(Text, file, Encoding);
    return file.str();
}

IniDocument SmallDocument() {
    IniDocument document;
    SetIniValue(document, "S", "a", "1", false);
    document.LineEnd = "\n";
    return document;
}

} // namespace

TEST(WriteIniEncoded, WritesEachEncoding) {
    const std::string text = "a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80"; // a, U+FC, U+20AC, U+1F600
    const struct {
        IniEncoding Encoding;
        std::string Expected;
    } rows[] = {
        {IniEncoding::Utf8, text},
        {IniEncoding::Utf8Bom, text},
        {IniEncoding::Utf16Le, Bytes({'a', 0, 0xFC, 0, 0xAC, 0x20, 0x3D, 0xD8, 0x00, 0xDE})},
        {IniEncoding::Utf16Be, Bytes({0, 'a', 0, 0xFC, 0x20, 0xAC, 0xD8, 0x3D, 0xDE, 0x00})},
        {IniEncoding::Utf32Le, Bytes({'a', 0, 0, 0, 0xFC, 0, 0, 0, 0xAC, 0x20, 0, 0, 0x00, 0xF6, 0x01, 0})},
        {IniEncoding::Utf32Be, Bytes({0, 0, 0, 'a', 0, 0, 0, 0xFC, 0, 0, 0x20, 0xAC, 0, 0x01, 0xF6, 0x00})},
        {static_cast<IniEncoding>(6), ""},
        {static_cast<IniEncoding>(255), ""},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(Encoded(text, row.Encoding), row.Expected) << static_cast<int>(row.Encoding);
        EXPECT_EQ(Encoded("", row.Encoding), "");
    }
}

TEST(WriteIniEncoded, KeepsNulBytes) {
    const std::string text("a\0b", 3);
    EXPECT_EQ(Encoded(text, IniEncoding::Utf8), text);
    EXPECT_EQ(Encoded(text, IniEncoding::Utf16Le), Bytes({'a', 0, 0, 0, 'b', 0}));
    EXPECT_EQ(Encoded(text, IniEncoding::Utf32Be), Bytes({0, 0, 0, 'a', 0, 0, 0, 0, 0, 0, 0, 'b'}));
}

TEST(WriteIniEncoded, RefusesInvalidTextWhereItConverts) {
    for (const std::string_view text : {"\xFF", "\xC3", "\xE2\x82", "a\x80", "\xC0\x80"}) {
        EXPECT_EQ(Encoded(text, IniEncoding::Utf8), text);
        for (const auto encoding :
            {IniEncoding::Utf16Le, IniEncoding::Utf16Be, IniEncoding::Utf32Le, IniEncoding::Utf32Be}) {
            EXPECT_THROW(Encoded(text, encoding), std::range_error);
        }
    }
}

TEST(EncodedFile, BeginsWithItsMarkAndHasNoLineEndBeforeTheFirstHeader) {
    const struct {
        IniEncoding Encoding;
        std::string Expected;
    } rows[] = {
        {IniEncoding::Utf8, "[S]\na=1"},
        {IniEncoding::Utf8Bom, Bytes({0xEF, 0xBB, 0xBF}) + "[S]\na=1"},
        {IniEncoding::Utf16Le, Bytes({0xFF, 0xFE, '[', 0, 'S', 0, ']', 0, '\n', 0, 'a', 0, '=', 0, '1', 0})},
        {IniEncoding::Utf16Be, Bytes({0xFE, 0xFF, 0, '[', 0, 'S', 0, ']', 0, '\n', 0, 'a', 0, '=', 0, '1'})},
        {IniEncoding::Utf32Le, Bytes({0xFF, 0xFE, 0, 0, '[', 0, 0, 0, 'S', 0, 0, 0, ']', 0, 0, 0, '\n', 0, 0,
                                   0, 'a', 0, 0, 0, '=', 0, 0, 0, '1', 0, 0, 0})},
        {IniEncoding::Utf32Be, Bytes({0, 0, 0xFE, 0xFF, 0, 0, 0, '[', 0, 0, 0, 'S', 0, 0, 0, ']', 0, 0, 0,
                                   '\n', 0, 0, 0, 'a', 0, 0, 0, '=', 0, 0, 0, '1'})},
        {static_cast<IniEncoding>(6), ""},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(Written(SmallDocument(), false, row.Encoding), row.Expected)
            << static_cast<int>(row.Encoding);
    }
}

TEST(EncodedFile, OfAFreshDocumentIsTheMarkAlone) {
    EXPECT_EQ(Written(IniDocument(), false, IniEncoding::Utf8), "");
    EXPECT_EQ(Written(IniDocument(), false, IniEncoding::Utf8Bom), Bytes({0xEF, 0xBB, 0xBF}));
    EXPECT_EQ(Written(IniDocument(), false, IniEncoding::Utf16Le), Bytes({0xFF, 0xFE}));
    EXPECT_EQ(Written(IniDocument(), false, IniEncoding::Utf16Be), Bytes({0xFE, 0xFF}));
    EXPECT_EQ(Written(IniDocument(), false, IniEncoding::Utf32Le), Bytes({0xFF, 0xFE, 0, 0}));
    EXPECT_EQ(Written(IniDocument(), false, IniEncoding::Utf32Be), Bytes({0, 0, 0xFE, 0xFF}));
}

TEST(EncodedFile, HasALineEndBeforeAHeaderBehindGlobalEntries) {
    IniDocument document = SmallDocument();
    SetIniValue(document, "QI_Global", "b", "2", false);
    EXPECT_EQ(Written(document, false, IniEncoding::Utf8Bom), Bytes({0xEF, 0xBB, 0xBF}) + "b=2\n[S]\na=1");
}
