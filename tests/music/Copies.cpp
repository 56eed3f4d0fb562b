#include "tests/music/Copies.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <numeric>

namespace {

constexpr std::size_t WindowFrames = 4096;
constexpr std::size_t StepsOfABar = 16;
constexpr int LowestKey = 40;
constexpr std::size_t Semitones = 61;
constexpr std::size_t MelBands = 20;
constexpr double LowestOfMel = 40.0;     // Hz
constexpr double HighestOfMel = 16000.0; // Hz
constexpr double FloorDecibels = 50.0;   // below the strongest
constexpr double NearNotes = 0.7;
constexpr double NearTexture = 0.991;

using Spectrum = std::vector<std::complex<double>>;
using Figures = std::vector<double>;

/// The bands that a spectrum is gathered in.
struct Bands {
    std::size_t Count;
    int (*BandOf)(double Frequency); ///< outside 0 to Count - 1 for a frequency that is left out
};

int SemitoneOf(double Frequency) {
    return static_cast<int>(std::lround(69.0 + 12.0 * std::log2(Frequency / 440.0))) - LowestKey;
}

double Mel(double Frequency) {
    return std::log10(1.0 + Frequency / 700.0);
}

int MelBandOf(double Frequency) {
    return static_cast<int>(std::floor(static_cast<double>(MelBands) * (Mel(Frequency) - Mel(LowestOfMel)) /
                                       (Mel(HighestOfMel) - Mel(LowestOfMel))));
}

/// The Fourier transform of 2^n samples: of the even ones, and of the odd ones turned.
Spectrum Transform(const Spectrum &Samples) {
    const std::size_t half = Samples.size() / 2;
    if (half == 0) {
        return Samples;
    }
    Spectrum even(half);
    Spectrum odd(half);
    for (std::size_t i = 0; i < half; ++i) {
        even[i] = Samples[2 * i];
        odd[i] = Samples[2 * i + 1];
    }
    even = Transform(even);
    odd = Transform(odd);
    Spectrum result(Samples.size());
    for (std::size_t i = 0; i < half; ++i) {
        const double angle = -std::numbers::pi * static_cast<double>(i) / static_cast<double>(half);
        const std::complex<double> turned = std::polar(1.0, angle) * odd[i];
        result[i] = even[i] + turned;
        result[i + half] = even[i] - turned;
    }
    return result;
}

/// The power in each band of a window that begins at that frame; behind the end the piece begins again.
Figures Powers(const Piece &Piece, std::size_t From, const Bands &Bands) {
    Spectrum window(WindowFrames);
    for (std::size_t i = 0; i < WindowFrames; ++i) {
        const std::size_t at = 2 * ((From + i) % FrameCount(Piece));
        const double shape =
            0.5 - 0.5 * std::cos(2.0 * std::numbers::pi * static_cast<double>(i) / WindowFrames);
        window[i] = shape * static_cast<double>(Piece.Samples[at] + Piece.Samples[at + 1]);
    }
    const Spectrum spectrum = Transform(window);
    Figures powers(Bands.Count);
    for (std::size_t i = 1; i < WindowFrames / 2; ++i) {
        const int band = Bands.BandOf(static_cast<double>(i) * Piece.Rate / WindowFrames);
        if (band >= 0 && band < static_cast<int>(Bands.Count)) {
            powers[static_cast<std::size_t>(band)] += std::norm(spectrum[i]);
        }
    }
    return powers;
}

/// All steps of all bars one behind the other, in decibels above the floor.
Figures LevelsOfAllSteps(const Piece &Piece, std::size_t Steps, const Bands &Bands) {
    Figures figures;
    for (std::size_t step = 0; step < Steps; ++step) {
        const Figures powers = Powers(Piece, step * FrameCount(Piece) / Steps, Bands);
        figures.insert(figures.end(), powers.begin(), powers.end());
    }
    const double strongest = *std::ranges::max_element(figures);
    const double floor = std::pow(10.0, -FloorDecibels / 10.0);
    for (double &figure : figures) {
        figure = 10.0 * std::log10(figure / strongest + floor) + FloorDecibels;
    }
    return figures;
}

/// Takes each band's mean away.
void Flatten(Figures &Levels, std::size_t Bands) {
    const std::size_t steps = Levels.size() / Bands;
    for (std::size_t band = 0; band < Bands; ++band) {
        double sum = 0.0;
        for (std::size_t step = 0; step < steps; ++step) {
            sum += Levels[step * Bands + band];
        }
        for (std::size_t step = 0; step < steps; ++step) {
            Levels[step * Bands + band] -= sum / static_cast<double>(steps);
        }
    }
}

/// Of the figures of two bars, each of that length.
double Product(const Figures &Levels, std::size_t Length, std::size_t One, std::size_t Other) {
    const auto one = Levels.begin() + static_cast<std::ptrdiff_t>(One * Length);
    return std::inner_product(one, one + static_cast<std::ptrdiff_t>(Length),
        Levels.begin() + static_cast<std::ptrdiff_t>(Other * Length), 0.0);
}

/// The share of bars whose figures have a cosine of more than Near with those of another one.
double ShareOfLikeBars(const Figures &Levels, std::size_t Bars, double Near) {
    const std::size_t length = Levels.size() / Bars;
    int copies = 0;
    for (std::size_t one = 0; one < Bars; ++one) {
        bool copied = false;
        for (std::size_t other = 0; other < Bars; ++other) {
            const double scale =
                std::sqrt(Product(Levels, length, one, one) * Product(Levels, length, other, other));
            copied = copied || (other != one && Product(Levels, length, one, other) > Near * scale);
        }
        copies += copied ? 1 : 0;
    }
    return static_cast<double>(copies) / static_cast<double>(Bars);
}

} // namespace

double NearCopies(const Piece &Piece, int Bars) {
    const auto bars = static_cast<std::size_t>(Bars);
    Figures figures = LevelsOfAllSteps(Piece, bars * StepsOfABar, {Semitones, SemitoneOf});
    Flatten(figures, Semitones);
    return ShareOfLikeBars(figures, bars, NearNotes);
}

double SameTextures(const Piece &Piece, int Bars) {
    const auto bars = static_cast<std::size_t>(Bars);
    const Figures figures = LevelsOfAllSteps(Piece, bars * StepsOfABar, {MelBands, MelBandOf});
    return ShareOfLikeBars(figures, bars, NearTexture);
}
