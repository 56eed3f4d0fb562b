#include "tests/audio/ScriptedMusic.hpp"

namespace {

using Lines = std::vector<std::string>;

/// The first menu music of a run of the program, at half its gain: it rises from 0.14 to 0.5.
class StartupFade : public ScriptedMusic {
protected:
    StartupFade() {
        AddPattern("MENU");
        AddPattern("GAMEPLAY");
    }

    /// An update so many milliseconds after the last one.
    void UpdateAfter(Uint64 Milliseconds) {
        Ticks += Milliseconds;
        Position += static_cast<Sint64>(Milliseconds) * FramesPerMs;
        Gains.clear();
        Update();
    }

    /// Expects that the last update has set this gain last.
    void ExpectGain(float Gain) const {
        ASSERT_FALSE(Gains.empty());
        EXPECT_NEAR(Gains.back(), Gain, 1e-6F);
    }
};

} // namespace

TEST_F(StartupFade, BeginsAtTwentyEightPercentOfTheGain) {
    Update();
    EXPECT_EQ(Played, Lines{"MENU"});
    EXPECT_TRUE(Runtime.StartupFadeActive);
    EXPECT_FALSE(Runtime.StartupFadePending);
    EXPECT_EQ(Runtime.StartupFadeStartTicks, 100000U);
    ASSERT_EQ(Gains.size(), 2U); // at the play, and in the same update by the running fade
    EXPECT_NEAR(Gains[0], 0.14F, 1e-6F);
    EXPECT_NEAR(Gains[1], 0.14F, 1e-6F);
}

TEST_F(StartupFade, RisesInAStraightLine) {
    Update();
    struct Row {
        Uint64 Milliseconds;
        float Gain;
    };
    constexpr std::array<Row, 5> rows{{
        {35, 0.176F}, {35, 0.212F}, {105, 0.32F}, // half way
        {105, 0.428F}, {69, 0.4989714F},          // 349 of 350 ms
    }};
    for (const Row &row : rows) {
        UpdateAfter(row.Milliseconds);
        ExpectGain(row.Gain);
        EXPECT_TRUE(Runtime.StartupFadeActive);
    }
}

TEST_F(StartupFade, EndsAtTheWholeGain) {
    for (const Uint64 length : {Uint64{350}, Uint64{351}, Uint64{100000}}) {
        Runtime.Player.CurrentPatternName = "";
        Runtime.StartupFadePending = true;
        Update();
        UpdateAfter(length);
        ExpectGain(0.5F);
        EXPECT_EQ(Gains.size(), 2U); // the last step of the fade, and the music's own gain
        EXPECT_FALSE(Runtime.StartupFadeActive);
        UpdateAfter(10);
        EXPECT_EQ(Gains, std::vector<float>());
    }
    EXPECT_EQ(Log.Lines, Lines());
}

TEST_F(StartupFade, TakesItsLengthFromThePatternFile) {
    Runtime.FadeInMs = 1000;
    Update();
    UpdateAfter(350);
    ExpectGain(0.266F);
    EXPECT_TRUE(Runtime.StartupFadeActive);
    UpdateAfter(650);
    EXPECT_FALSE(Runtime.StartupFadeActive);
}

TEST_F(StartupFade, GoesOnFromANewGain) {
    Update();
    State.MusicVolume = 100;
    UpdateAfter(175);
    ASSERT_EQ(Gains.size(), 2U);
    EXPECT_EQ(Gains[0], 1.0F); // the change of the option, and then the fade
    EXPECT_NEAR(Gains[1], 0.64F, 1e-6F);
    EXPECT_TRUE(Runtime.StartupFadeActive);
    State.MusicEnabled = false;
    UpdateAfter(10);
    ExpectGain(0.0F);
    EXPECT_TRUE(Runtime.StartupFadeActive);
}

TEST_F(StartupFade, IsCutOffByAnyPlayAndTheGainStaysUntilItNextChanges) {
    Update();
    UpdateAfter(175);
    ExpectGain(0.32F);
    State.Screen = ScreenPlaying;
    UpdateAfter(10);
    EXPECT_EQ(Played, (Lines{"MENU", "GAMEPLAY"}));
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_EQ(Gains, std::vector<float>());
    UpdateAfter(1000);
    EXPECT_EQ(Gains, std::vector<float>());
    State.MusicVolume = 60;
    UpdateAfter(10);
    EXPECT_EQ(Gains, std::vector<float>{0.6F});
}

TEST_F(StartupFade, IsCutOffByAPlayAtALoopBoundaryToo) {
    Update();
    UpdateAfter(20);
    ASSERT_TRUE(Runtime.StartupFadeActive);
    Runtime.Player.NextPatternName = "GAMEPLAY";
    WrapLoop();
    UpdateAfter(0);
    EXPECT_EQ(Played, (Lines{"MENU", "GAMEPLAY"}));
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_EQ(Gains, std::vector<float>());
}

