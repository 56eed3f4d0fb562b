#include "tests/quillini/IniTest.hpp"

using namespace quillINI;

namespace {

/// The one entry of a file with the line "key=" and this text.
std::string LineOf(std::string_view Text) {
    const IniDocument document = ReadQuietly("key=" + std::string(Text) + "\n;rest\n");
    const ShownLines lines = Shown(document);
    EXPECT_EQ(lines.size(), 3U) << Text;
    EXPECT_EQ(lines.back(), "# QI_C_1=rest");
    return lines.at(1);
}

std::string ReportOf(std::string_view Text) {
    const ReadResult result = Read("key=" + std::string(Text) + "\n");
    EXPECT_TRUE(result.Success);
    EXPECT_EQ(result.Document, IniDocument()) << "the key is not stored";
    return result.Output;
}

} // namespace

TEST(UnquotedValue, HoldsNoBlanksButTabs) {
    EXPECT_EQ(LineOf(" a  b c "), "key=abc");
    EXPECT_EQ(LineOf("\ta\tb\t"), "key=\ta\tb\t");
}

TEST(UnquotedValue, MayHoldSeparators) {
    EXPECT_EQ(LineOf("a=b:c"), "key=a=b:c");
}

TEST(UnquotedValue, KeepsItsBackslashes) {
    EXPECT_EQ(LineOf("a\\n\\\\b\\"
                     "y"),
        "key=a\\n\\\\b\\y");
}

TEST(UnquotedValue, OpensAStringAtAQuoteBehindABackslash) {
    EXPECT_EQ(LineOf("\\\"a b\""), "key=\"\\a b\"");
}

TEST(EmptyValue, IsAllowed) {
    EXPECT_EQ(LineOf(""), "key=");
    EXPECT_EQ(LineOf("   "), "key=");
    EXPECT_EQ(LineOf("\"\""), "key=\"\"");
    EXPECT_EQ(LineOf("''"), "key=\"\"");
}

TEST(Comment, BehindAValueIsStoredOnTheEntry) {
    EXPECT_EQ(LineOf("a;note"), "key=a ;note");
    EXPECT_EQ(LineOf("a # note"), "key=a ;note");
    EXPECT_EQ(LineOf("a ;  two blanks "), "key=a ; two blanks ");
    EXPECT_EQ(LineOf("\"a\"; b # \"c\" [d] ; e"), "key=\"a\" ;b # \"c\" [d] ; e");
    EXPECT_EQ(LineOf(";note"), "key= ;note");
}

TEST(Comment, BehindAValueThatIsEmptyIsNone) {
    EXPECT_EQ(LineOf("a;"), "key=a");
    EXPECT_EQ(LineOf("a # "), "key=a");
}

TEST(QuotedValue, HoldsBlanksBracketsAndCommentCharacters) {
    EXPECT_EQ(LineOf("\" a  [b] ;c #d =e :f \""), "key=\" a  [b] ;c #d =e :f \"");
}

TEST(QuotedValue, HoldsTheOtherQuoteWithoutEscape) {
    EXPECT_EQ(LineOf("'a \"b\" c'"), "key=\"a \"b\" c\"");
    EXPECT_EQ(LineOf("\"a 'b' c\""), "key=\"a 'b' c\"");
}

TEST(QuotedValue, TakesEscapesOfItsOwnQuoteAndOfBackslashes) {
    EXPECT_EQ(LineOf("\"a\\\"b\\\\c\""), "key=\"a\"b\\c\"");
    EXPECT_EQ(LineOf("'a\\'b\\\\c'"), "key=\"a'b\\c\"");
    EXPECT_EQ(LineOf("\"\\\\\""), "key=\"\\\"");
    EXPECT_EQ(LineOf("\"\\\"\""), "key=\"\"\"");
}

TEST(QuotedValue, KeepsABackslashBeforeAllElse) {
    EXPECT_EQ(LineOf("\"a\\n\\t\\b\\f\\r\\v\\0\\;\""), "key=\"a\\n\\t\\b\\f\\r\\v\\0\\;\"");
    EXPECT_EQ(LineOf("\"a\\'b\""), "key=\"a\\'b\"");
    EXPECT_EQ(LineOf("'a\\\"b'"), "key=\"a\\\"b\"");
}

TEST(QuotedValue, IsJoinedByFurtherTextOnTheLine) {
    EXPECT_EQ(LineOf("\"a b\" c d"), "key=\"a bcd\"");
    EXPECT_EQ(LineOf("a b\"c d\""), "key=\"abc d\"");
    EXPECT_EQ(LineOf("\"a \" 'b ' ;c"), "key=\"a b \" ;c");
}

TEST(ValueErrors, EndTheScan) {
    const std::string start = "Error while reading INI file: ";
    EXPECT_EQ(ReportOf("a[b"), start + "Start section tag within value tag!\n\n");
    EXPECT_EQ(ReportOf("["), start + "Start section tag within value tag!\n\n");
    EXPECT_EQ(ReportOf("a]b"), start + "Close section tag within value tag!\n\n");
    EXPECT_EQ(ReportOf("[]\"open"), start + "Start section tag within value tag!\n\n");
    EXPECT_EQ(ReportOf("\"a\"]["), start + "Close section tag within value tag!\n\n");
}

TEST(OpenString, ReportsTwoErrorsInOneMessage) {
    const std::string both = "Error while reading INI file: String end tag not defined!\nValue end tag (New "
                             "line) was not found!\n\n";
    EXPECT_EQ(ReportOf("\"a"), both);
    EXPECT_EQ(ReportOf("'a b"), both);
    EXPECT_EQ(ReportOf("\"a\\\""), both);
    EXPECT_EQ(ReportOf("\"a\\\\\\\""), both);
    EXPECT_EQ(ReportOf("\"a'"), both);
    EXPECT_EQ(ReportOf("\"a\" \" "), both);
}

TEST(OpenString, WithoutACharacterReportsOne) {
    const std::string one = "Error while reading INI file: Value end tag (New line) was not found!\n\n";
    EXPECT_EQ(ReportOf("\""), one);
    EXPECT_EQ(ReportOf("'"), one);
    EXPECT_EQ(ReportOf("abc\""), one);
    EXPECT_EQ(ReportOf("\"abc\"'"), one);
}

TEST(OpenString, EndsAtALineFeedThatABackslashTookIn) {
    const ReadResult result = Read("key=\"a\\\nb\"\n");
    EXPECT_EQ(result.Output, "Error while reading INI file: String end tag not defined!\nValue end tag (New "
                             "line) was not found!\n\n");
}
