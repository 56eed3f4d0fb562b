#include "audio/Runtime.hpp"

#include "audio/SfxVoices.hpp"
#include "audio/Transport.hpp"
#include "state/GameState.hpp"
#include "tests/audio/GameFolder.hpp"
#include "tests/audio/OggFile.hpp"

#include <algorithm>
#include <array>

namespace {

using Lines = std::vector<std::string>;

const std::string Fallback =
    "Music pattern config 'Music/MusicPatterns.ini' could not be loaded or contains no "
    "valid tracks; using built-in defaults";
const std::string FallbackWorks = "Initialized music runtime with built-in default patterns";
const std::string FallbackFails = "Failed to initialize built-in default music patterns";

constexpr std::array<const char *, 6> BuiltInNames{
    "MENU", "GAMEPLAY", "WATER", "GAMEOVER", "INVINCIBILITY", "DUALWEAPON"};
constexpr std::array<const char *, 6> BuiltInFiles{"Music/MenuCredits.ogg", "Music/Gameplay.ogg",
    "Music/Water.ogg", "Music/GameOver.ogg", "Music/Invincibility.ogg", "Music/DualWeapon.ogg"};

/// The mixer starts on SDL's dummy device, with one tune beside the program.
class AudioStartup : public GameFolderTest {
protected:
    AudioStartup() {
        AddTune();
    }
    ~AudioStartup() override {
        ShutdownMusicRuntime(Runtime, false);
    }

    bool Start() {
        return InitMusicRuntime(State, Runtime);
    }

    /// Expects a start that gave up with one line and left nothing behind.
    void ExpectSilence(const std::string &Line, int Quits) {
        EXPECT_FALSE(Start());
        EXPECT_EQ(Log.Lines, Lines{Line});
        EXPECT_EQ(Watch.Quit.Count(), Quits);
        EXPECT_EQ(Runtime.Mixer, nullptr);
        EXPECT_EQ(Runtime.MusicTrack, nullptr);
        EXPECT_FALSE(Runtime.Initialised);
        EXPECT_EQ(Watch.LoadRawAudio.Count(), 0);
        EXPECT_EQ(Watch.LoadAudio.Count(), 0);
        ExpectDeafness();
    }

    /// The calls of a frame do nothing but empty the queue.
    void ExpectDeafness() {
        State.MusicVolume = 13;
        State.Screen = ScreenCredits;
        Log.Lines.clear();
        const CallNames before = Watch.Order();
        for (int frame = 0; frame < 3; ++frame) {
            PushSound(State, SfxId::Item);
            UpdateMusicRuntime(State, Runtime);
            PlayQueuedSfx(State, Runtime);
            EXPECT_EQ(State.PendingSounds.Count, 0U);
        }
        EXPECT_EQ(Watch.Order(), before);
        EXPECT_EQ(Log.Lines, Lines());
        EXPECT_EQ(Runtime.LastScreen, ScreenMainMenu);
    }

    GameState State;
    MusicRuntime Runtime;
};

/// A handle that nothing but its address is used of.
std::array<char, 4> Things;

} // namespace

TEST(MusicRuntime, BeginsWithItsDefaults) {
    const MusicRuntime runtime;
    EXPECT_EQ(runtime.Mixer, nullptr);
    EXPECT_EQ(runtime.MusicTrack, nullptr);
    EXPECT_TRUE(std::ranges::all_of(runtime.SfxAudio, [](const MIX_Audio *Audio) {
        return Audio == nullptr;
    }));
    EXPECT_EQ(runtime.SfxAudio.size(), 11U);
    EXPECT_TRUE(runtime.SfxTracks.empty());
    EXPECT_EQ(runtime.NextSfxTrack, 0U);
    EXPECT_EQ(runtime.MusicGainPercent, 0);
    EXPECT_EQ(runtime.SfxGainPercent, 0);
    EXPECT_EQ(runtime.FadeInMs, 350);
    EXPECT_EQ(runtime.FadeOutMs, 1500);
    EXPECT_EQ(runtime.MenuPattern, "MENU");
    EXPECT_EQ(runtime.GameplayPattern, "GAMEPLAY");
    EXPECT_EQ(runtime.WaterPattern, "WATER");
    EXPECT_EQ(runtime.GameOverPattern, "GAMEOVER");
    EXPECT_EQ(runtime.InvincibilityPattern, "INVINCIBILITY");
    EXPECT_EQ(runtime.DualWeaponPattern, "DUALWEAPON");
    EXPECT_EQ(runtime.LastScreen, 0);
    EXPECT_TRUE(runtime.StartupFadePending);
    EXPECT_FALSE(runtime.StartupFadeActive);
    EXPECT_EQ(runtime.StartupFadeStartTicks, 0U);
    EXPECT_FALSE(runtime.Initialised);
}