TEST_F(StartupFade, HappensOnceOnly) {
    Update();
    UpdateAfter(400);
    ASSERT_FALSE(Runtime.StartupFadeActive);
    State.Screen = ScreenPlaying;
    UpdateAfter(10);
    State.Screen = ScreenMainMenu;
    UpdateAfter(10);
    EXPECT_EQ(Played, (Lines{"MENU", "GAMEPLAY", "MENU"}));
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_EQ(Gains, std::vector<float>());
}

TEST_F(StartupFade, OfNoLengthStartsTheMusicAtItsGain) {
    for (const std::int32_t length : {0, -1}) {
        Runtime.FadeInMs = length;
        Runtime.Player.CurrentPatternName = "";
        Runtime.StartupFadePending = true;
        Update();
        EXPECT_FALSE(Runtime.StartupFadeActive);
        EXPECT_FALSE(Runtime.StartupFadePending);
        EXPECT_EQ(Gains, std::vector<float>());
    }
    EXPECT_EQ(Played, (Lines{"MENU", "MENU"}));
}

TEST_F(StartupFade, DoesNotHappenIfOtherMusicIsFirst) {
    State.Screen = ScreenPlaying;
    Update();
    EXPECT_EQ(Played, Lines{"GAMEPLAY"});
    EXPECT_FALSE(Runtime.StartupFadePending);
    EXPECT_FALSE(Runtime.StartupFadeActive);
    State.Screen = ScreenMainMenu;
    UpdateAfter(10);
    EXPECT_EQ(Played, (Lines{"GAMEPLAY", "MENU"}));
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_EQ(Gains, std::vector<float>());
}

TEST_F(StartupFade, GoesByTheNameAndNotByTheScreen) {
    Runtime.GameplayPattern = "MENU";
    State.Screen = ScreenPlaying;
    Update();
    EXPECT_TRUE(Runtime.StartupFadeActive);
}

TEST_F(StartupFade, DoesNotHappenWhereItIsNotPending) {
    Runtime.StartupFadePending = false;
    Update();
    EXPECT_EQ(Played, Lines{"MENU"});
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_EQ(Gains, std::vector<float>());
}

TEST_F(StartupFade, WaitsForAFirstPlayThatWorks) {
    Watch.PlayTrack.Refuse(1);
    Update();
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_TRUE(Runtime.StartupFadePending);
    Update();
    EXPECT_EQ(Played, Lines{"MENU"});
    EXPECT_TRUE(Runtime.StartupFadeActive);
}

TEST_F(StartupFade, StandsStillWhileTheTrackDoesNotPlay) {
    Update();
    IsPlaying = false;
    UpdateAfter(100);
    EXPECT_EQ(Gains, std::vector<float>());
    EXPECT_TRUE(Runtime.StartupFadeActive);
    IsPlaying = true;
    UpdateAfter(75);
    ExpectGain(0.32F); // the clock went on
}

TEST_F(StartupFade, ThatLosesItsLengthEndsAtTheWholeGain) {
    Update();
    Runtime.FadeInMs = 0;
    UpdateAfter(10);
    EXPECT_EQ(Gains, std::vector<float>{0.5F});
    EXPECT_FALSE(Runtime.StartupFadeActive);
}

TEST_F(StartupFade, ThatCannotBeginIsLoggedAndGivenUp) {
    Watch.SetTrackGain.Refuse(1);
    Update();
    EXPECT_EQ(Log.Lines, Lines{"MIX_SetTrackGain failed during startup fade setup: refused for the test"});
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_EQ(Played, Lines{"MENU"});
    UpdateAfter(100);
    EXPECT_EQ(Gains, std::vector<float>());
    EXPECT_EQ(Log.Lines.size(), 1U);
}

TEST_F(StartupFade, ThatFailsOnItsWayIsLoggedAndGivenUp) {
    Update();
    Watch.SetTrackGain.Refuse(1);
    UpdateAfter(100);
    EXPECT_EQ(Log.Lines, Lines{"MIX_SetTrackGain failed during startup fade: refused for the test"});
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_EQ(Gains, std::vector<float>());
}

TEST_F(StartupFade, ThatFailsInItsLastStepDoesNotSetTheWholeGain) {
    Update();
    Watch.SetTrackGain.Refuse(1);
    UpdateAfter(350);
    EXPECT_EQ(Log.Lines, Lines{"MIX_SetTrackGain failed during startup fade: refused for the test"});
    EXPECT_FALSE(Runtime.StartupFadeActive);
    EXPECT_EQ(Gains, std::vector<float>());
}

TEST_F(StartupFade, LogsAWholeGainThatIsRefusedAtItsEnd) {
    Update();
    Watch.SetTrackGain.Refuse(1, 1);
    UpdateAfter(350);
    EXPECT_EQ(Log.Lines, Lines{"MIX_SetTrackGain failed: refused for the test"});
    EXPECT_FALSE(Runtime.StartupFadeActive);
}
