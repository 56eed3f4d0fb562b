#include "tests/music/Score.hpp"

#include "tests/music/Shipped.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

namespace {

constexpr std::array<const char *, 12> Tonics{
    "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};

/// The key of that scale which has more of the part's notes than any other.
std::string BestKey(const ScorePart &Part, const std::string &Scale) {
    std::string best;
    double share = 0.0;
    for (const char *tonic : Tonics) {
        const std::string key = tonic + (' ' + Scale);
        if (ShareInKey(Part, key) > share) {
            share = ShareInKey(Part, key);
            best = key;
        }
    }
    return best;
}

} // namespace

TEST(MusicScores, AreAsLongAsTheirFiles) {
    for (const auto &[name, mode] : Modes()) {
        EXPECT_GT(mode.Written.Bars, 0) << name;
        EXPECT_EQ(static_cast<double>(FrameCount(mode.First)) / mode.First.Rate, mode.Written.Seconds)
            << name;
    }
}

TEST(MusicScores, EachModeHasATempoOfItsOwn) {
    std::set<int> tempi;
    for (const auto &[name, mode] : Modes()) {
        Show(name, "tempo", Tempo(mode.Written), "beats a minute");
        tempi.insert(static_cast<int>(std::lround(Tempo(mode.Written))));
    }
    EXPECT_EQ(tempi.size(), Modes().size());
}

TEST(MusicScores, EachModeHasAKeyOfItsOwnAndItsFirstFileStandsInIt) {
    std::set<std::string> keys;
    for (const auto &[name, mode] : Modes()) {
        const std::string &key = mode.Written.Key;
        Show(name, key, 100.0 * ShareInKey(mode.Written.First, key), "% of the first file's notes");
        Show(name, key, 100.0 * ShareInKey(mode.Written.Second, key), "% of the second's");
        EXPECT_EQ(BestKey(mode.Written.First, key.substr(key.find(' ') + 1)), key) << name;
        EXPECT_GE(ShareInKey(mode.Written.First, key), 0.75) << name;
        keys.insert(key);
    }
    EXPECT_EQ(keys.size(), Modes().size());
}

TEST(MusicScores, TheTuneRestsForOneBeatInEight) {
    for (const auto &[name, mode] : Modes()) {
        Show(name, "rests in the first tune", 100.0 * RestShare(mode.Written.First), "%");
        Show(name, "rests in the second", 100.0 * RestShare(mode.Written.Second), "%");
        EXPECT_GE(RestShare(mode.Written.First), 0.125 - 1e-9) << name;
        EXPECT_GE(RestShare(mode.Written.Second), 0.125 - 1e-9) << name;
    }
}
