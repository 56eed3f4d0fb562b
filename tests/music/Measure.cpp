#include "tests/music/Measure.hpp"

#include <ebur128.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numbers>
#include <numeric>

namespace {

constexpr double SecondsForLoudness = 26.0;
constexpr double SecondsForRange = 60.0;
constexpr std::size_t FramesBehindTheSeam = 4096; ///< far more than the meter's filter is long

struct MeterEnd {
    void operator()(ebur128_state *Meter) const {
        ebur128_destroy(&Meter);
    }
};
using Meter = std::unique_ptr<ebur128_state, MeterEnd>;

Meter NewMeter(const Piece &Piece, int Mode) {
    return Meter(
        ebur128_init(static_cast<unsigned>(Piece.Channels), static_cast<unsigned long>(Piece.Rate), Mode));
}

double Decibels(double Amplitude) {
    return 20.0 * std::log10(Amplitude);
}

/// Shows the piece to the meter again and again, at least twice, until it has seen that many seconds.
void Repeat(ebur128_state *State, const Piece &Piece, double Seconds) {
    const double length = static_cast<double>(FrameCount(Piece)) / Piece.Rate;
    const int passes = std::max(2, static_cast<int>(std::ceil(Seconds / length)));
    for (int pass = 0; pass < passes; ++pass) {
        ebur128_add_frames_float(State, Piece.Samples.data(), FrameCount(Piece));
    }
}

struct MiddleAndSide {
    std::vector<double> Middle;
    std::vector<double> Side;
};

MiddleAndSide Split(const Piece &Piece) {
    MiddleAndSide split;
    for (std::size_t at = 0; at < Piece.Samples.size(); at += 2) {
        const auto left = static_cast<double>(Piece.Samples[at]);
        const auto right = static_cast<double>(Piece.Samples[at + 1]);
        split.Middle.push_back((left + right) / 2.0);
        split.Side.push_back((left - right) / 2.0);
    }
    return split;
}

double Power(const std::vector<double> &Samples) {
    return std::inner_product(Samples.begin(), Samples.end(), Samples.begin(), 0.0) /
           static_cast<double>(Samples.size());
}

/// Two poles of a low-pass at 120 Hz; Quality tells how far it swings there.
void Filter(std::vector<double> &Samples, int Rate, double Quality) {
    const double angle = 2.0 * std::numbers::pi * 120.0 / Rate;
    const double damping = std::sin(angle) / (2.0 * Quality);
    const double scale = 1.0 + damping;
    const double share = (1.0 - std::cos(angle)) / 2.0 / scale;
    const double last = 2.0 * std::cos(angle) / scale;
    const double lastButOne = (damping - 1.0) / scale;
    std::array<double, 2> in{};
    std::array<double, 2> out{};
    for (double &sample : Samples) {
        const double filtered = share * (sample + 2.0 * in[0] + in[1]) + last * out[0] + lastButOne * out[1];
        in = {sample, in[0]};
        out = {filtered, out[0]};
        sample = filtered;
    }
}

/// Butterworth's low-pass of the eighth order: flat up to 100 Hz, 48 dB down at 240.
std::vector<double> Below120(std::vector<double> Samples, int Rate) {
    for (const double quality : {0.5098, 0.6013, 0.9000, 2.5629}) {
        Filter(Samples, Rate, quality);
    }
    return Samples;
}

double ChannelPower(const Piece &Piece, std::size_t Channel, std::size_t First, std::size_t Last) {
    const auto channels = static_cast<std::size_t>(Piece.Channels);
    double sum = 0.0;
    for (std::size_t frame = First; frame < Last; ++frame) {
        const auto sample = static_cast<double>(Piece.Samples[frame * channels + Channel]);
        sum += sample * sample;
    }
    return sum / static_cast<double>(Last - First);
}

double Step(const Piece &Piece, std::size_t From, std::size_t To) {
    const auto channels = static_cast<std::size_t>(Piece.Channels);
    float largest = 0.0F;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        const float step = Piece.Samples[To * channels + channel] - Piece.Samples[From * channels + channel];
        largest = std::max(largest, std::abs(step));
    }
    return static_cast<double>(largest);
}

} // namespace

