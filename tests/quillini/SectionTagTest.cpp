#include "tests/quillini/IniTest.hpp"

using namespace quillINI;

namespace {

ShownLines ShownOf(std::string_view File) {
    return Shown(ReadQuietly(File));
}

std::string Report(const std::string &Words) {
    return "Error while reading INI file: " + Words + "\n";
}

} // namespace

TEST(SectionTag, MakesItsSectionCurrent) {
    EXPECT_EQ(
        ShownOf("a=1\n[S]\nb=2\n[T]\nc=3\n"), (ShownLines{"[QI_Global]", "a=1", "[S]", "b=2", "[T]", "c=3"}));
}

TEST(SectionTag, HoldsNoBlanksButTabs) {
    EXPECT_EQ(ShownOf(" \t[ My  Name ] \na=1\n"), (ShownLines{"[QI_Global]", "[MyName]", "a=1"}));
    EXPECT_EQ(ShownOf("[a\tb]\t\na=1\n"), (ShownLines{"[QI_Global]", "[a\tb\t]", "a=1"}));
}

TEST(SectionTag, ClosedTwiceIsClosed) {
    EXPECT_EQ(ShownOf("[S]]\na=1\n"), (ShownLines{"[QI_Global]", "[S]", "a=1"}));
}

TEST(SectionTag, TakesStrayTextBehindItIntoTheName) {
    EXPECT_EQ(ShownOf("[S] more=x\na=1\n"), (ShownLines{"[QI_Global]", "[Smore=x]", "a=1"}));
    EXPECT_EQ(ShownOf("[S]T]U\na=1\n"), (ShownLines{"[QI_Global]", "[STU]", "a=1"}));
}

TEST(SectionTag, MayHaveAnEmptyName) {
    EXPECT_EQ(ShownOf("[]\na=1\n"), (ShownLines{"[QI_Global]", "[]", "a=1"}));
    EXPECT_EQ(ShownOf("[  ]\na=1\n"), (ShownLines{"[QI_Global]", "[]", "a=1"}));
}

TEST(SectionTag, KeepsItsComment) {
    EXPECT_EQ(ShownOf("[S];note\na=1\n"), (ShownLines{"[QI_Global]", "[S] ;note", "a=1"}));
    EXPECT_EQ(ShownOf("[S] # a [b] = \"c\" ; d \n"), (ShownLines{"[QI_Global]", "[S] ;a [b] = \"c\" ; d "}));
    EXPECT_EQ(ShownOf("[S];  two blanks\n"), (ShownLines{"[QI_Global]", "[S] ; two blanks"}));
}

TEST(SectionTag, WithAnEmptyCommentHasNone) {
    EXPECT_EQ(ShownOf("[S];\na=1\n"), (ShownLines{"[QI_Global]", "[S]", "a=1"}));
    EXPECT_EQ(ShownOf("[S]; \na=1\n"), (ShownLines{"[QI_Global]", "[S]", "a=1"}));
}

TEST(SectionTag, WithACommentMakesTheSectionAtOnce) {
    EXPECT_EQ(ShownOf("[S];note\n[T]\na=1\n"), (ShownLines{"[QI_Global]", "[S] ;note", "[T]", "a=1"}));
}

TEST(SectionTag, DirectlyBeforeAnotherLeavesNoSection) {
    EXPECT_EQ(ShownOf("[S]\n[T]\na=1\n"), (ShownLines{"[QI_Global]", "[T]", "a=1"}));
}

TEST(SectionTag, BeforeABlankLineAndAnotherTagKeepsBothSections) {
    EXPECT_EQ(ShownOf("[S]\n\n[T]\n"), (ShownLines{"[QI_Global]", "[S]", "- QI_EL_1", "[T]"}));
}

TEST(SectionTag, BeforeACommentLineMakesTheSection) {
    EXPECT_EQ(
        ShownOf("[S]\n;x\n[T]\n;y\n"), (ShownLines{"[QI_Global]", "[S]", "# QI_C_1=x", "[T]", "# QI_C_1=y"}));
}

TEST(SectionTag, AtTheEndMakesTheSection) {
    EXPECT_EQ(ShownOf("a=1\n[S]"), (ShownLines{"[QI_Global]", "a=1", "[S]"}));
    EXPECT_EQ(ShownOf("[S]\n[T]\n"), (ShownLines{"[QI_Global]", "[T]"}));
}

TEST(SectionTag, OfAPresentNameGoesOnWithThatSection) {
    EXPECT_EQ(ShownOf("[S];one\na=1\n[T]\nb=2\n[S];two\nc=3\n"),
        (ShownLines{"[QI_Global]", "[S] ;two", "a=1", "c=3", "[T]", "b=2"}));
    EXPECT_EQ(ShownOf("[S]\na=1\n[QI_Global]\nb=2\n"), (ShownLines{"[QI_Global]", "b=2", "[S]", "a=1"}));
}

TEST(SectionTag, SetAgainWithAnEmptyCommentLosesTheOneItHad) {
    EXPECT_EQ(ShownOf("[S];one\na=1\n[S];\nb=2\n"), (ShownLines{"[QI_Global]", "[S]", "a=1", "b=2"}));
    EXPECT_EQ(ShownOf("[S];one\na=1\n[S]\nb=2\n"), (ShownLines{"[QI_Global]", "[S] ;one", "a=1", "b=2"}));
}

TEST(SectionTag, ReportsEachErrorInItsWords) {
    const std::string open = "Section end tag was not found!\n";
    const struct {
        std::string File;
        std::string Words;
    } rows[] = {
        {"[Name\n", open},
        {"[\n    \n", open},
        {"[Name;note]\n", "Found comment tag within section tag!\n" + open},
        {"[Name#note]\n", "Found comment tag within section tag!\n" + open},
        {"[Na[me]\n", "New section started within section tag!\n" + open},
        {"[Name][\n", "New section started within section tag!\n"},
        {"[Name] [More;\n", "New section started within section tag!\n"},
    };
    for (const auto &row : rows) {
        const ReadResult result = Read(row.File);
        EXPECT_TRUE(result.Success);
        EXPECT_EQ(result.Output, Report(row.Words)) << row.File;
    }
}

TEST(SectionTag, WithAnErrorOnTheLastLineLeavesTheNameSoFar) {
    EXPECT_EQ(Shown(Read("a=1\n[Na me").Document), (ShownLines{"[QI_Global]", "a=1", "[Name]"}));
    EXPECT_EQ(Shown(Read("a=1\n[Na[me]").Document), (ShownLines{"[QI_Global]", "a=1", "[Na]"}));
    EXPECT_EQ(Shown(Read("a=1\n[Name;]").Document), (ShownLines{"[QI_Global]", "a=1", "[Name]"}));
}
