#pragma once

#include "tests/music/Piece.hpp"

/// Integrated loudness in LUFS of the piece played round and round for 26 seconds or more.
double Loudness(const Piece &Piece);

/// Loudness range in LU of the piece played round and round for a minute or more.
double LoudnessRange(const Piece &Piece);

/// True peak in dBTP, over the seam as well.
double TruePeak(const Piece &Piece);

/// Root mean square of the frames from First up to Last in dB of full scale, all channels together.
double Level(const Piece &Piece, std::size_t First, std::size_t Last);

/// How much louder the left channel is than the right, in dB.
double Balance(const Piece &Piece);

/// How much quieter what differs between the sides is than what they share, in dB.
double SideUnderMiddle(const Piece &Piece);

/// The same below 120 Hz alone.
double SideUnderMiddleBelow120(const Piece &Piece);

/// Root mean square of what both sides share below 120 Hz in dB of full scale.
double LevelBelow120(const Piece &Piece);

/// How much of the piece is lost where both sides come from one loudspeaker, in dB.
double MonoLoss(const Piece &Piece);

/// The larger of both channels' mean values.
double Offset(const Piece &Piece);

/// The step from the last frame to the first, the larger of all channels.
double SeamStep(const Piece &Piece);

/// The step from one frame to the next that the given share of all steps does not exceed.
double UsualStep(const Piece &Piece, double Share);
