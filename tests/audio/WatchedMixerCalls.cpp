// The linker sends every call of a watched function here (--wrap in this folder's CMakeLists.txt), and from
// here it goes to the living watch, if there is one, and to the real function.

#include "tests/audio/MixerWatch.hpp"

// NOLINTBEGIN(bugprone-reserved-identifier,bugprone-macro-parentheses): the linker dictates the names.

#define PASTE(First, Second) First##Second
#define WATCH(Prefix, Name, Result, Parameters, ...)                                                         \
    extern "C" Result PASTE(__real_, Prefix##Name) Parameters;                                               \
    extern "C" Result PASTE(__wrap_, Prefix##Name) Parameters;                                               \
    extern "C" Result PASTE(__wrap_, Prefix##Name) Parameters {                                              \
        const auto real = [&] {                                                                              \
            return PASTE(__real_, Prefix##Name)(__VA_ARGS__);                                                \
        };                                                                                                   \
        return MixerWatch::Pass(#Name, &MixerWatch::Name, real __VA_OPT__(, ) __VA_ARGS__);                  \
    }

// The mixer and its life.
WATCH(MIX_, Init, bool, ())
WATCH(MIX_, Quit, void, ())
WATCH(
    MIX_, CreateMixerDevice, MIX_Mixer *, (SDL_AudioDeviceID Device, const SDL_AudioSpec *Spec), Device, Spec)
WATCH(MIX_, DestroyMixer, void, (MIX_Mixer * Mixer), Mixer)
WATCH(MIX_, GetMixerFormat, bool, (MIX_Mixer * Mixer, SDL_AudioSpec *Spec), Mixer, Spec)

// Tracks.
WATCH(MIX_, CreateTrack, MIX_Track *, (MIX_Mixer * Mixer), Mixer)
WATCH(MIX_, DestroyTrack, void, (MIX_Track * Track), Track)
WATCH(MIX_, TagTrack, bool, (MIX_Track * Track, const char *Tag), Track, Tag)
WATCH(MIX_, SetTrackGain, bool, (MIX_Track * Track, float Gain), Track, Gain)
WATCH(MIX_, SetTrackAudio, bool, (MIX_Track * Track, MIX_Audio *Audio), Track, Audio)
WATCH(MIX_, PlayTrack, bool, (MIX_Track * Track, SDL_PropertiesID Options), Track, Options)
WATCH(MIX_, StopTrack, bool, (MIX_Track * Track, Sint64 FadeFrames), Track, FadeFrames)
WATCH(MIX_, TrackPlaying, bool, (MIX_Track * Track), Track)
WATCH(MIX_, GetTrackLoops, int, (MIX_Track * Track), Track)
WATCH(MIX_, GetTrackPlaybackPosition, Sint64, (MIX_Track * Track), Track)
WATCH(MIX_, TrackMSToFrames, Sint64, (MIX_Track * Track, Sint64 Milliseconds), Track, Milliseconds)
WATCH(MIX_, TrackFramesToMS, Sint64, (MIX_Track * Track, Sint64 Frames), Track, Frames)

// Audio.
WATCH(MIX_, LoadAudio, MIX_Audio *, (MIX_Mixer * Mixer, const char *Path, bool Predecode), Mixer, Path,
    Predecode)
WATCH(MIX_, LoadRawAudio, MIX_Audio *,
    (MIX_Mixer * Mixer, const void *Data, size_t Size, const SDL_AudioSpec *Spec), Mixer, Data, Size, Spec)
WATCH(MIX_, CreateSineWaveAudio, MIX_Audio *,
    (MIX_Mixer * Mixer, int Hertz, float Amplitude, Sint64 Milliseconds), Mixer, Hertz, Amplitude,
    Milliseconds)
WATCH(MIX_, DestroyAudio, void, (MIX_Audio * Audio), Audio)
WATCH(MIX_, GetAudioDuration, Sint64, (MIX_Audio * Audio), Audio)
WATCH(MIX_, AudioFramesToMS, Sint64, (MIX_Audio * Audio, Sint64 Frames), Audio, Frames)

// What goes with them.
WATCH(SDL_, CreateProperties, SDL_PropertiesID, ())
WATCH(SDL_, SetNumberProperty, bool, (SDL_PropertiesID Properties, const char *Name, Sint64 Value),
    Properties, Name, Value)
WATCH(SDL_, DestroyProperties, void, (SDL_PropertiesID Properties), Properties)
WATCH(SDL_, GetTicks, Uint64, ())
WATCH(SDL_, Delay, void, (Uint32 Milliseconds), Milliseconds)
WATCH(SDL_, GetBasePath, const char *, ())

// NOLINTEND(bugprone-reserved-identifier,bugprone-macro-parentheses)
