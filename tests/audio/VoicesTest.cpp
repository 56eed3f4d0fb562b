#include "audio/SfxVoices.hpp"

#include "audio/Synthesis.hpp"
#include "state/GameState.hpp"
#include "tests/audio/GameFolder.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Lines = std::vector<std::string>;

constexpr int Rate = 44100;

/// All voices and sounds on a real mixer that renders to memory: time passes when the test says so.
class Voices : public MixerTest {
protected:
    Voices() {
        EXPECT_TRUE(MIX_Init());
        const SDL_AudioSpec format{SDL_AUDIO_F32LE, 1, Rate};
        Runtime.Mixer = MIX_CreateMixer(&format);
        for (const SfxRecipe &recipe : SfxRecipes) {
            Runtime.SfxAudio.at(static_cast<std::size_t>(recipe.Id)) = SynthesiseSfx(Runtime.Mixer, recipe);
        }
        CreateSfxTracks(Runtime);
        AllVoices = Runtime.SfxTracks;
        Runtime.Initialised = true;
        Watch.Forget();
    }
    ~Voices() override {
        Runtime.SfxTracks = AllVoices;
        DestroySfxTracks(Runtime);
        DestroySfxAudio(Runtime);
        MIX_DestroyMixer(Runtime.Mixer);
        MIX_Quit();
    }

    /// Asks for sounds and plays them as one frame does.
    void Play(const std::vector<SfxId> &Ids) {
        for (const SfxId id : Ids) {
            PushSound(State, id);
        }
        PlayQueuedSfx(State, Runtime);
        EXPECT_EQ(State.PendingSounds.Count, 0U);
    }

    /// Lets time pass, and gives what is heard in it.
    std::vector<float> Hear(int Milliseconds) const {
        std::vector<float> samples(static_cast<std::size_t>(Rate * Milliseconds / 1000));
        MIX_Generate(Runtime.Mixer, samples.data(), static_cast<int>(samples.size() * sizeof(float)));
        return samples;
    }

    MIX_Audio *AudioOf(SfxId Id) const {
        return Runtime.SfxAudio.at(static_cast<std::size_t>(Id));
    }

    /// What a voice plays, or null.
    MIX_Audio *PlayedBy(std::size_t Slot) const {
        MIX_Track *const track = AllVoices.at(Slot);
        return MIX_TrackPlaying(track) ? MIX_GetTrackAudio(track) : nullptr;
    }

    int BusyVoices() const {
        return static_cast<int>(std::ranges::count_if(AllVoices, [](MIX_Track *Track) {
            return MIX_TrackPlaying(Track);
        }));
    }

    GameState State;
    MusicRuntime Runtime;
    std::vector<MIX_Track *> AllVoices;
};

} // namespace

TEST_F(Voices, AreTwelve) {
    EXPECT_EQ(AllVoices.size(), 12U);
}

TEST_F(Voices, TheFirstSoundTakesTheFirstVoice) {
    Play({SfxId::Item});
    EXPECT_EQ(PlayedBy(0), AudioOf(SfxId::Item));
    EXPECT_EQ(BusyVoices(), 1);
    EXPECT_EQ(Runtime.NextSfxTrack, 1U);
}

TEST_F(Voices, EverySoundPlaysItsOwnAudioOnceAndEnds) {
    for (const SfxRecipe &recipe : SfxRecipes) {
        Play({recipe.Id});
        EXPECT_EQ(BusyVoices(), 1) << recipe.Name;
        Hear(static_cast<int>(recipe.Duration) - 2);
        EXPECT_EQ(BusyVoices(), 1) << recipe.Name;
        Hear(20);
        EXPECT_EQ(BusyVoices(), 0) << recipe.Name;
    }
    ASSERT_EQ(Watch.SetTrackAudio.Count(), 11);
    for (std::size_t i = 0; i < 11; ++i) {
        EXPECT_EQ(std::get<1>(Watch.SetTrackAudio.Calls.at(i)), Runtime.SfxAudio.at(i));
    }
}

TEST_F(Voices, TwoEqualSoundsOfAFrameTakeTwoVoicesAndSoundTwice) {
    Play({SfxId::PlayerHit, SfxId::PlayerHit});
    EXPECT_EQ(PlayedBy(0), AudioOf(SfxId::PlayerHit));
    EXPECT_EQ(PlayedBy(1), AudioOf(SfxId::PlayerHit));
    EXPECT_EQ(BusyVoices(), 2);
    const std::vector<float> heard = Hear(20);
    const std::vector<float> once = SfxSamples(SfxRecipes[6], Rate, 1);
    for (std::size_t i = 0; i < heard.size(); ++i) {
        ASSERT_NEAR(heard[i], 2.0F * once[i], 1e-5F) << i;
    }
}

