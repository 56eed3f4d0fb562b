#include "audio/Gains.hpp"

#include "state/GameState.hpp"

#include <SDL3/SDL.h>

#include <algorithm>

namespace {

std::int32_t EffectiveGain(bool Enabled, std::int32_t MasterVolume, std::int32_t Volume) {
    const std::int64_t percent = std::int64_t{MasterVolume} * Volume / 100;
    return Enabled ? static_cast<std::int32_t>(std::clamp<std::int64_t>(percent, 0, 100)) : 0;
}

} // namespace

std::int32_t EffectiveMusicGain(const GameState &State) {
    return EffectiveGain(State.MusicEnabled, State.MasterVolume, State.MusicVolume);
}

std::int32_t EffectiveSfxGain(const GameState &State) {
    return EffectiveGain(State.SfxEnabled, State.MasterVolume, State.SfxVolume);
}

float TrackGain(std::int32_t Percent) {
    return static_cast<float>(std::clamp(Percent, 0, 100)) / 100.0F;
}

bool ApplyMusicGain(const MusicPlayer &Player) {
    return Player.Track == nullptr || MIX_SetTrackGain(Player.Track, TrackGain(*Player.GainPercent));
}

void ApplySfxGain(const MusicRuntime &Runtime, float Gain) {
    for (MIX_Track *track : Runtime.SfxTracks) {
        if (track != nullptr && !MIX_SetTrackGain(track, Gain)) {
            SDL_Log("MIX_SetTrackGain failed for SFX track: %s", SDL_GetError());
        }
    }
}
