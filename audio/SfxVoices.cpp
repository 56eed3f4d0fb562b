#include "audio/SfxVoices.hpp"

#include "state/GameState.hpp"

#include <SDL3/SDL.h>

namespace {

constexpr int VoiceCount = 12;

MIX_Audio *AudioOf(const MusicRuntime &Runtime, SfxId Id) {
    return SfxIndex(Id) < SfxCount ? Runtime.SfxAudio[SfxIndex(Id)] : nullptr;
}

bool IsFree(MIX_Track *Track) {
    return Track != nullptr && !MIX_TrackPlaying(Track);
}

/// The next free voice from the cursor on, or the one at the cursor if none is; the pool is not empty.
/// NOT-BUGS: A thirteenth sound cuts off the voice whose turn it is
MIX_Track *TakeVoice(MusicRuntime &Runtime) {
    const std::vector<MIX_Track *> &voices = Runtime.SfxTracks;
    const std::size_t start = Runtime.NextSfxTrack % voices.size();
    std::size_t taken = start;
    for (std::size_t i = 0; i < voices.size(); ++i) {
        const std::size_t slot = (start + i) % voices.size();
        if (IsFree(voices[slot])) {
            taken = slot;
            break;
        }
    }
    Runtime.NextSfxTrack = (taken + 1) % voices.size();
    return voices[taken];
}

void PlaySfx(MusicRuntime &Runtime, SfxId Id) {
    MIX_Audio *const audio = AudioOf(Runtime, Id);
    if (!Runtime.Initialised || Runtime.Mixer == nullptr || audio == nullptr || Runtime.SfxTracks.empty()) {
        return;
    }
    MIX_Track *const track = TakeVoice(Runtime);
    if (!MIX_SetTrackAudio(track, audio)) {
        SDL_Log("MIX_SetTrackAudio failed for SFX '%s': %s", SfxName(Id), SDL_GetError());
        return;
    }
    const SDL_PropertiesID properties = SDL_CreateProperties();
    if (properties == 0) {
        SDL_Log("SDL_CreateProperties failed for SFX '%s': %s", SfxName(Id), SDL_GetError());
        return;
    }
    // Once: the mixer's default, said here because every sound relies on it.
    SDL_SetNumberProperty(properties, MIX_PROP_PLAY_LOOPS_NUMBER, 0);
    const bool played = MIX_PlayTrack(track, properties);
    SDL_DestroyProperties(properties);
    if (!played) {
        SDL_Log("MIX_PlayTrack failed for SFX '%s': %s", SfxName(Id), SDL_GetError());
    }
}

} // namespace

void CreateSfxTracks(MusicRuntime &Runtime) {
    for (int i = 0; i < VoiceCount; ++i) {
        MIX_Track *const track = MIX_CreateTrack(Runtime.Mixer);
        if (track == nullptr) {
            SDL_Log("MIX_CreateTrack failed for SFX track %d: %s", i, SDL_GetError());
            continue;
        }
        if (!MIX_TagTrack(track, "sfx")) {
            SDL_Log("MIX_TagTrack failed for SFX track %d: %s", i, SDL_GetError());
        }
        Runtime.SfxTracks.push_back(track);
    }
}

void DestroySfxTracks(MusicRuntime &Runtime) {
    for (MIX_Track *track : Runtime.SfxTracks) {
        MIX_DestroyTrack(track);
    }
    Runtime.SfxTracks.clear();
    Runtime.NextSfxTrack = 0;
}

void PlayQueuedSfx(GameState &State, MusicRuntime &Runtime) {
    SoundQueue &queue = State.PendingSounds;
    for (std::size_t i = 0; i < queue.Count; ++i) {
        PlaySfx(Runtime, queue.Ids[i]);
    }
    queue.Count = 0;
}
