#include "tests/quillini/IniTest.hpp"

using namespace quillINI;

namespace {

ShownLines ShownOf(std::string_view File) {
    return Shown(ReadQuietly(File));
}

} // namespace

TEST(LineEnds, AreCrLfOrLf) {
    const ShownLines expected{"[QI_Global]", "a=1", "- QI_EL_1", "b=2"};
    EXPECT_EQ(ShownOf("a=1\r\n\r\nb=2\r\n"), expected);
    EXPECT_EQ(ShownOf("a=1\n\nb=2\n"), expected);
    EXPECT_EQ(ShownOf("a=1\r\n\nb=2\n"), expected);
}

TEST(LineEnds, AreNotNeededByTheLastLine) {
    EXPECT_EQ(ShownOf("a=1\nb=2"), (ShownLines{"[QI_Global]", "a=1", "b=2"}));
    EXPECT_EQ(ShownOf("a=1\nb=2\n"), (ShownLines{"[QI_Global]", "a=1", "b=2"}));
    EXPECT_EQ(ShownOf("a=1\nb=2\n\n"), (ShownLines{"[QI_Global]", "a=1", "b=2", "- QI_EL_1"}));
}

TEST(CarriageReturn, AloneEatsTheNextCharacter) {
    EXPECT_EQ(ShownOf("a=1\rxb=2\n"), (ShownLines{"[QI_Global]", "a=1", "b=2"}));
    // The second carriage return is eaten by the first, and so is a backslash.
    EXPECT_EQ(ShownOf("a=1\r\rb=2\n"), (ShownLines{"[QI_Global]", "a=1", "b=2"}));
    EXPECT_EQ(ShownOf("a=1\r\\b=2\n"), (ShownLines{"[QI_Global]", "a=1", "b=2"}));
}

TEST(CarriageReturn, AsTheLastByteIsDropped) {
    EXPECT_EQ(ShownOf("a=1234\r"), (ShownLines{"[QI_Global]", "a=1234"}));
    EXPECT_EQ(ShownOf("a=1234\n\r"), (ShownLines{"[QI_Global]", "a=1234"}));
    EXPECT_EQ(ShownOf("a=1234\r\n\r"), (ShownLines{"[QI_Global]", "a=1234"}));
}

TEST(CarriageReturn, AsTheLastByteButOneEatsTheLast) {
    EXPECT_EQ(ShownOf("a=1234\rx"), (ShownLines{"[QI_Global]", "a=1234"}));
}

TEST(Backslash, AsTheLastByteIsDropped) {
    EXPECT_EQ(ShownOf("a=1234\\"), (ShownLines{"[QI_Global]", "a=1234"}));
    EXPECT_EQ(ShownOf("a=1234\n\\"), (ShownLines{"[QI_Global]", "a=1234"}));
}

TEST(Backslash, StaysWithTheByteBehindIt) {
    EXPECT_EQ(ShownOf("a=1\\n\\t\\y\n"), (ShownLines{"[QI_Global]", "a=1\\n\\t\\y"}));
    EXPECT_EQ(ShownOf(";one \\\\ \\\"\n"), (ShownLines{"[QI_Global]", "# QI_C_1=one \\\\ \\\""}));
}

TEST(Backslash, BeforeALineFeedTakesItIntoTheLine) {
    // Of a value the first line feed is the end, and what follows is lost.
    EXPECT_EQ(ShownOf("a=1\\\nb=2\nc=3\n"), (ShownLines{"[QI_Global]", "a=1\\", "c=3"}));
    // A comment loses only the last.
    EXPECT_EQ(ShownOf(";one\\\ntwo\nc=3\n"), (ShownLines{"[QI_Global]", "# QI_C_1=one\\\ntwo", "c=3"}));
    EXPECT_EQ(ShownOf("a=1;one\\\ntwo\nc=3\n"), (ShownLines{"[QI_Global]", "a=1 ;one\\\ntwo", "c=3"}));
    EXPECT_EQ(ShownOf("[s];one\\\ntwo\nc=3\n"), (ShownLines{"[QI_Global]", "[s] ;one\\\ntwo", "c=3"}));
}

TEST(Backslash, BeforeCrLfTakesTheCarriageReturnOnly) {
    EXPECT_EQ(ShownOf("a=1\\\r\nb=2\r\n"), (ShownLines{"[QI_Global]", "a=1\\\r", "b=2"}));
}

TEST(Backslash, BeforeALineFeedInATagEndsTheTag) {
    EXPECT_EQ(ShownOf("[s]\\\nt\na=1\n"), (ShownLines{"[QI_Global]", "[s\\]", "a=1"}));
}

TEST(Backslash, BeforeALineFeedInAKeyStaysInTheKey) {
    EXPECT_EQ(ShownOf("a\\\nb=1\n"), (ShownLines{"[QI_Global]", "a\\\nb=1"}));
}
