#include "audio/Synthesis.hpp"

#include <SDL3/SDL.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr float FullTurn = 6.2831855F;

std::int64_t FrameCount(const SfxRecipe &Recipe, int Rate) {
    return Rate * Recipe.Duration / 1000;
}

/// How many frames the loudness takes to rise: a five-hundredth of a second.
std::int64_t AttackFrames(int Rate) {
    return Rate >= 1000 ? Rate / 500 : 1;
}

/// And to fall at the end.
std::int64_t ReleaseFrames(int Rate) {
    return Rate >= 320 ? Rate / 160 : 1;
}

float Envelope(std::int64_t Frame, std::int64_t Frames, int Rate) {
    const std::int64_t attack = AttackFrames(Rate);
    const std::int64_t release = ReleaseFrames(Rate);
    float envelope = 1.0F;
    if (Frame < attack) {
        envelope = std::min(static_cast<float>(Frame) / static_cast<float>(attack), 1.0F);
    }
    if (Frame + release >= Frames) {
        envelope = std::min(static_cast<float>(Frames - 1 - Frame) / static_cast<float>(release), envelope);
    }
    return std::max(envelope, 0.0F);
}

float Tone(std::int64_t Frame, std::int32_t Frequency, int Rate) {
    const float turn = static_cast<float>(Frequency) * FullTurn;
    return std::sin(static_cast<float>(Frame) * turn / static_cast<float>(Rate));
}

bool CanCompute(MIX_Mixer *Mixer, const SfxRecipe &Recipe, SDL_AudioSpec &Format) {
    return Mixer != nullptr && Recipe.Frequency > 0 && Recipe.Duration > 0 &&
           MIX_GetMixerFormat(Mixer, &Format) && Format.freq > 0 && Format.freq * Recipe.Duration >= 1000;
}

MIX_Audio *ComputeSfx(MIX_Mixer *Mixer, const SfxRecipe &Recipe) {
    SDL_AudioSpec format{};
    if (!CanCompute(Mixer, Recipe, format)) {
        return nullptr;
    }
    format.format = SDL_AUDIO_F32LE;
    format.channels = std::max(format.channels, 1);
    const std::vector<float> samples = SfxSamples(Recipe, format.freq, format.channels);
    return MIX_LoadRawAudio(Mixer, samples.data(), samples.size() * sizeof(float), &format);
}

} // namespace

std::vector<float> SfxSamples(const SfxRecipe &Recipe, int Rate, int Channels) {
    const std::int64_t frames = FrameCount(Recipe, Rate);
    const float amplitude = std::clamp(Recipe.Amplitude, 0.0F, 1.0F);
    std::vector<float> samples;
    samples.reserve(static_cast<std::size_t>(frames) * static_cast<std::size_t>(Channels));
    for (std::int64_t i = 0; i < frames; ++i) {
        const float sample = Envelope(i, frames, Rate) * (Tone(i, Recipe.Frequency, Rate) * amplitude);
        samples.insert(samples.end(), static_cast<std::size_t>(Channels), sample);
    }
    return samples;
}

MIX_Audio *SynthesiseSfx(MIX_Mixer *Mixer, const SfxRecipe &Recipe) {
    MIX_Audio *audio = ComputeSfx(Mixer, Recipe);
    if (audio == nullptr) {
        audio = MIX_CreateSineWaveAudio(Mixer, Recipe.Frequency, Recipe.Amplitude, Recipe.Duration);
    }
    if (audio == nullptr) {
        SDL_Log("MIX_CreateSineWaveAudio failed for SFX '%s': %s", SfxName(Recipe.Id), SDL_GetError());
    }
    return audio;
}
