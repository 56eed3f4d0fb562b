#include "tests/quillini/IniTest.hpp"

#include "tests/support/FileSizeLimit.hpp"
#include "tests/support/SpecialFiles.hpp"

#include <filesystem>
#include <stdexcept>

using namespace quillINI;

namespace {

/// Global keys, a section with all kinds of lines, an empty one and another.
IniDocument FullDocument() {
    IniDocument document;
    SetIniValue(document, "QI_Global", "g", "1", false);
    SetIniValue(document, "S", "plain", "a b", false);
    SetIniValue(document, "S", "quoted", "c d", true);
    IniSection &section = document.Sections[1];
    SetIniSectionComment(section, "about S");
    SetIniEntryComment(section.Entries[0], "about plain");
    AddIniComment(section, "QI_C_1", "text");
    AddIniEmptyLine(section, "QI_EL_1");
    AddIniArrayElement(section, "list", "x", false, false, "", "", false);
    AddIniArrayElement(section, "list", "y", true, true, "about y", "", false);
    IniSection empty;
    empty.Name = "Empty";
    document.Sections.push_back(empty);
    SetIniValue(document, "T", "last", "2", false);
    return document;
}

IniDocument OneEntry(IniEntry Entry) {
    IniDocument document;
    document.Sections[0].Entries.push_back(std::move(Entry));
    return document;
}

IniEntry EntryOf(IniEntryKind Kind) {
    IniEntry entry;
    entry.Kind = Kind;
    entry.Key = "key";
    return entry;
}

} // namespace

TEST(Writer, WritesADocumentDensely) {
    EXPECT_EQ(Written(FullDocument()), "g=1\r\n"
                                       "[S]; about S\r\n"
                                       "plain=a b; about plain\r\n"
                                       "quoted=\"c d\"\r\n"
                                       "; text\r\n"
                                       "\r\n"
                                       "list[]=x\r\n"
                                       "list[]=\"y\"; about y\r\n"
                                       "[Empty]\r\n"
                                       "[T]\r\n"
                                       "last=2");
}

TEST(Writer, WritesADocumentSpaced) {
    EXPECT_EQ(Written(FullDocument(), true), "g = 1\r\n\r\n"
                                             "[S] ; about S\r\n"
                                             "plain = a b ; about plain\r\n"
                                             "quoted = \"c d\"\r\n"
                                             "; text\r\n"
                                             "\r\n"
                                             "list[] = x\r\n"
                                             "list[] = \"y\" ; about y\r\n\r\n"
                                             "[Empty]\r\n\r\n"
                                             "[T]\r\n"
                                             "last = 2\r\n");
}

TEST(Writer, TakesItsSignsFromTheDocument) {
    IniDocument document = FullDocument();
    document.LineEnd = "\n";
    document.CommentChar = '#';
    document.StringChar = '\'';
    document.KeyValueSeparator = ':';
    EXPECT_EQ(Written(document),
        "g:1\n[S]# about S\nplain:a b# about plain\nquoted:'c d'\n# text\n\nlist[]:x\n"
        "list[]:'y'# about y\n[Empty]\n[T]\nlast:2");
}

TEST(Writer, WritesNothingForAFreshDocument) {
    EXPECT_EQ(Written(IniDocument()), "");
    EXPECT_EQ(Written(IniDocument(), true), "");
}

TEST(Writer, WritesAFirstSectionWithoutALineEndBeforeIt) {
    IniDocument document;
    SetIniValue(document, "S", "a", "1", false);
    EXPECT_EQ(Written(document), "[S]\r\na=1");
    document.Sections.erase(document.Sections.begin());
    EXPECT_EQ(Written(document), "[S]\r\na=1");
}

TEST(Writer, WritesNoHeaderForEitherSpellingOfTheGlobalSection) {
    IniDocument document;
    document.Sections.clear();
    SetIniValue(document, "qi_global", "a", "1", false);
    SetIniValue(document, "qi_global", "b", "2", false);
    SetIniValue(document, "QI_GLOBAL", "c", "3", false);
    EXPECT_EQ(Written(document), "a=1\r\nb=2\r\n[QI_GLOBAL]\r\nc=3");
}

TEST(Writer, JoinsALaterGlobalSectionToTheLineBeforeIt) {
    IniDocument document;
    SetIniValue(document, "S", "a", "1", false);
    SetIniValue(document, "qi_global", "b", "2", false);
    EXPECT_EQ(Written(document), "[S]\r\na=1b=2");
}

TEST(Writer, WritesNoCommentOfTheGlobalSection) {
    IniDocument document;
    SetIniSectionComment(document.Sections[0], "unseen");
    SetIniValue(document, "QI_Global", "a", "1", false);
    EXPECT_EQ(Written(document), "a=1");
}

