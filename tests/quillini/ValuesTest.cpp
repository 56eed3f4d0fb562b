#include "tests/quillini/IniTest.hpp"

using namespace quillINI;

TEST(GetIniValue, GivesTheDefaultForAnAbsentSectionAndForAnAbsentKey) {
    IniDocument document;
    SetIniValue(document, "Present", "Key", "value", false);
    EXPECT_EQ(GetIniValue(document, "Absent", "Key", "default"), "default");
    EXPECT_EQ(GetIniValue(document, "Present", "Absent", "default"), "default");
    EXPECT_EQ(GetIniValue(document, "Present", "Key", "default"), "value");
}

TEST(GetIniValue, PrefersAPresentEmptyValueToTheDefault) {
    IniDocument document;
    SetIniValue(document, "S", "Key", "", false);
    EXPECT_EQ(GetIniValue(document, "S", "Key", "default"), "");
}

TEST(GetIniValue, DoesNotLookAtTheKind) {
    IniDocument document;
    IniSection &global = document.Sections[0];
    AddIniArrayElement(global, "Array", "x", false, false, "", "", false);
    AddIniComment(global, "QI_C_1", "a comment");
    AddIniEmptyLine(global, "QI_EL_1");
    EXPECT_EQ(GetIniValue(document, "QI_Global", "Array", "default"), "");
    EXPECT_EQ(GetIniValue(document, "QI_Global", "QI_C_1", "default"), "a comment");
    EXPECT_EQ(GetIniValue(document, "QI_Global", "QI_EL_1", "default"), "");
}

TEST(SetIniValue, AppendsTheSectionAndTheKey) {
    IniDocument document;
    SetIniValue(document, "B", "x", "1", false);
    SetIniValue(document, "A", "y", "2", true);
    SetIniValue(document, "B", "w", "3", false);
    EXPECT_EQ(Shown(document), (ShownLines{"[QI_Global]", "[B]", "x=1", "w=3", "[A]", "y=\"2\""}));
}

TEST(SetIniValue, KeepsPlaceAndCommentOfAPresentKey) {
    IniDocument document = ReadQuietly("[S]\n;one\na=1 ;note\n\nb=2\n");
    SetIniValue(document, "S", "a", "new", true);
    EXPECT_EQ(Shown(document),
        (ShownLines{"[QI_Global]", "[S]", "# QI_C_1=one", "a=\"new\" ;note", "- QI_EL_1", "b=2"}));
    SetIniValue(document, "S", "a", "plain again", false);
    EXPECT_EQ(Shown(document)[3], "a=plain again ;note");
}

TEST(SetIniString, SetsAQuotedValue) {
    IniDocument document;
    SetIniString(document, "Audio", "MasterVolume", "100");
    SetIniString(document, "Audio", "MasterVolume", "75");
    EXPECT_EQ(Shown(document), (ShownLines{"[QI_Global]", "[Audio]", "MasterVolume=\"75\""}));
}

TEST(AddIniValue, WorksWithinOneSection) {
    IniSection section;
    EXPECT_EQ(AddIniValue(section, "a", "1", false).Kind, IniEntryKind::Value);
    AddIniValue(section, "b", "2", true);
    EXPECT_EQ(AddIniValue(section, "a", "3", true).Value, "3");
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a=\"3\"", "b=\"2\""}));
}

TEST(AddIniValue, LeavesAnArrayAnArray) {
    IniSection section;
    AddIniArrayElement(section, "a", "x", false, false, "", "", false);
    AddIniValue(section, "a", "plain", false);
    ASSERT_EQ(section.Entries.size(), 1U);
    EXPECT_EQ(section.Entries[0].Kind, IniEntryKind::Array);
    EXPECT_EQ(section.Entries[0].Value, "plain");
    EXPECT_EQ(section.Entries[0].Elements.size(), 1U);
}

TEST(EntryComment, IsSetByATextAndTakenAwayByAnEmptyOne) {
    IniEntry entry;
    SetIniEntryComment(entry, "first");
    EXPECT_EQ(entry.Comment, "first");
    SetIniEntryComment(entry, " second");
    EXPECT_EQ(entry.Comment, " second");
    SetIniEntryComment(entry, "");
    EXPECT_EQ(entry.Comment, std::nullopt);
}

TEST(SectionComment, IsSetByATextAndTakenAwayByAnEmptyOne) {
    IniSection section;
    SetIniSectionComment(section, "first");
    EXPECT_EQ(section.Comment, "first");
    SetIniSectionComment(section, "");
    EXPECT_EQ(section.Comment, std::nullopt);
}

TEST(Texts, MayComeFromTheDocumentThatTheyGoInto) {
    IniDocument document;
    SetIniValue(document, "S", "a", "text", false);
    for (int i = 0; i < 20; ++i) {
        const std::string number = std::to_string(i);
        IniSection &section = document.Sections[1];
        AddIniValue(section, "v" + number, section.Entries[0].Value, false);
        AddIniArrayElement(section, "l" + number, section.Entries[0].Value, false, true,
            section.Entries[0].Value, section.Entries[0].Key, true);
        AddIniComment(section, "c" + number, section.Entries[0].Value, IniInsertPosition::AfterKey,
            section.Entries[0].Key);
        SetIniValue(document, "T" + number, document.Sections[1].Name, document.Sections[1].Name, false);
        EXPECT_EQ(GetIniValue(document, "S", "v" + number, ""), "text");
        EXPECT_EQ(GetIniValue(document, "S", "c" + number, ""), "text");
        EXPECT_EQ(GetIniValue(document, "T" + number, "S", ""), "S");
        EXPECT_EQ(Shown(document.Sections[1]).back(), "l" + number + "[a]=text ;text");
    }
}
