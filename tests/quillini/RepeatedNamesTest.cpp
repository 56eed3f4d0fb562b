#include "tests/quillini/IniTest.hpp"

#include <stdexcept>

using namespace quillINI;

// Names that come again, in all the places where the reader looks for one that was there before.

namespace {

ShownLines ShownOf(std::string_view File) {
    return Shown(ReadQuietly(File));
}

} // namespace

TEST(RepeatedSection, IsFilledFurther) {
    EXPECT_EQ(ShownOf("[A]\na=1\n[B]\na=2\n[A]\nb=3\n[B]\nb=4\n"),
        (ShownLines{"[QI_Global]", "[A]", "a=1", "b=3", "[B]", "a=2", "b=4"}));
}

TEST(RepeatedSection, IsTheSameWithBlanksInItsNameAndAnotherInOtherLetters) {
    EXPECT_EQ(ShownOf("[A B]\na=1\n[ab]\na=2\n[ A B ]\nb=3\n[Ab]\na=4\n"),
        (ShownLines{"[QI_Global]", "[AB]", "a=1", "b=3", "[ab]", "a=2", "[Ab]", "a=4"}));
}

TEST(RepeatedSection, CanBeTheGlobalOneAndOneWithoutAName) {
    EXPECT_EQ(ShownOf("a=1\n[]\na=2\n[QI_Global]\nb=3\n[]\nb=4\n"),
        (ShownLines{"[QI_Global]", "a=1", "b=3", "[]", "a=2", "b=4"}));
}

TEST(RepeatedSection, TakesTheLaterComment) {
    EXPECT_EQ(ShownOf("[A];one\n[B]\na=1\n[A];two\n[B];three\n[A];\n"),
        (ShownLines{"[QI_Global]", "[A]", "[B] ;three", "a=1"}));
}

TEST(RepeatedSection, CountsItsCommentsAndBlankLinesOn) {
    EXPECT_EQ(ShownOf("[A]\n;one\n\n[B]\n;two\n[A]\n;three\n\n"),
        (ShownLines{"[QI_Global]", "[A]", "# QI_C_1=one", "- QI_EL_1", "# QI_C_2=three", "- QI_EL_2", "[B]",
            "# QI_C_1=two"}));
}

TEST(RepeatedKey, IsReplacedInItsFirstPlaceAlsoInASectionThatComesAgain) {
    EXPECT_EQ(ShownOf("[A]\na=\"1\";one\nb=2\n[B]\na=3;two\n[A]\na=4\n[B]\na=\"5\"\n"),
        (ShownLines{"[QI_Global]", "[A]", "a=4", "b=2", "[B]", "a=\"5\""}));
}

TEST(RepeatedKey, IsTheSameWithBlanksAndAnotherInOtherLetters) {
    EXPECT_EQ(
        ShownOf("a b=1\nAB=2\n ab =3\na\tb=4\n"), (ShownLines{"[QI_Global]", "ab=3", "AB=2", "a\tb=4"}));
}

TEST(RepeatedKey, ThatLooksReservedSwallowsLinesOfItsOwnSectionOnly) {
    EXPECT_EQ(ShownOf("[A]\nQI_C_2=mine\n[B]\n;one\n;two\n[A]\n;three\n;lost\n;four\n"),
        (ShownLines{"[QI_Global]", "[A]", "QI_C_2=mine", "# QI_C_1=three", "# QI_C_3=four", "[B]",
            "# QI_C_1=one", "# QI_C_2=two"}));
    EXPECT_EQ(ShownOf("QI_EL_1[]=mine\n\n\n"),
        (ShownLines{"[QI_Global]", "QI_EL_1@0", "QI_EL_1[0]=mine", "- QI_EL_2"}));
}

TEST(RepeatedKey, OfAnArrayKeepsItsKindAndElements) {
    EXPECT_EQ(ShownOf("a[]=x\na=\"plain\"\nb=1\na[]=y\n"),
        (ShownLines{"[QI_Global]", "a@1!quoted", "a[0]=x", "a[1]=y", "b=1"}));
    EXPECT_EQ(GetIniValue(ReadQuietly("a[]=x\na=\"plain\"\na[]=y\n"), "QI_Global", "a", ""), "plain");
}

TEST(RepeatedKey, OfACommentGetsElementsToo) {
    EXPECT_EQ(ShownOf(";text\nQI_C_1[]=x\nQI_C_1[4]=y\nQI_C_1[]=z\n"),
        (ShownLines{"[QI_Global]", "# QI_C_1=text", "QI_C_1[0]=x", "QI_C_1[4]=y", "QI_C_1[5]=z"}));
}

TEST(RepeatedElement, IsReplacedInItsFirstPlaceWhoeverHasChosenItsIndex) {
    EXPECT_EQ(ShownOf("a[]=x;one\na[]=y\na[1]=\"z\";two\na[0]=w\na[]=v\n"),
        (ShownLines{"[QI_Global]", "a@2", "a[0]=w", "a[1]=\"z\" ;two", "a[2]=v"}));
}

TEST(RepeatedElement, IsKnownByItsTextAndNotByItsNumber) {
    EXPECT_EQ(ShownOf("a[1]=x\na[01]=y\na[ 1]=z\na[1]=w\n"),
        (ShownLines{"[QI_Global]", "a@0!quoted", "a[1]=w", "a[01]=y", "a[ 1]=z"}));
}

