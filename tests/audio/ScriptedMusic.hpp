#pragma once

#include "audio/MusicPatterns.hpp"
#include "audio/Transport.hpp"
#include "state/GameState.hpp"
#include "tests/audio/MixerWatch.hpp"
#include "tests/support/Sdl.hpp"

#include <array>
#include <string>
#include <vector>

/// A music track that says what the test wants, with patterns that are nothing but names. Its track counts 2
/// frames in a millisecond, its audio 4. Time stands still unless the test moves it.
class ScriptedMusic : public ::testing::Test {
protected:
    static constexpr Sint64 FramesPerMs = 2;
    static constexpr Sint64 AudioFramesPerMs = 4;

    ScriptedMusic();
    ~ScriptedMusic() override;

    /// Appends a pattern that follows itself or another.
    void AddPattern(const std::string &Name, const std::string &Next = "");

    /// Lets a pattern be the one that plays, in the middle of its endless loop.
    void LetPlay(const std::string &Name);

    /// One frame of the game.
    void Update();

    /// Lets the loop wrap in the next update.
    void WrapLoop();

    /// The name of the requested pattern, empty if there is none.
    std::string Requested() const;

    MixerWatch Watch;
    LogCatcher Log;
    GameState State;
    MusicRuntime Runtime;

    bool IsPlaying = false;
    int Loops = -1;
    Sint64 Position = 0;
    Sint64 Duration = 4000; ///< of all audio, in its own frames
    Uint64 Ticks = 100000;
    std::vector<std::string> Played; ///< the names of what was started, in order
    std::vector<float> Gains;        ///< that the music track was given, in order

    /// The properties of the latest play.
    Sint64 PlayedLoops = 0;
    bool HadFadeIn = false;
    Sint64 FadeInMs = 0;

private:
    MIX_Track *MusicTrack() {
        return reinterpret_cast<MIX_Track *>(Things.data());
    }

    std::string NameOf(const MIX_Audio *Audio) const;
    void ScriptTrack();
    void ScriptAudio();
    bool Start(SDL_PropertiesID Options);

    std::array<char, 16> Things{};
    const MIX_Audio *TrackAudio = nullptr;
};
