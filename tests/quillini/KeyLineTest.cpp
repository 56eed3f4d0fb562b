#include "tests/quillini/IniTest.hpp"

#include <stdexcept>

using namespace quillINI;

namespace {

ShownLines ShownOf(std::string_view File) {
    return Shown(ReadQuietly(File));
}

} // namespace

TEST(KeyLine, SeparatesAtTheEarlierSign) {
    EXPECT_EQ(ShownOf("a=1\nb:2\n"), (ShownLines{"[QI_Global]", "a=1", "b=2"}));
    EXPECT_EQ(ShownOf("a=b:c=d\n"), (ShownLines{"[QI_Global]", "a=b:c=d"}));
    EXPECT_EQ(ShownOf("a:b=c:d\n"), (ShownLines{"[QI_Global]", "a=b=c:d"}));
    EXPECT_EQ(ShownOf("a==1\nb::2\n"), (ShownLines{"[QI_Global]", "a==1", "b=:2"}));
}

TEST(KeyLine, LandsInTheGlobalSectionBeforeTheFirstTag) {
    const IniDocument document = ReadQuietly("key=value\n[S]\n");
    EXPECT_EQ(GetIniValue(document, "QI_Global", "key", ""), "value");
}

TEST(KeyLine, HoldsNoBlanksInTheKeyButTabs) {
    EXPECT_EQ(ShownOf(" \t my  key =1\n"), (ShownLines{"[QI_Global]", "mykey=1"}));
    EXPECT_EQ(ShownOf("my\tkey\t=1\n"), (ShownLines{"[QI_Global]", "my\tkey\t=1"}));
}

TEST(KeyLine, LeadingCarriageReturnsAreTakenAway) {
    EXPECT_EQ(ShownOf("\\x000d\\x000akey=1\n"), (ShownLines{"[QI_Global]", "key=1"}));
}

TEST(KeyLine, RepeatedReplacesValueFlagAndCommentInItsFirstPlace) {
    EXPECT_EQ(ShownOf("a=\"1\";x\nb=2\na=3;y\n"), (ShownLines{"[QI_Global]", "a=3 ;y", "b=2"}));
    EXPECT_EQ(ShownOf("a=1;x\nb=2\na=\"3\"\n"), (ShownLines{"[QI_Global]", "a=\"3\"", "b=2"}));
}

TEST(KeyLine, OfTheNextReservedKeySwallowsTheComment) {
    EXPECT_EQ(
        ShownOf("QI_C_1=mine\n;lost\n;kept\n"), (ShownLines{"[QI_Global]", "QI_C_1=mine", "# QI_C_2=kept"}));
    EXPECT_EQ(ShownOf("QI_EL_1=mine\n\n\n"), (ShownLines{"[QI_Global]", "QI_EL_1=mine", "- QI_EL_2"}));
}

TEST(KeyLine, OfAReservedKeyThatTheDocumentHadSwallowsTheCommentToo) {
    const ScratchFile file;
    file.Fill(";lost\n;kept\n\n");
    IniDocument document;
    SetIniValue(document, IniGlobalSection, "QI_C_1", "mine", false);
    SetIniValue(document, IniGlobalSection, "QI_EL_1", "mine", false);
    ASSERT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(Shown(document), (ShownLines{"[QI_Global]", "QI_C_1=mine", "QI_EL_1=mine", "# QI_C_2=kept"}));
}

TEST(KeyLine, OfAPresentReservedKeyChangesTheComment) {
    EXPECT_EQ(ShownOf(";one\nQI_C_1=two\n"), (ShownLines{"[QI_Global]", "# QI_C_1=two"}));
}

TEST(CommentLine, LosesItsSignAndOneBlank) {
    EXPECT_EQ(ShownOf(";one\n# two\n;  three \n \t ;four\n;\n#\n; \n"),
        (ShownLines{"[QI_Global]", "# QI_C_1=one", "# QI_C_2=two", "# QI_C_3= three ", "# QI_C_4=four",
            "# QI_C_5=", "# QI_C_6=", "# QI_C_7="}));
}

