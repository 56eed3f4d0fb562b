#include "tests/music/Copies.hpp"
#include "tests/music/Measure.hpp"
#include "tests/music/Shipped.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>
#include <string>

namespace {

constexpr int Rate = 44100;
constexpr std::size_t Unit = 286650; // frames: 6.5 seconds; a stage lasts four of them

/// What two weapons may have below 120 Hz, in dB of full scale: 3 dB less than the first version of their
/// music had.
constexpr double MostOfTwoWeapons = -26.4;

/// How many units each file of a mode is long. Loops of a run end where its stages change, or power-ups
/// begin.
const std::map<std::string, std::size_t> Units{{"MenuCredits", 8}, {"Gameplay", 4}, {"Water", 4},
    {"GameOver", 4}, {"Invincibility", 1}, {"DualWeapon", 1}};

bool IsOfAPowerUp(const std::string &Name) {
    return Name == "Invincibility" || Name == "DualWeapon";
}

/// A piece with a tone of its own in each bar, that many octaves above the one before; the last may repeat
/// the first. Each bar begins and ends with an eighth of silence, so that a window that looks into the next
/// bar finds nothing there.
Piece Scale(int Bars, double Octaves, bool RepeatsTheFirst) {
    Piece piece{Rate, 2, {}};
    constexpr std::size_t frames = 44100;
    for (int bar = 0; bar < Bars; ++bar) {
        const double frequency =
            220.0 * std::pow(2.0, RepeatsTheFirst && bar == Bars - 1 ? 0.0 : Octaves * bar);
        for (std::size_t frame = 0; frame < frames; ++frame) {
            const double amplitude = frame >= frames / 8 && frame < frames / 8 * 7 ? 0.5 : 0.0;
            const double phase = 2.0 * std::numbers::pi * frequency * static_cast<double>(frame) / Rate;
            piece.Samples.insert(piece.Samples.end(), 2, static_cast<float>(amplitude * std::sin(phase)));
        }
    }
    return piece;
}

/// Expects that a measure finds its share of bars to be at most a sixth in each file.
void ExpectAtMostOneBarInSix(const std::string &What, double (*ShareOfBars)(const Piece &Piece, int Bars)) {
    for (const auto &[name, mode] : Modes()) {
        const double first = ShareOfBars(mode.First, mode.Written.Bars);
        const double second = ShareOfBars(mode.Second, mode.Written.Bars);
        Show(name, What, 100.0 * first, "% in the first file");
        Show(name, What, 100.0 * second, "% in the second");
        EXPECT_LE(first, 1.0 / 6.0) << name;
        EXPECT_LE(second, 1.0 / 6.0) << name;
    }
}

/// Half a second of a tone of 441 Hz on both channels, cut off after the given number of frames.
Piece Tone(std::size_t Frames, float Amplitude) {
    Piece piece{Rate, 2, {}};
    for (std::size_t frame = 0; frame < Frames; ++frame) {
        const float phase = static_cast<float>(frame % 100) / 100.0F * 2.0F * std::numbers::pi_v<float>;
        piece.Samples.insert(piece.Samples.end(), 2, Amplitude * std::sin(phase));
    }
    return piece;
}

} // namespace

TEST(Music, IsInStereoAtTheMixersRate) {
    for (const auto &[name, piece] : Shipped()) {
        EXPECT_EQ(piece.Rate, Rate) << name;
        EXPECT_EQ(piece.Channels, 2) << name;
    }
}

TEST(Music, BothFilesOfAModeAreAsLongAsItsPlaceInTheGameWants) {
    std::size_t units = 0;
    for (const auto &[name, mode] : Modes()) {
        Show(name, "length", static_cast<double>(FrameCount(mode.First)) / Rate, "s");
        EXPECT_EQ(FrameCount(mode.First), Units.at(name) * Unit) << name;
        EXPECT_EQ(FrameCount(mode.Second), Units.at(name) * Unit) << name;
        units += 2 * Units.at(name);
    }
    EXPECT_EQ(units, 44U); // 286 seconds
}

TEST(Music, FilesAreWithinTwoUnitsOfTheirMeanLoudness) {
    std::map<std::string, double> loudness;
    double mean = 0.0;
    for (const auto &[name, piece] : Shipped()) {
        loudness[name] = Loudness(piece);
        mean += loudness[name] / static_cast<double>(Shipped().size());
        Show(name, "loudness", loudness[name], "LUFS");
    }
    Show("mean", "loudness", mean, "LUFS");
    EXPECT_GE(mean, -17.0);
    EXPECT_LE(mean, -16.0);
    for (const auto &[name, ofPiece] : loudness) {
        EXPECT_LE(std::abs(ofPiece - mean), 2.0) << name;
    }
}

TEST(Music, PowerUpsAreNoLouderThanWhatTheyLeave) {
    double left = 0.0;
    for (const char *name : {"Gameplay", "GameplayB", "Water", "WaterB"}) {
        left = std::min(left, Loudness(Shipped().at(name)));
    }
    for (const char *name : {"Invincibility", "InvincibilityB", "DualWeapon", "DualWeaponB"}) {
        EXPECT_LE(Loudness(Shipped().at(name)), left) << name;
    }
}

TEST(Music, EachModeHasQuietAndLoudParts) {
    for (const auto &[name, mode] : Modes()) {
        const double range = LoudnessRange(InTurn(mode));
        Show(name, "loudness range", range, "LU");
        EXPECT_GE(range, IsOfAPowerUp(name) ? 1.0 : 3.0) << name;
    }
}