TEST_F(AudioStartup, MakesTheTrackTheSoundsTheVoicesAndTheMusic) {
    EXPECT_TRUE(Start());
    EXPECT_EQ(Log.Lines, Lines());
    EXPECT_TRUE(Runtime.Initialised);
    ASSERT_NE(Runtime.Mixer, nullptr);
    ASSERT_NE(Runtime.MusicTrack, nullptr);
    EXPECT_EQ(Runtime.Player.Track, Runtime.MusicTrack);
    EXPECT_EQ(Runtime.Player.GainPercent, &Runtime.MusicGainPercent);
    EXPECT_EQ(std::ranges::count(Runtime.SfxAudio, nullptr), 0);
    EXPECT_EQ(Runtime.SfxTracks.size(), 12U);
    EXPECT_EQ(Runtime.NextSfxTrack, 0U);
    ASSERT_EQ(Runtime.Player.Patterns.size(), 1U);
    EXPECT_EQ(Watch.Quit.Count(), 0);
}

TEST_F(AudioStartup, GoesThroughItsStepsInOrder) {
    ASSERT_TRUE(Start());
    CallNames steps{
        Watch.Init, Watch.CreateMixerDevice, Watch.CreateTrack, Watch.TagTrack, Watch.SetTrackGain};
    for (int sound = 0; sound < 11; ++sound) {
        steps.insert(steps.end(), {Watch.GetMixerFormat, Watch.LoadRawAudio});
    }
    for (int voice = 0; voice < 12; ++voice) {
        steps.insert(steps.end(), {Watch.CreateTrack, Watch.TagTrack});
    }
    steps.insert(steps.end(), 12, Watch.SetTrackGain);
    steps.emplace_back(Watch.LoadAudio);
    EXPECT_EQ(Watch.OrderOf({Watch.Init, Watch.CreateMixerDevice, Watch.CreateTrack, Watch.TagTrack,
                  Watch.SetTrackGain, Watch.GetMixerFormat, Watch.LoadRawAudio, Watch.CreateSineWaveAudio,
                  Watch.LoadAudio, Watch.DestroyTrack, Watch.DestroyMixer, Watch.Quit}),
        steps);
}

TEST_F(AudioStartup, AsksTheDefaultDeviceForItsFormat) {
    SDL_AudioSpec asked{};
    Watch.CreateMixerDevice.Before = [&asked](SDL_AudioDeviceID, const SDL_AudioSpec *Spec) {
        asked = *Spec;
    };
    ASSERT_TRUE(Start());
    EXPECT_EQ(std::get<0>(Watch.CreateMixerDevice.Calls[0]), SDL_AUDIO_DEVICE_DEFAULT_PLAYBACK);
    EXPECT_EQ(asked.format, SDL_AUDIO_S16LE);
    EXPECT_EQ(asked.channels, 2);
    EXPECT_EQ(asked.freq, 44100);
}

