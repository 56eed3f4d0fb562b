#pragma once

#include "tests/support/watch/SdlWatch.hpp"

#include <SDL3_mixer/SDL_mixer.h>

/// The functions of the mixer that are watched, in the form of WATCHED_SDL_FUNCTIONS.
#define WATCHED_MIXER_FUNCTIONS(NOTED)                                                                       \
    /* The mixer and its life. */                                                                            \
    NOTED(0, MIX_Init, Init)                                                                                 \
    NOTED(0, MIX_Quit, Quit)                                                                                 \
    NOTED(2, MIX_CreateMixerDevice, CreateMixerDevice)                                                       \
    NOTED(1, MIX_DestroyMixer, DestroyMixer)                                                                 \
    NOTED(2, MIX_GetMixerFormat, GetMixerFormat)                                                             \
    /* Tracks. */                                                                                            \
    NOTED(1, MIX_CreateTrack, CreateTrack)                                                                   \
    NOTED(1, MIX_DestroyTrack, DestroyTrack)                                                                 \
    NOTED(2, MIX_TagTrack, TagTrack)                                                                         \
    NOTED(2, MIX_SetTrackGain, SetTrackGain)                                                                 \
    NOTED(2, MIX_SetTrackAudio, SetTrackAudio)                                                               \
    NOTED(2, MIX_PlayTrack, PlayTrack)                                                                       \
    NOTED(2, MIX_StopTrack, StopTrack)                                                                       \
    NOTED(1, MIX_TrackPlaying, TrackPlaying)                                                                 \
    NOTED(1, MIX_GetTrackLoops, GetTrackLoops)                                                               \
    NOTED(1, MIX_GetTrackPlaybackPosition, GetTrackPlaybackPosition)                                         \
    NOTED(2, MIX_TrackMSToFrames, TrackMSToFrames)                                                           \
    NOTED(2, MIX_TrackFramesToMS, TrackFramesToMS)                                                           \
    /* Audio. */                                                                                             \
    NOTED(3, MIX_LoadAudio, LoadAudio)                                                                       \
    NOTED(4, MIX_LoadRawAudio, LoadRawAudio)                                                                 \
    NOTED(4, MIX_CreateSineWaveAudio, CreateSineWaveAudio)                                                   \
    NOTED(1, MIX_DestroyAudio, DestroyAudio)                                                                 \
    NOTED(1, MIX_GetAudioDuration, GetAudioDuration)                                                         \
    NOTED(2, MIX_AudioFramesToMS, AudioFramesToMS)

/// Watches the calls of the audio room into the mixer, and those into SDL that go with them. Init and Quit
/// are the mixer's.
class MixerWatch : public SdlWatch {
public:
    WATCHED_MIXER_FUNCTIONS(NOTED_FIELD)
};
