#include "tests/audio/ScriptedMusic.hpp"

#include <limits>
#include <stdexcept>

namespace {

using Lines = std::vector<std::string>;

constexpr std::array<Screen, 7> Screens{
    ScreenMainMenu, ScreenOptions, ScreenHelp, ScreenPlaying, ScreenPaused, ScreenCredits, ScreenGameOver};

/// With a pattern for each role, each following itself, and one that no role wants.
class Transport : public ScriptedMusic {
protected:
    Transport() {
        for (const char *const name :
            {"MENU", "GAMEPLAY", "WATER", "GAMEOVER", "INVINCIBILITY", "DUALWEAPON", "OTHER"}) {
            AddPattern(name);
        }
    }

    /// Moves to a screen, as if the one before had been seen by the last update.
    void Enter(Screen Previous, Screen Present) {
        Runtime.LastScreen = Previous;
        State.Screen = Present;
    }

    MusicPattern &Pattern(const std::string &Name) {
        for (MusicPattern &pattern : Runtime.Player.Patterns) {
            if (pattern.Name == Name) {
                return pattern;
            }
        }
        throw std::invalid_argument(Name);
    }
};

/// What the game is at, and what it then wants to hear.
struct WantedRow {
    Screen At;
    float Invincibility;
    float DualWeapon;
    std::int32_t Stage;
    const char *Wanted;
};

constexpr std::array<WantedRow, 32> WantedRows{{
    {ScreenPlaying, 0.0F, 0.0F, 1, "GAMEPLAY"},
    {ScreenPlaying, 0.0F, 0.0F, 2, "WATER"},
    {ScreenPlaying, 0.0F, 0.0F, 3, "WATER"},
    {ScreenPlaying, 0.0F, 0.0F, 4, "GAMEPLAY"},
    {ScreenPlaying, 0.0F, 0.0F, 9, "GAMEPLAY"},
    {ScreenPlaying, 0.0F, 0.0F, 10, "GAMEPLAY"},
    {ScreenPlaying, 0.0F, 0.0F, 11, "WATER"},
    {ScreenPlaying, 0.0F, 0.0F, 12, "WATER"},
    {ScreenPlaying, 0.0F, 0.0F, 13, "GAMEPLAY"},
    {ScreenPlaying, 0.0F, 0.0F, 20, "WATER"},
    {ScreenPlaying, 0.0F, 0.0F, 21, "WATER"},
    {ScreenPlaying, 0.0F, 0.0F, 0, "GAMEPLAY"},
    {ScreenPlaying, 0.0F, 0.001F, 1, "DUALWEAPON"},
    {ScreenPlaying, 0.0F, 5.0F, 2, "DUALWEAPON"},
    {ScreenPlaying, 0.001F, 0.0F, 1, "INVINCIBILITY"},
    {ScreenPlaying, 5.0F, 0.0F, 2, "INVINCIBILITY"},
    {ScreenPlaying, 5.0F, 5.0F, 1, "INVINCIBILITY"},
    {ScreenPlaying, 5.0F, 5.0F, 2, "INVINCIBILITY"},
    {ScreenPlaying, -1.0F, -1.0F, 1, "GAMEPLAY"},
    {ScreenPaused, 0.0F, 0.0F, 1, "GAMEPLAY"},
    {ScreenPaused, 0.0F, 0.0F, 2, "WATER"},
    {ScreenPaused, 0.0F, 1.0F, 2, "DUALWEAPON"},
    {ScreenPaused, 1.0F, 1.0F, 2, "INVINCIBILITY"},
    {ScreenGameOver, 0.0F, 0.0F, 1, "GAMEOVER"},
    {ScreenGameOver, 5.0F, 5.0F, 2, "GAMEOVER"},
    {ScreenMainMenu, 0.0F, 0.0F, 1, "MENU"},
    {ScreenMainMenu, 5.0F, 5.0F, 2, "MENU"},
    {ScreenOptions, 5.0F, 5.0F, 2, "MENU"},
    {ScreenHelp, 5.0F, 5.0F, 2, "MENU"},
    {ScreenCredits, 5.0F, 5.0F, 2, "MENU"},
    {ScreenOptions, 0.0F, 0.0F, 1, "MENU"},
    {ScreenHelp, 0.0F, 0.0F, 1, "MENU"},
}};

} // namespace

