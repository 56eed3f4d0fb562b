#include "audio/Synthesis.hpp"

#include <SDL3/SDL.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr float FullTurn = 6.2831855F; ///< in radians

std::int64_t FrameCount(const SfxRecipe &Recipe, int Rate) {
    return Rate * Recipe.Duration / 1000;
}

/// The loudness of a frame, 0 to 1: it rises in the first 500th of a second and falls in the last 160th.
float Envelope(std::int64_t Frame, std::int64_t Frames, int Rate) {
    const auto attack = static_cast<float>(std::max(Rate / 500, 1));
    const auto release = static_cast<float>(std::max(Rate / 160, 1));
    return std::min(
        {static_cast<float>(Frame) / attack, static_cast<float>(Frames - 1 - Frame) / release, 1.0F});
}

float Tone(std::int64_t Frame, std::int32_t Frequency, int Rate) {
    const float turn = static_cast<float>(Frequency) * FullTurn;
    return std::sin(static_cast<float>(Frame) * turn / static_cast<float>(Rate));
}

/// Whether the recipe gives at least one frame at the mixer's rate; Format becomes the mixer's own.
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

void CreateSfxAudio(MusicRuntime &Runtime) {
    for (const SfxRecipe &recipe : SfxRecipes) {
        Runtime.SfxAudio[SfxIndex(recipe.Id)] = SynthesiseSfx(Runtime.Mixer, recipe);
    }
}

void DestroySfxAudio(MusicRuntime &Runtime) {
    for (MIX_Audio *&audio : Runtime.SfxAudio) {
        MIX_DestroyAudio(audio);
        audio = nullptr;
    }
}
