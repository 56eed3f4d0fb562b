#include "tests/music/Score.hpp"

#include "tools/support/Files.hpp"

#include <algorithm>
#include <map>
#include <numeric>
#include <regex>
#include <sstream>

namespace {

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

NoteLine Words(std::string Text, double Step) {
    std::ranges::replace(Text, '|', ' ');
    std::istringstream stream(Text);
    NoteLine line{{}, Step};
    for (std::string word; stream >> word;) {
        line.Words.push_back(word);
    }
    return line;
}

/// All calls of Line in a stretch of a score, in their order.
std::vector<NoteLine> LinesOf(const std::string &Text) {
    static const std::regex call(
        R"re(Line "\w+", [0-9.]+, ([0-9./]+), [0-9.]+, (?:"([^"]*)"|\{\{([^}]*)\}\}))re");
    std::vector<NoteLine> lines;
    for (std::sregex_iterator found(Text.begin(), Text.end(), call), end; found != end; ++found) {
        const std::smatch &match = *found;
        lines.push_back(Words(match[2].str() + match[3].str(), Number(match[1])));
    }
    return lines;
}

int PitchClass(char Letter, const std::string &Sign) {
    const int sign = Sign == "#" ? 1 : (Sign == "b" ? -1 : 0);
    return (SemitonesFromA.at(static_cast<std::size_t>(Letter - 'a')) + sign + 12) % 12;
}

void CountNotes(const NoteLine &Line, std::array<int, 12> &PitchClasses) {
    static const std::regex note("([a-g])([#b]?)[0-9]");
    for (const std::string &word : Line.Words) {
        for (std::sregex_iterator found(word.begin(), word.end(), note), end; found != end; ++found) {
            ++PitchClasses.at(
                static_cast<std::size_t>(PitchClass((*found)[1].str().front(), (*found)[2].str())));
        }
    }
}

/// Each section begins with a comment that tells its bars, and has its tune in its first line.
ScorePart PartOf(const std::string &Text) {
    static const std::string head = "\n    ; Bar";
    ScorePart part;
    for (const NoteLine &line : LinesOf(Text)) {
        CountNotes(line, part.PitchClasses);
    }
    for (std::size_t at = Text.find(head); at != std::string::npos; at = Text.find(head, at + 1)) {
        const std::vector<NoteLine> lines = LinesOf(Text.substr(at, Text.find(head, at + 1) - at));
        if (!lines.empty()) {
            part.Tunes.push_back(lines.front());
        }
    }
    return part;
}

} // namespace

Score ReadScore(const std::filesystem::path &File) {
    const std::string text = FindBytes(File).value_or("");
    Score score{.Key = Between(text, "\n; Key: ", "\n"),
        .First = PartOf(Between(text, "instr First", "endin")),
        .Second = PartOf(Between(text, "instr Second", "endin"))};
    static const std::regex start(R"re(i "Conductor" 0 \[3 \* ([0-9.]+)\] ([0-9]+) ([0-9.]+) )re");
    if (std::smatch match; std::regex_search(text, match, start)) {
        score.Seconds = std::stod(match[1]);
        score.Bars = std::stoi(match[2]);
        score.BarBeats = std::stod(match[3]);
    }
    return score;
}

double Tempo(const Score &Score) {
    return Score.Bars * Score.BarBeats / Score.Seconds * 60.0;
}

double RestShare(const ScorePart &Part) {
    double rests = 0.0;
    double beats = 0.0;
    for (const NoteLine &tune : Part.Tunes) {
        rests += static_cast<double>(std::ranges::count(tune.Words, ".")) * tune.Step;
        beats += static_cast<double>(tune.Words.size()) * tune.Step;
    }
    return rests / beats;
}

double ShareInKey(const ScorePart &Part, const std::string &Key) {
    const std::size_t blank = Key.find(' ');
    const auto scale = Scales.find(Key.substr(blank + 1));
    if (blank == std::string::npos || scale == Scales.end()) {
        return 0.0;
    }
    const int first = PitchClass(static_cast<char>(Key.front() - 'A' + 'a'), Key.substr(1, blank - 1));
    const int inside = std::accumulate(
        scale->second.begin(), scale->second.end(), 0, [&Part, first](int Sum, int Semitones) {
            return Sum + Part.PitchClasses.at(static_cast<std::size_t>((first + Semitones) % 12));
        });
    return static_cast<double>(inside) /
           std::accumulate(Part.PitchClasses.begin(), Part.PitchClasses.end(), 0);
}
