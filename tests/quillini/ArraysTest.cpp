#include "tests/quillini/IniTest.hpp"

#include <stdexcept>

using namespace quillINI;

namespace {

void AddNext(IniSection &Section, std::string_view Key, std::string_view Value) {
    AddIniArrayElement(Section, Key, Value, false, false, "", "", false);
}

void AddAt(IniSection &Section, std::string_view Key, std::string_view Index, std::string_view Value) {
    AddIniArrayElement(Section, Key, Value, false, false, "", Index, true);
}

} // namespace

TEST(ArrayElement, WithoutIndexStartsAtZeroAndCounts) {
    IniSection section;
    AddNext(section, "a", "x");
    AddNext(section, "a", "y");
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a@1", "a[0]=x", "a[1]=y"}));
}

TEST(ArrayElement, WithoutIndexGoesBehindTheLargest) {
    IniSection section;
    for (const std::string_view index : {"0", "5", "1"}) {
        AddAt(section, "a", index, "old");
    }
    AddNext(section, "a", "new");
    EXPECT_EQ(section.Entries[0].NextIndex, 6);
    EXPECT_EQ(Shown(section).back(), "a[6]=new");
}

TEST(ArrayElement, WithoutIndexGoesBehindTheLargestOfNegativeOnes) {
    IniSection section;
    AddAt(section, "a", "-7", "old");
    AddAt(section, "a", "-5", "old");
    AddNext(section, "a", "new");
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a@-4!quoted", "a[-7]=old", "a[-5]=old", "a[-4]=new"}));
}

TEST(ArrayElement, WithIndexLeavesNextIndexAndFlagsANewArrayAsQuoted) {
    IniSection section;
    AddAt(section, "a", "5", "x");
    AddAt(section, "a", "word", "y");
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a@0!quoted", "a[5]=x", "a[word]=y"}));
}

TEST(ArrayElement, ReadsLeadingZerosAsANumber) {
    IniSection section;
    AddAt(section, "a", "007", "x");
    AddNext(section, "a", "y");
    EXPECT_EQ(Shown(section).back(), "a[8]=y");
}

TEST(ArrayElement, WithoutIndexRefusesElementsWhoseKeyIsNoNumber) {
    for (const std::string_view index : {"word", "", "5x", " 5", "5 ", "+5", "-", "0x10", "1.0", "--1"}) {
        IniSection section;
        AddAt(section, "a", index, "x");
        EXPECT_THROW(AddNext(section, "a", "y"), std::invalid_argument) << '"' << index << '"';
        EXPECT_EQ(section.Entries[0].Elements.size(), 1U);
    }
}

TEST(ArrayElement, WithoutIndexRefusesNumbersBeyond32Bits) {
    for (const std::string_view index : {"2147483648", "-2147483649", "99999999999999999999", "2147483647"}) {
        IniSection section;
        AddAt(section, "a", index, "x");
        EXPECT_THROW(AddNext(section, "a", "y"), std::out_of_range) << index;
    }
}

TEST(ArrayElement, ReachesTheEndsOf32Bits) {
    IniSection section;
    AddAt(section, "low", "-2147483648", "x");
    AddNext(section, "low", "y");
    EXPECT_EQ(Shown(section).back(), "low[-2147483647]=y");
    AddAt(section, "high", "2147483646", "x");
    AddNext(section, "high", "y");
    EXPECT_EQ(Shown(section).back(), "high[2147483647]=y");
}

TEST(ArrayElement, SetAgainGetsNewValueCommentAndFlagInItsPlace) {
    IniSection section;
    AddIniArrayElement(section, "a", "x", true, true, "note", "0", true);
    AddAt(section, "a", "1", "y");
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a@0!quoted", "a[0]=\"x\" ;note", "a[1]=y"}));
    AddIniArrayElement(section, "a", "z", true, false, "unseen", "0", true);
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a@0!quoted", "a[0]=\"z\"", "a[1]=y"}));
    AddIniArrayElement(section, "a", "w", false, true, "other", "1", true);
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a@0!quoted", "a[0]=\"z\"", "a[1]=w ;other"}));
}

TEST(ArrayElement, NewWithoutACommentForgetsThatItWasQuoted) {
    IniSection section;
    AddIniArrayElement(section, "a", "x", true, false, "", "", false);
    AddIniArrayElement(section, "a", "y", true, true, "note", "", false);
    AddIniArrayElement(section, "a", "z", false, true, "note", "", false);
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a@2", "a[0]=x", "a[1]=\"y\" ;note", "a[2]=z ;note"}));
}

TEST(ArrayElement, UnderAPlainKeyIsAppendedToItsElements) {
    IniSection section;
    AddIniValue(section, "a", "plain", true);
    AddNext(section, "a", "x");
    EXPECT_EQ(Shown(section), (ShownLines{"[]", "a=\"plain\"", "a[0]=x"}));
    EXPECT_EQ(section.Entries[0].Kind, IniEntryKind::Value);
}

TEST(IniArrayElementsEnd, IsTheEndOfAnArraysElements) {
    IniSection section;
    AddNext(section, "a", "x");
    IniEntry &array = section.Entries[0];
    const IniEntry &constant = array;
    EXPECT_EQ(IniArrayElementsEnd(array), array.Elements.end());
    EXPECT_EQ(IniArrayElementsEnd(constant), constant.Elements.end());
}

TEST(IniArrayElementsEnd, RefusesAllOtherKinds) {
    for (const IniEntryKind kind : {IniEntryKind::EmptyLine, IniEntryKind::Comment, IniEntryKind::Value}) {
        IniEntry entry;
        entry.Kind = kind;
        const IniEntry &constant = entry;
        EXPECT_EQ(MessageOf<std::runtime_error>([&] {
            IniArrayElementsEnd(entry);
        }),
            "Data is not of type array!");
        EXPECT_EQ(MessageOf<std::runtime_error>([&] {
            IniArrayElementsEnd(constant);
        }),
            "Data is not of type array!");
    }
}