TEST(Music, PeaksStayThreeDecibelsBelowFullScale) {
    for (const auto &[name, piece] : Shipped()) {
        const double peak = TruePeak(piece);
        Show(name, "true peak", peak, "dBTP");
        EXPECT_LE(peak, -3.0) << name;
    }
}

TEST(Music, AtMostOneBarInSixIsANearCopyOfAnotherInItsFile) {
    ExpectAtMostOneBarInSix("bars with a near-copy", NearCopies);
}

TEST(Music, AtMostOneBarInSixHasTheTextureOfAnotherInItsFile) {
    ExpectAtMostOneBarInSix("bars with another's texture", SameTextures);
}

TEST(Music, StandsInTheMiddle) {
    for (const auto &[name, piece] : Shipped()) {
        const double balance = Balance(piece);
        Show(name, "left over right", balance, "dB");
        EXPECT_LE(std::abs(balance), 0.5) << name;
        EXPECT_LE(Offset(piece), 0.0005) << name;
    }
}

TEST(Music, IsWideButLosesLittleInMono) {
    for (const auto &[name, piece] : Shipped()) {
        Show(name, "side under middle", SideUnderMiddle(piece), "dB");
        Show(name, "side under middle below 120 Hz", SideUnderMiddleBelow120(piece), "dB");
        Show(name, "lost in mono", MonoLoss(piece), "dB");
        EXPECT_GE(SideUnderMiddle(piece), 9.0) << name;
        EXPECT_LE(SideUnderMiddle(piece), 20.0) << name;
        EXPECT_GE(SideUnderMiddleBelow120(piece), 25.0) << name;
        EXPECT_LE(MonoLoss(piece), 1.0) << name;
    }
}

// Two weapons fire twice as often, and what they hit bursts low.
TEST(Music, TwoWeaponsHaveThreeDecibelsLessBelow120HertzThanOtherMusicOfARun) {
    double others = 0.0;
    for (const char *name : {"Gameplay", "GameplayB", "Water", "WaterB"}) {
        others += LevelBelow120(Shipped().at(name)) / 4.0;
    }
    Show("others", "mean below 120 Hz", others, "dB");
    for (const char *name : {"DualWeapon", "DualWeaponB"}) {
        const double level = LevelBelow120(Shipped().at(name));
        Show(name, "below 120 Hz", level, "dB");
        EXPECT_LE(level, others - 3.0) << name;
        EXPECT_LE(level, MostOfTwoWeapons) << name;
    }
}

TEST(MusicMeasures, AToneIsMeasuredAsItIs) {
    const Piece tone = Tone(Rate, 0.5F);
    EXPECT_NEAR(TruePeak(tone), -6.02, 0.1);
    EXPECT_NEAR(Level(tone, 0, Rate), -9.03, 0.01);
    EXPECT_NEAR(
        Loudness(tone), -6.7, 0.3); // both channels at -9.03 dB, less what the weighting takes below 1 kHz
    EXPECT_NEAR(Balance(tone), 0.0, 0.001);
    EXPECT_NEAR(UsualStep(tone, 1.0), 0.5 * std::sin(2.0 * std::numbers::pi / 100.0), 0.001);
}

TEST(MusicMeasures, SidesAreMeasuredAsTheyAre) {
    Piece tone = Tone(Rate, 0.5F);
    for (std::size_t at = 1; at < tone.Samples.size(); at += 2) {
        tone.Samples[at] *= 0.5F; // so the middle is 0.75, the side 0.25
    }
    EXPECT_NEAR(SideUnderMiddle(tone), 9.54, 0.01);
    EXPECT_NEAR(SideUnderMiddleBelow120(tone), 9.54, 0.1);
    EXPECT_NEAR(MonoLoss(tone), 0.46, 0.01); // (1 + 0.25) / 2 over 0.75 squared
}

TEST(MusicMeasures, WhatIsBelow120HertzIsToldFromWhatIsAbove) {
    EXPECT_LE(LevelBelow120(Tone(Rate, 0.5F)), -50.0);
    Piece low = Tone(Rate, 0.5F);
    for (std::size_t at = low.Samples.size(); at-- > 0;) {
        low.Samples[at] = low.Samples[at / 10 - at / 10 % 2]; // a tenth as fast: 44.1 Hz
    }
    EXPECT_NEAR(LevelBelow120(low), -9.03, 0.1);
}

TEST(MusicMeasures, ARepeatedBarIsSeen) {
    constexpr double wholeTone = 1.0 / 6.0;
    constexpr double octave = 1.0;
    EXPECT_EQ(NearCopies(Scale(4, wholeTone, false), 4), 0.0);
    EXPECT_EQ(NearCopies(Scale(4, wholeTone, true), 4), 0.5); // the first and the last
    EXPECT_EQ(SameTextures(Scale(4, octave, false), 4), 0.0);
    EXPECT_EQ(SameTextures(Scale(4, octave, true), 4), 0.5);
}

TEST(MusicMeasures, ALoopThatIsCutInTheWrongPlaceIsSeen) {
    EXPECT_LE(SeamStep(Tone(Rate, 0.5F)), UsualStep(Tone(Rate, 0.5F), 1.0) * 1.001);
    EXPECT_GT(SeamStep(Tone(Rate - 25, 0.5F)), UsualStep(Tone(Rate - 25, 0.5F), 1.0) * 10.0);
}
