#include "tests/app/ProgramTest.hpp"

namespace {

using Lines = std::vector<std::string>;
using AudioAtStart = ProgramTest;
using AudioInFrames = RunningTest;

TEST_F(AudioAtStart, TheMenusMusicRunsBeforeTheFirstFrame) {
    Start();
    ASSERT_TRUE(Program.Music.Initialised);
    EXPECT_EQ(Program.Music.Player.CurrentPatternName, Program.Music.MenuPattern);
    EXPECT_TRUE(MIX_TrackPlaying(Program.Music.MusicTrack));
    EXPECT_TRUE(Program.Music.StartupFadeActive);
}

TEST_F(AudioAtStart, WithoutADeviceTheGameRunsSilent) {
    SDL_SetHint(SDL_HINT_AUDIO_DRIVER, "no-such-driver");
    const LogCatcher log;
    Start();
    ASSERT_EQ(log.Lines.size(), 3U);
    EXPECT_EQ(log.Lines[0], NoIconsLine);
    EXPECT_EQ(log.Lines[1].find("MIX_CreateMixerDevice failed: "), 0U) << log.Lines[1];
    EXPECT_EQ(log.Lines[2], "Music runtime unavailable; game will run without music");
    PushSound(State, SfxId::UiMove);
    RunFrame(Program);
    EXPECT_EQ(State.PendingSounds.Count, 0U);
    EXPECT_TRUE(State.Running);
}

TEST_F(AudioInFrames, TheSoundsOfAFrameAreTakenInIt) {
    PushSound(State, SfxId::PlayerDeath); // the longest: it still plays when the frame is over
    PushSound(State, SfxId::PlayerDeath);
    RunFrame(Program);
    EXPECT_EQ(State.PendingSounds.Count, 0U);
    EXPECT_TRUE(MIX_TrackPlaying(Program.Music.SfxTracks[0]));
    EXPECT_TRUE(MIX_TrackPlaying(Program.Music.SfxTracks[1]));
    EXPECT_FALSE(MIX_TrackPlaying(Program.Music.SfxTracks[2]));
}

TEST_F(AudioInFrames, AChangedVolumeReachesTheTracksInTheSameFrame) {
    State.SfxVolume = 20;
    RunFrame(Program);
    EXPECT_EQ(Program.Music.SfxGainPercent, 20);
    EXPECT_FLOAT_EQ(MIX_GetTrackGain(Program.Music.SfxTracks[0]), 0.2F);
}

TEST_F(AudioInFrames, TheMusicFollowsTheGameOnEveryScreen) {
    State.Screen = ScreenPlaying;
    RunFrame(Program);
    EXPECT_EQ(Program.Music.Player.CurrentPatternName, Program.Music.GameplayPattern);
    State.Screen = ScreenMainMenu;
    RunFrame(Program);
    EXPECT_EQ(Program.Music.Player.CurrentPatternName, Program.Music.MenuPattern);
}

TEST_F(AudioInFrames, ShutDownTakesTheMixerDown) {
    Stop();
    EXPECT_FALSE(Program.Music.Initialised);
    EXPECT_EQ(Program.Music.Mixer, nullptr);
}

} // namespace