TEST_F(Voices, TheCursorWalksOnThoughEarlierVoicesAreFreeAgain) {
    Play({SfxId::UiMove});
    Hear(100);
    ASSERT_EQ(BusyVoices(), 0);
    Play({SfxId::UiBack});
    EXPECT_EQ(PlayedBy(1), AudioOf(SfxId::UiBack));
    EXPECT_EQ(Runtime.NextSfxTrack, 2U);
}

TEST_F(Voices, ABusyVoiceAtTheCursorIsPassedOver) {
    Play({SfxId::PlayerDeath, SfxId::PlayerDeath});
    Runtime.NextSfxTrack = 0;
    Play({SfxId::Item});
    EXPECT_EQ(PlayedBy(2), AudioOf(SfxId::Item));
    EXPECT_EQ(Runtime.NextSfxTrack, 3U);
}

TEST_F(Voices, TheScanWrapsAround) {
    Runtime.NextSfxTrack = 11;
    Play({SfxId::PlayerDeath});
    EXPECT_EQ(PlayedBy(11), AudioOf(SfxId::PlayerDeath));
    EXPECT_EQ(Runtime.NextSfxTrack, 0U);
    Runtime.NextSfxTrack = 11;
    Play({SfxId::Item});
    EXPECT_EQ(PlayedBy(0), AudioOf(SfxId::Item));
    EXPECT_EQ(Runtime.NextSfxTrack, 1U);
}

TEST_F(Voices, ACursorBeyondThePoolIsTakenModuloItsSize) {
    Runtime.NextSfxTrack = 29; // 12 and 12 and 5
    Play({SfxId::Item});
    EXPECT_EQ(PlayedBy(5), AudioOf(SfxId::Item));
    EXPECT_EQ(Runtime.NextSfxTrack, 6U);
}

TEST_F(Voices, TheThirteenthSoundTakesTheVoiceAtTheCursorAndCutsItOff) {
    Runtime.NextSfxTrack = 3;
    Play(std::vector<SfxId>(12, SfxId::PlayerDeath));
    EXPECT_EQ(BusyVoices(), 12);
    EXPECT_EQ(Runtime.NextSfxTrack, 3U);
    Hear(20);
    Play({SfxId::UiConfirm});
    EXPECT_EQ(PlayedBy(3), AudioOf(SfxId::UiConfirm));
    EXPECT_EQ(MIX_GetTrackPlaybackPosition(AllVoices[3]), 0);
    EXPECT_EQ(Runtime.NextSfxTrack, 4U);
    EXPECT_EQ(PlayedBy(2), AudioOf(SfxId::PlayerDeath));
    EXPECT_EQ(PlayedBy(4), AudioOf(SfxId::PlayerDeath));
    Play({SfxId::Item});
    EXPECT_EQ(PlayedBy(4), AudioOf(SfxId::Item));
}

TEST_F(Voices, AFreeVoiceIsTakenBeforeABusyOneIsStolen) {
    Play(std::vector<SfxId>(12, SfxId::PlayerDeath));
    ASSERT_EQ(Runtime.NextSfxTrack, 0U);
    MIX_StopTrack(AllVoices[7], 0);
    Play({SfxId::Item});
    EXPECT_EQ(PlayedBy(7), AudioOf(SfxId::Item));
    EXPECT_EQ(PlayedBy(0), AudioOf(SfxId::PlayerDeath));
    EXPECT_EQ(Runtime.NextSfxTrack, 8U);
}

TEST_F(Voices, AMissingVoiceIsPassedOver) {
    Runtime.SfxTracks[0] = nullptr;
    Play({SfxId::Item});
    EXPECT_EQ(PlayedBy(1), AudioOf(SfxId::Item));
    EXPECT_EQ(Runtime.NextSfxTrack, 2U);
}

TEST_F(Voices, ASmallerPoolWorksWithItsSize) {
    Runtime.SfxTracks.resize(3);
    Play(std::vector<SfxId>(3, SfxId::PlayerDeath));
    EXPECT_EQ(Runtime.NextSfxTrack, 0U);
    Play({SfxId::Item});
    EXPECT_EQ(PlayedBy(0), AudioOf(SfxId::Item));
    EXPECT_EQ(BusyVoices(), 3);
    EXPECT_EQ(Runtime.NextSfxTrack, 1U);
}