TEST(Writer, EscapesNamesKeysValuesAndComments) {
    IniDocument document;
    SetIniValue(document, "S\xC3\xBC", "k\xC3\xA4", "v\xC3\xB6 \xF0\x9F\x98\x80 \"q\" \\", true);
    SetIniSectionComment(document.Sections[1], "\xC3\x9F\"");
    SetIniEntryComment(document.Sections[1].Entries[0], "\xE2\x82\xAC\\");
    AddIniComment(document.Sections[1], "QI_C_1", "\"\xC3\x84\" \\");
    AddIniArrayElement(document.Sections[1], "l\xC3\xA4", "\t", false, true, "\n", "", false);
    document.LineEnd = "\n";
    EXPECT_EQ(Written(document), "[S\\x00fc]; \\x00df\\\"\n"
                                 "k\\x00e4=\"v\\x00f6 \\xd83d\\xde00 \\\"q\\\" \\\\\"; \\x20ac\\\\\n"
                                 "; \\\"\\x00c4\\\" \\\\\n"
                                 "l\\x00e4[]=\\t; \\n");
}

TEST(Writer, LeavesQuotesAndBackslashesOfARawCommentAlone) {
    IniDocument document;
    AddIniComment(
        document.Sections[0], "QI_C_1", "C:\\path \"\xC3\xBC\"\t", IniInsertPosition::Back, "", true);
    EXPECT_EQ(Written(document), "; C:\\path \"\\x00fc\"\\t");
}

TEST(Writer, WritesOwnCommentsOfValuesAndElementsOnly) {
    for (const IniEntryKind kind : {IniEntryKind::EmptyLine, IniEntryKind::Comment, IniEntryKind::Array}) {
        IniEntry entry = EntryOf(kind);
        entry.Comment = "unseen";
        if (kind == IniEntryKind::Array) {
            entry.Elements.push_back(EntryOf(IniEntryKind::Value));
        }
        const std::string expected = kind == IniEntryKind::EmptyLine ? ""
                                     : kind == IniEntryKind::Array   ? "key[]="
                                                                     : "; ";
        EXPECT_EQ(Written(OneEntry(entry)), expected);
    }
}

TEST(Writer, WritesACommentThatIsThereButEmpty) {
    IniEntry entry = EntryOf(IniEntryKind::Value);
    entry.Comment = "";
    EXPECT_EQ(Written(OneEntry(entry)), "key=; ");
}

TEST(Writer, WritesElementsOfArraysOnly) {
    IniEntry entry = EntryOf(IniEntryKind::Value);
    entry.Elements.push_back(EntryOf(IniEntryKind::Value));
    EXPECT_EQ(Written(OneEntry(entry)), "key=");
}

TEST(Writer, SpellsIndexesOutWhereTheyAreAskedFor) {
    IniDocument document;
    SetIniValue(document, "QI_Global", "a", "1", false);
    IniSection &section = document.Sections[0];
    AddIniArrayElement(section, "l", "x", false, false, "", "5", true);
    AddIniArrayElement(section, "l", "y", false, false, "", "w\xC3\xBC", true);
    EXPECT_EQ(Written(document), "a=1\r\nl[]=x\r\nl[]=y");
    section.Entries[1].WriteIndexes = true;
    EXPECT_EQ(Written(document), "a=1\r\nl[5]=x\r\nl[w\\x00fc]=y");
}

TEST(Writer, PutsAnArrayThatIsTheVeryFirstEntryOnOneLine) {
    IniDocument document;
    for (const std::string_view value : {"x", "y", "z"}) {
        AddIniArrayElement(document.Sections[0], "l", value, false, false, "", "", false);
    }
    SetIniValue(document, "QI_Global", "a", "1", false);
    EXPECT_EQ(Written(document), "l[]=xl[]=yl[]=z\r\na=1");
    EXPECT_EQ(Written(document, true), "l[] = xl[] = yl[] = z\r\na = 1\r\n");
}

TEST(Writer, PutsAnArrayThatIsFirstUnderAHeaderOnLinesOfItsOwn) {
    IniDocument document;
    SetIniValue(document, "S", "a", "1", false);
    document.Sections[1].Entries.clear();
    for (const std::string_view value : {"x", "y"}) {
        AddIniArrayElement(document.Sections[1], "l", value, false, false, "", "", false);
    }
    EXPECT_EQ(Written(document), "[S]\r\nl[]=x\r\nl[]=y");
}

TEST(Writer, WritesNothingForAnArrayWithoutElements) {
    const IniDocument document = OneEntry(EntryOf(IniEntryKind::Array));
    EXPECT_EQ(Written(document), "");
    EXPECT_EQ(Written(document, true), "") << "there is no last element to put a line end behind";
}

TEST(Writer, WritesNothingForABlankLineThatIsTheVeryFirst) {
    IniDocument document;
    AppendIniEmptyLine(document, "");
    EXPECT_EQ(Written(document), "");
    SetIniValue(document, "S", "a", "1", false);
    EXPECT_EQ(Written(document), "[S]\r\na=1") << "the file was still empty before the header";
    SetIniValue(document, "QI_Global", "b", "2", false);
    EXPECT_EQ(Written(document), "\r\nb=2\r\n[S]\r\na=1");
}

