#include "audio/StartupFade.hpp"

#include "audio/Gains.hpp"

#include <SDL3/SDL.h>

#include <algorithm>

namespace {

/// The share of the gain at which the fade begins.
constexpr float StartShare = 0.28F;

} // namespace

void BeginStartupFade(MusicRuntime &Runtime) {
    if (Runtime.FadeInMs <= 0) {
        return;
    }
    Runtime.StartupFadeActive = true;
    Runtime.StartupFadeStartTicks = SDL_GetTicks();
    if (!MIX_SetTrackGain(Runtime.Player.Track, StartShare * TrackGain(Runtime.MusicGainPercent))) {
        SDL_Log("MIX_SetTrackGain failed during startup fade setup: %s", SDL_GetError());
        Runtime.StartupFadeActive = false;
    }
}

void UpdateStartupFade(MusicRuntime &Runtime) {
    MIX_Track *const track = Runtime.Player.Track;
    if (!Runtime.StartupFadeActive || track == nullptr || !MIX_TrackPlaying(track)) {
        return;
    }
    // A fade whose length has become 0 since it began is over.
    if (Runtime.FadeInMs > 0) {
        const auto elapsed = static_cast<float>(SDL_GetTicks() - Runtime.StartupFadeStartTicks);
        const float share = std::clamp(elapsed / static_cast<float>(Runtime.FadeInMs), 0.0F, 1.0F);
        const float gain = TrackGain(Runtime.MusicGainPercent);
        const float start = StartShare * gain;
        if (!MIX_SetTrackGain(track, start + (gain - start) * share)) {
            SDL_Log("MIX_SetTrackGain failed during startup fade: %s", SDL_GetError());
            Runtime.StartupFadeActive = false;
            return;
        }
        if (share < 1.0F) {
            return;
        }
    }
    Runtime.StartupFadeActive = false;
    if (!ApplyMusicGain(Runtime.Player)) {
        SDL_Log("MIX_SetTrackGain failed: %s", SDL_GetError());
    }
}