TEST(CommentLine, IsTakenAsItStands) {
    EXPECT_EQ(ShownOf(";;a=[b] \"c\" 'd\n#;e\n"),
        (ShownLines{"[QI_Global]", "# QI_C_1=;a=[b] \"c\" 'd", "# QI_C_2=;e"}));
}

TEST(ReservedKeys, CountFromOneInEachSection) {
    const IniDocument document = ReadQuietly(";a\n\n;b\n\n[S]\n\n;c\n");
    EXPECT_EQ(Shown(document), (ShownLines{"[QI_Global]", "# QI_C_1=a", "- QI_EL_1", "# QI_C_2=b",
                                   "- QI_EL_2", "[S]", "- QI_EL_1", "# QI_C_1=c"}));
    EXPECT_EQ(document.Sections[0].CommentCount, 2);
    EXPECT_EQ(document.Sections[0].EmptyLineCount, 2);
    EXPECT_EQ(GetIniValue(document, "S", "QI_C_1", ""), "c");
}

TEST(BlankLine, HoldsNothingButBlanksAndTabs) {
    EXPECT_EQ(ShownOf("a=1\n \t \n\t\r\nb=2\n"),
        (ShownLines{"[QI_Global]", "a=1", "- QI_EL_1", "- QI_EL_2", "b=2"}));
}

TEST(ArrayLine, WithoutIndexCounts) {
    EXPECT_EQ(ShownOf("a[]=x\na [] : y\na[ ]=z\n"),
        (ShownLines{"[QI_Global]", "a@1", "a[0]=x", "a[1]=y", "a[ ]=z"}));
    EXPECT_EQ(ShownOf("a[] \t=x\n"), (ShownLines{"[QI_Global]", "a@0", "a[0]=x"}));
}

TEST(ArrayLine, WithIndexesGoesOnBehindTheLargest) {
    EXPECT_EQ(ShownOf("a[0]=x\na[1]=y\na[5]=z\na[]=w\n"),
        (ShownLines{"[QI_Global]", "a@6!quoted", "a[0]=x", "a[1]=y", "a[5]=z", "a[6]=w"}));
}

TEST(ArrayLine, KeepsTheIndexAsWritten) {
    EXPECT_EQ(ShownOf("a[word]=1\na[ 2 ] =2\na[-3]=3\na[;]=4\na[b]c]=5\n"),
        (ShownLines{"[QI_Global]", "a@0!quoted", "a[word]=1", "a[ 2 ]=2", "a[-3]=3", "a[;]=4", "a[b]c]=5"}));
}

TEST(ArrayLine, TakesTheIndexUpToASecondBracket) {
    // The piece between the brackets loses its last character, whatever that is.
    EXPECT_EQ(ShownOf("a[12[3]=1\n"), (ShownLines{"[QI_Global]", "a@0!quoted", "a[1]=1"}));
    EXPECT_EQ(ShownOf("a[1][2]=1\n"), (ShownLines{"[QI_Global]", "a@0!quoted", "a[1]=1"}));
    EXPECT_EQ(ShownOf("a[[7]=1\n"), (ShownLines{"[QI_Global]", "a@0!quoted", "a[7]=1"}));
}

TEST(ArrayLine, EndingInAnEmptyPairHasNoIndex) {
    EXPECT_EQ(ShownOf("a[5][]=1\n"), (ShownLines{"[QI_Global]", "a@0", "a[0]=1"}));
}

TEST(ArrayLine, MayHoldAClosingBracketInItsName) {
    EXPECT_EQ(ShownOf("a]b[]=1\n"), (ShownLines{"[QI_Global]", "a]b@0", "a]b[0]=1"}));
}

