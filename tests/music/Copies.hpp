#pragma once

#include "tests/music/Piece.hpp"

/// The share of a piece's bars that sound nearly like another one of them. A bar is cut into 16 equal steps,
/// and the power of each in the 61 semitones from E2 to E7 is taken in decibels, not lower than 50 dB below
/// the strongest of the piece, less the semitone's mean over the piece. Two bars whose figures correlate by
/// more than 0.7 are near-copies.
double NearCopies(const Piece &Piece, int Bars);
