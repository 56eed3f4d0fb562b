#include "tests/tree/SourceTree.hpp"
#include "tools/support/Files.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <regex>
#include <sstream>

// Where the code itself would surprise, a comment "NOT-BUGS: " leads to the paragraph of docs/NOT-BUGS.md
// that tells why: by the first words of its title, enough of them to find that one paragraph alone.

namespace {

/// A line of code that has the mark.
struct Mark {
    std::string Words; ///< what stands behind it; nothing if it is not the beginning of a comment
    std::string Place; ///< the file and the line, for a failure's words
};

/// What stands in bold at the beginning of the paragraphs, each in one line.
Names TitlesOf(const std::string &Page) {
    Names titles = AllMatches(Page, R"(^- \*\*([^*]+)\*\*)");
    for (std::string &title : titles) {
        title = std::regex_replace(title, std::regex(R"(\s+)"), " ");
    }
    return titles;
}

std::vector<Mark> MarksOf(const std::string &Code, const std::string &File) {
    static const std::regex pattern(R"(^(?:(?!//).)*///?<? NOT-BUGS: (.+)$)");
    std::vector<Mark> marks;
    std::istringstream lines(Code);
    for (std::string line; std::getline(lines, line);) {
        if (line.find("NOT-BUGS") != std::string::npos) {
            std::smatch match;
            std::regex_match(line, match, pattern);
            marks.push_back({match[1].str(), File + ": " + line});
        }
    }
    return marks;
}

std::vector<Mark> MarksOfAllRooms() {
    std::vector<Mark> marks;
    for (const Room &room : Rooms()) {
        for (const std::filesystem::path &source : SourcesOfRoom(room.Name)) {
            std::ranges::move(
                MarksOf(ReadBytes(source), source.filename().string()), std::back_inserter(marks));
        }
    }
    return marks;
}

/// Whether a title begins with these words, the last of them whole.
bool BeginsWith(const std::string &Title, const std::string &Words) {
    return Title.starts_with(Words) && std::regex_match(Title.substr(Words.size()), std::regex("\\W.*|"));
}

/// Where every mark stands that does not lead to one paragraph.
Names LostMarks(const std::vector<Mark> &Marks, const Names &Titles) {
    Names lost;
    for (const Mark &mark : Marks) {
        const auto leadsTo = [&mark](const std::string &Title) {
            return BeginsWith(Title, mark.Words);
        };
        if (mark.Words.empty() || std::ranges::count_if(Titles, leadsTo) != 1) {
            lost.push_back(mark.Place);
        }
    }
    return lost;
}

} // namespace

TEST(NotBugs, EachMarkLeadsToItsParagraph) {
    const std::vector<Mark> marks = MarksOfAllRooms();
    EXPECT_FALSE(marks.empty()) << "no mark was found";
    EXPECT_EQ(LostMarks(marks, TitlesOf(ReadBytes(Tree() / "docs" / "NOT-BUGS.md"))), Names{});
}

TEST(NotBugs, TitlesAreReadFromThePage) {
    EXPECT_EQ(TitlesOf("# Not bugs\n\nAll **of them** stay.\n\n- **One.** It **is** so.\n  - **None**\n"
                       "- **Two, which\n  goes on,** here\n- **`Three` is code**.\n"),
        (Names{"One.", "Two, which goes on,", "`Three` is code"}));
}

TEST(NotBugs, MarksAreReadWhereverACommentBegins) {
    const Names titles{"It is so.", "It is not so,"};
    for (const std::string code :
        {"// NOT-BUGS: It is so", "    /// NOT-BUGS: It is so.", "\n// NOT-BUGS: It is not\n",
            "int X = 0; ///< NOT-BUGS: It is so", "X = Y / Z; // NOT-BUGS: It is not so"}) {
        EXPECT_EQ(MarksOf(code, "File").size(), 1U) << code;
        EXPECT_EQ(LostMarks(MarksOf(code, "File"), titles), Names{}) << code;
    }
    EXPECT_TRUE(MarksOf("// It is no bug.\n", "File").empty());
}

TEST(NotBugs, MarksThatLeadNowhereAreSeen) {
    const Names titles{"It is so.", "It is not so,"};
    for (const std::string code : {"// NOT-BUGS: It was so", "// NOT-BUGS: It is", "// NOT-BUGS: It is no",
             "// NOT-BUGS: is so", "// NOT-BUGS: It is so. And more", "// NOT-BUGS: ", "// NOT-BUGS It is so",
             "// NOT-BUGS:It is so", "// Odd. NOT-BUGS: It is so", "f(\"NOT-BUGS: It is so\");"}) {
        EXPECT_EQ(LostMarks(MarksOf(code, "File"), titles), Names{"File: " + code}) << code;
    }
}
