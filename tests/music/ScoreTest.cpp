#include "tests/music/Playing.hpp"
#include "tests/music/Shipped.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr double Rounding = 1e-9;

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

/// Both files of each mode by their names, with the score that they are part of.
std::map<std::string, std::pair<const Score *, const ScorePart *>> Parts() {
    std::map<std::string, std::pair<const Score *, const ScorePart *>> parts;
    for (const auto &[name, mode] : Modes()) {
        parts[name] = {&mode.Written, &mode.Written.First};
        parts[name + "B"] = {&mode.Written, &mode.Written.Second};
    }
    return parts;
}

std::vector<Passage> OfKind(const std::vector<Passage> &Passages, const std::string &Kind) {
    std::vector<Passage> found;
    std::ranges::copy_if(Passages, std::back_inserter(found), [&Kind](const Passage &Passage) {
        return Passage.Kind == Kind;
    });
    return found;
}

/// A score of two bars of four with three sections.
Score Sketch() {
    return ParseScore(R"(
; Key: C major
instr First
    ; Bar 1
    Beat "Kick", 0, 1, 0.5, "X..."
    Line "Lead", 0, 0.5, 0.5, "c5! - ~e5 . | g5, - - ~c6"
    Figure "Pluck", 0, 1/2, 0.5, 2, "c4+e4 d4+f4", {{ 0! . 1 2 }}
    ; Bar 2
    Line "Lead", 4, 1, 0.5, "~f5 - . ."
    Figure "Pluck", 4, 0.5, 0.5, 2, "c4+e4 d4+f4", "0 . 1 2 0 . 1, 2"
    Beat "Snare", 4, 0.5, 0.5, ".x....42"
endin
i "Conductor" 0 [3 * 4] 2 4 1
)");
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

TEST(MusicScores, AreReadToTheLastCallAndEndWithTheirFiles) {
    for (const auto &[name, written] : Parts()) {
        const auto &[score, part] = written;
        EXPECT_EQ(part->Unread, 0) << name;
        EXPECT_FALSE(part->Passages.empty()) << name;
        for (const Passage &passage : part->Passages) {
            EXPECT_LE(passage.End, score->Bars * score->BarBeats + Rounding)
                << name << ' ' << passage.Kind << ' ' << passage.Player << ' ' << passage.Start;
        }
    }
}

TEST(MusicScores, TheTuneRestsForOneBeatInEight) {
    for (const auto &[name, written] : Parts()) {
        const auto &[score, part] = written;
        const double rests = RestShare(*part, 0.0, score->Bars * score->BarBeats);
        Show(name, "rests", 100.0 * rests, "%");
        Show(name, "rests in the stretch of fewest", 100.0 * LeastRestShare(*score, *part), "%");
        EXPECT_GE(rests, 0.125 - Rounding) << name;
        EXPECT_GE(LeastRestShare(*score, *part), 0.125 - Rounding) << name;
    }
}

TEST(MusicScores, TheTuneGoesOnForAtMostTenBeats) {
    for (const auto &[name, written] : Parts()) {
        const double beats = LongestPhrase(*written.first, *written.second);
        Show(name, "longest phrase", beats, "beats");
        EXPECT_LE(beats, 10.0 + Rounding) << name;
    }
}

TEST(MusicScores, BassesAndPlucksChangeTheirRhythmEveryOtherBar) {
    const std::array<std::set<std::string>, 4> players{
        {{"Bass", "SoftBass"}, {"Pluck"}, {"Harp"}, {"Piano"}}};
    for (const auto &[name, written] : Parts()) {
        for (const std::set<std::string> &player : players) {
            const int run = LongestRunOfOneRhythm(*written.first, *written.second, player);
            Show(name, "one rhythm of " + *player.begin(), run, "bars on end");
            EXPECT_LE(run, 2) << name << ' ' << *player.begin();
        }
        EXPECT_GT(LongestRunOfOneRhythm(*written.first, *written.second, players[0]), 0) << name;
    }
}

TEST(MusicScores, DrumsHaveASmallFillEachFourthBarAndALargeOneEachEighth) {
    for (const auto &[name, written] : Parts()) {
        const std::vector<int> strokes = StrokesOfHalfBars(*written.first, *written.second);
        for (std::size_t bar = 4; bar <= strokes.size(); bar += 4) {
            const auto fill = strokes.begin() + static_cast<std::ptrdiff_t>(bar) - 1;
            Show(name, "fill of bar " + std::to_string(bar), *fill, "strokes");
            EXPECT_GT(*fill, *std::max_element(fill - 3, fill)) << name << ' ' << bar;
            EXPECT_GE(*fill, bar % 8 == 0 ? 5 : 2) << name << ' ' << bar;
        }
    }
}

TEST(MusicScores, SlidesComeFromTheNoteBeforeAndFromNoFartherThanAFifth) {
    for (const auto &[name, written] : Parts()) {
        const int width = WidestSlide(*written.second);
        Show(name, "widest slide", width, "semitones");
        EXPECT_LE(width, 7) << name;
        EXPECT_GT(width, 0) << name;
    }
}

TEST(MusicScores, TunesAndFiguresHaveAccents) {
    for (const auto &[name, written] : Parts()) {
        const double tunes = MarkedShare(written.second->Tunes);
        const double figures = MarkedShare(OfKind(written.second->Passages, "Figure"));
        Show(name, "notes of the tune with a mark", 100.0 * tunes, "%");
        Show(name, "notes of the figures with a mark", 100.0 * figures, "%");
        EXPECT_GE(tunes, 0.1) << name;
        EXPECT_GE(figures, 0.1) << name;
    }
}

TEST(MusicScores, EachEightBarsHaveAColourOfTheirOwn) {
    for (const auto &[name, written] : Parts()) {
        const auto &[score, part] = written;
        std::set<std::string> before;
        for (int bar = 0; bar < score->Bars; bar += 8) {
            const std::set<std::string> players =
                PlayersOf(*part, bar * score->BarBeats, (bar + 8) * score->BarBeats);
            EXPECT_FALSE(std::ranges::includes(before, players)) << name << " from bar " << bar + 1;
            before = players;
        }
    }
}

TEST(MusicMeasures, AScoreIsReadAsItIsWritten) {
    const Score sketch = Sketch();
    EXPECT_EQ(sketch.First.Unread, 0);
    ASSERT_EQ(sketch.First.Passages.size(), 6U);
    ASSERT_EQ(sketch.First.Tunes.size(), 2U);
    const std::vector<ScoreNote> &tune = sketch.First.Tunes.front().Notes;
    ASSERT_EQ(tune.size(), 4U);
    EXPECT_EQ(tune[1].Keys, std::vector{76});
    EXPECT_EQ(tune[1].Start, 1.0);
    EXPECT_EQ(tune[2].Length, 1.5);
    EXPECT_TRUE(tune[0].IsMarked && tune[2].IsMarked && tune[1].Slides);
    EXPECT_FALSE(tune[1].IsMarked || tune[0].Slides);
    const std::vector<ScoreNote> &figure = sketch.First.Passages[2].Notes;
    ASSERT_EQ(figure.size(), 6U);
    EXPECT_EQ(figure[2].Keys, std::vector{72}); // the chord's first note an octave higher
    EXPECT_EQ(figure[3].Keys, std::vector{62});
    EXPECT_EQ(sketch.First.Passages[2].End, 4.0);
    EXPECT_EQ(ShareInKey(sketch.First, "C major"), 1.0);
    EXPECT_LT(ShareInKey(sketch.First, "D major"), 0.8);
    const Score odd = ParseScore("instr First\n    Line \"Lead\", beat, 1, 1, \"c5\"\nendin");
    EXPECT_EQ(odd.First.Unread, 1);
}

TEST(MusicMeasures, WhatAScorePlaysIsMeasuredAsItIs) {
    const Score sketch = Sketch();
    EXPECT_NEAR(RestShare(sketch.First, 0.0, 8.0), 2.5 / 8.0, Rounding);
    EXPECT_NEAR(RestShare(sketch.First, 0.0, 4.0), 0.5 / 4.0, Rounding);
    EXPECT_NEAR(LeastRestShare(sketch, sketch.First), 2.5 / 8.0, Rounding);
    EXPECT_NEAR(LongestPhrase(sketch, sketch.First), 4.0, Rounding);
    EXPECT_EQ(LongestRunOfOneRhythm(sketch, sketch.First, {"Pluck"}), 2);
    EXPECT_EQ(LongestRunOfOneRhythm(sketch, sketch.First, {"Lead"}), 1);
    EXPECT_EQ(LongestRunOfOneRhythm(sketch, sketch.First, {"Harp"}), 0);
    EXPECT_EQ(StrokesOfHalfBars(sketch, sketch.First), (std::vector{0, 2}));
    EXPECT_EQ(WidestSlide(sketch.First), 100); // bar 2 begins with one
    EXPECT_EQ(PlayersOf(sketch.First, 0.0, 8.0), (std::set<std::string>{"Lead", "Pluck"}));
    EXPECT_NEAR(MarkedShare(sketch.First.Tunes), 2.0 / 5.0, Rounding);
}
