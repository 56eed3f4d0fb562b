#include "tests/music/Seam.hpp"
#include "tests/music/Measure.hpp"
#include "tests/music/Shipped.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr int BarsAround = 3;
constexpr double LongestHole =
    15.0; // ms: the ramps at a file's end and start, and the window of 10 ms that sees them
constexpr std::size_t BeforeFirstBeat = 1984; // frames: 45 ms

/// How late the other file may take over, in frames: 0 to 44 ms.
constexpr std::array<std::size_t, 5> Late{0, 485, 970, 1455, 1940};

std::size_t BarOf(const Mode &Mode) {
    return FrameCount(Mode.First) / static_cast<std::size_t>(Mode.Written.Bars);
}

/// From the first file of each mode to its second, and back.
std::map<std::string, Seam> Seams() {
    std::map<std::string, Seam> seams;
    for (const auto &[name, mode] : Modes()) {
        seams[name + " A-B"] = {mode.First, mode.Second, BarOf(mode)};
        seams[name + " B-A"] = {mode.Second, mode.First, BarOf(mode)};
    }
    return seams;
}

/// A noise that is the same everywhere, with a pause of that many frames in its middle.
Seam NoiseWithAPause(std::size_t Pause) {
    Piece piece{44100, 2, {}};
    unsigned state = 1;
    for (std::size_t at = 0; at < std::size_t{2} * 44100; ++at) {
        state = state * 1664525U + 1013904223U;
        piece.Samples.push_back(static_cast<float>(state >> 8) / 16777216.0F - 0.5F);
    }
    Seam seam{piece, piece, 22050};
    std::fill_n(seam.After.Samples.begin(), 2 * Pause, 0.0F);
    return seam;
}

} // namespace

TEST(MusicSeams, TheStepIsNoLargerThanThePieceTakesAllTheTime) {
    for (const auto &[name, piece] : Shipped()) {
        Show(name, "step at the seam", SeamStep(piece), "");
        EXPECT_LE(SeamStep(piece), UsualStep(piece, 0.5)) << name;
    }
}

TEST(MusicSeams, LeaveNoHole) {
    for (const auto &[name, seam] : Seams()) {
        for (const std::size_t late : Late) {
            const double hole = Hole(seam, late);
            Show(name, "hole, " + std::to_string(late * 1000 / 44100) + " ms late", hole, "ms");
            EXPECT_LE(hole, LongestHole) << name << ' ' << late;
        }
    }
}

TEST(MusicSeams, DifferFromTheBarsAroundNoMoreThanTheseAmongEachOther) {
    for (const auto &[name, seam] : Seams()) {
        std::vector<double> around = LevelsAround(seam, BarsAround);
        const double level = around[BarsAround];
        around.erase(around.begin() + BarsAround);
        const auto [quietest, loudest] = std::ranges::minmax(around);
        const double difference = std::max(loudest - level, level - quietest);
        Show(name, "the seam differs", difference, "dB");
        Show(name, "the bars around differ", loudest - quietest, "dB");
        EXPECT_LE(difference, loudest - quietest) << name;
    }
}

TEST(MusicSeams, ALateCutIsNoSharperThanTheMusicAround) {
    for (const auto &[name, seam] : Seams()) {
        double sharpest = -100.0;
        for (const std::size_t late : Late) {
            sharpest = std::max(sharpest, CutSharpness(seam, late, 0.98));
        }
        Show(name, "sharpest cut", sharpest, "dB above the 98th of 100 stretches");
        EXPECT_LE(sharpest, 0.0) << name;
    }
}

// The old file is heard for this long when another one follows: its first beat shall not be.
TEST(MusicSeams, NothingBeginsBeforeTheFirstBeat) {
    for (const auto &[name, piece] : Shipped()) {
        const double sharpest = StartSharpness(piece, BeforeFirstBeat, 0.95);
        Show(name, "sharpest of the first 45 ms", sharpest, "dB above the 95th of 100 stretches");
        EXPECT_LE(sharpest, 0.0) << name;
    }
}

TEST(MusicMeasures, AHoleIsMeasuredAsItIs) {
    EXPECT_EQ(Hole(NoiseWithAPause(0), 0), 0.0);
    // A window of 10 ms falls by 8 dB when 84 percent of it are silent: 3.4 ms less than the pause at both
    // ends together.
    EXPECT_NEAR(Hole(NoiseWithAPause(2205), 0), 50.0 + 10.0 - 2 * 8.4, 2.0);
}

TEST(MusicMeasures, ASharpCutIsSeen) {
    Seam seam = NoiseWithAPause(0);
    EXPECT_NEAR(CutSharpness(seam, 0, 0.5), 0.0, 1.5);
    // The steps of the noise have a mean square of 1/3 for both sides together. Two steps of 20 in 132
    // add 6.1 to it.
    seam.After.Samples[0] = 20.0F;
    EXPECT_NEAR(CutSharpness(seam, 0, 0.5), 12.8, 1.0);
}
