#include "tests/quillini/IniTest.hpp"

#include <stdexcept>

using namespace quillINI;

namespace {

/// The unquoted value of a file that holds nothing else.
std::string ValueOf(std::string_view Text) {
    return GetIniValue(ReadQuietly("key=" + std::string(Text)), "QI_Global", "key", "absent");
}

std::string FailureOf(std::string_view Text) {
    return MessageOf<std::runtime_error>([&] {
        Read("key=" + std::string(Text));
    });
}

constexpr std::string_view BeyondEnd = "Read beyond end of file, and found invalid unicode escape sequence!";
constexpr std::string_view NoLowSurrogate = "Invalid code point for UTF-16 low surrogate pair!";
constexpr std::string_view LowSurrogateRange = "Invalid code point range for UTF-16 low surrogate pair!";

} // namespace

TEST(UnicodeEscape, GivesUtf8InAnUnquotedValueToo) {
    EXPECT_EQ(ValueOf("\\x00fc"), "\xC3\xBC");
    EXPECT_EQ(ValueOf("a\\x00FCb"), "a\xC3\xBC"
                                    "b");
    EXPECT_EQ(ValueOf("\"\\x20ac\""), "\xE2\x82\xAC");
    EXPECT_EQ(ValueOf("\\x0041"), "A");
    EXPECT_EQ(ValueOf("\\xaBcD"), "\xEA\xAF\x8D");
    EXPECT_EQ(ValueOf("\\x00414"), "A4");
}

TEST(UnicodeEscape, IsResolvedInCommentsKeysAndNames) {
    EXPECT_EQ(Shown(ReadQuietly(";\\x00e4\n[\\x00f6]\n\\x00fc=1;\\x00df\n")),
        (ShownLines{"[QI_Global]", "# QI_C_1=\xC3\xA4", "[\xC3\xB6]", "\xC3\xBC=1 ;\xC3\x9F"}));
}

TEST(UnicodeEscape, OfAQuoteOrASignActsLikeTheSign) {
    EXPECT_EQ(Shown(ReadQuietly("a\\x003db\\x003bc\n")), (ShownLines{"[QI_Global]", "a=b ;c"}));
    EXPECT_EQ(Shown(ReadQuietly("a=\\x0022x y\\x0022\n")), (ShownLines{"[QI_Global]", "a=\"x y\""}));
}

TEST(UnicodeEscape, OfABackslashBeginsNoEscape) {
    EXPECT_EQ(ValueOf("\\x005cx0041"), "\\x0041");
}

TEST(UnicodeEscape, OfALineFeedEndsTheScanOfAValueButNotTheLine) {
    EXPECT_EQ(Shown(ReadQuietly("a=1\\x000ab=2\nc=3\n")), (ShownLines{"[QI_Global]", "a=1", "c=3"}));
    EXPECT_EQ(
        Shown(ReadQuietly(";1\\x000ab=2\nc=3\n")), (ShownLines{"[QI_Global]", "# QI_C_1=1\nb=2", "c=3"}));
}

TEST(UnicodeEscape, OfZeroGivesNoByte) {
    EXPECT_EQ(ValueOf("a\\x0000b"), "ab");
}

TEST(UnicodeEscape, OfALoneSurrogateIsEncodedLikeAnyValue) {
    EXPECT_EQ(ValueOf("\\xd83d"), "\xED\xA0\xBD");
    EXPECT_EQ(ValueOf("\\xDC00a"), "\xED\xB0\x80"
                                   "a");
    EXPECT_EQ(ValueOf("\\xdfff\\x0041"), "\xED\xBF\xBF"
                                         "A");
}

TEST(UnicodeEscape, BehindAnEscapedBackslashIsNone) {
    EXPECT_EQ(ValueOf("\"\\\\x0041\""), "\\x0041");
}

TEST(UnicodeEscape, NeedsALowerCaseX) {
    EXPECT_EQ(ValueOf("\\X0041"), "\\X0041");
}

