#include "tests/quillini/IniTest.hpp"

#include <stdexcept>

using namespace quillINI;

namespace {

IniSection SectionWithTwoKeys() {
    IniSection section;
    AddIniValue(section, "a", "1", false);
    AddIniValue(section, "b", "2", false);
    return section;
}

} // namespace

TEST(AddIniComment, GoesToEachPosition) {
    const struct {
        IniInsertPosition Position;
        std::string_view ReferenceKey;
        ShownLines Expected;
    } rows[] = {
        {IniInsertPosition::Front, "", {"[]", "# QI_C_1=text", "a=1", "b=2"}},
        {IniInsertPosition::Back, "", {"[]", "a=1", "b=2", "# QI_C_1=text"}},
        {IniInsertPosition::BeforeKey, "b", {"[]", "a=1", "# QI_C_1=text", "b=2"}},
        {IniInsertPosition::BeforeKey, "a", {"[]", "# QI_C_1=text", "a=1", "b=2"}},
        {IniInsertPosition::AfterKey, "a", {"[]", "a=1", "# QI_C_1=text", "b=2"}},
        {IniInsertPosition::AfterKey, "b", {"[]", "a=1", "b=2", "# QI_C_1=text"}},
    };
    for (const auto &row : rows) {
        IniSection section = SectionWithTwoKeys();
        AddIniComment(section, "QI_C_1", "text", row.Position, row.ReferenceKey);
        EXPECT_EQ(Shown(section), row.Expected);
    }
}

TEST(AddIniEmptyLine, GoesToEachPosition) {
    const struct {
        IniInsertPosition Position;
        std::string_view ReferenceKey;
        ShownLines Expected;
    } rows[] = {
        {IniInsertPosition::Front, "", {"[]", "- QI_EL_1", "a=1", "b=2"}},
        {IniInsertPosition::Back, "", {"[]", "a=1", "b=2", "- QI_EL_1"}},
        {IniInsertPosition::BeforeKey, "b", {"[]", "a=1", "- QI_EL_1", "b=2"}},
        {IniInsertPosition::AfterKey, "b", {"[]", "a=1", "b=2", "- QI_EL_1"}},
    };
    for (const auto &row : rows) {
        IniSection section = SectionWithTwoKeys();
        AddIniEmptyLine(section, "QI_EL_1", row.Position, row.ReferenceKey);
        EXPECT_EQ(Shown(section), row.Expected);
    }
}

TEST(AddIniComment, KeepsTheRawFlag) {
    IniSection section;
    AddIniComment(section, "QI_C_1", "raw", IniInsertPosition::Back, "", true);
    AddIniComment(section, "QI_C_2", "escaped", IniInsertPosition::Back, "", false);
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "# QI_C_1!=raw", "# QI_C_2=escaped"}));
}

TEST(ReservedLines, AreSwallowedByAKeyThatIsTaken) {
    IniSection section;
    AddIniValue(section, "QI_C_1", "mine", false);
    AddIniComment(section, "QI_C_1", "text");
    AddIniEmptyLine(section, "QI_C_1");
    // Not even the reference key is looked for.
    AddIniComment(section, "QI_C_1", "text", IniInsertPosition::BeforeKey, "absent");
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "QI_C_1=mine"}));
}

TEST(ReservedLines, NeedAReferenceKeyThatIsThere) {
    for (const auto position : {IniInsertPosition::BeforeKey, IniInsertPosition::AfterKey}) {
        IniSection section = SectionWithTwoKeys();
        EXPECT_EQ(MessageOf<std::runtime_error>([&] {
            AddIniComment(section, "QI_C_1", "t", position, "c");
        }),
            "\"c\" could not be found!");
        EXPECT_EQ(MessageOf<std::runtime_error>([&] {
            AddIniComment(section, "QI_C_1", "t", position);
        }),
            "\"\" could not be found!");
        EXPECT_EQ(MessageOf<std::runtime_error>([&] {
            AddIniEmptyLine(section, "QI_EL_1", position, "Long Key");
        }),
            "\"Long Key\" could not be found!");
        EXPECT_EQ(MessageOf<std::runtime_error>([&] {
            AddIniEmptyLine(section, "QI_EL_1", position);
        }),
            "\"\" could not be found!");
        EXPECT_EQ(Shown(section), (ShownLines{"[]", "a=1", "b=2"}));
    }
}

TEST(ReservedLines, TakeAnEmptyReferenceKeyForNoneEvenIfAnEntryHasIt) {
    IniSection section;
    AddIniValue(section, "", "1", false);
    EXPECT_THROW(AddIniComment(section, "QI_C_1", "t", IniInsertPosition::AfterKey), std::runtime_error);
}

TEST(AppendIniEmptyLine, CountsPerSection) {
    IniDocument document;
    SetIniValue(document, "S", "a", "1", false);
    AppendIniEmptyLine(document, "S");
    AppendIniEmptyLine(document, "S");
    AppendIniEmptyLine(document, "");
    AppendIniEmptyLine(document, "QI_Global");
    EXPECT_EQ(Shown(document),
        (ShownLines{"[QI_Global]", "- QI_EL_1", "- QI_EL_2", "[S]", "a=1", "- QI_EL_1", "- QI_EL_2"}));
    EXPECT_EQ(document.Sections[0].EmptyLineCount, 2);
    EXPECT_EQ(document.Sections[1].EmptyLineCount, 2);
    EXPECT_EQ(document.Sections[1].CommentCount, 0);
}

TEST(AppendIniEmptyLine, DoesNothingInAnAbsentSection) {
    IniDocument document;
    AppendIniEmptyLine(document, "Absent");
    EXPECT_EQ(document, IniDocument());
    document.Sections.clear();
    AppendIniEmptyLine(document, "");
    EXPECT_TRUE(document.Sections.empty());
}

TEST(AppendIniEmptyLine, CountsAlsoWhenAKeySwallowsTheLine) {
    IniDocument document;
    SetIniValue(document, "S", "QI_EL_1", "mine", false);
    AppendIniEmptyLine(document, "S");
    AppendIniEmptyLine(document, "S");
    EXPECT_EQ(Shown(document), (ShownLines{"[QI_Global]", "[S]", "QI_EL_1=mine", "- QI_EL_2"}));
}
