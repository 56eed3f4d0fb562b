#include "tests/e2e/Effects.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace {

// The mixer rounds each sound and the sum, and a piece of music under it was taken out as it is rounded.
constexpr float ShapeError = 3.0F * FinestStep;

std::size_t LengthOf(const Effect &Effect) {
    return static_cast<std::size_t>(FrameRate) * static_cast<std::size_t>(Effect.Duration) / 1000;
}

// A sine that rises in its first 2 milliseconds, 88 frames, and falls in its last 275 frames.
float SampleOf(const Effect &Effect, std::size_t Index) {
    const auto i = static_cast<float>(Index);
    const auto left = static_cast<float>(LengthOf(Effect) - 1 - Index);
    const float envelope = std::min({1.0F, i / 88.0F, left / 275.0F});
    const float phase = i * (static_cast<float>(Effect.Frequency) * 6.2831855F) / FrameRate;
    return envelope * std::sin(phase) * Effect.Amplitude;
}

std::vector<float> Mixed(const std::vector<Effect> &Effects, float Gain) {
    std::vector<float> wave;
    for (const Effect &effect : Effects) {
        wave.resize(std::max(wave.size(), LengthOf(effect)));
        for (std::size_t i = 0; i < LengthOf(effect); ++i) {
            wave[i] += Gain * SampleOf(effect, i);
        }
    }
    return wave;
}

// The greatest distance of any sample if the wave begins at Begin; what is heard right after it counts too.
float Distance(const Sound &Heard, std::size_t Begin, const std::vector<float> &Wave) {
    constexpr std::size_t after = 400;
    float distance = 0.0F;
    for (std::size_t i = 0; i < Wave.size() + after && Begin + i < Heard.size(); ++i) {
        const float wanted = i < Wave.size() ? Wave[i] : 0.0F;
        const Frame &heard = Heard[Begin + i];
        distance = std::max({distance, std::abs(heard.Left - wanted), std::abs(heard.Right - wanted)});
    }
    return distance;
}

// The same at the best of the places just before the first sample that can be heard: a sound begins at 0.
float BestDistance(const Sound &Heard, std::size_t FirstHeard, const std::vector<float> &Wave) {
    constexpr std::size_t most = 24;
    float best = 1.0F;
    for (std::size_t back = 0; back <= std::min(most, FirstHeard); ++back) {
        best = std::min(best, Distance(Heard, FirstHeard - back, Wave));
    }
    return best;
}

// A stretch under a Hann window.
std::vector<double> Windowed(const Sound &Heard, const Stretch &Place) {
    const auto count = static_cast<double>(Place.End - Place.Begin);
    std::vector<double> samples;
    for (std::size_t i = Place.Begin; i < Place.End; ++i) {
        const double turn = (static_cast<double>(i - Place.Begin) + 0.5) / count;
        const double window = 1.0 - std::cos(2.0 * std::numbers::pi * turn);
        samples.push_back(window * static_cast<double>(Heard[i].Left));
    }
    return samples;
}

// A Goertzel filter: the amplitude of a sine of that frequency.
double AmplitudeAt(const std::vector<double> &Samples, double Frequency) {
    const double factor = 2.0 * std::cos(2.0 * std::numbers::pi * Frequency / FrameRate);
    double last = 0.0;
    double beforeLast = 0.0;
    for (const double sample : Samples) {
        const double next = sample + factor * last - beforeLast;
        beforeLast = last;
        last = next;
    }
    const double power = last * last + beforeLast * beforeLast - factor * last * beforeLast;
    return 2.0 * std::sqrt(std::max(power, 0.0)) / static_cast<double>(Samples.size());
}

struct Tone {
    double Frequency = 0.0;
    double Amplitude = 0.0;
};

// The loudest of all pitches from 100 to 2000 Hz in steps of 1 Hz.
Tone LoudestTone(const Sound &Heard, const Stretch &Place) {
    const std::vector<double> samples = Windowed(Heard, Place);
    Tone loudest;
    for (int frequency = 100; frequency <= 2000; ++frequency) {
        const double amplitude = AmplitudeAt(samples, frequency);
        if (amplitude > loudest.Amplitude) {
            loudest = {static_cast<double>(frequency), amplitude};
        }
    }
    return loudest;
}

double Milliseconds(const Stretch &Place) {
    return 1000.0 * Seconds(Place.End - Place.Begin);
}

testing::AssertionResult HasTone(const Sound &Heard, const Stretch &Place, const Effect &Effect, float Gain) {
    // The part that is neither rising nor falling.
    const Tone tone = LoudestTone(Heard, {Place.Begin + 88, Place.End - 275});
    const auto wanted = static_cast<double>(Effect.Amplitude * Gain);
    std::printf("    %-12s at %7.3f s: %6.0f Hz (%d), amplitude %.4f (%.4f), %5.1f ms (%d)\n", Effect.Name,
        Seconds(Place.Begin), tone.Frequency, Effect.Frequency, tone.Amplitude, wanted, Milliseconds(Place),
        Effect.Duration);
    if (std::abs(tone.Frequency - Effect.Frequency) > 2.0) {
        return testing::AssertionFailure() << Effect.Name << " has " << tone.Frequency << " Hz";
    }
    if (std::abs(tone.Amplitude - wanted) > 0.01 * wanted) {
        return testing::AssertionFailure() << Effect.Name << " has the amplitude " << tone.Amplitude;
    }
    return testing::AssertionSuccess();
}

} // namespace

testing::AssertionResult Holds(
    const Sound &Heard, const Stretch &Place, const std::vector<Effect> &Effects, float Gain) {
    const std::vector<float> wave = Mixed(Effects, Gain);
    // Its first and last samples are too low to be heard.
    const double length = 1000.0 * Seconds(wave.size());
    if (std::abs(Milliseconds(Place) - length) > 1.0) {
        return testing::AssertionFailure() << Effects.front().Name << " should last " << length
                                           << " ms, and lasts " << Milliseconds(Place);
    }
    if (Effects.size() == 1) {
        if (const testing::AssertionResult tone = HasTone(Heard, Place, Effects.front(), Gain); !tone) {
            return tone;
        }
    }
    const float distance = BestDistance(Heard, Place.Begin, wave) / FinestStep;
    std::printf("    the shape is kept to %.2f steps of 16 bits\n", static_cast<double>(distance));
    if (distance * FinestStep > ShapeError) {
        return testing::AssertionFailure() << Effects.front().Name << " is " << distance << " steps off";
    }
    return testing::AssertionSuccess();
}
