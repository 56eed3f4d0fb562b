#include "tests/music/Seam.hpp"

#include "tests/music/Measure.hpp"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t Upbeat = 2205;    // frames: the first beat comes 50 ms into a file
constexpr std::size_t Around = 8820;    // frames: 200 ms
constexpr std::size_t Window = 441;     // frames: 10 ms
constexpr std::size_t Millisecond = 44; // frames
constexpr std::size_t CutFrames = 132;  // frames: 3 ms
constexpr std::size_t NearCut = 13230;  // frames: 300 ms
constexpr double Quieter = 8.0;         // dB
constexpr std::size_t Channels = 2;

Piece Cut(const Piece &From, std::size_t First, std::size_t Last) {
    const auto begin = From.Samples.begin();
    return {From.Rate, From.Channels,
        {begin + static_cast<std::ptrdiff_t>(First * Channels),
            begin + static_cast<std::ptrdiff_t>(Last * Channels)}};
}

void Append(Piece &To, const Piece &Other) {
    To.Samples.insert(To.Samples.end(), Other.Samples.begin(), Other.Samples.end());
}

/// The last bar before, the old file's first frames, and the first bar behind.
Piece Heard(const Seam &Seam, std::size_t Late) {
    const std::size_t end = FrameCount(Seam.Before);
    Piece heard = Cut(Seam.Before, end - Seam.Bar, end);
    Append(heard, Cut(Seam.Before, 0, Late));
    Append(heard, Cut(Seam.After, 0, Seam.Bar));
    return heard;
}

/// The mean square of the steps into the frames from First up to Last.
double MeanStep(const Piece &Piece, std::size_t First, std::size_t Last) {
    double sum = 0.0;
    for (std::size_t at = First * Channels; at < Last * Channels; ++at) {
        const auto step = static_cast<double>(Piece.Samples[at] - Piece.Samples[at - Channels]);
        sum += step * step;
    }
    return sum / static_cast<double>(Last - First);
}

/// The median of the mean steps of all stretches as long as a cut, from one frame up to another.
double MedianStep(const Piece &Piece, std::size_t First, std::size_t Last) {
    std::vector<double> steps;
    for (std::size_t at = First; at + CutFrames <= Last; at += CutFrames) {
        steps.push_back(MeanStep(Piece, at, at + CutFrames));
    }
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    return *middle;
}

} // namespace

double Hole(const Seam &Seam, std::size_t Late) {
    const Piece heard = Heard(Seam, Late);
    const double usual = Level(heard, 0, FrameCount(heard));
    std::size_t quiet = 0;
    std::size_t longest = 0;
    for (std::size_t at = Seam.Bar - Around; at < Seam.Bar + Late + Around; at += Millisecond) {
        quiet = Level(heard, at - Window / 2, at + Window / 2) < usual - Quieter ? quiet + 1 : 0;
        longest = std::max(longest, quiet);
    }
    return static_cast<double>(longest * Millisecond) / heard.Rate * 1000.0;
}

double CutSharpness(const Seam &Seam, std::size_t Late) {
    const Piece heard = Heard(Seam, Late);
    const std::size_t cut = Seam.Bar + Late;
    const double sharp = MeanStep(heard, cut - CutFrames / 2, cut + CutFrames / 2);
    return 10.0 * std::log10(sharp / MedianStep(heard, cut - NearCut, cut + NearCut));
}

double StartSharpness(const Piece &Piece, std::size_t Frames) {
    double sharpest = 0.0;
    for (std::size_t at = 1; at + CutFrames <= Frames; at += Millisecond) {
        sharpest = std::max(sharpest, MeanStep(Piece, at, at + CutFrames));
    }
    return 10.0 * std::log10(sharpest / MedianStep(Piece, 1, FrameCount(Piece)));
}

std::vector<double> LevelsAround(const Seam &Seam, int Bars) {
    const std::size_t end = FrameCount(Seam.Before);
    Piece both = Seam.Before;
    Append(both, Seam.After);
    std::vector<double> levels;
    for (int bar = -Bars; bar <= Bars; ++bar) {
        const std::size_t line = end + Upbeat + static_cast<std::size_t>(bar + Bars) * Seam.Bar -
                                 static_cast<std::size_t>(Bars) * Seam.Bar;
        levels.push_back(Level(both, line - Around, line + Around));
    }
    return levels;
}
