#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

/// A text of notes in a score, word by word without the bar lines, and the length of a word in beats.
struct NoteLine {
    std::vector<std::string> Words;
    double Step = 0.0;
};

/// One of both files of a score.
struct ScorePart {
    std::vector<NoteLine> Tunes;           ///< the first line of each section
    std::array<int, 12> PitchClasses = {}; ///< how many notes of all lines are a c, a c sharp, and so on
};

/// What a score of tools/music says.
struct Score {
    std::string Key;       ///< "E minor"
    double Seconds = 0.0;  ///< of a file
    int Bars = 0;          ///< of a file
    double BarBeats = 0.0; ///< beats of a bar
    ScorePart First;
    ScorePart Second;
};

/// Reads a score. Bars is 0 if the line that starts it is not found.
Score ReadScore(const std::filesystem::path &File);

/// Beats a minute.
double Tempo(const Score &Score);

/// The share of a part's tune that is rest.
double RestShare(const ScorePart &Part);

/// The share of a part's notes that a key's scale has; 0 for a scale of unknown name.
double ShareInKey(const ScorePart &Part, const std::string &Key);