TEST(ArrayLine, KeepsFlagAndCommentTogether) {
    EXPECT_EQ(ShownOf("a[]=\"x\"\na[]=\"y\";note\na[]=z;note\na[]=\"w\";\n"),
        (ShownLines{"[QI_Global]", "a@3", "a[0]=x", "a[1]=\"y\" ;note", "a[2]=z ;note", "a[3]=w"}));
}

TEST(ArrayLine, SetAgainReplacesTheElement) {
    EXPECT_EQ(ShownOf("a[1]=x;note\na[2]=y\na[1]=\"z\"\n"),
        (ShownLines{"[QI_Global]", "a@0!quoted", "a[1]=\"z\"", "a[2]=y"}));
}

TEST(ArrayLine, UnderAPlainKeyAndTheOtherWayRound) {
    EXPECT_EQ(ShownOf("a=1\na[]=x\n"), (ShownLines{"[QI_Global]", "a=1", "a[0]=x"}));
    const IniDocument document = ReadQuietly("a[]=x\na=\"1\";c\n");
    EXPECT_EQ(document.Sections[0].Entries[0].Kind, IniEntryKind::Array);
    EXPECT_EQ(GetIniValue(document, "QI_Global", "a", ""), "1");
    EXPECT_EQ(document.Sections[0].Entries[0].Comment, "c");
}

TEST(ArrayLine, WithoutIndexBehindAWordFails) {
    EXPECT_THROW(Read("a[word]=1\na[]=2\n"), std::invalid_argument);
    EXPECT_THROW(Read("a[]=1\na[ ]=2\na[]=3\n"), std::invalid_argument);
    EXPECT_THROW(Read("a[2147483647]=1\na[]=2\n"), std::out_of_range);
}

TEST(KeyLine, ReportsEachErrorInItsWords) {
    const std::string equals = "Key end tag (\"=\" sign) was not found!\n";
    const std::string colon = "Key end tag (\":\" sign) was not found!\n";
    const struct {
        std::string File;
        std::string Words;
    } rows[] = {
        {"no sign\n", "No \"=\" or \":\" sign found!\n"},
        {"\"quoted\"\n", "No \"=\" or \":\" sign found!\n"},
        {"]a b c\n", "No \"=\" or \":\" sign found!\n"},
        {"a[b=12\n", "Start section tag within key tag!\n" + equals},
        {"a[b:12\n", "Start section tag within key tag!\n" + colon},
        {"a[b]c=1\n", "Start section tag within key tag!\n" + equals},
        {"a]b=12\n", "Close section tag within key tag!\n" + equals},
        {"a]b:12\n", "Close section tag within key tag!\n" + colon},
        {"a];b=1\n", "Close section tag within key tag!\n" + equals},
        {"a;b=12\n", "Found comment tag within key tag!\n" + equals},
        {"a#b:12\n", "Found comment tag within key tag!\n" + colon},
        {"a;b[]=1\n", "Found comment tag within key tag!\n" + equals},
        {"a#[1]=2\n", "Found comment tag within key tag!\n" + equals},
        {"=value\n", equals},
        {" : value\n", colon},
        {"=a[]=1\n", equals},
        {"=[a]=1\n", equals},
        {":a[1]:2\n", colon},
        {"======\n", equals},
    };
    for (const auto &row : rows) {
        const ReadResult result = Read(row.File);
        EXPECT_TRUE(result.Success);
        EXPECT_EQ(result.Output, "Error while reading INI file: " + row.Words + "\n") << row.File;
        EXPECT_EQ(result.Document, IniDocument()) << row.File;
    }
}

TEST(KeyLine, WithAnErrorInTheKeyDoesNotScanTheValue) {
    const ReadResult result = Read("a]=\"open\n");
    EXPECT_EQ(result.Output,
        "Error while reading INI file: Close section tag within key tag!\nKey end tag (\"=\" sign) "
        "was not found!\n\n");
}