TEST(RepeatedElement, BelongsToTheArrayOfItsSection) {
    EXPECT_EQ(ShownOf("[A]\na[7]=x\n[B]\na[]=y\nb[7]=z\n[A]\na[]=w\nb[]=v\n[B]\nb[]=u\na[0]=t\n"),
        (ShownLines{"[QI_Global]", "[A]", "a@8!quoted", "a[7]=x", "a[8]=w", "b@0", "b[0]=v", "[B]", "a@0",
            "a[0]=t", "b@8!quoted", "b[7]=z", "b[8]=u"}));
}

TEST(NextIndex, GoesOnBehindTheLargestSoFar) {
    EXPECT_EQ(ShownOf("a[]=0\na[9]=1\na[3]=2\na[]=3\na[10]=4\na[]=5\na[-1]=6\na[]=7\n"),
        (ShownLines{"[QI_Global]", "a@12", "a[0]=0", "a[9]=1", "a[3]=2", "a[10]=4", "a[11]=5", "a[-1]=6",
            "a[12]=7"}));
}

TEST(NextIndex, FailsOverTheFirstKeyThatIsNoIndex) {
    const std::string counted = "a[]=0\na[]=1\n";
    EXPECT_THROW(Read(counted + "a[word]=x\na[9999999999]=y\na[]=z\n"), std::invalid_argument);
    EXPECT_THROW(Read(counted + "a[9999999999]=y\na[word]=x\na[]=z\n"), std::out_of_range);
    EXPECT_THROW(Read(counted + "a[2147483647]=y\na[]=z\n"), std::out_of_range);
    EXPECT_EQ(ShownOf(counted + "a[word]=x\nb[]=y\n").back(), "b[0]=y");
}

TEST(SecondFile, IsAddedToWhatTheDocumentHas) {
    const ScratchFile file;
    file.Fill("a=1\n[A]\n;one\nlist[]=x\nlist[5]=y\n[B]\n\n");
    IniDocument document;
    OutputCatcher output;
    ASSERT_TRUE(ReadIniFile(document, file.Path()));
    file.Fill("a=2\n[B]\nb=3\n\n[A]\n;two\nlist[]=z\nlist[0]=w\n[C]\n");
    ASSERT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(output.Text(), "");
    EXPECT_EQ(Shown(document),
        (ShownLines{"[QI_Global]", "a=2", "[A]", "# QI_C_1=one", "list@6", "list[0]=w", "list[5]=y",
            "list[6]=z", "# QI_C_2=two", "[B]", "- QI_EL_1", "b=3", "- QI_EL_2", "[C]"}));
}

/// Lists that were put together by hand, against the rules: the first of a name counts.
TEST(SecondFile, FillsTheFirstOfTwoOfTheSameName) {
    IniEntry one;
    one.Kind = IniEntryKind::Value;
    one.Key = "a";
    one.Value = "one";
    IniEntry two = one;
    two.Value = "two";
    IniSection section;
    section.Name = "A";
    section.Entries = {one, two};
    IniDocument document;
    document.Sections = {section, section};
    const ScratchFile file;
    file.Fill("[A]\na=new\n");
    ASSERT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(Shown(document), (ShownLines{"[A]", "a=new", "a=two", "[A]", "a=one", "a=two"}));
}

TEST(SecondFile, FindsADocumentWithoutASection) {
    IniDocument document;
    document.Sections.clear();
    const ScratchFile file;
    file.Fill("[A]\na=1\n");
    ASSERT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(Shown(document), (ShownLines{"[A]", "a=1"}));
}

/// So many that no list stays short: each name comes twice, in another order the second time.
TEST(ManyNames, AreAllFoundAgain) {
    constexpr int count = 1000;
    std::string file;
    ShownLines expected{"[QI_Global]"};
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        file += "[S" + number + "]\na=old\n[All]\nk" + number + "=old\nlist[" + number + "]=old\n";
    }
    for (int i = count - 1; i >= 0; --i) {
        const std::string number = std::to_string(i);
        file += "[All]\nlist[" + number + "]=new\nk" + number + "=new\n[S" + number + "]\na=new\n";
    }
    const IniDocument document = ReadQuietly(file);
    ASSERT_EQ(document.Sections.size(), count + 2U);
    const IniSection &all = document.Sections[2];
    ASSERT_EQ(all.Entries.size(), count + 1U);
    const IniEntry &list = all.Entries[1];
    ASSERT_EQ(list.Elements.size(), std::size_t{count});
    for (int i = 0; i < count; ++i) {
        const auto place = static_cast<std::size_t>(i);
        const std::string number = std::to_string(i);
        const IniSection &section = document.Sections[i == 0 ? 1 : place + 2];
        EXPECT_EQ(Shown(section), (ShownLines{"[S" + number + "]", "a=new"}));
        const IniEntry &key = all.Entries[i == 0 ? 0 : place + 1];
        EXPECT_EQ(key.Key + "=" + key.Value, "k" + number + "=new");
        EXPECT_EQ(list.Elements[place].Key + "=" + list.Elements[place].Value, number + "=new");
    }
}
