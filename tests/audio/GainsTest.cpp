#include "audio/Gains.hpp"

#include "state/GameState.hpp"
#include "tests/audio/GameFolder.hpp"

#include <array>

namespace {

struct GainRow {
    bool Enabled;
    std::int32_t Master;
    std::int32_t Volume;
    std::int32_t Percent;
};

constexpr std::array<GainRow, 18> Gains{{
    {true, 100, 50, 50},
    {true, 100, 100, 100}, // a product of 10000
    {true, 101, 100, 100},
    {true, 150, 150, 100},
    {true, 99, 99, 98},
    {true, 33, 33, 10},
    {true, 1, 199, 1}, // truncated, not rounded
    {true, 1, 99, 0},
    {true, 10, 10, 1},
    {true, 0, 100, 0},
    {true, 100, 0, 0},
    {true, 1, -99, 0},
    {true, 1, -100, 0},
    {true, -100, 1, 0},
    {true, -200, 100, 0},
    {true, -50, -50, 25},
    {false, 100, 100, 0},
    {false, 100, 50, 0},
}};

/// Handles that nothing but their address is used of.
std::array<char, 3> Things;

MIX_Track *Track(std::size_t Index) {
    return reinterpret_cast<MIX_Track *>(&Things.at(Index));
}

class VoiceGains : public MixerTest {};

} // namespace

TEST(EffectiveGain, OfTheMusicIsTheProductOfItsVolumesInPercent) {
    for (const GainRow &row : Gains) {
        GameState state;
        state.SfxEnabled = !row.Enabled;
        state.SfxVolume = 77;
        state.MusicEnabled = row.Enabled;
        state.MasterVolume = row.Master;
        state.MusicVolume = row.Volume;
        EXPECT_EQ(EffectiveMusicGain(state), row.Percent)
            << row.Enabled << " " << row.Master << " " << row.Volume;
    }
}

TEST(EffectiveGain, OfTheSoundsIsTheProductOfItsVolumesInPercent) {
    for (const GainRow &row : Gains) {
        GameState state;
        state.MusicEnabled = !row.Enabled;
        state.MusicVolume = 77;
        state.SfxEnabled = row.Enabled;
        state.MasterVolume = row.Master;
        state.SfxVolume = row.Volume;
        EXPECT_EQ(EffectiveSfxGain(state), row.Percent)
            << row.Enabled << " " << row.Master << " " << row.Volume;
    }
}

TEST(TrackGain, IsThePercentageFromZeroToOne) {
    EXPECT_EQ(TrackGain(-2147483647 - 1), 0.0F);
    EXPECT_EQ(TrackGain(-1), 0.0F);
    EXPECT_EQ(TrackGain(0), 0.0F);
    EXPECT_EQ(TrackGain(1), 0.01F);
    EXPECT_EQ(TrackGain(50), 0.5F);
    EXPECT_EQ(TrackGain(75), 0.75F);
    EXPECT_EQ(TrackGain(100), 1.0F);
    EXPECT_EQ(TrackGain(101), 1.0F);
}

TEST(ApplyMusicGain, WithoutATrackIsTrueAndDoesNothing) {
    MixerWatch watch;
    const std::int32_t percent = 40;
    MusicPlayer player;
    player.GainPercent = &percent;
    EXPECT_TRUE(ApplyMusicGain(player));
    EXPECT_EQ(watch.SetTrackGain.Count(), 0);
}

TEST(ApplyMusicGain, SetsThePresentPercentageAndTellsWhetherItCould) {
    MixerWatch watch;
    watch.SetTrackGain.Answer = [](MIX_Track *, float) {
        return true;
    };
    std::int32_t percent = 40;
    MusicPlayer player;
    player.GainPercent = &percent;
    player.Track = Track(0);
    percent = 60;
    EXPECT_TRUE(ApplyMusicGain(player));
    ASSERT_EQ(watch.SetTrackGain.Count(), 1);
    EXPECT_EQ(watch.SetTrackGain.Calls[0], std::tuple(Track(0), 0.6F));
    watch.SetTrackGain.Refuse(1);
    EXPECT_FALSE(ApplyMusicGain(player));
}

TEST_F(VoiceGains, AreSetOnEveryVoiceThatThereIs) {
    Watch.SetTrackGain.Answer = [](MIX_Track *, float) {
        return true;
    };
    MusicRuntime runtime;
    runtime.SfxTracks = {Track(0), nullptr, Track(2)};
    ApplySfxGain(runtime, 0.25F);
    ASSERT_EQ(Watch.SetTrackGain.Count(), 2);
    EXPECT_EQ(Watch.SetTrackGain.Calls[0], std::tuple(Track(0), 0.25F));
    EXPECT_EQ(Watch.SetTrackGain.Calls[1], std::tuple(Track(2), 0.25F));
    EXPECT_EQ(Log.Lines, std::vector<std::string>());
}

TEST_F(VoiceGains, ThatAVoiceRefusesAreLoggedAndTheOthersAreSet) {
    Watch.SetTrackGain.Answer = [](MIX_Track *, float) {
        return true;
    };
    MusicRuntime runtime;
    runtime.SfxTracks = {Track(0), Track(1), Track(2)};
    Watch.SetTrackGain.Refuse(2);
    ApplySfxGain(runtime, 0.25F);
    EXPECT_EQ(Watch.SetTrackGain.Count(), 3);
    const std::string line = "MIX_SetTrackGain failed for SFX track: refused for the test";
    EXPECT_EQ(Log.Lines, (std::vector<std::string>{line, line}));
}