TEST_F(AudioStartup, TagsTheTracks) {
    ASSERT_TRUE(Start());
    ASSERT_EQ(Watch.TagTrack.Count(), 13);
    EXPECT_EQ(Watch.TagTrack.Calls[0], std::tuple(Runtime.MusicTrack, std::string("music")));
    for (std::size_t voice = 0; voice < 12; ++voice) {
        EXPECT_EQ(
            Watch.TagTrack.Calls.at(voice + 1), std::tuple(Runtime.SfxTracks.at(voice), std::string("sfx")));
    }
}

TEST_F(AudioStartup, GivesTheTracksTheGainsOfTheOptions) {
    State.MasterVolume = 80;
    State.MusicVolume = 50;
    State.SfxVolume = 25;
    ASSERT_TRUE(Start());
    EXPECT_EQ(Runtime.MusicGainPercent, 40);
    EXPECT_EQ(Runtime.SfxGainPercent, 20);
    EXPECT_EQ(MIX_GetTrackGain(Runtime.MusicTrack), 0.4F);
    for (MIX_Track *const voice : Runtime.SfxTracks) {
        EXPECT_EQ(MIX_GetTrackGain(voice), 0.2F);
    }
}

TEST_F(AudioStartup, BuildsTheSoundsAtTheDevicesOwnRate) {
    ASSERT_TRUE(Start());
    SDL_AudioSpec format{};
    ASSERT_TRUE(MIX_GetMixerFormat(Runtime.Mixer, &format));
    for (const SfxRecipe &recipe : SfxRecipes) {
        EXPECT_EQ(MIX_GetAudioDuration(Runtime.SfxAudio.at(static_cast<std::size_t>(recipe.Id))),
            format.freq * recipe.Duration / 1000)
            << recipe.Name;
    }
}

TEST_F(AudioStartup, WithoutTheMixerLibraryGivesUp) {
    Watch.Init.Refuse(1);
    ExpectSilence("MIX_Init failed: refused for the test", 0);
    EXPECT_EQ(Watch.CreateMixerDevice.Count(), 0);
}

TEST_F(AudioStartup, WithoutADeviceGivesUp) {
    Watch.CreateMixerDevice.Refuse(1);
    ExpectSilence("MIX_CreateMixerDevice failed: refused for the test", 1);
    EXPECT_EQ(Watch.CreateTrack.Count(), 0);
    EXPECT_EQ(Watch.DestroyMixer.Count(), 0);
}

TEST_F(AudioStartup, WithoutAMusicTrackGivesUp) {
    Watch.CreateTrack.Refuse(1);
    ExpectSilence("MIX_CreateTrack failed: refused for the test", 1);
    EXPECT_EQ(Watch.CreateTrack.Count(), 1);
    EXPECT_EQ(Watch.DestroyMixer.Count(), 1);
    EXPECT_EQ(Watch.StopTrack.Count(), 0);
}

TEST_F(AudioStartup, WithoutAGainOfTheMusicGivesUp) {
    Watch.SetTrackGain.Refuse(1);
    ExpectSilence("MIX_SetTrackGain failed: refused for the test", 1);
    EXPECT_EQ(Watch.CreateTrack.Count(), 1);
    EXPECT_EQ(Watch.DestroyMixer.Count(), 1);
    EXPECT_EQ(Watch.StopTrack.Count(), 0);
}

TEST_F(AudioStartup, OnADriverThatDoesNotExistGivesUpAndCanBeShutDown) {
    SDL_SetHint(SDL_HINT_AUDIO_DRIVER, "no such driver");
    SDL_SetEnvironmentVariable(SDL_GetEnvironment(), "SDL_AUDIO_DRIVER", "no such driver", true);
    EXPECT_FALSE(Start());
    ASSERT_EQ(Log.Lines.size(), 1U);
    EXPECT_TRUE(Log.Lines[0].starts_with("MIX_CreateMixerDevice failed: ")) << Log.Lines[0];
    EXPECT_EQ(Watch.Quit.Count(), 1);
    ShutdownMusicRuntime(Runtime, true);
    EXPECT_EQ(Watch.Quit.Count(), 1);
}

