#include "tests/quillini/IniTest.hpp"

#include <iostream>
#include <sstream>

using namespace quillINI;

namespace {

constexpr std::string_view NoSign = "Error while reading INI file: No \"=\" or \":\" sign found!\n\n";

/// Collects what is printed, and how much of it had arrived at the last flush.
class FlushWatch : public std::stringbuf {
public:
    FlushWatch() : Previous(std::cout.rdbuf(this)) {}
    ~FlushWatch() override {
        std::cout.rdbuf(Previous);
    }
    FlushWatch(const FlushWatch &) = delete;
    FlushWatch &operator=(const FlushWatch &) = delete;

    std::string Flushed;

private:
    int sync() override {
        Flushed = str();
        return 0;
    }

    std::streambuf *Previous;
};

} // namespace

TEST(SyntaxError, EndsTheReadingAndKeepsWhatWasRead) {
    const ReadResult result = Read("a=1\n[S]\nb=2\nno sign\nc=3\n[T]\nno sign either\n");
    EXPECT_TRUE(result.Success);
    EXPECT_EQ(result.Output, NoSign);
    EXPECT_EQ(Shown(result.Document), (ShownLines{"[QI_Global]", "a=1", "[S]", "b=2"}));
}

TEST(SyntaxError, OnTheLastLineIsReportedToo) {
    for (const std::string_view end : {"", "\n", "\r\n"}) {
        const ReadResult result = Read("a=1\nno sign" + std::string(end));
        EXPECT_TRUE(result.Success);
        EXPECT_EQ(result.Output, NoSign);
        EXPECT_EQ(Shown(result.Document), (ShownLines{"[QI_Global]", "a=1"}));
    }
}

TEST(SyntaxError, OnTheLastLineStillAppendsTheCurrentSection) {
    EXPECT_EQ(Shown(Read("[S]\nno sign\n").Document), (ShownLines{"[QI_Global]", "[S]"}));
}

TEST(SyntaxError, BeforeTheLastLineAppendsNoSection) {
    const ReadResult result = Read("[S]\nno sign\na=1\n");
    EXPECT_EQ(result.Output, NoSign);
    EXPECT_EQ(Shown(result.Document), (ShownLines{"[QI_Global]"}));
    EXPECT_EQ(Shown(Read("[S\n\n").Document), (ShownLines{"[QI_Global]"}));
}

TEST(SyntaxError, IsFlushed) {
    for (const std::string_view end : {"", "\nb=2"}) {
        const ScratchFile file;
        file.Fill("a=1\nno sign" + std::string(end));
        IniDocument document;
        FlushWatch watch;
        EXPECT_TRUE(ReadIniFile(document, file.Path()));
        EXPECT_EQ(watch.Flushed, NoSign);
        EXPECT_EQ(watch.str(), NoSign);
    }
}

TEST(Reading, AddsToADocumentThatIsNotEmpty) {
    const ScratchFile file;
    IniDocument document;
    file.Fill("a=1\n;one\n[S]\nb=2\n");
    EXPECT_TRUE(ReadIniFile(document, file.Path()));
    file.Fill("a=3\n;two\n[S]\nc=4\n[T]\n");
    EXPECT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(Shown(document),
        (ShownLines{"[QI_Global]", "a=3", "# QI_C_1=one", "# QI_C_2=two", "[S]", "b=2", "c=4", "[T]"}));
}

TEST(Reading, AppendsTheGlobalSectionWhereItIsMissing) {
    const ScratchFile file;
    file.Fill("[S]\nb=2\n");
    IniDocument document;
    document.Sections.clear();
    EXPECT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(Shown(document), (ShownLines{"[S]", "b=2"}));
    document.Sections.clear();
    file.Fill("b=2222\n");
    EXPECT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(Shown(document), (ShownLines{"[QI_Global]", "b=2222"}));
}
