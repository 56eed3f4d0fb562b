#include "tests/quillini/IniTest.hpp"

#include <bit>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <locale>

using namespace quillINI;

namespace {

/// Numbers with a decimal comma and points between groups of one digit.
struct ForeignNumbers : std::numpunct<char> {
    char do_decimal_point() const override {
        return ',';
    }
    char do_thousands_sep() const override {
        return '.';
    }
    std::string do_grouping() const override {
        return "\1";
    }
};

/// Byte conversion that turns each letter a into an X, in both directions.
struct ForeignBytes : std::codecvt<char, char, std::mbstate_t> {
    bool do_always_noconv() const noexcept override {
        return false;
    }
    result do_in(std::mbstate_t & /*State*/, const char *From, const char *FromEnd, const char *&FromNext,
        char *To, char *ToEnd, char *&ToNext) const override {
        for (; From != FromEnd && To != ToEnd; ++From, ++To) {
            *To = *From == 'a' ? 'X' : *From;
        }
        FromNext = From;
        ToNext = To;
        return ok;
    }
    result do_out(std::mbstate_t &State, const char *From, const char *FromEnd, const char *&FromNext,
        char *To, char *ToEnd, char *&ToNext) const override {
        return do_in(State, From, FromEnd, FromNext, To, ToEnd, ToNext);
    }
};

/// A locale for the whole program, standard output included, until the end of the test.
class GlobalLocale {
public:
    explicit GlobalLocale(const std::locale &Locale)
        : Previous(std::locale::global(Locale)), PreviousOutput(std::cout.imbue(Locale)) {}
    ~GlobalLocale() {
        std::cout.imbue(PreviousOutput);
        std::locale::global(Previous);
    }
    GlobalLocale(const GlobalLocale &) = delete;
    GlobalLocale &operator=(const GlobalLocale &) = delete;

private:
    std::locale Previous;
    std::locale PreviousOutput;
};

/// The German locale of the C library, until the end of the test.
class GermanCLibrary {
public:
    GermanCLibrary() : Previous(std::setlocale(LC_ALL, nullptr)) {
#ifdef _WIN32
        EXPECT_NE(std::setlocale(LC_ALL, "German_Germany"), nullptr);
#else
        // It is compiled for the test: few machines have one with a comma ready. An emulated program asks the
        // tool of the machine that emulates it, which has its numbers in another order.
        const std::filesystem::path place = Made.Path();
        const std::string order = std::endian::native == std::endian::big ? "big" : "little";
        const std::string command = "localedef --" + order + "-endian -i de_DE -f UTF-8 '";
        EXPECT_EQ(std::system((command + place.string() + "'").c_str()), 0);
        setenv("LOCPATH", place.parent_path().c_str(), 1);
        EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
#endif
    }
    ~GermanCLibrary() {
        std::setlocale(LC_ALL, Previous.c_str());
#ifndef _WIN32
        unsetenv("LOCPATH");
#endif
    }
    GermanCLibrary(const GermanCLibrary &) = delete;
    GermanCLibrary &operator=(const GermanCLibrary &) = delete;

private:
    const ScratchFile Made{"de_DE.UTF-8"};
    std::string Previous;
};

/// Everything in which a number or a character class of the locale could show.
void ExpectNothingForeign() {
    IniSection section;
    for (int i = 0; i < 1200; ++i) {
        AddIniArrayElement(section, "a", "x", false, false, "", "", false);
    }
    EXPECT_EQ(section.Entries[0].Elements.back().Key, "1199");
    AddIniArrayElement(section, "b", "x", false, false, "", "12345", true);
    AddIniArrayElement(section, "b", "y", false, false, "", "", false);
    EXPECT_EQ(section.Entries[1].Elements.back().Key, "12346");

    IniDocument document;
    document.Sections[0].EmptyLineCount = 12344;
    AppendIniEmptyLine(document, "");
    EXPECT_EQ(document.Sections[0].Entries[0].Key, "QI_EL_12345");

    EXPECT_EQ(EscapeIniText("\xE2\x82\xAC\x01"), "\\x20ac\\x0001");
    EXPECT_EQ(Read("a=1;x").Output, "INI file cannot be smaller than 6 bytes! (Size in bytes: 5)\n");
    EXPECT_EQ(
        Shown(ReadQuietly("a\xC3\xA0=1.5\n\n")), (ShownLines{"[QI_Global]", "a\xC3\xA0=1.5", "- QI_EL_1"}));
    EXPECT_EQ(Written(ReadQuietly("a=1,5\n[b]\n")), "a=1,5\r\n[b]");
}

} // namespace

TEST(Locale, OfTheProgramChangesNoNumber) {
    const GlobalLocale locale(std::locale(std::locale::classic(), new ForeignNumbers));
    std::ostringstream proof;
    proof << 12345;
    ASSERT_EQ(proof.str(), "1.2.3.4.5") << "the locale is in force";
    ExpectNothingForeign();
}

TEST(Locale, OfTheProgramConvertsNoByte) {
    ReadResult result;
    const ScratchFile file;
    file.Fill("a=aaa\n");
    const ScratchFile written;
    {
        const GlobalLocale locale(std::locale(std::locale::classic(), new ForeignBytes));
        EXPECT_TRUE(ReadIniFile(result.Document, file.Path()));
        EXPECT_TRUE(WriteIniFile(result.Document, written.Path(), false, IniEncoding::Utf8));
    }
    EXPECT_EQ(Shown(result.Document), (ShownLines{"[QI_Global]", "a=aaa"}));
    EXPECT_EQ(written.Bytes(), "a=aaa");
}

TEST(Locale, OfTheDocumentHasNoEffect) {
    const ScratchFile file;
    file.Fill("a[12345]=1.5\na[]=2\n");
    IniDocument document;
    document.Locale = std::locale(std::locale::classic(), new ForeignNumbers);
    EXPECT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(Shown(document), (ShownLines{"[QI_Global]", "a@12346!quoted", "a[12345]=1.5", "a[12346]=2"}));
    EXPECT_EQ(Written(document), "a[]=1.5a[]=2");
}

TEST(Locale, OfTheCLibraryWithACommaChangesNothing) {
    const GermanCLibrary locale;
    ASSERT_EQ(std::string(std::localeconv()->decimal_point), ",");
    ExpectNothingForeign();
}