double Loudness(const Piece &Piece) {
    const Meter meter = NewMeter(Piece, EBUR128_MODE_I);
    Repeat(meter.get(), Piece, SecondsForLoudness);
    double loudness = 0.0;
    ebur128_loudness_global(meter.get(), &loudness);
    return loudness;
}

double LoudnessRange(const Piece &Piece) {
    const Meter meter = NewMeter(Piece, EBUR128_MODE_LRA);
    Repeat(meter.get(), Piece, SecondsForRange);
    double range = 0.0;
    ebur128_loudness_range(meter.get(), &range);
    return range;
}

double TruePeak(const Piece &Piece) {
    const Meter meter = NewMeter(Piece, EBUR128_MODE_TRUE_PEAK);
    ebur128_add_frames_float(meter.get(), Piece.Samples.data(), FrameCount(Piece));
    const auto again = std::min(FrameCount(Piece), FramesBehindTheSeam);
    ebur128_add_frames_float(meter.get(), Piece.Samples.data(), again);
    double peak = 0.0;
    for (unsigned channel = 0; channel < static_cast<unsigned>(Piece.Channels); ++channel) {
        double ofChannel = 0.0;
        ebur128_true_peak(meter.get(), channel, &ofChannel);
        peak = std::max(peak, ofChannel);
    }
    return Decibels(peak);
}

double Level(const Piece &Piece, std::size_t First, std::size_t Last) {
    double power = 0.0;
    for (int channel = 0; channel < Piece.Channels; ++channel) {
        power += ChannelPower(Piece, static_cast<std::size_t>(channel), First, Last);
    }
    return Decibels(std::sqrt(power / Piece.Channels));
}

double Balance(const Piece &Piece) {
    const std::size_t frames = FrameCount(Piece);
    return Decibels(std::sqrt(ChannelPower(Piece, 0, 0, frames) / ChannelPower(Piece, 1, 0, frames)));
}

double SideUnderMiddle(const Piece &Piece) {
    const MiddleAndSide split = Split(Piece);
    return Decibels(std::sqrt(Power(split.Middle) / Power(split.Side)));
}

double SideUnderMiddleBelow120(const Piece &Piece) {
    const MiddleAndSide split = Split(Piece);
    return Decibels(
        std::sqrt(Power(Below120(split.Middle, Piece.Rate)) / Power(Below120(split.Side, Piece.Rate))));
}

double LevelBelow120(const Piece &Piece) {
    return Decibels(std::sqrt(Power(Below120(Split(Piece).Middle, Piece.Rate))));
}

double MonoLoss(const Piece &Piece) {
    return Level(Piece, 0, FrameCount(Piece)) - Decibels(std::sqrt(Power(Split(Piece).Middle)));
}

double Offset(const Piece &Piece) {
    const auto channels = static_cast<std::size_t>(Piece.Channels);
    double largest = 0.0;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        double sum = 0.0;
        for (std::size_t at = channel; at < Piece.Samples.size(); at += channels) {
            sum += static_cast<double>(Piece.Samples[at]);
        }
        largest = std::max(largest, std::abs(sum) / static_cast<double>(FrameCount(Piece)));
    }
    return largest;
}

double SeamStep(const Piece &Piece) {
    return Step(Piece, FrameCount(Piece) - 1, 0);
}

double UsualStep(const Piece &Piece, double Share) {
    std::vector<double> steps;
    for (std::size_t frame = 1; frame < FrameCount(Piece); ++frame) {
        steps.push_back(Step(Piece, frame - 1, frame));
    }
    const auto rank = static_cast<std::ptrdiff_t>(Share * static_cast<double>(steps.size() - 1));
    std::nth_element(steps.begin(), steps.begin() + rank, steps.end());
    return steps[static_cast<std::size_t>(rank)];
}
