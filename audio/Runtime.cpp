#include "audio/Runtime.hpp"

#include "audio/Gains.hpp"
#include "audio/MusicPatterns.hpp"
#include "audio/SfxVoices.hpp"
#include "audio/Synthesis.hpp"
#include "store/TitleIni.hpp"

#include <SDL3/SDL.h>

#include <algorithm>

namespace {

constexpr SDL_AudioSpec RequestedFormat{SDL_AUDIO_S16LE, 2, 44100};
constexpr const char *MusicPatternFile = "Music/MusicPatterns.ini";
constexpr Uint64 FadeOutPatienceMs = 250; ///< what a fade may take beyond its length

bool OpenMixer(MusicRuntime &Runtime) {
    if (!MIX_Init()) {
        SDL_Log("MIX_Init failed: %s", SDL_GetError());
        return false;
    }
    Runtime.Mixer = MIX_CreateMixerDevice(SDL_AUDIO_DEVICE_DEFAULT_PLAYBACK, &RequestedFormat);
    if (Runtime.Mixer == nullptr) {
        SDL_Log("MIX_CreateMixerDevice failed: %s", SDL_GetError());
        MIX_Quit();
        return false;
    }
    return true;
}

/// The last step whose failure leaves the game without any audio.
bool CreateMusicTrack(const GameState &State, MusicRuntime &Runtime) {
    Runtime.MusicTrack = MIX_CreateTrack(Runtime.Mixer);
    if (Runtime.MusicTrack == nullptr) {
        SDL_Log("MIX_CreateTrack failed: %s", SDL_GetError());
        return false;
    }
    if (!MIX_TagTrack(Runtime.MusicTrack, "music")) {
        SDL_Log("MIX_TagTrack failed: %s", SDL_GetError());
    }
    Runtime.Player.Track = Runtime.MusicTrack;
    Runtime.Player.GainPercent = &Runtime.MusicGainPercent;
    Runtime.MusicGainPercent = EffectiveMusicGain(State);
    if (!ApplyMusicGain(Runtime.Player)) {
        SDL_Log("MIX_SetTrackGain failed: %s", SDL_GetError());
        return false;
    }
    return true;
}

void CreateSfx(const GameState &State, MusicRuntime &Runtime) {
    // A record that is new or was shut down has none; those of any other must not leak.
    DestroySfxTracks(Runtime);
    DestroySfxAudio(Runtime);
    CreateSfxAudio(Runtime);
    CreateSfxTracks(Runtime);
    Runtime.SfxGainPercent = EffectiveSfxGain(State);
    ApplySfxGain(Runtime, TrackGain(Runtime.SfxGainPercent));
}

bool LoadShippedMusic(MusicRuntime &Runtime) {
    quillINI::IniDocument document;
    return ReadTitleIni(MusicPatternFile, document) && LoadMusicPatterns(document, Runtime);
}

void LoadBuiltInMusic(MusicRuntime &Runtime) {
    SDL_Log("Music pattern config '%s' could not be loaded or contains no valid tracks; using built-in "
            "defaults",
        MusicPatternFile);
    quillINI::IniDocument document;
    BuildDefaultMusicPatterns(document);
    SDL_Log("%s", LoadMusicPatterns(document, Runtime)
                      ? "Initialized music runtime with built-in default patterns"
                      : "Failed to initialize built-in default music patterns");
}

/// Stops the music with its fade and waits for the end of it.
/// NOT-BUGS: A quit takes a second and a half longer than it must
void FadeMusicOut(const MusicRuntime &Runtime) {
    MIX_Track *const track = Runtime.MusicTrack;
    if (track == nullptr || !MIX_TrackPlaying(track)) {
        return;
    }
    MIX_StopTrack(track, std::max<Sint64>(MIX_TrackMSToFrames(track, Runtime.FadeOutMs), 0));
    if (Runtime.FadeOutMs <= 0) {
        return;
    }
    const Uint64 start = SDL_GetTicks();
    const auto limit = static_cast<Uint64>(Runtime.FadeOutMs) + FadeOutPatienceMs;
    while (MIX_TrackPlaying(track) && SDL_GetTicks() - start < limit) {
        SDL_Delay(1);
    }
}

} // namespace

bool InitMusicRuntime(const GameState &State, MusicRuntime &Runtime) {
    if (!OpenMixer(Runtime)) {
        return false;
    }
    if (!CreateMusicTrack(State, Runtime)) {
        ShutdownMusicRuntime(Runtime, false);
        return false;
    }
    CreateSfx(State, Runtime);
    if (!LoadShippedMusic(Runtime)) {
        LoadBuiltInMusic(Runtime);
    }
    Runtime.Initialised = true;
    return true;
}

void ShutdownMusicRuntime(MusicRuntime &Runtime, bool FadeOut) {
    // MIX_Quit is due once for each MIX_Init that worked; a record that holds nothing owes none. After
    // InitMusicRuntime the mixer alone would tell.
    const bool quitsMixer = Runtime.Initialised || Runtime.Mixer != nullptr || Runtime.MusicTrack != nullptr;
    if (FadeOut) {
        FadeMusicOut(Runtime);
    }
    DestroyMusicPatterns(Runtime.Player);
    DestroySfxTracks(Runtime);
    DestroySfxAudio(Runtime);
    if (Runtime.Mixer != nullptr) {
        MIX_DestroyMixer(Runtime.Mixer); // destroys the music track as well
        Runtime.Mixer = nullptr;
        Runtime.MusicTrack = nullptr;
        Runtime.Player.Track = nullptr;
    }
    if (quitsMixer) {
        MIX_Quit();
    }
    Runtime.Initialised = false;
}
