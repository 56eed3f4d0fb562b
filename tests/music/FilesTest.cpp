#include "tests/music/Shipped.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t LargestFile = 1000000;       // bytes
constexpr std::uintmax_t LargestOfAllFiles = 6000000; // bytes

/// What the lines `<Key> = "..."` of the pattern file say.
std::multiset<std::string> ValuesOf(const std::string &Key) {
    const std::regex pattern("^" + Key + " = \"([^\"]*)\"$");
    std::ifstream file(MusicFolder() / "MusicPatterns.ini");
    std::multiset<std::string> values;
    std::smatch match;
    for (std::string line; std::getline(file, line);) {
        if (std::regex_match(line, match, pattern)) {
            values.insert(match[1]);
        }
    }
    return values;
}

} // namespace

TEST(MusicFiles, ThePatternFileNamesEveryFileOnceAndNoOther) {
    std::multiset<std::string> shipped;
    for (const std::string &name : NamesIn(MusicFolder(), ".ogg")) {
        shipped.insert("Music/" + name + ".ogg");
    }
    EXPECT_EQ(ValuesOf("FileName"), shipped);
}

TEST(MusicFiles, TheSixFilesOfTheBuiltInPatternsExist) {
    for (const char *name : {"MenuCredits", "Gameplay", "Water", "GameOver", "Invincibility", "DualWeapon"}) {
        EXPECT_TRUE(Shipped().contains(name)) << name;
    }
}

TEST(MusicFiles, EveryScoreHasItsTwoFilesAndEveryFileItsScore) {
    std::set<std::string> written;
    for (const std::string &name : NamesIn(fs::path(SOURCE_TREE) / "tools" / "music", ".csd")) {
        written.insert(name);
        written.insert(name + "B");
    }
    EXPECT_EQ(NamesIn(MusicFolder(), ".ogg"), written);
    EXPECT_EQ(written.size(), 2 * Modes().size());
}

TEST(MusicFiles, NoFileIsLargerThanAMegabyteAndAllThanSix) {
    std::uintmax_t sum = 0;
    for (const auto &[name, piece] : Shipped()) {
        const std::uintmax_t size = fs::file_size(MusicFolder() / (name + ".ogg"));
        Show(name, "size", static_cast<double>(size) / 1000.0, "kB");
        EXPECT_LE(size, LargestFile) << name;
        sum += size;
    }
    Show("all", "size", static_cast<double>(sum) / 1000.0, "kB");
    EXPECT_LE(sum, LargestOfAllFiles);
}
