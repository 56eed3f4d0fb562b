#include "tools/support/Files.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

namespace {

/// The numbers that a pattern's first group finds in a file of the orchestra.
std::vector<double> NumbersIn(const std::string &Name, const std::string &Pattern) {
    const auto file = std::filesystem::path(SOURCE_TREE) / "tools" / "music" / Name;
    const std::string text = FindBytes(file).value_or("");
    const std::regex pattern(Pattern);
    std::vector<double> numbers;
    for (std::sregex_iterator found(text.begin(), text.end(), pattern), end; found != end; ++found) {
        numbers.push_back(std::stod((*found)[1]));
    }
    return numbers;
}

} // namespace

TEST(MusicOrchestra, SlidesTake40To60Milliseconds) {
    const std::vector<double> seconds = NumbersIn("Instruments.orc", "kSlide expseg iFrom, ([0-9.]+), iTo");
    ASSERT_EQ(seconds.size(), 1U);
    EXPECT_GE(seconds.front(), 0.04);
    EXPECT_LE(seconds.front(), 0.06);
}

TEST(MusicOrchestra, VibratoIs20To25CentsDeepAndComesLate) {
    const std::vector<double> depths = NumbersIn("Instruments.orc", "kBend lfo ([0-9.]+), iRate");
    ASSERT_EQ(depths.size(), 1U);
    EXPECT_GE(1200.0 * std::log2(1.0 + depths.front()), 20.0);
    EXPECT_LE(1200.0 * std::log2(1.0 + depths.front()), 25.0);
    const std::vector<double> waits = NumbersIn("Instruments.orc", "kPitch Pitch p4, p6, ([0-9.]+),");
    EXPECT_EQ(waits.size(), 5U); // lead, reed, solo guitar, flute and voice
    for (const double wait : waits) {
        EXPECT_GE(wait, 0.2);
    }
}

TEST(MusicOrchestra, TheTapeIsRampedForAtMostTenMilliseconds) {
    const std::vector<double> starts = NumbersIn("Studio.orc", "aEdge linseg 0, ([0-9.]+), 1, p3 - ");
    const std::vector<double> ends =
        NumbersIn("Studio.orc", "aEdge linseg 0, [0-9.]+, 1, p3 - [0-9.]+, 1, ([0-9.]+), 0\n");
    ASSERT_EQ(starts.size(), 1U);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_LE(starts.front(), 0.01);
    EXPECT_LE(ends.front(), 0.01);
}

TEST(MusicOrchestra, NothingIsTakenAwayAround1250Hertz) {
    const std::vector<double> quietened = NumbersIn("Studio.orc", "pareq aSound, ([0-9.]+), 0[.]");
    EXPECT_FALSE(quietened.empty()); // the low ones
    for (const double frequency : quietened) {
        EXPECT_TRUE(frequency < 625.0 || frequency > 2500.0) << frequency;
    }
}
