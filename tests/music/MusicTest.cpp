#include "tests/music/Measure.hpp"
#include "tests/music/Piece.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <numbers>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;
using Pieces = std::map<std::string, Piece>;

constexpr int Rate = 44100;
constexpr std::size_t Unit = 286650;            // frames: 6.5 seconds
constexpr std::size_t Stage = 4 * Unit;         // a stage lasts 26 seconds
constexpr std::size_t BeforeFirstBeat = 1102;   // frames: 25 ms
constexpr std::uintmax_t LargestFile = 1000000; // bytes

fs::path MusicFolder() {
    return fs::path(SOURCE_TREE) / "Music";
}

/// The names, without the ending, of a folder's files of one kind.
std::set<std::string> NamesIn(const fs::path &Folder, const std::string &Ending) {
    std::set<std::string> names;
    for (const auto &entry : fs::directory_iterator(Folder)) {
        if (entry.path().extension() == Ending) {
            names.insert(entry.path().stem().string());
        }
    }
    return names;
}

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

/// All pieces that ship, decoded once.
const Pieces &Shipped() {
    static const Pieces pieces = [] {
        Pieces decoded;
        for (const std::string &name : NamesIn(MusicFolder(), ".ogg")) {
            const std::optional<Piece> piece = DecodePiece(MusicFolder() / (name + ".ogg"));
            EXPECT_TRUE(piece) << name << " cannot be decoded";
            decoded[name] = piece.value_or(Piece{});
        }
        return decoded;
    }();
    return pieces;
}

/// Prints one figure of a piece beside its name.
void Show(const std::string &Name, const std::string &What, double Figure, const std::string &Dimension) {
    std::cout << "  " << std::left << std::setw(16) << Name << What << ' ' << Figure << ' ' << Dimension
              << '\n';
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

TEST(MusicFiles, EveryFileHasItsScore) {
    EXPECT_EQ(NamesIn(MusicFolder(), ".ogg"), NamesIn(fs::path(SOURCE_TREE) / "tools" / "music", ".csd"));
}

TEST(MusicFiles, NoFileIsLargerThanAMegabyte) {
    for (const auto &[name, piece] : Shipped()) {
        const std::uintmax_t size = fs::file_size(MusicFolder() / (name + ".ogg"));
        Show(name, "size", static_cast<double>(size) / 1000.0, "kB");
        EXPECT_LE(size, LargestFile) << name;
    }
}

TEST(Music, IsInStereoAtTheMixersRate) {
    for (const auto &[name, piece] : Shipped()) {
        EXPECT_EQ(piece.Rate, Rate) << name;
        EXPECT_EQ(piece.Channels, 2) << name;
    }
}

TEST(Music, LengthsAreWholeUnitsThatDivideAStage) {
    for (const auto &[name, piece] : Shipped()) {
        Show(name, "length", static_cast<double>(FrameCount(piece)) / Rate, "s");
        ASSERT_GT(FrameCount(piece), 0U) << name;
        EXPECT_EQ(FrameCount(piece) % Unit, 0U) << name;
        EXPECT_EQ(Stage % FrameCount(piece), 0U) << name;
    }
}

TEST(Music, PowerUpsHaveLoopsOfOneUnit) {
    EXPECT_EQ(FrameCount(Shipped().at("Invincibility")), Unit);
    EXPECT_EQ(FrameCount(Shipped().at("DualWeapon")), Unit);
}

TEST(Music, BothHalvesOfATuneAreOfOneLength) {
    for (const char *name : {"MenuCredits", "Gameplay", "Water"}) {
        EXPECT_EQ(FrameCount(Shipped().at(name)), FrameCount(Shipped().at(std::string(name) + "B"))) << name;
    }
}

TEST(Music, TheSeamIsNoLargerAStepThanThePieceTakesAllTheTime) {
    for (const auto &[name, piece] : Shipped()) {
        Show(name, "step at the seam", SeamStep(piece), "");
        EXPECT_LE(SeamStep(piece), UsualStep(piece, 0.5)) << name;
    }
}

TEST(Music, IsQuietWhereAnotherPieceMayTakeOver) {
    for (const auto &[name, piece] : Shipped()) {
        const double quieter = Level(piece, 0, BeforeFirstBeat) - Level(piece, 0, FrameCount(piece));
        Show(name, "level of the first 25 ms", quieter, "dB");
        EXPECT_LE(quieter, -15.0) << name;
    }
}

TEST(Music, IsOfOneLoudness) {
    std::set<double> loudness;
    for (const auto &[name, piece] : Shipped()) {
        const double ofPiece = Loudness(piece);
        Show(name, "loudness", ofPiece, "LUFS");
        EXPECT_GE(ofPiece, -20.0) << name;
        EXPECT_LE(ofPiece, -18.0) << name;
        loudness.insert(ofPiece);
    }
    EXPECT_LE(*loudness.rbegin() - *loudness.begin(), 1.0);
}

TEST(Music, PeaksStayADecibelBelowFullScale) {
    for (const auto &[name, piece] : Shipped()) {
        const double peak = TruePeak(piece);
        Show(name, "true peak", peak, "dBTP");
        EXPECT_LE(peak, -1.0) << name;
    }
}

TEST(Music, StandsInTheMiddle) {
    for (const auto &[name, piece] : Shipped()) {
        const double balance = Balance(piece);
        Show(name, "left over right", balance, "dB");
        EXPECT_LE(std::abs(balance), 0.5) << name;
        EXPECT_LE(Offset(piece), 0.0005) << name;
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

TEST(MusicMeasures, ALoopThatIsCutInTheWrongPlaceIsSeen) {
    EXPECT_LE(SeamStep(Tone(Rate, 0.5F)), UsualStep(Tone(Rate, 0.5F), 1.0) * 1.001);
    EXPECT_GT(SeamStep(Tone(Rate - 25, 0.5F)), UsualStep(Tone(Rate - 25, 0.5F), 1.0) * 10.0);
}
