#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

// What the game's mixer puts out, as it was recorded, and the pieces of music that may be heard in it.

inline constexpr int FrameRate = 44100;

// The loudest sample is 1, and a recording has 16 bits: no sample of it is nearer to the truth than this.
inline constexpr float FinestStep = 1.0F / 32768.0F;

// How many frames the mixer makes at a time. What starts to sound does so at a multiple of it.
inline constexpr std::size_t BlockFrames = 1024;

inline constexpr std::size_t BytesPerFrame = 4; // in a recording

struct Frame {
    float Left = 0.0F;
    float Right = 0.0F;
};

using Sound = std::vector<Frame>;

inline double Seconds(std::size_t Frames) {
    return static_cast<double>(Frames) / FrameRate;
}

// A raw recording of 16 bits and two channels. Without any frame if there is no such file.
Sound ReadRecording(const std::filesystem::path &File);

// A piece of music in its file's own loudness. Throws std::runtime_error if it cannot be read.
Sound ReadMusic(const std::filesystem::path &File);

// A stretch of a recording, compared with a piece that began to loop at the frame Start.
struct Comparison {
    double Gain = 0.0;  // by which the piece comes nearest
    float Error = 0.0F; // the greatest distance of any sample from the piece at that gain
};
Comparison Compare(
    const Sound &Heard, const Sound &Piece, std::size_t Start, std::size_t From, std::size_t Count);

// Where a piece begins in a recording for the first time: the frame count of the recording if it cannot be
// heard. Other sounds may lie over parts of its first two seconds.
std::size_t FindPiece(const Sound &Heard, const Sound &Piece);

// Where a piece that takes the place of another is first heard, and where it begins for good. They differ
// where the mixer, which has a thread of its own, comes between the two calls that set a piece and begin it:
// then it sounds a few blocks of the piece, and the rest that it has decoded of it, before the beginning.
struct Change {
    std::size_t Heard = 0;
    std::size_t Begin = 0;
};
// The first such change to a piece at a gain, at or after From: both are the frame count of the recording if
// there is none. No other sound may lie over the piece a fifth of a second after its beginning.
Change FindChange(const Sound &Heard, const Sound &Piece, std::size_t From, double Gain);

// Takes a looping piece at a gain out of the frames [From, To) of a recording, so that what lies over it is
// left.
void TakeOut(
    Sound &Heard, const Sound &Piece, std::size_t Start, std::size_t From, std::size_t To, double Gain);

// Where something can be heard, with quiet of at least ten milliseconds before and after. What is not louder
// than Quiet counts as quiet.
struct Stretch {
    std::size_t Begin = 0;
    std::size_t End = 0;
};
std::vector<Stretch> FindSounds(const Sound &Heard, float Quiet);
