#pragma once

#include "tests/music/Score.hpp"

#include <set>
#include <string>

/// The share of a part's tune that is rest, from one beat up to another.
double RestShare(const ScorePart &Part, double From, double To);

/// The least share of rest in the stretches that follow each other through a part. A stretch is as many whole
/// bars as make at least eight beats.
double LeastRestShare(const Score &Score, const ScorePart &Part);

/// For how many beats the tune goes on without a rest, at most.
double LongestPhrase(const Score &Score, const ScorePart &Part);

/// In how many bars on end these players begin and hold their notes in just the same way, at most. Bars in
/// which they are silent do not count.
int LongestRunOfOneRhythm(const Score &Score, const ScorePart &Part, const std::set<std::string> &Players);

/// How often snare, rim and toms are struck in the second half of each bar.
std::vector<int> StrokesOfHalfBars(const Score &Score, const ScorePart &Part);

/// The widest slide in semitones; 100 if a Line begins with one, so that it comes from nowhere.
int WidestSlide(const ScorePart &Part);

/// Who plays notes from one beat up to another.
std::set<std::string> PlayersOf(const ScorePart &Part, double From, double To);

/// The share of those passages' notes that are louder or softer than their neighbours.
double MarkedShare(const std::vector<Passage> &Passages);
