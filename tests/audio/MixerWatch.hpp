#pragma once

#include <SDL3_mixer/SDL_mixer.h>

#include <functional>
#include <string>
#include <thread>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

/// How an argument is kept: texts are copied, all else is noted as it is.
template <typename Value>
using NotedArgument = std::conditional_t<std::is_same_v<Value, const char *>, std::string, Value>;

/// One function that the audio room calls: what it was called with, and what a test wants it to do.
template <typename Signature> class WatchedCall;

template <typename Result, typename... Parameters> class WatchedCall<Result(Parameters...)> {
public:
    /// The arguments of each call, in order.
    std::vector<std::tuple<NotedArgument<Parameters>...>> Calls;

    /// Runs before the call, while what its pointers point to is there.
    std::function<void(Parameters...)> Before;

    /// Answers in place of the real function.
    std::function<Result(Parameters...)> Answer;

    /// Lets the calls from now on fail, after so many that work and for so many.
    void Refuse(int Times, int After = 0) {
        Working = After;
        Failing = Times;
    }

    int Count() const {
        return static_cast<int>(Calls.size());
    }

    /// Notes a call and makes it: the test's answer, a failure, or the real function.
    template <typename RealCall> Result Make(RealCall Real, Parameters... Arguments) {
        Calls.emplace_back(Arguments...);
        if (Before) {
            Before(Arguments...);
        }
        if (IsRefused()) {
            return Refusal();
        }
        return Answer ? Answer(Arguments...) : Real();
    }

private:
    bool IsRefused() {
        if (Failing == 0) {
            return false;
        }
        if (Working > 0) {
            --Working;
            return false;
        }
        --Failing;
        return true;
    }

    static Result Refusal() {
        SDL_SetError("refused for the test");
        if constexpr (std::is_same_v<Result, Sint64>) {
            return -1;
        } else if constexpr (!std::is_void_v<Result>) {
            return Result{};
        }
    }

    int Working = 0;
    int Failing = 0;
};

/// While it lives, every call of the audio room into the mixer passes through it, and so do the few calls
/// into SDL that go with them. What the mixer does inside itself or on its own thread is not seen. Only one
/// lives at a time.
class MixerWatch {
public:
    /// For a refusal that does not end.
    static constexpr int Always = 1000000;

    MixerWatch();
    ~MixerWatch();
    MixerWatch(const MixerWatch &) = delete;
    MixerWatch &operator=(const MixerWatch &) = delete;

    WatchedCall<bool()> Init;
    WatchedCall<void()> Quit;
    WatchedCall<MIX_Mixer *(SDL_AudioDeviceID, const SDL_AudioSpec *)> CreateMixerDevice;
    WatchedCall<void(MIX_Mixer *)> DestroyMixer;
    WatchedCall<bool(MIX_Mixer *, SDL_AudioSpec *)> GetMixerFormat;
    WatchedCall<MIX_Track *(MIX_Mixer *)> CreateTrack;
    WatchedCall<void(MIX_Track *)> DestroyTrack;
    WatchedCall<bool(MIX_Track *, const char *)> TagTrack;
    WatchedCall<bool(MIX_Track *, float)> SetTrackGain;
    WatchedCall<bool(MIX_Track *, MIX_Audio *)> SetTrackAudio;
    WatchedCall<bool(MIX_Track *, SDL_PropertiesID)> PlayTrack;
    WatchedCall<bool(MIX_Track *, Sint64)> StopTrack;
    WatchedCall<bool(MIX_Track *)> TrackPlaying;
    WatchedCall<int(MIX_Track *)> GetTrackLoops;
    WatchedCall<Sint64(MIX_Track *)> GetTrackPlaybackPosition;
    WatchedCall<Sint64(MIX_Track *, Sint64)> TrackMSToFrames;
    WatchedCall<Sint64(MIX_Track *, Sint64)> TrackFramesToMS;
    WatchedCall<MIX_Audio *(MIX_Mixer *, const char *, bool)> LoadAudio;
    WatchedCall<MIX_Audio *(MIX_Mixer *, const void *, size_t, const SDL_AudioSpec *)> LoadRawAudio;
    WatchedCall<MIX_Audio *(MIX_Mixer *, int, float, Sint64)> CreateSineWaveAudio;
    WatchedCall<void(MIX_Audio *)> DestroyAudio;
    WatchedCall<Sint64(MIX_Audio *)> GetAudioDuration;
    WatchedCall<Sint64(MIX_Audio *, Sint64)> AudioFramesToMS;

    WatchedCall<SDL_PropertiesID()> CreateProperties;
    WatchedCall<bool(SDL_PropertiesID, const char *, Sint64)> SetNumberProperty;
    WatchedCall<void(SDL_PropertiesID)> DestroyProperties;
    WatchedCall<Uint64()> GetTicks;
    WatchedCall<void(Uint32)> Delay;
    WatchedCall<const char *()> GetBasePath;

    /// The names of all calls in order, without their MIX_ or SDL_. A test may clear it.
    std::vector<std::string> Order;

    /// The names of the calls of some functions in order.
    std::vector<std::string> OrderOf(const std::vector<std::string> &Names) const;

    /// For the wrapped calls themselves.
    template <typename Call, typename RealCall, typename... Arguments>
    static auto Pass(const char *Name, Call MixerWatch::*Field, RealCall Real, Arguments... Values) {
        MixerWatch *const watch = Living();
        if (watch == nullptr) {
            return Real();
        }
        watch->Order.emplace_back(Name);
        const auto unseen = [&Real] {
            const InsideMixer inside;
            return Real();
        };
        return (watch->*Field).Make(unseen, Values...);
    }

private:
    struct InsideMixer {
        InsideMixer();
        ~InsideMixer();
    };

    /// The living one, if this call is one to be seen.
    static MixerWatch *Living();

    std::thread::id Thread;
};
