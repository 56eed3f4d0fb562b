#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// A note or a chord of a score, or a stroke of a drum. Times are in beats from the start of the file.
struct ScoreNote {
    double Start = 0.0;
    double Length = 0.0;
    std::vector<int> Keys; ///< MIDI numbers, none for a drum
    bool IsMarked = false; ///< louder or softer than its neighbours
    bool Slides = false;   ///< from the note before
};

/// One call of Line, Figure or Beat: what an instrument plays from one beat to another.
struct Passage {
    std::string Kind;
    std::string Player;
    double Start = 0.0;
    double End = 0.0;
    std::vector<ScoreNote> Notes;
};

/// One of both files of a score.
struct ScorePart {
    std::vector<Passage> Passages;
    std::vector<Passage> Tunes; ///< the first Line of each section
    int Unread = 0;             ///< calls that are written otherwise than the reader knows
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

/// Reads a score's text. Bars is 0 if the line that starts it is not found.
Score ParseScore(const std::string &Text);

/// The same for a file.
Score ReadScore(const std::filesystem::path &File);

/// Beats a minute.
double Tempo(const Score &Score);

/// The share of a part's notes that a key's scale has; 0 for a scale of unknown name.
double ShareInKey(const ScorePart &Part, const std::string &Key);
