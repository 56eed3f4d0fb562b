#include "tests/music/Seam.hpp"
#include "tests/music/Measure.hpp"
#include "tests/music/Shipped.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

constexpr int BarsAround = 3;
constexpr double LongestHole = 10.0;          // ms
constexpr double SharpCut = 10.5;             // dB above the median: a click
constexpr double SharpStart = 6.5;            // dB above the median: a beat too early
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

/// From both files of a mode to the first of another one.
std::map<std::string, Seam> Changes(const std::string &From, const std::string &To) {
    const Mode &from = Modes().at(From);
    const Mode &to = Modes().at(To);
    const std::size_t bar = std::min(BarOf(from), BarOf(to));
    return {{From + " to " + To, {from.First, to.First, bar}},
        {From + "B to " + To, {from.Second, to.First, bar}}};
}

/// Expects that the other file follows without a hole and without a click, however late.
void ExpectSmooth(const std::string &Name, const Seam &Seam) {
    for (const std::size_t late : Late) {
        const double hole = Hole(Seam, late);
        const double sharpness = CutSharpness(Seam, late);
        const std::string when = ", " + std::to_string(late * 1000 / 44100) + " ms late";
        Show(Name, "hole" + when, hole, "ms");
        Show(Name, "sharpness" + when, sharpness, "dB");
        EXPECT_LE(hole, LongestHole) << Name << when;
        EXPECT_LE(sharpness, SharpCut) << Name << when;
    }
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

TEST(MusicSeams, LeaveNoHoleAndNoClick) {
    for (const auto &[name, seam] : Seams()) {
        ExpectSmooth(name, seam);
    }
}

// Most changes of the music wait for the end of a file. The others cut it short where it is; that is not
// measured here.
TEST(MusicSeams, LeaveNoneWhereTheGameWantsOtherMusic) {
    for (const auto &[from, ignored] : Modes()) {
        for (const auto &[to, ignoredToo] : Modes()) {
            if (from == to) {
                continue;
            }
            for (const auto &[name, seam] : Changes(from, to)) {
                ExpectSmooth(name, seam);
            }
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

// The old file is heard for this long when another one follows: its first beat shall not be.
TEST(MusicSeams, NothingBeginsBeforeTheFirstBeat) {
    for (const auto &[name, piece] : Shipped()) {
        const double sharpest = StartSharpness(piece, BeforeFirstBeat);
        Show(name, "sharpest of the first 45 ms", sharpest, "dB above the median");
        EXPECT_LE(sharpest, SharpStart) << name;
    }
}

TEST(MusicMeasures, AHoleIsMeasuredAsItIs) {
    EXPECT_EQ(Hole(NoiseWithAPause(0), 0), 0.0);
    // A window of 10 ms falls by 8 dB when 84 percent of it are silent: at each end 3.4 ms less than the
    // pause.
    EXPECT_NEAR(Hole(NoiseWithAPause(2205), 0), 50.0 + 10.0 - 2 * 8.4, 2.0);
}

TEST(MusicMeasures, ASharpCutIsSeen) {
    Seam seam = NoiseWithAPause(0);
    EXPECT_NEAR(CutSharpness(seam, 0), 0.0, 1.5);
    // The steps of the noise have a mean square of 1/3 for both sides together. Two steps of 20 in 132
    // add 6.1 to it.
    seam.After.Samples[0] = 20.0F;
    EXPECT_NEAR(CutSharpness(seam, 0), 12.8, 1.0);
}