TEST(Writer, AddsNoLineEndBehindALastBlankLine) {
    IniDocument document;
    SetIniValue(document, "S", "a", "1", false);
    AppendIniEmptyLine(document, "S");
    SetIniValue(document, "T", "b", "2", false);
    EXPECT_EQ(Written(document, true), "[S]\r\na = 1\r\n\r\n[T]\r\nb = 2\r\n");
    EXPECT_EQ(Written(document), "[S]\r\na=1\r\n\r\n[T]\r\nb=2");
}

TEST(Writer, AddsALineEndBehindALastCommentLine) {
    IniDocument document;
    AddIniComment(document.Sections[0], "QI_C_1", "only");
    EXPECT_EQ(Written(document, true), "; only\r\n");
}

TEST(Writer, ReplacesAnOldFile) {
    const ScratchFile file;
    file.Fill("something much longer than what is written now");
    IniDocument document;
    SetIniValue(document, "QI_Global", "a", "1", false);
    EXPECT_TRUE(WriteIniFile(document, file.Path(), false, IniEncoding::Utf8));
    EXPECT_EQ(file.Bytes(), "a=1");
}

TEST(Writer, ReportsAFileThatCannotBeOpened) {
    const ScratchFile file;
    for (const std::string &path :
        {file.Path() + "/absent/file.ini", std::filesystem::temp_directory_path().string()}) {
        OutputCatcher output;
        EXPECT_FALSE(WriteIniFile(FullDocument(), path, false, IniEncoding::Utf8));
        EXPECT_EQ(output.Text(), "Unable to write INI file: " + path + "\n");
    }
}

TEST(Writer, ReportsWhateverIsNoRegularFileAndLeavesIt) {
    const TimeLimit limit;
    for (const SpecialFile &special : SpecialFiles) {
        const ScratchFile file;
        special.Make(file.Path());
        OutputCatcher output;
        EXPECT_FALSE(WriteIniFile(FullDocument(), file.Path(), false, IniEncoding::Utf8)) << special.Kind;
        EXPECT_EQ(output.Text(), "Unable to write INI file: " + file.Path() + "\n") << special.Kind;
        EXPECT_TRUE(IsSpecialFile(file.Path())) << special.Kind;
    }
}

TEST(Writer, WritesThroughALinkToARegularFile) {
    if (!LinksCanBeMade) {
        GTEST_SKIP() << "the system's C++ library makes no links";
    }
    const ScratchFile file;
    const ScratchFile link("link.ini");
    file.Fill("something longer than what is written now");
    std::filesystem::create_symlink(file.Path(), link.Path());
    IniDocument document;
    SetIniValue(document, "QI_Global", "a", "1", false);
    EXPECT_TRUE(WriteIniFile(document, link.Path(), false, IniEncoding::Utf8));
    EXPECT_EQ(file.Bytes(), "a=1");
    EXPECT_TRUE(std::filesystem::is_symlink(link.Path()));
}

TEST(Writer, TakesAFileNameInUtf8) {
    const ScratchFile file("\xC3\xBC\xE2\x82\xAC.ini");
    IniDocument document;
    SetIniValue(document, "QI_Global", "a", "1", false);
    EXPECT_TRUE(WriteIniFile(document, file.Path(), false, IniEncoding::Utf8));
    EXPECT_EQ(file.Bytes(), "a=1");
}

TEST(Writer, DoesNotLookAtWriteErrors) {
    if (!FileSizeLimit::Exists) {
        GTEST_SKIP() << "the system limits no process's files";
    }
    const ScratchFile file;
    IniDocument document = FullDocument();
    SetIniValue(document, "Big", "value", std::string(100000, 'x'), false);
    const FileSizeLimit disk(50000);
    EXPECT_TRUE(WriteIniFile(document, file.Path(), false, IniEncoding::Utf8));
    EXPECT_EQ(file.Bytes().size(), 50000U);
}

TEST(Writer, LeavesAPartialFileBehindInvalidText) {
    const ScratchFile file;
    IniDocument document;
    SetIniValue(document, "S", "good", "1", false);
    SetIniValue(document, "S", "bad", "\xFF", false);
    SetIniValue(document, "S", "unseen", "1", false);
    EXPECT_EQ(MessageOf<std::runtime_error>([&] {
        WriteIniFile(document, file.Path(), false, IniEncoding::Utf8);
    }),
        "Invalid UTF-8 sequence!");
    EXPECT_EQ(file.Bytes(), "[S]\r\ngood=1");
}

TEST(Writer, WritesTheOptionsFileOfTheGame) {
    IniDocument document;
    SetIniString(document, "Options", "ControlsDevice", "keyboard");
    SetIniString(document, "Options", "Language", "en");
    AppendIniEmptyLine(document, "Options");
    SetIniString(document, "ControlsKeyboard", "MoveLeft", "80");
    AppendIniEmptyLine(document, "ControlsKeyboard");
    SetIniString(document, "Audio", "SfxEnabled", "1");
    EXPECT_EQ(Written(document), "[Options]\r\nControlsDevice=\"keyboard\"\r\nLanguage=\"en\"\r\n\r\n"
                                 "[ControlsKeyboard]\r\nMoveLeft=\"80\"\r\n\r\n[Audio]\r\nSfxEnabled=\"1\"");
}
