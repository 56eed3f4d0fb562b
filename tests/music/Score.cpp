#include "tests/music/Score.hpp"

#include "tools/support/Files.hpp"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>
#include <utility>

namespace {

using Texts = std::vector<std::string>;

constexpr std::array<int, 7> SemitonesFromA{9, 11, 0, 2, 4, 5, 7};

// The steps of each scale in semitones above its first note.
const std::map<std::string, std::array<int, 7>> Scales{
    {"major", {0, 2, 4, 5, 7, 9, 11}},
    {"minor", {0, 2, 3, 5, 7, 8, 10}},
    {"lydian", {0, 2, 4, 6, 7, 9, 11}},
    {"phrygian", {0, 1, 3, 5, 7, 8, 10}},
};

/// What stands between two texts of a score; empty if either is not there.
std::string Between(const std::string &Text, const std::string &From, const std::string &To) {
    const std::size_t start = Text.find(From);
    const std::size_t end = Text.find(To, start == std::string::npos ? start : start + From.size());
    return end == std::string::npos ? std::string()
                                    : Text.substr(start + From.size(), end - start - From.size());
}

/// The number of a text like "0.5" or "1/3".
double Number(const std::string &Text) {
    const std::size_t stroke = Text.find('/');
    return stroke == std::string::npos ? std::stod(Text)
                                       : std::stod(Text) / std::stod(Text.substr(stroke + 1));
}

Texts Words(std::string Text) {
    std::ranges::replace(Text, '|', ' ');
    std::istringstream stream(Text);
    Texts words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

/// Semitones above a c.
int PitchClass(char Letter, const std::string &Sign) {
    const int sign = Sign == "#" ? 1 : (Sign == "b" ? -1 : 0);
    return (SemitonesFromA.at(static_cast<std::size_t>(Letter - 'a')) + sign + 12) % 12;
}

std::vector<int> KeysOf(const std::string &Word) {
    static const std::regex note("([a-g])([#b]?)([0-9])");
    std::vector<int> keys;
    for (std::sregex_iterator found(Word.begin(), Word.end(), note), end; found != end; ++found) {
        const int pitchClass = PitchClass((*found)[1].str().front(), (*found)[2].str());
        keys.push_back(12 * (std::stoi((*found)[3]) + 1) + pitchClass);
    }
    return keys;
}

bool IsMarked(const std::string &Word) {
    return Word.ends_with('!') || Word.ends_with(',');
}

void PlayLine(Passage &Passage, const Texts &Words, double Step) {
    bool holds = false;
    for (const std::string &word : Words) {
        if (word == "-" && holds) {
            Passage.Notes.back().Length += Step;
        } else if (word != "-") {
            holds = word != ".";
            if (holds) {
                Passage.Notes.push_back(
                    {Passage.End, Step, KeysOf(word), IsMarked(word), word.starts_with('~')});
            }
        }
        Passage.End += Step;
    }
}

/// Notes are numbers of the chord's; those beyond its last one go on an octave higher.
void PlayFigure(Passage &Passage, const Texts &Chords, const Texts &Pattern, double Step, double Every) {
    std::size_t at = 0;
    double change = Passage.Start;
    for (const std::string &chord : Chords) {
        const std::vector<int> keys = KeysOf(chord);
        change += Every;
        for (; Passage.End < change - 0.001; Passage.End += Step) {
            const std::string &word = Pattern[at++ % Pattern.size()];
            if (word != ".") {
                const std::size_t number = std::stoul(word);
                const int key = keys[number % keys.size()] + 12 * static_cast<int>(number / keys.size());
                Passage.Notes.push_back({Passage.End, Step, {key}, IsMarked(word), false});
            }
        }
    }
}

void PlayBeat(Passage &Passage, const Texts &Words, double Step) {
    for (const std::string &word : Words) {
        for (const char sign : word) {
            if (sign != '.') {
                Passage.Notes.push_back({Passage.End, Step, {}, false, false});
            }
            Passage.End += Step;
        }
    }
}

/// All calls in a stretch of a score, in their order.
std::vector<Passage> PassagesOf(const std::string &Text) {
    static const std::string quoted = R"re((?:"([^"]*)"|\{\{([^}]*)\}\}))re";
    static const std::regex call(
        R"re((Line|Figure|Beat) "(\w+)", ([0-9.]+), ([0-9./]+), [0-9.]+, (?:([0-9.]+), )?)re" + quoted +
        R"re((?:,\s+)re" + quoted + ")?");
    std::vector<Passage> passages;
    for (std::sregex_iterator found(Text.begin(), Text.end(), call), end; found != end; ++found) {
        const std::smatch &match = *found;
        const double start = Number(match[3]);
        const double step = Number(match[4]);
        Passage passage{match[1], match[2], start, start, {}};
        const Texts words = Words(match[6].str() + match[7].str());
        if (passage.Kind == "Line") {
            PlayLine(passage, words, step);
        } else if (passage.Kind == "Beat") {
            PlayBeat(passage, words, step);
        } else {
            PlayFigure(passage, words, Words(match[8].str() + match[9].str()), step, Number(match[5].str()));
        }
        passages.push_back(std::move(passage));
    }
    return passages;
}

int CallsIn(const std::string &Text) {
    static const std::regex call("\n +(?:Line|Figure|Beat) ");
    return static_cast<int>(std::distance(std::sregex_iterator(Text.begin(), Text.end(), call), {}));
}

/// Each section begins with a comment that tells its bars, and has its tune in its first Line.
ScorePart PartOf(const std::string &Text) {
    static const std::string head = "\n    ; Bar";
    ScorePart part{PassagesOf(Text), {}, 0};
    part.Unread = CallsIn(Text) - static_cast<int>(part.Passages.size());
    for (std::size_t at = Text.find(head); at != std::string::npos; at = Text.find(head, at + 1)) {
        const std::vector<Passage> section = PassagesOf(Text.substr(at, Text.find(head, at + 1) - at));
        const auto tune = std::ranges::find(section, "Line", &Passage::Kind);
        if (tune != section.end()) {
            part.Tunes.push_back(*tune);
        }
    }
    return part;
}

} // namespace

