#include "audio/Runtime.hpp"

#include "audio/Transport.hpp"
#include "state/GameState.hpp"
#include "tests/audio/GameFolder.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Lines = std::vector<std::string>;

/// Started on SDL's dummy device with one tune, which the first update has begun to play.
class AudioShutdown : public GameFolderTest {
protected:
    AudioShutdown() {
        AddTune();
        EXPECT_TRUE(InitMusicRuntime(State, Runtime));
        UpdateMusicRuntime(State, Runtime);
        EXPECT_TRUE(MIX_TrackPlaying(Runtime.MusicTrack));
        Watch.Forget();
    }
    ~AudioShutdown() override {
        ShutdownMusicRuntime(Runtime, false);
    }

    /// Lets time pass only where the game waits, in steps of the wait.
    void StopTheClock() {
        Watch.GetTicks.Answer = [this] {
            return Clock;
        };
        Watch.Delay.Answer = [this](Uint32 Milliseconds) {
            EXPECT_EQ(Milliseconds, 1U);
            Clock += Milliseconds;
        };
    }

    /// Lets the music go on for so many milliseconds of the stopped clock.
    void PlayFor(Uint64 Milliseconds) {
        const Uint64 end = Clock + Milliseconds;
        Watch.TrackPlaying.Answer = [this, end](MIX_Track *) {
            return Clock < end;
        };
    }

    void ExpectNothingLeft() const {
        EXPECT_EQ(Runtime.Mixer, nullptr);
        EXPECT_EQ(Runtime.MusicTrack, nullptr);
        EXPECT_TRUE(Runtime.SfxTracks.empty());
        EXPECT_EQ(Runtime.NextSfxTrack, 0U);
        EXPECT_EQ(std::ranges::count(Runtime.SfxAudio, nullptr), 11);
        EXPECT_TRUE(Runtime.Player.Patterns.empty());
        EXPECT_EQ(Runtime.Player.RequestedPattern, nullptr);
        EXPECT_FALSE(Runtime.Initialised);
        EXPECT_EQ(Log.Lines, Lines());
    }

    GameState State;
    MusicRuntime Runtime;
    Uint64 Clock = 5000;
};

/// A handle that nothing but its address is used of.
char Thing;

} // namespace

TEST_F(GameFolderTest, ShutdownWaitsUntilTheMusicHasFadedAway) {
    AddTune();
    constexpr SDL_AudioSpec format{SDL_AUDIO_F32LE, 1, 48000};
    Watch.CreateMixerDevice.Answer = [&format](SDL_AudioDeviceID, const SDL_AudioSpec *) {
        return MIX_CreateMixer(&format);
    };
    GameState state;
    MusicRuntime runtime;
    ASSERT_TRUE(InitMusicRuntime(state, runtime));
    UpdateMusicRuntime(state, runtime);
    Uint64 clock = 0;
    Watch.GetTicks.Answer = [&clock] {
        return clock;
    };
    std::vector<float> heard; // a millisecond of music for each that is waited
    Watch.Delay.Answer = [&](Uint32 Milliseconds) {
        clock += Milliseconds;
        std::array<float, 48> samples{};
        MIX_Generate(runtime.Mixer, samples.data(), static_cast<int>(sizeof samples));
        heard.insert(heard.end(), samples.begin(), samples.end());
    };
    const auto loudest = [&heard](std::size_t From, std::size_t To) {
        float peak = 0.0F;
        for (std::size_t i = From * 48; i < To * 48; ++i) {
            peak = std::max(peak, std::abs(heard.at(i)));
        }
        return peak;
    };
    ShutdownMusicRuntime(runtime, true);
    EXPECT_NEAR(static_cast<double>(clock), 120.0, 2.0);
    EXPECT_LT(loudest(50, 70), 0.8F * loudest(0, 20));
    EXPECT_LT(loudest(90, 110), 0.5F * loudest(0, 20));
    EXPECT_GT(loudest(90, 110), 0.0F);
    EXPECT_EQ(runtime.Mixer, nullptr);
}

TEST_F(AudioShutdown, FadesTheMusicOfADeviceOutAndWaits) {
    ASSERT_EQ(Runtime.FadeOutMs, 120);
    MIX_Track *const track = Runtime.MusicTrack;
    const Sint64 frames = MIX_TrackMSToFrames(track, 120);
    ShutdownMusicRuntime(Runtime, true);
    ASSERT_EQ(Watch.StopTrack.Count(), 1);
    EXPECT_EQ(Watch.StopTrack.Calls[0], std::tuple(track, frames));
    EXPECT_GT(frames, 0);
    EXPECT_GT(Watch.Delay.Count(), 0);
    ExpectNothingLeft();
    EXPECT_EQ(Watch.Quit.Count(), 1);
}

TEST_F(AudioShutdown, TakesEverythingDownInOrder) {
    Runtime.FadeOutMs = 0;
    Runtime.NextSfxTrack = 4;
    Runtime.Player.RequestedPattern = Runtime.Player.Patterns.data();
    MIX_Audio *const music = Runtime.Player.Patterns[0].Audio;
    ShutdownMusicRuntime(Runtime, true);
    CallNames order{Watch.StopTrack, Watch.DestroyAudio};
    order.insert(order.end(), 12, Watch.DestroyTrack);
    order.insert(order.end(), 11, Watch.DestroyAudio);
    order.insert(order.end(), {Watch.DestroyMixer, Watch.Quit});
    EXPECT_EQ(Watch.OrderOf(
                  {Watch.StopTrack, Watch.DestroyAudio, Watch.DestroyTrack, Watch.DestroyMixer, Watch.Quit}),
        order);
    EXPECT_EQ(Watch.DestroyAudio.Calls[0], std::tuple(music));
    ExpectNothingLeft();
}

