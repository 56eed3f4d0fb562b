#include "tests/tree/SourceTree.hpp"
#include "tools/support/Files.hpp"

#include <gtest/gtest.h>

#include <regex>

// The version stands once in the build, for the program. What tells of releases beside it names the same one
// first, and one day.

namespace {

/// The first two words that a pattern finds in a file, with a blank between them; nothing if it finds none.
std::string FirstRelease(const std::string &File, const std::string &Pattern) {
    const std::string text = ReadBytes(Tree() / File);
    std::smatch match;
    const std::regex pattern(Pattern, std::regex::ECMAScript | std::regex::multiline);
    return std::regex_search(text, match, pattern) ? match[1].str() + " " + match[2].str() : std::string();
}

/// "0.1.0 22 Nov 2026" with the day as the other files have it: "0.1.0 2026-11-22".
std::string WithPlainDay(const std::string &Release) {
    static const std::string months = "JanFebMarAprMayJunJulAugSepOctNovDec";
    std::smatch match;
    if (!std::regex_match(Release, match, std::regex("(.*) (..) (...) (....)"))) {
        return {};
    }
    const std::string month = std::to_string(101 + months.find(match[3].str()) / 3).substr(1);
    return match[1].str() + " " + match[4].str() + "-" + month + "-" + match[2].str();
}

std::string ReleaseOfMetainfo() {
    return FirstRelease(
        "packaging/kestrel-volley.metainfo.xml", R"re(<release version="([^"]+)" date="([^"]+)")re");
}

} // namespace

TEST(Release, IsTheVersionThatIsBuilt) {
    const Names version = AllMatches(ReadBytes(Tree() / "CMakeLists.txt"), R"(^project\(.* VERSION (\S+))");
    ASSERT_EQ(version.size(), 1U);
    EXPECT_EQ(ReleaseOfMetainfo().substr(0, version[0].size() + 1), version[0] + " ");
}

TEST(Release, IsToldAlikeEverywhere) {
    const std::string release = ReleaseOfMetainfo();
    ASSERT_FALSE(release.empty());
    EXPECT_EQ(FirstRelease("CHANGELOG.md", R"(^## (\d\S*) - (\S+)$)"), release);
    EXPECT_EQ(WithPlainDay(FirstRelease("packaging/debian/changelog",
                  R"(^kestrel-volley \((\S+)\)[\s\S]*? -- .*, (.. ... ....) )")),
        release);
}

TEST(Release, DaysAreReadAsDebianWritesThem) {
    EXPECT_EQ(WithPlainDay("0.1.0 22 Nov 2026"), "0.1.0 2026-11-22");
    EXPECT_EQ(WithPlainDay("1.0 01 Jan 2027"), "1.0 2027-01-01");
    EXPECT_EQ(WithPlainDay(""), "");
}
