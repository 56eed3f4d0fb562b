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
constexpr double Floor = 1e-5; // of the strongest
constexpr double Near = 0.7;

using Spectrum = std::vector<std::complex<double>>;
using Figures = std::vector<double>;

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

/// The power in each semitone of a window that begins at that frame; behind the end the piece begins again.
Figures Powers(const Piece &Piece, std::size_t From) {
    Spectrum window(WindowFrames);
    for (std::size_t i = 0; i < WindowFrames; ++i) {
        const std::size_t at = 2 * ((From + i) % FrameCount(Piece));
        const double shape =
            0.5 - 0.5 * std::cos(2.0 * std::numbers::pi * static_cast<double>(i) / WindowFrames);
        window[i] = shape * static_cast<double>(Piece.Samples[at] + Piece.Samples[at + 1]);
    }
    const Spectrum spectrum = Transform(window);
    Figures powers(Semitones);
    for (std::size_t i = 1; i < WindowFrames / 2; ++i) {
        const double frequency = static_cast<double>(i) * Piece.Rate / WindowFrames;
        const auto key = static_cast<int>(std::lround(69.0 + 12.0 * std::log2(frequency / 440.0)));
        if (key >= LowestKey && key < LowestKey + static_cast<int>(Semitones)) {
            powers[static_cast<std::size_t>(key - LowestKey)] += std::norm(spectrum[i]);
        }
    }
    return powers;
}

/// All steps of all bars one behind the other.
Figures PowersOfAllSteps(const Piece &Piece, std::size_t Steps) {
    Figures figures;
    for (std::size_t step = 0; step < Steps; ++step) {
        const Figures powers = Powers(Piece, step * FrameCount(Piece) / Steps);
        figures.insert(figures.end(), powers.begin(), powers.end());
    }
    return figures;
}

/// In decibels, less each semitone's mean.
void Flatten(Figures &Powers) {
    const double floor = Floor * *std::ranges::max_element(Powers);
    for (double &power : Powers) {
        power = 10.0 * std::log10(power + floor);
    }
    const std::size_t steps = Powers.size() / Semitones;
    for (std::size_t semitone = 0; semitone < Semitones; ++semitone) {
        double sum = 0.0;
        for (std::size_t step = 0; step < steps; ++step) {
            sum += Powers[step * Semitones + semitone];
        }
        for (std::size_t step = 0; step < steps; ++step) {
            Powers[step * Semitones + semitone] -= sum / static_cast<double>(steps);
        }
    }
}

double Product(const Figures &Bars, std::size_t One, std::size_t Other) {
    constexpr std::size_t length = StepsOfABar * Semitones;
    const auto begin = Bars.begin();
    const auto one = begin + static_cast<std::ptrdiff_t>(One * length);
    return std::inner_product(one, one + static_cast<std::ptrdiff_t>(length),
        begin + static_cast<std::ptrdiff_t>(Other * length), 0.0);
}

} // namespace

double NearCopies(const Piece &Piece, int Bars) {
    const auto bars = static_cast<std::size_t>(Bars);
    Figures figures = PowersOfAllSteps(Piece, bars * StepsOfABar);
    Flatten(figures);
    int copies = 0;
    for (std::size_t one = 0; one < bars; ++one) {
        bool copied = false;
        for (std::size_t other = 0; other < bars; ++other) {
            const double length = std::sqrt(Product(figures, one, one) * Product(figures, other, other));
            copied = copied || (other != one && Product(figures, one, other) > Near * length);
        }
        copies += copied ? 1 : 0;
    }
    return static_cast<double>(copies) / Bars;
}
