#include "tests/music/Playing.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double Rounding = 1e-6;    // beats
constexpr double StretchBeats = 8.0; // at least
constexpr int FromNowhere = 100;

const std::set<std::string> DrumsOfFills{"Snare", "Rim", "HighTom", "LowTom"};

/// How long that note of the tune sounds between two beats.
double Overlap(const ScoreNote &Note, double From, double To) {
    return std::max(0.0, std::min(Note.Start + Note.Length, To) - std::max(Note.Start, From));
}

bool BeginsWithin(const ScoreNote &Note, double From, double To) {
    return Note.Start >= From - Rounding && Note.Start < To - Rounding;
}

/// The starts and lengths of a bar's notes in 48ths of a beat.
using Rhythm = std::set<std::pair<long, long>>;

Rhythm RhythmOf(const ScorePart &Part, const std::set<std::string> &Players, double From, double To) {
    Rhythm rhythm;
    for (const Passage &passage : Part.Passages) {
        for (const ScoreNote &note : passage.Notes) {
            if (Players.contains(passage.Player) && BeginsWithin(note, From, To)) {
                rhythm.emplace(std::lround((note.Start - From) * 48.0), std::lround(note.Length * 48.0));
            }
        }
    }
    return rhythm;
}

} // namespace

double RestShare(const ScorePart &Part, double From, double To) {
    double sounding = 0.0;
    for (const Passage &tune : Part.Tunes) {
        for (const ScoreNote &note : tune.Notes) {
            sounding += Overlap(note, From, To);
        }
    }
    return 1.0 - sounding / (To - From);
}

double LeastRestShare(const Score &Score, const ScorePart &Part) {
    const double end = Score.Bars * Score.BarBeats;
    const double stretch = std::ceil(StretchBeats / Score.BarBeats) * Score.BarBeats;
    double least = 1.0;
    for (double from = 0.0; from < end - Rounding; from += stretch) {
        least = std::min(least, RestShare(Part, from, std::min(end, from + stretch)));
    }
    return least;
}

double LongestPhrase(const Score &Score, const ScorePart &Part) {
    double longest = 0.0;
    double start = 0.0;
    double end = 0.0;
    for (const Passage &tune : Part.Tunes) {
        for (const ScoreNote &note : tune.Notes) {
            start = note.Start > end + Rounding ? note.Start : start;
            end = std::min(note.Start + note.Length, Score.Bars * Score.BarBeats);
            longest = std::max(longest, end - start);
        }
    }
    return longest;
}

int LongestRunOfOneRhythm(const Score &Score, const ScorePart &Part, const std::set<std::string> &Players) {
    int longest = 0;
    int run = 0;
    Rhythm before;
    for (int bar = 0; bar < Score.Bars; ++bar) {
        Rhythm rhythm = RhythmOf(Part, Players, bar * Score.BarBeats, (bar + 1) * Score.BarBeats);
        run = rhythm.empty() ? 0 : (rhythm == before ? run + 1 : 1);
        longest = std::max(longest, run);
        before = std::move(rhythm);
    }
    return longest;
}

std::vector<int> StrokesOfHalfBars(const Score &Score, const ScorePart &Part) {
    std::vector<int> strokes(static_cast<std::size_t>(Score.Bars));
    for (const Passage &passage : Part.Passages) {
        for (const ScoreNote &note : passage.Notes) {
            const double bar = std::floor((note.Start + Rounding) / Score.BarBeats);
            const bool isLate = note.Start - bar * Score.BarBeats >= Score.BarBeats / 2.0 - Rounding;
            strokes.at(static_cast<std::size_t>(bar)) +=
                isLate && DrumsOfFills.contains(passage.Player) ? 1 : 0;
        }
    }
    return strokes;
}

int WidestSlide(const ScorePart &Part) {
    int widest = 0;
    for (const Passage &passage : Part.Passages) {
        int before = -1;
        for (const ScoreNote &note : passage.Notes) {
            for (const int key : note.Keys) {
                const int width = before < 0 ? FromNowhere : std::abs(key - before);
                widest = note.Slides ? std::max(widest, width) : widest;
            }
            before = note.Keys.empty() ? before : note.Keys.back();
        }
    }
    return widest;
}

std::set<std::string> PlayersOf(const ScorePart &Part, double From, double To) {
    std::set<std::string> players;
    for (const Passage &passage : Part.Passages) {
        if (std::ranges::any_of(passage.Notes, [From, To](const ScoreNote &Note) {
                return BeginsWithin(Note, From, To) && !Note.Keys.empty();
            })) {
            players.insert(passage.Player);
        }
    }
    return players;
}

double MarkedShare(const std::vector<Passage> &Passages) {
    double notes = 0.0;
    double marked = 0.0;
    for (const Passage &passage : Passages) {
        notes += static_cast<double>(passage.Notes.size());
        marked += static_cast<double>(std::ranges::count_if(passage.Notes, &ScoreNote::IsMarked));
    }
    return marked / notes;
}