TEST(UnicodeEscape, WithAnotherCharacterAmongItsDigitsLosesItsBackslash) {
    EXPECT_EQ(ValueOf("\\xg"), "xg");
    EXPECT_EQ(ValueOf("\\x1g"), "x1g");
    EXPECT_EQ(ValueOf("\\x12g"), "x12g");
    EXPECT_EQ(ValueOf("\\x123g"), "x123g");
    EXPECT_EQ(ValueOf("\\x12"
                      "\n"),
        "x12");
    for (const char character : {'/', ':', '@', 'G', '`', 'g'}) { // the neighbours of the digits
        EXPECT_EQ(ValueOf(std::string("\\x123") + character), std::string("x123") + character);
    }
}

TEST(UnicodeEscape, ScanningContinuesAtTheOtherCharacter) {
    EXPECT_EQ(ValueOf("\\x12\\x0041"), "x12A");
    EXPECT_EQ(ValueOf("\\x\\x0041"), "xA");
    EXPECT_EQ(ValueOf("\\x12\r\n"), "x12");
}

TEST(UnicodeEscape, AtTheEndOfTheTextFails) {
    for (const std::string_view text : {"\\x", "\\x0", "\\x00", "\\x00f"}) {
        EXPECT_EQ(FailureOf(text), BeyondEnd) << text;
    }
}

TEST(UnicodeEscape, WithAnotherCharacterBeforeTheEndOfTheTextDoesNotFail) {
    EXPECT_EQ(ValueOf("\\x0g"), "x0g");
}

TEST(UnicodeEscape, AtTheEndIsWholeWithItsFourthDigit) {
    EXPECT_EQ(ValueOf("\\x00e4"), "\xC3\xA4");
    EXPECT_EQ(ValueOf("\\x00e4\\"), "\xC3\xA4"); // the last backslash is dropped
    EXPECT_EQ(ValueOf("\\xd83d\\y"), "\xED\xA0\xBD\\y");
}

TEST(SurrogatePair, GivesOneCharacterOfFourBytes) {
    EXPECT_EQ(ValueOf("\\xd83d\\xde00"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(ValueOf("\\xD800\\xDC00"), "\xF0\x90\x80\x80");
    EXPECT_EQ(ValueOf("\\xdbff\\xdfff!"), "\xF4\x8F\xBF\xBF!");
    EXPECT_EQ(ValueOf("\\xd83d\\xde00\\xd83d\\xde01"), "\xF0\x9F\x98\x80\xF0\x9F\x98\x81");
}

TEST(SurrogatePair, FailsWithoutALowSurrogate) {
    for (const std::string_view second : {"\\x0041", "\\xdbff", "\\xe000", "\\xd83d", "\\x0000"}) {
        EXPECT_EQ(FailureOf("\\xd83d" + std::string(second)), LowSurrogateRange) << second;
    }
}

TEST(SecondEscape, HasToBeWholeWhateverTheFirstIs) {
    for (const std::string_view first : {"\\x0041", "\\xd83d", "\\xdc00"}) {
        for (const std::string_view end : {"\\x", "\\x1", "\\x12", "\\x123"}) {
            EXPECT_EQ(FailureOf(std::string(first) + std::string(end)), BeyondEnd) << first << end;
        }
        for (const std::string_view wrong : {"\\xg", "\\x1g", "\\x12g", "\\x123g", "\\x12\\n"}) {
            EXPECT_EQ(FailureOf(std::string(first) + std::string(wrong)), NoLowSurrogate) << first << wrong;
        }
    }
}

TEST(SecondEscape, IsReadOnItsOwnBehindAPlainOne) {
    EXPECT_EQ(ValueOf("\\x0041\\x0042\\x0043"), "ABC");
    EXPECT_EQ(ValueOf("\\x0041\\xd83d\\xde00"), "A\xF0\x9F\x98\x80");
    EXPECT_EQ(ValueOf("\\xdc00\\xd83d"), "\xED\xB0\x80\xED\xA0\xBD");
}

TEST(UnicodeEscape, FailsBeforeAnyLineIsRead) {
    const ScratchFile file;
    file.Fill("a=1\nno sign\nb=\\x00");
    IniDocument document;
    OutputCatcher output;
    EXPECT_THROW(ReadIniFile(document, file.Path()), std::runtime_error);
    EXPECT_EQ(output.Text(), "");
    EXPECT_EQ(document, IniDocument());
}