TEST_F(AudioStartup, OnlyLogsATagThatTheMusicTrackRefuses) {
    Watch.TagTrack.Refuse(1);
    EXPECT_TRUE(Start());
    EXPECT_EQ(Log.Lines, Lines{"MIX_TagTrack failed: refused for the test"});
    EXPECT_EQ(Runtime.SfxTracks.size(), 12U);
    EXPECT_EQ(Runtime.Player.Patterns.size(), 1U);
}

TEST_F(AudioStartup, DoesWithoutASoundThatCannotBeMade) {
    Watch.LoadRawAudio.Refuse(1, 4);
    Watch.CreateSineWaveAudio.Refuse(1);
    EXPECT_TRUE(Start());
    EXPECT_EQ(Log.Lines, Lines{"MIX_CreateSineWaveAudio failed for SFX 'PlayerBomb': refused for the test"});
    EXPECT_EQ(Runtime.SfxAudio[4], nullptr);
    EXPECT_EQ(std::ranges::count(Runtime.SfxAudio, nullptr), 1);
}

TEST_F(AudioStartup, TakesARealSineForASoundThatCannotBeComputed) {
    Watch.LoadRawAudio.Refuse(1);
    EXPECT_TRUE(Start());
    EXPECT_EQ(Log.Lines, Lines());
    ASSERT_EQ(Watch.CreateSineWaveAudio.Count(), 1);
    EXPECT_EQ(Watch.CreateSineWaveAudio.Calls[0], std::tuple(Runtime.Mixer, 900, 0.16F, Sint64{45}));
    EXPECT_NE(Runtime.SfxAudio[0], nullptr);
}

TEST_F(AudioStartup, LeavesOutAVoiceThatCannotBeHad) {
    for (int voice = 0; voice < 12; ++voice) {
        Watch.CreateTrack.Refuse(1, 1 + voice);
        EXPECT_TRUE(Start());
        EXPECT_EQ(Log.Lines, Lines{"MIX_CreateTrack failed for SFX track " + std::to_string(voice) +
                                   ": refused for the test"});
        EXPECT_EQ(Runtime.SfxTracks.size(), 11U);
        EXPECT_EQ(std::ranges::count(Runtime.SfxTracks, nullptr), 0);
        ShutdownMusicRuntime(Runtime, false);
        Log.Lines.clear();
    }
}

TEST_F(AudioStartup, WorksWithoutAnyVoice) {
    Watch.CreateTrack.Refuse(MixerWatch::Always, 1);
    EXPECT_TRUE(Start());
    Lines lines;
    for (int voice = 0; voice < 12; ++voice) {
        lines.push_back(
            "MIX_CreateTrack failed for SFX track " + std::to_string(voice) + ": refused for the test");
    }
    EXPECT_EQ(Log.Lines, lines);
    EXPECT_TRUE(Runtime.SfxTracks.empty());
    EXPECT_TRUE(Runtime.Initialised);
    EXPECT_EQ(Runtime.Player.Patterns.size(), 1U);
}

TEST_F(AudioStartup, KeepsAVoiceThatRefusesItsTag) {
    Watch.TagTrack.Refuse(MixerWatch::Always, 1);
    EXPECT_TRUE(Start());
    Lines lines;
    for (int voice = 0; voice < 12; ++voice) {
        lines.push_back(
            "MIX_TagTrack failed for SFX track " + std::to_string(voice) + ": refused for the test");
    }
    EXPECT_EQ(Log.Lines, lines);
    EXPECT_EQ(Runtime.SfxTracks.size(), 12U);
}

TEST_F(AudioStartup, LogsTheVoicesThatRefuseTheirGain) {
    Watch.SetTrackGain.Refuse(2, 1);
    EXPECT_TRUE(Start());
    const std::string line = "MIX_SetTrackGain failed for SFX track: refused for the test";
    EXPECT_EQ(Log.Lines, (Lines{line, line}));
    EXPECT_EQ(Watch.SetTrackGain.Count(), 13);
}