// What is wanted.

TEST_F(Transport, WantsWhatScreenPowerUpsAndStageSay) {
    for (const WantedRow &row : WantedRows) {
        LetPlay("OTHER");
        Enter(row.At, row.At);
        State.InvincibilityPowerTimer = row.Invincibility;
        State.DualWeaponPowerTimer = row.DualWeapon;
        State.Stage = row.Stage;
        Update();
        EXPECT_EQ(Requested(), row.Wanted)
            << row.At << " " << row.Invincibility << " " << row.DualWeapon << " " << row.Stage;
    }
    EXPECT_EQ(Played, Lines());
}

TEST_F(Transport, PassesOverPowerUpAndWaterRolesWithoutAName) {
    struct Row {
        bool Invincibility;
        bool DualWeapon;
        bool Water;
        const char *Wanted;
    };
    constexpr std::array<Row, 8> rows{{
        {true, true, true, "INVINCIBILITY"},
        {true, true, false, "INVINCIBILITY"},
        {true, false, true, "INVINCIBILITY"},
        {true, false, false, "INVINCIBILITY"},
        {false, true, true, "DUALWEAPON"},
        {false, true, false, "DUALWEAPON"},
        {false, false, true, "WATER"},
        {false, false, false, "GAMEPLAY"},
    }};
    State.InvincibilityPowerTimer = 5.0F;
    State.DualWeaponPowerTimer = 5.0F;
    State.Stage = 2;
    for (const Row &row : rows) {
        LetPlay("OTHER");
        Enter(ScreenPlaying, ScreenPlaying);
        Runtime.InvincibilityPattern = row.Invincibility ? "INVINCIBILITY" : "";
        Runtime.DualWeaponPattern = row.DualWeapon ? "DUALWEAPON" : "";
        Runtime.WaterPattern = row.Water ? "WATER" : "";
        Update();
        EXPECT_EQ(Requested(), row.Wanted);
    }
}

TEST_F(Transport, WantsTheGameplayPatternWhereGameOverHasNone) {
    Runtime.GameOverPattern = "";
    LetPlay("OTHER");
    Enter(ScreenGameOver, ScreenGameOver);
    Update();
    EXPECT_EQ(Requested(), "GAMEPLAY");
}

TEST_F(Transport, WithNothingWantedLeavesARequestForTheBoundary) {
    Runtime.MenuPattern = "";
    LetPlay("OTHER");
    Runtime.Player.RequestedPattern = &Pattern("WATER");
    Update();
    EXPECT_EQ(Requested(), "WATER");
    EXPECT_EQ(Played, Lines());
    WrapLoop();
    Update();
    EXPECT_EQ(Played, Lines{"WATER"});
}

// When it moves.

TEST_F(Transport, CutsAtOnceForThreeOfThe49ChangesOfScreen) {
    for (const Screen previous : Screens) {
        for (const Screen present : Screens) {
            LetPlay("OTHER");
            Played.clear();
            Enter(previous, present);
            Update();
            const bool cuts = (previous == ScreenMainMenu && present == ScreenPlaying) ||
                              (previous == ScreenPlaying && present == ScreenMainMenu) ||
                              (previous == ScreenGameOver && present == ScreenMainMenu);
            EXPECT_EQ(Played.size(), cuts ? 1U : 0U) << previous << " to " << present;
            EXPECT_EQ(Requested().empty(), cuts) << previous << " to " << present;
            EXPECT_EQ(Runtime.LastScreen, present);
        }
    }
}

TEST_F(Transport, PlaysAtOnceOnAnyScreenWhereNothingPlays) {
    for (const Screen previous : Screens) {
        for (const Screen present : Screens) {
            LetPlay("OTHER");
            Played.clear();
            IsPlaying = false;
            Enter(previous, present);
            Update();
            EXPECT_EQ(Played.size(), 1U) << previous << " to " << present;
            EXPECT_EQ(Requested(), "");
        }
    }
}

TEST_F(Transport, CutsOnlyInTheFrameOfTheChange) {
    LetPlay("OTHER");
    Enter(ScreenMainMenu, ScreenPlaying);
    Watch.PlayTrack.Refuse(1);
    Update();
    Update();
    EXPECT_EQ(Played, Lines());
    EXPECT_EQ(Requested(), "GAMEPLAY");
}