TEST_F(Voices, SixtyFiveRequestsAreSixtyFourServedInOrder) {
    std::vector<SfxId> ids;
    for (int i = 0; i < 65; ++i) {
        ids.push_back(static_cast<SfxId>(i % 11));
    }
    Play(ids);
    ASSERT_EQ(Watch.SetTrackAudio.Count(), 64);
    for (std::size_t i = 0; i < 64; ++i) {
        EXPECT_EQ(Watch.SetTrackAudio.Calls[i], std::tuple(AllVoices.at(i % 12), AudioOf(ids[i]))) << i;
    }
    EXPECT_EQ(Runtime.NextSfxTrack, 4U); // 64 modulo 12
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(Voices, EachRequestIsOnePlayWithoutLoops) {
    Watch.PlayTrack.Before = [](MIX_Track *, SDL_PropertiesID Options) {
        EXPECT_EQ(SDL_GetPropertyType(Options, "SDL_mixer.play.loops"), SDL_PROPERTY_TYPE_NUMBER);
        EXPECT_EQ(SDL_GetNumberProperty(Options, "SDL_mixer.play.loops", 9), 0);
    };
    Play({SfxId::Item});
    EXPECT_EQ(Watch.Order(), (CallNames{Watch.TrackPlaying, Watch.SetTrackAudio, Watch.CreateProperties,
                                 Watch.SetNumberProperty, Watch.PlayTrack, Watch.DestroyProperties}));
    EXPECT_EQ(std::get<0>(Watch.DestroyProperties.Calls[0]), std::get<1>(Watch.PlayTrack.Calls[0]));
}

TEST_F(Voices, AByteThatIsNoSoundIsPassedOver) {
    Play({static_cast<SfxId>(11), static_cast<SfxId>(255)});
    EXPECT_EQ(Watch.Order(), CallNames());
    EXPECT_EQ(Log.Lines, Lines());
    EXPECT_EQ(Runtime.NextSfxTrack, 0U);
}

TEST_F(Voices, ASoundThatCouldNotBeMadeIsSilentAndTheOthersPlay) {
    MIX_DestroyAudio(Runtime.SfxAudio[4]);
    Runtime.SfxAudio[4] = nullptr;
    Play({SfxId::PlayerBomb, SfxId::Item});
    EXPECT_EQ(PlayedBy(0), AudioOf(SfxId::Item));
    EXPECT_EQ(BusyVoices(), 1);
    EXPECT_EQ(Runtime.NextSfxTrack, 1U);
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(Voices, NothingIsDoneWhereNothingCanPlayAndTheQueueIsEmptied) {
    MIX_Mixer *const mixer = Runtime.Mixer;
    Watch.Forget();
    Runtime.Initialised = false;
    Play({SfxId::Item});
    Runtime.Initialised = true;
    Runtime.Mixer = nullptr;
    Play({SfxId::Item});
    Runtime.Mixer = mixer;
    Runtime.SfxTracks.clear();
    Play({SfxId::Item, SfxId::Item});
    EXPECT_EQ(Watch.Order(), CallNames());
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(Voices, ARefusedAudioIsLoggedAndTheRequestIsDropped) {
    Watch.SetTrackAudio.Refuse(1);
    Play({SfxId::EnemyDown, SfxId::Item});
    EXPECT_EQ(Log.Lines, Lines{"MIX_SetTrackAudio failed for SFX 'EnemyDown': refused for the test"});
    EXPECT_EQ(Watch.PlayTrack.Count(), 1);
    EXPECT_EQ(PlayedBy(1), AudioOf(SfxId::Item)); // the voice counts as used
    EXPECT_EQ(Runtime.NextSfxTrack, 2U);
}

TEST_F(Voices, RefusedPropertiesAreLoggedAndTheRequestIsDropped) {
    Watch.CreateProperties.Refuse(1);
    Play({SfxId::ObstacleDown, SfxId::Item});
    EXPECT_EQ(Log.Lines, Lines{"SDL_CreateProperties failed for SFX 'ObstacleDown': refused for the test"});
    EXPECT_EQ(Watch.PlayTrack.Count(), 1);
    EXPECT_EQ(PlayedBy(1), AudioOf(SfxId::Item));
    EXPECT_EQ(Runtime.NextSfxTrack, 2U);
}

TEST_F(Voices, ARefusedPlayIsLoggedAndItsPropertiesAreGivenBack) {
    Watch.PlayTrack.Refuse(1);
    Play({SfxId::PlayerHeal, SfxId::Item});
    EXPECT_EQ(Log.Lines, Lines{"MIX_PlayTrack failed for SFX 'PlayerHeal': refused for the test"});
    EXPECT_EQ(Watch.CreateProperties.Count(), 2);
    EXPECT_EQ(Watch.DestroyProperties.Count(), 2);
    EXPECT_EQ(PlayedBy(1), AudioOf(SfxId::Item));
    EXPECT_EQ(Runtime.NextSfxTrack, 2U);
}