TEST_F(AudioStartup, DestroysTheVoicesAndSoundsOfAnEarlierRunBeforeItMakesNewOnes) {
    auto *const oldVoice = reinterpret_cast<MIX_Track *>(Things.data());
    auto *const oldSound = reinterpret_cast<MIX_Audio *>(&Things[1]);
    Runtime.SfxTracks = {oldVoice};
    Runtime.SfxAudio[7] = oldSound;
    Runtime.NextSfxTrack = 5;
    Watch.DestroyTrack.Answer = [](MIX_Track *) {};
    Watch.DestroyAudio.Answer = [](MIX_Audio *) {};
    ASSERT_TRUE(Start());
    Watch.DestroyTrack.Answer = nullptr;
    Watch.DestroyAudio.Answer = nullptr;
    ASSERT_EQ(Watch.DestroyTrack.Count(), 1);
    EXPECT_EQ(Watch.DestroyTrack.Calls[0], std::tuple(oldVoice));
    EXPECT_EQ(std::ranges::count(Watch.DestroyAudio.Calls, std::tuple(oldSound)), 1);
    const CallNames order = Watch.OrderOf({Watch.DestroyTrack, Watch.DestroyAudio, Watch.LoadRawAudio});
    EXPECT_TRUE(std::ranges::is_partitioned(order, [this](const CallName &Call) {
        return Call != Watch.LoadRawAudio;
    }));
    EXPECT_EQ(Runtime.NextSfxTrack, 0U);
    EXPECT_EQ(Runtime.SfxTracks.size(), 12U);
    EXPECT_EQ(std::ranges::count(Runtime.SfxTracks, oldVoice), 0);
}

TEST_F(AudioStartup, WithoutAPatternFileTakesTheBuiltInPatterns) {
    MoveProgram(PathOf("Elsewhere/"));
    for (const char *const file : BuiltInFiles) {
        AddMusic(file);
    }
    EXPECT_TRUE(Start());
    EXPECT_EQ(Log.Lines, (Lines{Fallback, FallbackWorks}));
    ASSERT_EQ(Runtime.Player.Patterns.size(), BuiltInNames.size());
    for (std::size_t i = 0; i < BuiltInNames.size(); ++i) {
        EXPECT_EQ(Runtime.Player.Patterns[i].Name, BuiltInNames.at(i));
        EXPECT_EQ(Runtime.Player.Patterns[i].NextName, BuiltInNames.at(i));
        EXPECT_EQ(Runtime.Player.Patterns[i].ResolvedPath, PathOf(BuiltInFiles.at(i)));
    }
    EXPECT_EQ(Runtime.FadeInMs, 350);
    EXPECT_EQ(Runtime.FadeOutMs, 1500);
}

TEST_F(AudioStartup, WithAPatternFileThatNamesNoMusicTakesTheBuiltInPatternsAndTheirFades) {
    AddText("Music/MusicPatterns.ini", "[Music]\nMenuPattern = X\nFadeInMs = 20\n[Pattern.X]\nEnabled = 0\n");
    AddMusic("Music/Gameplay.ogg");
    Watch.LoadAudio.Refuse(1); // MENU
    EXPECT_TRUE(Start());
    ASSERT_GE(Log.Lines.size(), 2U);
    EXPECT_EQ(Log.Lines[0], Fallback);
    EXPECT_EQ(Log.Lines.back(), FallbackWorks);
    EXPECT_EQ(Runtime.MenuPattern, "GAMEPLAY");
    EXPECT_EQ(Runtime.FadeInMs, 350);
}

