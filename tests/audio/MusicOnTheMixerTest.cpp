#include "audio/Runtime.hpp"

#include "audio/MusicPatterns.hpp"
#include "audio/Transport.hpp"
#include "state/GameState.hpp"
#include "tests/audio/GameFolder.hpp"

#include <algorithm>
#include <cmath>

namespace {

using Lines = std::vector<std::string>;

constexpr int Rate = 44100;
constexpr int FramesPerUpdate = 441; // ten milliseconds

/// Pieces of 200 milliseconds, 20 updates: the menu's, and two of the game that follow each other.
constexpr int UpdatesPerLoop = 20;
constexpr const char *Document = R"([Music]
MenuPattern = MENU
GameplayPattern = GAME
WaterPattern = WATER
GameOverPattern = GAME
InvincibilityPattern = WATER
DualWeaponPattern = WATER
FadeInMs = 0
[Pattern.MENU]
FileName = Music/Menu.ogg
[Pattern.GAME]
FileName = Music/Game.ogg
NextPatternName = GAME_B
[Pattern.GAME_B]
FileName = Music/GameB.ogg
NextPatternName = GAME
[Pattern.WATER]
FileName = Music/Water.ogg
)";

/// Short real music on a real mixer that renders to memory: time passes with the updates and only with them.
class MusicOnTheMixer : public GameFolderTest {
protected:
    MusicOnTheMixer() {
        for (const char *const file :
            {"Music/Menu.ogg", "Music/Game.ogg", "Music/GameB.ogg", "Music/Water.ogg"}) {
            AddMusic(file, UpdatesPerLoop * FramesPerUpdate);
        }
        EXPECT_TRUE(MIX_Init());
        const SDL_AudioSpec format{SDL_AUDIO_F32LE, 1, Rate};
        Runtime.Mixer = MIX_CreateMixer(&format);
        Runtime.MusicTrack = MIX_CreateTrack(Runtime.Mixer);
        Runtime.Player.Track = Runtime.MusicTrack;
        Runtime.Player.GainPercent = &Runtime.MusicGainPercent;
        EXPECT_TRUE(LoadMusicPatterns(Read(Document), Runtime));
        EXPECT_EQ(Log.Lines, Lines());
        Runtime.Initialised = true;
    }
    ~MusicOnTheMixer() override {
        DestroyMusicPatterns(Runtime.Player);
        MIX_DestroyMixer(Runtime.Mixer);
        MIX_Quit();
    }

    /// One update, and the ten milliseconds of music after it; gives the loudest sample of those.
    float Update() {
        UpdateMusicRuntime(State, Runtime);
        std::vector<float> samples(FramesPerUpdate);
        MIX_Generate(Runtime.Mixer, samples.data(), static_cast<int>(samples.size() * sizeof(float)));
        return std::abs(*std::ranges::max_element(samples, {}, [](float Sample) {
            return std::abs(Sample);
        }));
    }

    void UpdateTimes(int Times) {
        for (int update = 0; update < Times; ++update) {
            Update();
        }
    }

    /// The name of what the track really plays.
    std::string Heard() const {
        const MIX_Audio *const audio =
            MIX_TrackPlaying(Runtime.MusicTrack) ? MIX_GetTrackAudio(Runtime.MusicTrack) : nullptr;
        for (const MusicPattern &pattern : Runtime.Player.Patterns) {
            if (pattern.Audio == audio) {
                return pattern.Name;
            }
        }
        return "nothing";
    }

    /// Updates until something else is heard; gives the number of updates, at most 100.
    int UpdatesUntilChange() {
        const std::string before = Heard();
        int updates = 0;
        while (Heard() == before && updates < 100) {
            Update();
            ++updates;
        }
        return updates;
    }

    GameState State;
    MusicRuntime Runtime;
};

} // namespace

TEST_F(MusicOnTheMixer, BeginsWithTheMenusMusic) {
    EXPECT_GT(Update(), 0.1F);
    EXPECT_EQ(Heard(), "MENU");
    EXPECT_EQ(MIX_GetTrackLoops(Runtime.MusicTrack), -1);
    EXPECT_EQ(Runtime.Player.LoopBoundaryMs, 200);
}

