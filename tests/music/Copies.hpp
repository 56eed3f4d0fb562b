#pragma once

#include "tests/music/Piece.hpp"

/// The share of a piece's bars that sound nearly like another one of them. A bar is cut into 16 equal steps,
/// and the power of each in the 61 semitones from E2 to E7 is taken in decibels, not lower than 50 dB below
/// the strongest of the piece, less the semitone's mean over the piece. Two bars whose figures correlate by
/// more than 0.7 are near-copies.
double NearCopies(const Piece &Piece, int Bars);

/// The share of bars that have nearly the texture of another one of them: the same instruments in the same
/// places, whatever their notes are. The steps are those above, and their power is taken in 20 bands of equal
/// width on the mel scale from 40 Hz to 16 kHz, in decibels above 50 dB below the strongest of the piece. Two
/// bars whose figures have a cosine of more than 0.991 are near-copies.
double SameTextures(const Piece &Piece, int Bars);