TEST_F(AudioStartup, WithoutAnyMusicFileHasSoundsAllTheSame) {
    MoveProgram(PathOf("Elsewhere/"));
    Watch.LoadAudio.Refuse();
    EXPECT_TRUE(Start());
    Lines lines{Fallback};
    for (std::size_t i = 0; i < BuiltInNames.size(); ++i) {
        const std::string file = BuiltInFiles.at(i);
        lines.push_back("MIX_LoadAudio failed for pattern '" + std::string(BuiltInNames.at(i)) +
                        "' (configured='" + file + "', resolved='" + PathOf(file) +
                        "'): refused for the test");
    }
    lines.push_back(FallbackFails);
    EXPECT_EQ(Log.Lines, lines);
    EXPECT_TRUE(Runtime.Initialised);
    EXPECT_TRUE(Runtime.Player.Patterns.empty());
    EXPECT_EQ(Runtime.SfxTracks.size(), 12U);
}

TEST_F(AudioStartup, WithDamagedMusicOnlyFallsBack) {
    WriteDamagedOgg(PathOf("Music/Tune.ogg"));
    AddMusic("Music/MenuCredits.ogg");
    EXPECT_TRUE(Start());
    ASSERT_GE(Log.Lines.size(), 3U);
    EXPECT_TRUE(
        Log.Lines[0].starts_with("MIX_LoadAudio failed for pattern 'TUNE' (configured='Music/Tune.ogg', "
                                 "resolved='" +
                                 PathOf("Music/Tune.ogg") + "'): "))
        << Log.Lines[0];
    EXPECT_EQ(Log.Lines[1], Fallback);
    EXPECT_EQ(Log.Lines.back(), FallbackWorks);
    ASSERT_EQ(Runtime.Player.Patterns.size(), 1U);
    EXPECT_EQ(Runtime.Player.Patterns[0].Name, "MENU");
}

TEST_F(AudioStartup, WithAPatternFileThatIsTooShortFallsBack) {
    AddText("Music/MusicPatterns.ini", "[P]\n");
    AddMusic("Music/MenuCredits.ogg");
    EXPECT_TRUE(Start());
    ASSERT_FALSE(Log.Lines.empty());
    EXPECT_EQ(Log.Lines[0], Fallback);
    EXPECT_EQ(Log.Lines.back(), FallbackWorks);
}

TEST_F(AudioStartup, KeepsWhatStandsBeforeAMistakeInThePatternFile) {
    AddMusic("Music/Early.ogg");
    AddMusic("Music/Late.ogg");
    AddText("Music/MusicPatterns.ini",
        "[Pattern.EARLY]\nFileName = Music/Early.ogg\n[Broken\n[Pattern.LATE]\nFileName = Music/Late.ogg\n");
    EXPECT_TRUE(Start());
    ASSERT_EQ(Runtime.Player.Patterns.size(), 1U);
    EXPECT_EQ(Runtime.Player.Patterns[0].Name, "EARLY");
    EXPECT_EQ(std::ranges::count(Log.Lines, Fallback), 0);
}

TEST_F(AudioStartup, LoadsTheMusicThatShipsWithoutAWord) {
    MoveProgram(std::string(SOURCE_TREE) + "/");
    EXPECT_TRUE(Start());
    EXPECT_EQ(Log.Lines, Lines());
    Lines names;
    for (const MusicPattern &pattern : Runtime.Player.Patterns) {
        names.push_back(pattern.Name);
        EXPECT_GT(MIX_GetAudioDuration(pattern.Audio), 0) << pattern.Name;
    }
    EXPECT_EQ(names, (Lines{"MENU", "MENU_B", "GAMEPLAY", "GAMEPLAY_B", "WATER", "WATER_B", "GAMEOVER",
                         "GAMEOVER_B", "INVINCIBILITY", "INVINCIBILITY_B", "DUALWEAPON", "DUALWEAPON_B"}));
    EXPECT_EQ(Runtime.MenuPattern, "MENU");
    EXPECT_EQ(Runtime.GameplayPattern, "GAMEPLAY");
    EXPECT_EQ(Runtime.WaterPattern, "WATER");
    EXPECT_EQ(Runtime.GameOverPattern, "GAMEOVER");
    EXPECT_EQ(Runtime.InvincibilityPattern, "INVINCIBILITY");
    EXPECT_EQ(Runtime.DualWeaponPattern, "DUALWEAPON");
}