TEST_F(MusicOnTheMixer, LoopsWithoutEndAndWithoutAnotherPlay) {
    UpdateTimes(10 * UpdatesPerLoop);
    EXPECT_EQ(Heard(), "MENU");
    EXPECT_EQ(Watch.PlayTrack.Count(), 1);
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(MusicOnTheMixer, CutsIntoTheGameAndBack) {
    UpdateTimes(5);
    State.Screen = ScreenPlaying;
    Update();
    EXPECT_EQ(Heard(), "GAME");
    State.Screen = ScreenMainMenu;
    Update();
    EXPECT_EQ(Heard(), "MENU");
}

TEST_F(MusicOnTheMixer, WaitsForTheEndOfTheLoopOtherwise) {
    State.Screen = ScreenPlaying;
    State.Stage = 2;
    UpdateTimes(5);
    ASSERT_EQ(Heard(), "WATER");
    State.Stage = 4;
    UpdateTimes(14);
    EXPECT_EQ(Heard(), "WATER");
    const int more = UpdatesUntilChange();
    EXPECT_EQ(Heard(), "GAME");
    // The loop ends after 20 updates, and the wrap is seen one or two later.
    EXPECT_GE(more, 1);
    EXPECT_LE(more, 3);
}

TEST_F(MusicOnTheMixer, AlternatesBetweenTwoHalves) {
    State.Screen = ScreenPlaying;
    Update();
    Lines heard{Heard()};
    for (int loop = 0; loop < 4; ++loop) {
        const int updates = UpdatesUntilChange();
        EXPECT_GE(updates, UpdatesPerLoop - 2);
        EXPECT_LE(updates, UpdatesPerLoop + 2);
        heard.push_back(Heard());
    }
    EXPECT_EQ(heard, (Lines{"GAME", "GAME_B", "GAME", "GAME_B", "GAME"}));
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(MusicOnTheMixer, NeverStopsTheGamesMusicForALookAtTheOptions) {
    State.Screen = ScreenPlaying;
    State.Stage = 2;
    UpdateTimes(3);
    State.Screen = ScreenPaused;
    UpdateTimes(2);
    State.Screen = ScreenOptions;
    UpdateTimes(5);
    ASSERT_NE(Runtime.Player.RequestedPattern, nullptr);
    State.Screen = ScreenPaused;
    UpdateTimes(3 * UpdatesPerLoop);
    EXPECT_EQ(Heard(), "WATER");
    EXPECT_EQ(Watch.PlayTrack.Count(), 1);
}

TEST_F(MusicOnTheMixer, ReplacesATrackThatStoppedByItself) {
    UpdateTimes(3);
    MIX_StopTrack(Runtime.MusicTrack, 0);
    State.Screen = ScreenCredits;
    UpdateTimes(3);
    EXPECT_EQ(Heard(), "nothing"); // the menu's music follows itself, so nothing starts it anew
    State.Screen = ScreenGameOver;
    Update();
    EXPECT_EQ(Heard(), "GAME");
}

TEST_F(MusicOnTheMixer, IsAsLoudAsTheOptionsSay) {
    UpdateTimes(4);
    const float half = Update();
    State.MusicVolume = 100;
    UpdateTimes(2);
    const float full = Update();
    EXPECT_NEAR(full, 2.0F * half, 0.05F);
    State.MusicEnabled = false;
    UpdateTimes(2);
    EXPECT_EQ(Update(), 0.0F);
    EXPECT_EQ(MIX_GetTrackGain(Runtime.MusicTrack), 0.0F);
}

TEST_F(MusicOnTheMixer, RisesFromTwentyEightPercentAtFirst) {
    Uint64 clock = 1000;
    Watch.GetTicks.Answer = [&clock] {
        return clock;
    };
    Runtime.FadeInMs = 200;
    State.MusicVolume = 100;
    Update();
    EXPECT_NEAR(MIX_GetTrackGain(Runtime.MusicTrack), 0.28F, 1e-6F);
    clock += 100;
    Update();
    EXPECT_NEAR(MIX_GetTrackGain(Runtime.MusicTrack), 0.64F, 1e-6F);
    clock += 100;
    Update();
    EXPECT_EQ(MIX_GetTrackGain(Runtime.MusicTrack), 1.0F);
    EXPECT_FALSE(Runtime.StartupFadeActive);
}

TEST_F(GameFolderTest, TheWholeMusicRunsOnADeviceInItsOwnTime) {
    for (const char *const file :
        {"Music/Menu.ogg", "Music/Game.ogg", "Music/GameB.ogg", "Music/Water.ogg"}) {
        AddMusic(file, Rate / 5);
    }
    AddText("Music/MusicPatterns.ini", Document);
    GameState state;
    MusicRuntime runtime;
    ASSERT_TRUE(InitMusicRuntime(state, runtime));
    state.Screen = ScreenPlaying;
    Lines heard;
    const Uint64 end =
        SDL_GetTicks() + 60000; // four loops take less than one second, where nothing else runs
    while (heard.size() < 4 && SDL_GetTicks() < end) {
        UpdateMusicRuntime(state, runtime);
        if (heard.empty() || heard.back() != runtime.Player.CurrentPatternName) {
            heard.push_back(runtime.Player.CurrentPatternName);
        }
        SDL_Delay(5);
    }
    EXPECT_EQ(heard, (Lines{"GAME", "GAME_B", "GAME", "GAME_B"}));
    EXPECT_EQ(Log.Lines, Lines());
    runtime.FadeOutMs = 50;
    ShutdownMusicRuntime(runtime, true);
    EXPECT_EQ(Log.Lines, Lines());
}
