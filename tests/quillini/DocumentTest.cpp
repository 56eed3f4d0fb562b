#include "tests/quillini/IniTest.hpp"

#include <stdexcept>

using namespace quillINI;

namespace {

IniDocument DocumentOf(std::initializer_list<std::string_view> Names) {
    IniDocument document;
    for (const std::string_view name : Names) {
        IniSection section;
        section.Name = name;
        document.Sections.push_back(section);
    }
    return document;
}

} // namespace

TEST(FreshDocument, HasTheGlobalSectionAloneAndEmpty) {
    const IniDocument document;
    ASSERT_EQ(document.Sections.size(), 1U);
    EXPECT_EQ(document.Sections[0].Name, "QI_Global");
    EXPECT_EQ(document.Sections[0].Comment, std::nullopt);
    EXPECT_TRUE(document.Sections[0].Entries.empty());
    EXPECT_EQ(document.Sections[0].CommentCount, 0);
    EXPECT_EQ(document.Sections[0].EmptyLineCount, 0);
}

TEST(FreshDocument, HasTheWritersDefaults) {
    const IniDocument document;
    EXPECT_EQ(document.LineEnd, "\r\n");
    EXPECT_EQ(document.CommentChar, ';');
    EXPECT_EQ(document.StringChar, '\x22');
    EXPECT_EQ(document.KeyValueSeparator, '=');
    EXPECT_EQ(document.Locale, std::locale::classic());
}

TEST(FreshEntry, WritesNeitherIndexesNorRawComments) {
    const IniEntry entry;
    EXPECT_FALSE(entry.RawComment);
    EXPECT_FALSE(entry.WriteIndexes);
    EXPECT_FALSE(entry.Quoted);
    EXPECT_EQ(entry.NextIndex, 0);
    EXPECT_EQ(entry.Comment, std::nullopt);
}

TEST(EntryKinds, AreOneByteWithTheirNumbers) {
    EXPECT_EQ(sizeof(IniEntryKind), 1U);
    EXPECT_EQ(static_cast<int>(IniEntryKind::EmptyLine), 0);
    EXPECT_EQ(static_cast<int>(IniEntryKind::Comment), 1);
    EXPECT_EQ(static_cast<int>(IniEntryKind::Value), 2);
    EXPECT_EQ(static_cast<int>(IniEntryKind::Array), 3);
}

TEST(InsertPositions, AreOneByteWithTheirNumbers) {
    EXPECT_EQ(sizeof(IniInsertPosition), 1U);
    EXPECT_EQ(static_cast<int>(IniInsertPosition::Front), 0);
    EXPECT_EQ(static_cast<int>(IniInsertPosition::Back), 1);
    EXPECT_EQ(static_cast<int>(IniInsertPosition::BeforeKey), 2);
    EXPECT_EQ(static_cast<int>(IniInsertPosition::AfterKey), 3);
}

TEST(Encodings, AreOneByteWithTheirNumbers) {
    EXPECT_EQ(sizeof(IniEncoding), 1U);
    EXPECT_EQ(static_cast<int>(IniEncoding::Utf8), 0);
    EXPECT_EQ(static_cast<int>(IniEncoding::Utf8Bom), 1);
    EXPECT_EQ(static_cast<int>(IniEncoding::Utf16Le), 2);
    EXPECT_EQ(static_cast<int>(IniEncoding::Utf16Be), 3);
    EXPECT_EQ(static_cast<int>(IniEncoding::Utf32Le), 4);
    EXPECT_EQ(static_cast<int>(IniEncoding::Utf32Be), 5);
}

TEST(FindIniSection, GivesTheFirstOfThatNameOrTheEnd) {
    IniDocument document = DocumentOf({"A", "B", "B"});
    EXPECT_EQ(FindIniSection(document, "B") - document.Sections.begin(), 2);
    EXPECT_EQ(FindIniSection(document, "C"), document.Sections.end());
    const IniDocument &constant = document;
    EXPECT_EQ(FindIniSection(constant, "A") - constant.Sections.begin(), 1);
    EXPECT_EQ(FindIniSection(constant, "C"), constant.Sections.end());
}

TEST(FindIniSection, ComparesExactBytes) {
    const IniDocument document = DocumentOf({"Name"});
    EXPECT_FALSE(HasIniSection(document, "name"));
    EXPECT_FALSE(HasIniSection(document, "Name "));
    EXPECT_FALSE(HasIniSection(document, "Nam"));
    EXPECT_TRUE(HasIniSection(document, "Name"));
    EXPECT_TRUE(HasIniSection(document, "QI_Global"));
    EXPECT_FALSE(HasIniSection(document, "qi_global"));
    EXPECT_FALSE(HasIniSection(document, ""));
}

TEST(IniSectionAt, GivesTheSectionOfAnIndex) {
    IniDocument document = DocumentOf({"A", "B"});
    EXPECT_EQ(IniSectionAt(document, 0).Name, "QI_Global");
    EXPECT_EQ(IniSectionAt(document, 2).Name, "B");
    IniSectionAt(document, 1).Name = "C";
    const IniDocument &constant = document;
    EXPECT_EQ(IniSectionAt(constant, 1).Name, "C");
}

TEST(IniSectionAt, RefusesIndexesOutsideOfTheSections) {
    IniDocument document = DocumentOf({"A"});
    const IniDocument &constant = document;
    for (const std::ptrdiff_t index :
        {std::ptrdiff_t{2}, std::ptrdiff_t{3}, std::ptrdiff_t{-1}, PTRDIFF_MIN, PTRDIFF_MAX}) {
        EXPECT_EQ(MessageOf<std::out_of_range>([&] {
            IniSectionAt(document, index);
        }),
            "Index is out of range!");
        EXPECT_EQ(MessageOf<std::out_of_range>([&] {
            IniSectionAt(constant, index);
        }),
            "Index is out of range!");
    }
}

TEST(FindIniEntry, GivesTheFirstOfThatKeyOrTheEnd) {
    IniSection section;
    AddIniValue(section, "a", "1", false);
    AddIniValue(section, "b", "2", false);
    AddIniComment(section, "QI_C_1", "text");
    EXPECT_EQ(FindIniEntry(section, "b")->Value, "2");
    EXPECT_EQ(FindIniEntry(section, "QI_C_1")->Kind, IniEntryKind::Comment);
    EXPECT_EQ(FindIniEntry(section, "B"), section.Entries.end());
    const IniSection &constant = section;
    EXPECT_EQ(FindIniEntry(constant, "a")->Value, "1");
    EXPECT_EQ(FindIniEntry(constant, ""), constant.Entries.end());
}
