#include "tests/quillini/IniTest.hpp"

using namespace quillINI;

namespace {

/// The document as it comes back from its file.
IniDocument Reread(const IniDocument &Document, bool Spaced, IniEncoding Encoding) {
    ReadResult result = Read(Written(Document, Spaced, Encoding));
    EXPECT_TRUE(result.Success);
    return result.Document;
}

ShownLines Rewritten(std::string_view File) {
    return Shown(Reread(ReadQuietly(File), false, IniEncoding::Utf8));
}

/// A value as it comes back from a file.
std::string RereadValue(std::string_view Value, bool Quoted) {
    IniDocument document;
    SetIniValue(document, "Section", "key", Value, Quoted);
    return GetIniValue(Reread(document, false, IniEncoding::Utf8), "Section", "key", "absent");
}

} // namespace

TEST(RoundTrip, KeepsADocumentInEveryEncoding) {
    IniDocument document;
    AddIniComment(document.Sections[0], "QI_C_1",
        "gr\xC3\xBC\xC3\x9F"
        "e \xF0\x9F\x98\x80");
    document.Sections[0].CommentCount = 1;
    SetIniValue(document, "QI_Global", "g", "1", false);
    SetIniString(
        document, "S\xC3\xA4", "k\xC3\xB6", "a \"b\" 'c' \\ [d] ; # = : \xE2\x82\xAC \xF0\x9F\x98\x80");
    SetIniSectionComment(document.Sections[1], "about \xC3\xA4");
    SetIniEntryComment(document.Sections[1].Entries[0], "about \xC3\xB6");
    AppendIniEmptyLine(document, "S\xC3\xA4");
    SetIniValue(document, "T", "last", "x", false);
    for (const auto encoding : {IniEncoding::Utf8, IniEncoding::Utf8Bom, IniEncoding::Utf16Le,
             IniEncoding::Utf16Be, IniEncoding::Utf32Le, IniEncoding::Utf32Be}) {
        EXPECT_EQ(Reread(document, false, encoding), document) << static_cast<int>(encoding);
        EXPECT_EQ(Shown(Reread(document, true, encoding)),
            (ShownLines{"[QI_Global]",
                "# QI_C_1=gr\xC3\xBC\xC3\x9F" // NOLINT(bugprone-suspicious-missing-comma): or 9F would go on
                "e \xF0\x9F\x98\x80",
                "g=1", "- QI_EL_1", "[S\xC3\xA4] ;about \xC3\xA4",
                "k\xC3\xB6=\"a \"b\" 'c' \\ [d] ; # = : \xE2\x82\xAC \xF0\x9F\x98\x80\" ;about \xC3\xB6",
                "- QI_EL_1", "[T]", "last=x"}))
            << "a blank line more behind a section that ends in none";
    }
}

TEST(RoundTrip, KeepsQuotedValuesFreeOfControlCharacters) {
    for (const std::string_view value : {"", " ", "a\"b", "\\", "\\\\\"", "a\\nb", "\\x0041", "'", "'a\"",
             "; # [x]", "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80\xF0\x9F\x98\x81", "\x7F", "\x1F",
             "\x01\x07\x0E\x1E", "=", ":"}) {
        EXPECT_EQ(RereadValue(value, true), value);
    }
}

TEST(RoundTrip, BringsControlCharactersBackAsBackslashAndLetter) {
    EXPECT_EQ(RereadValue("a\bb\tc\nd\ve\ff\rg", true), "a\\bb\\tc\\nd\\ve\\ff\\rg");
}

TEST(RoundTrip, LosesNulCharacters) {
    EXPECT_EQ(RereadValue(std::string("a\0b", 3), true), "ab");
}

TEST(RoundTrip, LosesBlanksOfUnquotedValues) {
    EXPECT_EQ(RereadValue(" a b ", false), "ab");
}

TEST(RoundTrip, DoublesBackslashesOfUnquotedValuesAndComments) {
    EXPECT_EQ(RereadValue("a\\b", false), "a\\\\b");
    EXPECT_EQ(Rewritten(";a\\b\nc=1;d\\e\n"), (ShownLines{"[QI_Global]", "# QI_C_1=a\\\\b", "c=1 ;d\\\\e"}));
}

TEST(RoundTrip, KeepsOrderCommentsAndBlankLines) {
    const std::string file =
        "; top\r\n\r\nb=2; two\r\na=\"1\"\r\n\r\n[T]; tee\r\n; x\r\nz=\r\n[S]\r\ny=3\r\n[U]";
    EXPECT_EQ(Written(ReadQuietly(file)), file);
}

TEST(RoundTrip, BringsHashCommentsApostrophesAndBlanksIntoTheWritersForm) {
    EXPECT_EQ(Written(ReadQuietly("#one\n my key : 'v w' #two\n[S] # three\n")),
        "; one\r\nmykey=\"v w\"; two\r\n[S]; three");
}

TEST(RoundTrip, LosesArrayIndexesAndTheFlagOfElementsWithoutComment) {
    EXPECT_EQ(Written(ReadQuietly("[S]\na[3]=\"x\"\na[7]=\"y\";c\nb[]=z\n")),
        "[S]\r\na[]=x\r\na[]=\"y\"; c\r\nb[]=z");
}

TEST(RoundTrip, LosesSectionsWithoutContentExceptTheLast) {
    EXPECT_EQ(Written(ReadQuietly("[A]\n[B]\nx=1\n[C]\n[D]\n")), "[B]\r\nx=1\r\n[D]");
}

TEST(RoundTrip, IsStableFromTheFirstRewriteOn) {
    const std::string once = Written(ReadQuietly("#a\n k = 'v' ; c\n\n[ S ]\nl[]=\"x\"\n"));
    EXPECT_EQ(Written(ReadQuietly(once)), once);
}