TEST_F(Transport, LetsARequestStandUntilTheLoopWraps) {
    LetPlay("GAMEPLAY");
    Enter(ScreenPlaying, ScreenGameOver);
    for (int frame = 0; frame < 5; ++frame) {
        Position += 100;
        Update();
        EXPECT_EQ(Requested(), "GAMEOVER");
    }
    EXPECT_EQ(Played, Lines());
    Position = 20;
    Update();
    EXPECT_EQ(Played, Lines{"GAMEOVER"});
    EXPECT_EQ(Requested(), "");
    EXPECT_EQ(Runtime.Player.CurrentPatternName, "GAMEOVER");
}

TEST_F(Transport, FromPauseToTheMainMenuWaits) {
    LetPlay("GAMEPLAY");
    Enter(ScreenPaused, ScreenMainMenu);
    Update();
    EXPECT_EQ(Requested(), "MENU");
    EXPECT_EQ(Played, Lines());
}

TEST_F(Transport, CancelsTheMenusMusicWhenTheOptionsAreLeftBeforeTheBoundary) {
    LetPlay("GAMEPLAY");
    Enter(ScreenPaused, ScreenOptions);
    Update();
    EXPECT_EQ(Requested(), "MENU");
    Position += 50;
    State.Screen = ScreenPaused;
    Update();
    EXPECT_EQ(Requested(), "");
    WrapLoop();
    Update();
    EXPECT_EQ(Played, Lines());
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(Transport, NeverStartsTheMusicOfAPowerUpThatEndsBeforeTheBoundary) {
    LetPlay("GAMEPLAY");
    Enter(ScreenPlaying, ScreenPlaying);
    State.InvincibilityPowerTimer = 0.5F;
    Update();
    EXPECT_EQ(Requested(), "INVINCIBILITY");
    State.InvincibilityPowerTimer = 0.0F;
    WrapLoop();
    Update();
    EXPECT_EQ(Played, Lines());
    EXPECT_EQ(Requested(), "");
}

TEST_F(Transport, PlaysTheLatestOfSeveralWishes) {
    LetPlay("GAMEPLAY");
    Enter(ScreenPlaying, ScreenPlaying);
    State.DualWeaponPowerTimer = 1.0F;
    Update();
    EXPECT_EQ(Requested(), "DUALWEAPON");
    State.DualWeaponPowerTimer = 0.0F;
    State.Stage = 2;
    Update();
    EXPECT_EQ(Requested(), "WATER");
    WrapLoop();
    Update();
    EXPECT_EQ(Played, Lines{"WATER"});
}

// The boundary.

namespace {

struct BoundaryRow {
    Sint64 Position;
    int Loops;
    bool IsPlaying;
    std::int64_t LastPosition;
    bool IsBoundary;
    std::int64_t NewLastPosition;
};

/// The loop is 1000 ms long, which is 2000 frames of the track.
constexpr std::array<BoundaryRow, 24> BoundaryRows{{
    {500, -1, true, 400, false, 500},
    {500, -1, true, 500, false, 500},
    {500, -1, true, 501, true, 500},
    {0, -1, true, 1999, true, 0},
    {0, -1, true, 0, false, 0},
    {0, -1, true, 1, true, 0},
    {0, -1, true, -1, false, 0},
    {5000, -1, true, -1, false, 5000},
    {5000, -1, true, 4999, false, 5000}, // the length means nothing to a loop
    {500, 3, true, 501, true, 500},
    {500, 3, true, 499, false, 500},
    {500, -1, false, 501, true, 500},
    {0, 0, true, 1500, false, 0},
    {1998, 0, true, 0, false, 1998},
    {1999, 0, true, 0, false, 1999},
    {2000, 0, true, 0, true, 2000},
    {2001, 0, true, 5000, true, 2001},
    {2000, 0, false, -1, true, 2000},
    {-1, -1, true, 400, false, 400},
    {-1, -1, false, 400, false, 400},
    {-1, 2, false, 400, false, 400},
    {-1, 0, true, 400, false, 400},
    {-1, 0, false, 400, true, -1},
    {-9, 0, false, 400, true, -1},
}};

} // namespace

TEST_F(Transport, SeesTheBoundaryByPositionAndLoops) {
    for (const BoundaryRow &row : BoundaryRows) {
        for (const bool follows : {false, true}) {
            LetPlay("MENU");
            Played.clear();
            Runtime.Player.NextPatternName = follows ? "OTHER" : "MENU";
            Runtime.Player.LastPosition = row.LastPosition;
            Position = row.Position;
            Loops = row.Loops;
            IsPlaying = row.IsPlaying;
            Update();
            const bool moved = follows && row.IsBoundary;
            EXPECT_EQ(Played.size(), moved ? 1U : 0U)
                << row.Position << " " << row.Loops << " " << row.LastPosition;
            EXPECT_EQ(Runtime.Player.LastPosition, moved ? -1 : row.NewLastPosition)
                << row.Position << " " << row.Loops << " " << row.LastPosition;
        }
    }
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(Transport, NeverReachesTheEndOfAPatternOfUnknownLength) {
    LetPlay("MENU");
    Runtime.Player.NextPatternName = "OTHER";
    Runtime.Player.LoopBoundaryMs = std::numeric_limits<std::int32_t>::max();
    Loops = 0;
    for (const Sint64 milliseconds : {Sint64{0}, Sint64{1000}, Sint64{86400000}, Sint64{2147483646}}) {
        Position = milliseconds * FramesPerMs;
        Update();
    }
    EXPECT_EQ(Played, Lines());
}

TEST_F(Transport, NeverRestartsAPatternThatFollowsItself) {
    LetPlay("MENU");
    for (int loop = 0; loop < 3; ++loop) {
        WrapLoop();
        Update();
    }
    EXPECT_EQ(Watch.SetTrackAudio.Count(), 0);
    EXPECT_EQ(Requested(), "");
    EXPECT_EQ(Runtime.Player.LastPosition, 10);
}

TEST_F(Transport, LoopsOnWhereNothingFollows) {
    LetPlay("MENU");
    Runtime.Player.NextPatternName = "";
    WrapLoop();
    Update();
    EXPECT_EQ(Played, Lines());
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(Transport, PrefersARequestToTheChain) {
    Pattern("GAMEPLAY").NextName = "OTHER";
    LetPlay("GAMEPLAY");
    Enter(ScreenPlaying, ScreenGameOver);
    WrapLoop();
    Update();
    EXPECT_EQ(Played, Lines{"GAMEOVER"});
}

TEST_F(Transport, AlternatesBetweenAPatternAndTheOneThatFollowsIt) {
    Pattern("GAMEPLAY").NextName = "OTHER";
    LetPlay("GAMEPLAY");
    Enter(ScreenPlaying, ScreenPlaying);
    for (int loop = 0; loop < 4; ++loop) {
        for (Sint64 position = 200; position < 1000; position += 200) {
            Position = position;
            Update();
        }
        Position = 5;
        Update();
    }
    EXPECT_EQ(Played, (Lines{"OTHER", "GAMEPLAY", "OTHER", "GAMEPLAY"}));
}

TEST_F(Transport, RequestsThePatternAgainWhileWhatFollowsItPlays) {
    Pattern("MENU").NextName = "OTHER";
    LetPlay("MENU");
    WrapLoop();
    Update();
    ASSERT_EQ(Played, Lines{"OTHER"});
    EXPECT_EQ(Requested(), "");
    Update();
    EXPECT_EQ(Requested(), "MENU");
}

TEST_F(Transport, IgnoresTheOldPositionAfterAPlay) {
    LetPlay("MENU");
    Pattern("MENU").NextName = "OTHER";
    Runtime.Player.NextPatternName = "OTHER";
    WrapLoop();
    Update();
    EXPECT_EQ(Runtime.Player.LastPosition, -1);
    Position = 3; // less than before the play
    Update();
    EXPECT_EQ(Played, Lines{"OTHER"});
    EXPECT_EQ(Runtime.Player.LastPosition, 3);
}

// What is missing or fails.

TEST_F(Transport, LogsAWantedPatternThatIsMissingInEveryUpdate) {
    Runtime.MenuPattern = "NOWHERE";
    LetPlay("OTHER");
    Runtime.Player.RequestedPattern = &Pattern("WATER");
    Update();
    EXPECT_EQ(Requested(), "");
    Update();
    const std::string line = "Requested music pattern could not be found: NOWHERE";
    EXPECT_EQ(Log.Lines, (Lines{line, line}));
    EXPECT_EQ(Played, Lines());
}

TEST_F(Transport, LogsAMissingPatternOfTheChain) {
    LetPlay("MENU");
    Runtime.Player.NextPatternName = "NOWHERE";
    WrapLoop();
    Update();
    EXPECT_EQ(Log.Lines, Lines{"Requested music pattern could not be found: NOWHERE"});
    EXPECT_EQ(Played, Lines());
    EXPECT_EQ(Runtime.Player.LastPosition, 10);
    EXPECT_EQ(Runtime.Player.CurrentPatternName, "MENU");
}

TEST_F(Transport, PrintsANameWithPercentSignsAsItIs) {
    Runtime.MenuPattern = "100%s%n";
    LetPlay("OTHER");
    Update();
    EXPECT_EQ(Log.Lines, Lines{"Requested music pattern could not be found: 100%s%n"});
}

TEST_F(Transport, TriesAFailedPlayAgain) {
    const std::array<std::function<void()>, 3> failures{
        [&] {
            Watch.SetTrackAudio.Refuse(2);
        },
        [&] {
            Watch.CreateProperties.Refuse(2);
        },
        [&] {
            Watch.PlayTrack.Refuse(2);
        },
    };
    for (const std::function<void()> &fail : failures) {
        LetPlay("OTHER");
        IsPlaying = false; // as a track that stopped by itself
        Played.clear();
        Log.Lines.clear();
        fail();
        Update();
        Update();
        const std::string line = "PlayMusicPattern failed: refused for the test";
        EXPECT_EQ(Log.Lines, (Lines{line, line}));
        EXPECT_EQ(Requested(), "MENU");
        EXPECT_EQ(Runtime.Player.CurrentPatternName, "OTHER");
        Update();
        EXPECT_EQ(Log.Lines.size(), 2U);
        EXPECT_EQ(Played, Lines{"MENU"});
        EXPECT_EQ(Requested(), "");
    }
}

TEST_F(Transport, KeepsAFailedRequestForTheNextBoundary) {
    const std::array<std::function<void()>, 3> failures{
        [&] {
            Watch.SetTrackAudio.Refuse(1);
        },
        [&] {
            Watch.CreateProperties.Refuse(1);
        },
        [&] {
            Watch.PlayTrack.Refuse(1);
        },
    };
    Runtime.MenuPattern = ""; // so that only the chain moves
    for (const std::function<void()> &fail : failures) {
        LetPlay("MENU");
        Runtime.Player.NextPatternName = "OTHER";
        Played.clear();
        Log.Lines.clear();
        fail();
        WrapLoop();
        Update();
        EXPECT_EQ(Log.Lines, Lines{"PlayMusicPattern failed at loop boundary: refused for the test"});
        EXPECT_EQ(Requested(), "OTHER");
        EXPECT_EQ(Runtime.Player.LastPosition, 10);
        Position = 20;
        Update();
        EXPECT_EQ(Played, Lines());
        WrapLoop();
        Update();
        EXPECT_EQ(Played, Lines{"OTHER"});
        EXPECT_EQ(Log.Lines.size(), 1U);
        EXPECT_EQ(Requested(), "");
    }
}

TEST_F(Transport, TriesAFailedFirstPlayOnceMoreAtTheBoundaryOfATrackThatHasNothing) {
    Position = -1;
    Loops = 0;
    Watch.SetTrackAudio.Refuse(2);
    Update();
    EXPECT_EQ(Log.Lines, (Lines{"PlayMusicPattern failed: refused for the test",
                             "PlayMusicPattern failed at loop boundary: refused for the test"}));
    EXPECT_EQ(Requested(), "MENU");
    EXPECT_TRUE(Runtime.StartupFadePending);
}

TEST_F(Transport, RestartsAtTheBoundaryOfATrackThatStoppedByItself) {
    Pattern("MENU").NextName = "OTHER";
    LetPlay("MENU");
    IsPlaying = false;
    Position = -1;
    Loops = 0;
    Update();
    EXPECT_EQ(Played, Lines{"OTHER"});
}

// The gains.

TEST_F(Transport, BringsTheVolumesToTheTrackInOneUpdate) {
    LetPlay("MENU");
    Update();
    EXPECT_EQ(Gains, std::vector<float>());
    State.MusicVolume = 80;
    Update();
    EXPECT_EQ(Runtime.MusicGainPercent, 80);
    State.MasterVolume = 50;
    Update();
    State.MusicEnabled = false;
    Update();
    State.MusicEnabled = true;
    Update();
    Update();
    EXPECT_EQ(Gains, (std::vector<float>{0.8F, 0.4F, 0.0F, 0.4F}));
}

TEST_F(Transport, BringsTheVolumesToTheVoicesInOneUpdate) {
    std::array<char, 2> things{};
    auto *const first = reinterpret_cast<MIX_Track *>(things.data());
    auto *const second = reinterpret_cast<MIX_Track *>(&things[1]);
    Runtime.SfxTracks = {first, second};
    Watch.SetTrackGain.Answer = [](MIX_Track *, float) {
        return true;
    };
    LetPlay("MENU");
    Update();
    EXPECT_EQ(Watch.SetTrackGain.Count(), 0);
    State.SfxVolume = 40;
    Update();
    Update();
    ASSERT_EQ(Watch.SetTrackGain.Count(), 2);
    EXPECT_EQ(Watch.SetTrackGain.Calls[0], std::tuple(first, 0.4F));
    EXPECT_EQ(Watch.SetTrackGain.Calls[1], std::tuple(second, 0.4F));
    State.SfxEnabled = false;
    Update();
    EXPECT_EQ(Watch.SetTrackGain.Calls.back(), std::tuple(second, 0.0F));
    EXPECT_EQ(Runtime.SfxGainPercent, 0);
}

TEST_F(Transport, LogsAGainThatIsRefusedAndKeepsIt) {
    LetPlay("MENU");
    State.MusicVolume = 80;
    Watch.SetTrackGain.Refuse(1);
    Update();
    Update();
    EXPECT_EQ(Log.Lines, Lines{"MIX_SetTrackGain failed: refused for the test"});
    EXPECT_EQ(Runtime.MusicGainPercent, 80);
    EXPECT_EQ(Watch.SetTrackGain.Count(), 1);
}

TEST_F(ScriptedMusic, WithoutPatternsOnlyTheGainsAreKeptUpToDate) {
    State.MusicVolume = 80;
    State.SfxVolume = 40;
    State.Screen = ScreenPlaying;
    Runtime.Player.CurrentPatternName = "GONE";
    Update();
    EXPECT_EQ(Gains, std::vector<float>{0.8F});
    EXPECT_EQ(Runtime.SfxGainPercent, 40);
    EXPECT_EQ(Runtime.LastScreen, ScreenPlaying);
    EXPECT_EQ(Watch.Order(), CallNames{Watch.SetTrackGain});
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(Transport, WithoutATrackOnlyTheGainsAreKeptUpToDate) {
    Runtime.Player.Track = nullptr;
    State.MusicVolume = 80;
    State.SfxVolume = 40;
    Update();
    EXPECT_EQ(Runtime.MusicGainPercent, 80);
    EXPECT_EQ(Runtime.SfxGainPercent, 40);
    EXPECT_EQ(Watch.Order(), CallNames());
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(Transport, DoesNothingBeforeTheStart) {
    Runtime.Initialised = false;
    State.MusicVolume = 80;
    State.Screen = ScreenCredits;
    Update();
    EXPECT_EQ(Runtime.MusicGainPercent, 50);
    EXPECT_EQ(Runtime.LastScreen, ScreenMainMenu);
    EXPECT_EQ(Watch.Order(), CallNames());
}

// Its parts.

TEST_F(Transport, PlaysAPatternAsAnEndlessLoopAndRemembersIt) {
    Pattern("WATER").NextName = "OTHER";
    Runtime.Player.LastPosition = 77;
    EXPECT_TRUE(PlayMusicPattern(Runtime.Player, &Pattern("WATER"), 0));
    EXPECT_EQ(Played, Lines{"WATER"});
    EXPECT_EQ(PlayedLoops, -1);
    EXPECT_FALSE(HadFadeIn);
    EXPECT_EQ(Runtime.Player.CurrentPatternName, "WATER");
    EXPECT_EQ(Runtime.Player.NextPatternName, "OTHER");
    EXPECT_EQ(Runtime.Player.LastPosition, -1);
    EXPECT_EQ(Runtime.Player.LoopBoundaryMs, 1000); // 4000 frames of the audio
    EXPECT_EQ(Watch.DestroyProperties.Count(), 1);
    EXPECT_EQ(Watch.Order(),
        (CallNames{Watch.SetTrackAudio, Watch.CreateProperties, Watch.SetNumberProperty, Watch.PlayTrack,
            Watch.DestroyProperties, Watch.GetAudioDuration, Watch.AudioFramesToMS}));
}

TEST_F(Transport, PlaysAPatternWithAFadeIfItHasALength) {
    EXPECT_TRUE(PlayMusicPattern(Runtime.Player, &Pattern("WATER"), 500));
    EXPECT_TRUE(HadFadeIn);
    EXPECT_EQ(FadeInMs, 500);
    EXPECT_EQ(PlayedLoops, -1);
    EXPECT_TRUE(PlayMusicPattern(Runtime.Player, &Pattern("WATER"), -500));
    EXPECT_FALSE(HadFadeIn);
}

TEST_F(Transport, NeverFadesAPatternInByItself) {
    Update(); // the first play
    EXPECT_FALSE(HadFadeIn);
    Enter(ScreenMainMenu, ScreenPlaying);
    Update(); // a cut
    EXPECT_FALSE(HadFadeIn);
    State.Stage = 2;
    WrapLoop();
    Update(); // a boundary
    EXPECT_FALSE(HadFadeIn);
    EXPECT_EQ(Played, (Lines{"MENU", "GAMEPLAY", "WATER"}));
}

TEST_F(Transport, TakesALengthThatIsNotAboveZeroAsUnknown) {
    for (const Sint64 duration : {Sint64{0}, Sint64{-1}, Sint64{-2}}) {
        Duration = duration;
        EXPECT_TRUE(PlayMusicPattern(Runtime.Player, &Pattern("WATER"), 0));
        EXPECT_EQ(Runtime.Player.LoopBoundaryMs, 2147483647);
    }
    EXPECT_EQ(Watch.AudioFramesToMS.Count(), 0);
}

TEST_F(Transport, PlaysNothingWithoutAPatternOrATrack) {
    EXPECT_FALSE(PlayMusicPattern(Runtime.Player, nullptr, 0));
    Runtime.Player.Track = nullptr;
    EXPECT_FALSE(PlayMusicPattern(Runtime.Player, &Pattern("WATER"), 0));
    EXPECT_EQ(Watch.Order(), CallNames());
}

TEST_F(Transport, LeavesThePlayerAsItWasWhereAPlayFails) {
    const std::array<std::function<void()>, 3> failures{
        [&] {
            Watch.SetTrackAudio.Refuse(1);
        },
        [&] {
            Watch.CreateProperties.Refuse(1);
        },
        [&] {
            Watch.PlayTrack.Refuse(1);
        },
    };
    LetPlay("OTHER");
    for (const std::function<void()> &fail : failures) {
        fail();
        EXPECT_FALSE(PlayMusicPattern(Runtime.Player, &Pattern("WATER"), 0));
        EXPECT_EQ(Runtime.Player.CurrentPatternName, "OTHER");
        EXPECT_EQ(Runtime.Player.NextPatternName, "OTHER");
        EXPECT_EQ(Runtime.Player.LastPosition, 100);
        EXPECT_EQ(Runtime.Player.LoopBoundaryMs, 1000);
    }
    EXPECT_EQ(Watch.DestroyProperties.Count(), 1); // those of the refused MIX_PlayTrack
}

TEST_F(Transport, RequestsAPatternByItsName) {
    RequestMusicPattern(Runtime.Player, "WATER");
    EXPECT_EQ(Runtime.Player.RequestedPattern, &Pattern("WATER"));
}

TEST_F(Transport, RaisesAFailureForAMissingPatternAndRequestsNothing) {
    Runtime.Player.RequestedPattern = &Pattern("WATER");
    std::string message;
    try {
        RequestMusicPattern(Runtime.Player, "water");
    } catch (const std::exception &failure) {
        message = failure.what();
    }
    EXPECT_EQ(message, "Requested music pattern could not be found: water");
    EXPECT_EQ(Runtime.Player.RequestedPattern, nullptr);
    EXPECT_EQ(Log.Lines, Lines());
}
