#pragma once

#include "tests/music/Piece.hpp"

/// What is heard where a file ends and another one begins. The game notices the end a moment late, and
/// meanwhile the old file has begun again.
struct Seam {
    Piece Before;
    Piece After;
    std::size_t Bar = 0; ///< frames of a bar
};

/// For how many milliseconds at a stretch it is more than 8 dB quieter than the bars around, taken over
/// windows of 10 ms, when the other file takes over that many frames late.
double Hole(const Seam &Seam, std::size_t Late);

/// How sharp the cut is when the other file takes over that many frames late: the mean square of the steps
/// from frame to frame in the 3 ms around it, in dB above the median of such stretches in the 300 ms before
/// and behind.
double CutSharpness(const Seam &Seam, std::size_t Late);

/// The same for the sharpest 3 ms in the first frames of a piece, above the median of that piece.
double StartSharpness(const Piece &Piece, std::size_t Frames);

/// The levels in dB of 400 ms around each bar line, from Bars before the seam to Bars behind it; the seam is
/// the middle one.
std::vector<double> LevelsAround(const Seam &Seam, int Bars);