Score ParseScore(const std::string &Text) {
    Score score{.Key = Between(Text, "\n; Key: ", "\n"),
        .First = PartOf(Between(Text, "instr First", "endin")),
        .Second = PartOf(Between(Text, "instr Second", "endin"))};
    static const std::regex start(R"re(i "Conductor" 0 \[3 \* ([0-9.]+)\] ([0-9]+) ([0-9.]+) )re");
    if (std::smatch match; std::regex_search(Text, match, start)) {
        score.Seconds = std::stod(match[1]);
        score.Bars = std::stoi(match[2]);
        score.BarBeats = std::stod(match[3]);
    }
    return score;
}

Score ReadScore(const std::filesystem::path &File) {
    return ParseScore(FindBytes(File).value_or(""));
}

double Tempo(const Score &Score) {
    return Score.Bars * Score.BarBeats / Score.Seconds * 60.0;
}

double ShareInKey(const ScorePart &Part, const std::string &Key) {
    const std::size_t blank = Key.find(' ');
    const auto scale = Scales.find(Key.substr(blank + 1));
    if (blank == std::string::npos || scale == Scales.end()) {
        return 0.0;
    }
    const int first = PitchClass(static_cast<char>(Key.front() - 'A' + 'a'), Key.substr(1, blank - 1));
    int inside = 0;
    int notes = 0;
    for (const Passage &passage : Part.Passages) {
        for (const ScoreNote &note : passage.Notes) {
            notes += static_cast<int>(note.Keys.size());
            inside += static_cast<int>(std::ranges::count_if(note.Keys, [scale, first](int Pitch) {
                return std::ranges::find(scale->second, (Pitch - first) % 12) != scale->second.end();
            }));
        }
    }
    return static_cast<double>(inside) / notes;
}