TEST_F(AudioShutdown, AbandonsAFadeThatNeverEndsAQuarterOfASecondAfterItsTime) {
    StopTheClock();
    Watch.TrackPlaying.Answer = [](MIX_Track *) {
        return true;
    };
    Runtime.FadeOutMs = 1500;
    ShutdownMusicRuntime(Runtime, true);
    EXPECT_EQ(Watch.Delay.Count(), 1750);
    EXPECT_EQ(Clock, 6750U);
    ExpectNothingLeft();
    EXPECT_EQ(Watch.Quit.Count(), 1);
}

TEST_F(AudioShutdown, WaitsNoLongerThanTheMusicPlays) {
    StopTheClock();
    PlayFor(3);
    Runtime.FadeOutMs = 1500;
    ShutdownMusicRuntime(Runtime, true);
    EXPECT_EQ(Watch.Delay.Count(), 3);
    ExpectNothingLeft();
}

TEST_F(AudioShutdown, WithoutALengthOfTheFadeStopsAtOnceAndDoesNotWait) {
    StopTheClock();
    Watch.TrackPlaying.Answer = [](MIX_Track *) {
        return true;
    };
    for (const int milliseconds : {0, -1}) {
        Watch.Forget();
        Runtime.FadeOutMs = milliseconds;
        ShutdownMusicRuntime(Runtime, true);
        ASSERT_EQ(Watch.StopTrack.Count(), 1);
        EXPECT_EQ(std::get<1>(Watch.StopTrack.Calls[0]), 0);
        EXPECT_EQ(Watch.Delay.Count(), 0);
        ExpectNothingLeft();
        ASSERT_TRUE(InitMusicRuntime(State, Runtime));
    }
}

TEST_F(AudioShutdown, CountsALengthThatCannotBeConvertedAsNoFrames) {
    StopTheClock();
    PlayFor(2);
    Watch.TrackMSToFrames.Refuse(1);
    ShutdownMusicRuntime(Runtime, true);
    ASSERT_EQ(Watch.StopTrack.Count(), 1);
    EXPECT_EQ(std::get<1>(Watch.StopTrack.Calls[0]), 0);
    EXPECT_EQ(Watch.Delay.Count(), 2);
}

TEST_F(AudioShutdown, DoesNotFadeMusicThatDoesNotPlay) {
    StopTheClock();
    Watch.TrackPlaying.Answer = [](MIX_Track *) {
        return false;
    };
    ShutdownMusicRuntime(Runtime, true);
    EXPECT_EQ(Watch.StopTrack.Count(), 0);
    EXPECT_EQ(Watch.Delay.Count(), 0);
    ExpectNothingLeft();
}

TEST_F(AudioShutdown, WithoutAFadeNeitherStopsNorWaits) {
    StopTheClock();
    ShutdownMusicRuntime(Runtime, false);
    EXPECT_EQ(Watch.StopTrack.Count(), 0);
    EXPECT_EQ(Watch.Delay.Count(), 0);
    ExpectNothingLeft();
    EXPECT_EQ(Watch.Quit.Count(), 1);
}

TEST_F(AudioShutdown, IsSafeTwice) {
    ShutdownMusicRuntime(Runtime, true);
    Watch.Forget();
    ShutdownMusicRuntime(Runtime, true);
    EXPECT_EQ(
        Watch.OrderOf({Watch.Quit, Watch.DestroyMixer, Watch.DestroyTrack, Watch.StopTrack}), CallNames());
    ExpectNothingLeft();
}

TEST_F(AudioShutdown, CanBeFollowedByAnotherStart) {
    ShutdownMusicRuntime(Runtime, true);
    EXPECT_TRUE(InitMusicRuntime(State, Runtime));
    EXPECT_TRUE(Runtime.Initialised);
    EXPECT_EQ(Runtime.SfxTracks.size(), 12U);
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(MixerTest, ShutdownOfAnEmptyRecordDoesNothing) {
    MusicRuntime runtime;
    for (const bool fade : {true, false}) {
        ShutdownMusicRuntime(runtime, fade);
    }
    EXPECT_EQ(
        Watch.OrderOf({Watch.Quit, Watch.DestroyMixer, Watch.DestroyTrack, Watch.StopTrack, Watch.Delay}),
        CallNames());
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(MixerTest, ShutdownQuitsTheMixerForARecordThatHasAnyPartOfIt) {
    Watch.Quit.Answer = [] {};
    Watch.DestroyMixer.Answer = [](MIX_Mixer *) {};
    Watch.TrackPlaying.Answer = [](MIX_Track *) {
        return false;
    };
    MusicRuntime initialised;
    initialised.Initialised = true;
    ShutdownMusicRuntime(initialised, true);
    EXPECT_EQ(Watch.Quit.Count(), 1);
    EXPECT_FALSE(initialised.Initialised);

    MusicRuntime withMixer;
    withMixer.Mixer = reinterpret_cast<MIX_Mixer *>(&Thing);
    ShutdownMusicRuntime(withMixer, true);
    EXPECT_EQ(Watch.Quit.Count(), 2);
    EXPECT_EQ(withMixer.Mixer, nullptr);

    MusicRuntime withTrack;
    withTrack.MusicTrack = reinterpret_cast<MIX_Track *>(&Thing);
    ShutdownMusicRuntime(withTrack, true);
    EXPECT_EQ(Watch.Quit.Count(), 3);
    EXPECT_EQ(Watch.DestroyMixer.Count(), 1);
}
