#include "audio/Synthesis.hpp"

#include "tests/audio/GameFolder.hpp"

#include <array>
#include <cmath>
#include <cstring>

namespace {

constexpr std::array<int, 8> Rates{44100, 48000, 22050, 8000, 1000, 999, 320, 319};
constexpr std::array<int, 3> ChannelCounts{1, 2, 6};

/// What reached MIX_LoadRawAudio.
struct RawAudio {
    SDL_AudioSpec Format{};
    std::vector<float> Samples;
};

struct EnvelopeRow {
    int Rate;
    int Attack;
    int Release;
};

constexpr std::array<EnvelopeRow, 8> Envelopes{{
    {44100, 88, 275},
    {48000, 96, 300},
    {22050, 44, 137},
    {8000, 16, 50},
    {1000, 2, 6},
    {999, 1, 6},
    {320, 1, 2},
    {319, 1, 1},
}};

float ExpectedEnvelope(int Frame, int Frames, const EnvelopeRow &Row) {
    float envelope = 1.0F;
    if (Frame < Row.Attack) {
        const float rise = static_cast<float>(Frame) / static_cast<float>(Row.Attack);
        envelope = rise < 1.0F ? rise : 1.0F;
    }
    if (Frame + Row.Release >= Frames) {
        const float fall = static_cast<float>(Frames - 1 - Frame) / static_cast<float>(Row.Release);
        envelope = fall < envelope ? fall : envelope;
    }
    return envelope < 0.0F ? 0.0F : envelope;
}

float ExpectedSample(const SfxRecipe &Recipe, int Frame, int Frames, const EnvelopeRow &Row) {
    const float perSecond = static_cast<float>(Recipe.Frequency) * 6.2831855F;
    const float phase = static_cast<float>(Frame) * perSecond / static_cast<float>(Row.Rate);
    return ExpectedEnvelope(Frame, Frames, Row) * (std::sin(phase) * Recipe.Amplitude);
}

std::vector<float> ExpectedSamples(const SfxRecipe &Recipe, const EnvelopeRow &Row, int Channels) {
    const int frames = static_cast<int>(Row.Rate * Recipe.Duration / 1000);
    std::vector<float> samples;
    for (int frame = 0; frame < frames; ++frame) {
        const float sample = ExpectedSample(Recipe, frame, frames, Row);
        for (int channel = 0; channel < Channels; ++channel) {
            samples.push_back(sample);
        }
    }
    return samples;
}

/// The eleven lengths in frames, by hand: rate times milliseconds through 1000, truncated.
struct LengthRow {
    int Rate;
    std::array<std::size_t, 11> Frames;
};

constexpr std::array<LengthRow, 8> Lengths{{
    {44100, {1984, 3087, 3748, 1984, 7938, 5733, 3969, 11466, 4189, 3969, 4851}},
    {48000, {2160, 3360, 4080, 2160, 8640, 6240, 4320, 12480, 4560, 4320, 5280}},
    {22050, {992, 1543, 1874, 992, 3969, 2866, 1984, 5733, 2094, 1984, 2425}},
    {8000, {360, 560, 680, 360, 1440, 1040, 720, 2080, 760, 720, 880}},
    {1000, {45, 70, 85, 45, 180, 130, 90, 260, 95, 90, 110}},
    {999, {44, 69, 84, 44, 179, 129, 89, 259, 94, 89, 109}},
    {320, {14, 22, 27, 14, 57, 41, 28, 83, 30, 28, 35}},
    {319, {14, 22, 27, 14, 57, 41, 28, 82, 30, 28, 35}},
}};

const SfxRecipe &RecipeOf(SfxId Id) {
    return SfxRecipes.at(static_cast<std::size_t>(Id));
}

/// A handle that nothing but its address is used of.
char Thing;

MIX_Mixer *FakeMixer() {
    return reinterpret_cast<MIX_Mixer *>(&Thing);
}

MIX_Audio *FakeAudio() {
    return reinterpret_cast<MIX_Audio *>(&Thing);
}

/// A mixer that reports what it is told and keeps what it is handed.
class Synthesis : public MixerTest {
protected:
    Synthesis() {
        Watch.GetMixerFormat.Answer = [this](MIX_Mixer *, SDL_AudioSpec *Spec) {
            *Spec = Reported;
            return true;
        };
        Watch.LoadRawAudio.Answer = [this](MIX_Mixer *, const void *Data, size_t Size,
                                        const SDL_AudioSpec *Spec) {
            Loaded.Format = *Spec;
            Loaded.Samples.resize(Size / sizeof(float));
            std::memcpy(Loaded.Samples.data(), Data, Loaded.Samples.size() * sizeof(float));
            LoadedBytes = Size;
            return FakeAudio();
        };
        Watch.CreateSineWaveAudio.Answer = [](MIX_Mixer *, int, float, Sint64) {
            return FakeAudio();
        };
    }

    /// Builds a sound and expects the plain sine for it.
    void ExpectSine(const SfxRecipe &Recipe, MIX_Mixer *Mixer = FakeMixer()) {
        const int before = Watch.CreateSineWaveAudio.Count();
        EXPECT_EQ(SynthesiseSfx(Mixer, Recipe), FakeAudio());
        ASSERT_EQ(Watch.CreateSineWaveAudio.Count(), before + 1);
        EXPECT_EQ(Watch.CreateSineWaveAudio.Calls.back(),
            std::tuple(Mixer, Recipe.Frequency, Recipe.Amplitude, Recipe.Duration));
    }

    SDL_AudioSpec Reported{SDL_AUDIO_S16LE, 2, 44100};
    RawAudio Loaded;
    std::size_t LoadedBytes = 0;
};

} // namespace

TEST_F(Synthesis, TakesTheMixersActualRateAndChannelsAndHandsOverFloats) {
    for (const int rate : Rates) {
        for (const int channels : ChannelCounts) {
            Reported = {SDL_AUDIO_S16LE, channels, rate};
            ASSERT_EQ(SynthesiseSfx(FakeMixer(), RecipeOf(SfxId::PlayerHit)), FakeAudio());
            EXPECT_EQ(Loaded.Format.format, SDL_AUDIO_F32LE);
            EXPECT_EQ(Loaded.Format.freq, rate);
            EXPECT_EQ(Loaded.Format.channels, channels);
            EXPECT_EQ(LoadedBytes, Loaded.Samples.size() * sizeof(float));
        }
    }
    EXPECT_EQ(Watch.CreateSineWaveAudio.Count(), 0);
}

TEST_F(Synthesis, GivesEverySoundItsLengthTruncatedToFrames) {
    for (const LengthRow &row : Lengths) {
        for (const int channels : ChannelCounts) {
            Reported = {SDL_AUDIO_S16LE, channels, row.Rate};
            for (std::size_t i = 0; i < SfxRecipes.size(); ++i) {
                SynthesiseSfx(FakeMixer(), SfxRecipes.at(i));
                EXPECT_EQ(Loaded.Samples.size(), row.Frames.at(i) * static_cast<std::size_t>(channels))
                    << SfxRecipes.at(i).Name << " at " << row.Rate;
            }
        }
    }
}

TEST_F(Synthesis, GivesEverySoundTheSamplesOfTheFormulaOnAllChannels) {
    for (const EnvelopeRow &row : Envelopes) {
        for (const int channels : ChannelCounts) {
            Reported = {SDL_AUDIO_S16LE, channels, row.Rate};
            for (const SfxRecipe &recipe : SfxRecipes) {
                SynthesiseSfx(FakeMixer(), recipe);
                EXPECT_TRUE(Loaded.Samples == ExpectedSamples(recipe, row, channels))
                    << recipe.Name << " at " << row.Rate << " on " << channels;
            }
        }
    }
}

TEST_F(Synthesis, RisesHoldsAndFallsAsWorkedOutByHand) {
    // 240 Hz at 48000 Hz: a turn is 200 frames, so every fifty frames more is a quarter of one. The rise
    // takes 96 frames, the fall 300, the whole 4320.
    Reported = {SDL_AUDIO_S16LE, 1, 48000};
    SynthesiseSfx(FakeMixer(), RecipeOf(SfxId::PlayerHit));
    const std::vector<float> &samples = Loaded.Samples;
    ASSERT_EQ(samples.size(), 4320U);
    constexpr float near = 2e-5F;
    EXPECT_EQ(samples[0], 0.0F);
    EXPECT_NEAR(samples[50], 0.32F * 50.0F / 96.0F, near);
    EXPECT_NEAR(samples[100], 0.0F, near);
    EXPECT_NEAR(samples[150], -0.32F, near);
    EXPECT_NEAR(samples[250], 0.32F, near);
    EXPECT_NEAR(samples[3950], -0.32F, near);
    EXPECT_NEAR(samples[4050], 0.32F * 269.0F / 300.0F, near);
    EXPECT_NEAR(samples[4150], -0.32F * 169.0F / 300.0F, near);
    EXPECT_NEAR(samples[4250], 0.32F * 69.0F / 300.0F, near);
    EXPECT_EQ(samples[4319], 0.0F);
}

TEST_F(Synthesis, RisesInEightyEightFramesAt44100) {
    // 900 Hz at 44100 Hz: frame 44 is at 44/49 of a turn, whose sine is -0.5981105; half way up.
    Reported = {SDL_AUDIO_S16LE, 1, 44100};
    SynthesiseSfx(FakeMixer(), RecipeOf(SfxId::UiMove));
    ASSERT_EQ(Loaded.Samples.size(), 1984U);
    EXPECT_NEAR(Loaded.Samples[44], 0.16F * -0.5981105F * 0.5F, 1e-6F);
    EXPECT_NEAR(Loaded.Samples[49], 0.0F, 1e-6F);
}

TEST_F(Synthesis, BeginsToFallAReleaseBeforeTheEnd) {
    // A tone that stands at its crest in every frame but the first: 250 Hz at 1000 Hz has its crests in every
    // fourth frame. 100 frames, of which the last 6 fall.
    Reported = {SDL_AUDIO_S16LE, 1, 1000};
    const SfxRecipe recipe{SfxId::Item, "Item", 250, 1.0F, 100};
    SynthesiseSfx(FakeMixer(), recipe);
    ASSERT_EQ(Loaded.Samples.size(), 100U);
    EXPECT_NEAR(Loaded.Samples[1], 0.5F, 1e-4F); // the rise takes 2 frames
    EXPECT_NEAR(Loaded.Samples[93], 1.0F, 1e-4F);
    EXPECT_NEAR(Loaded.Samples[95], -4.0F / 6.0F, 1e-4F);
    EXPECT_NEAR(Loaded.Samples[97], 2.0F / 6.0F, 1e-4F);
    EXPECT_EQ(Loaded.Samples[99], 0.0F);
}

TEST_F(Synthesis, TakesAnAmplitudeOutsideItsRangeAsTheNearestInIt) {
    Reported = {SDL_AUDIO_S16LE, 1, 8000};
    SfxRecipe recipe = RecipeOf(SfxId::UiMove);
    recipe.Amplitude = 1.5F;
    SynthesiseSfx(FakeMixer(), recipe);
    recipe.Amplitude = 1.0F;
    EXPECT_TRUE(Loaded.Samples == ExpectedSamples(recipe, Envelopes[3], 1));
    recipe.Amplitude = -0.5F;
    SynthesiseSfx(FakeMixer(), recipe);
    ASSERT_EQ(Loaded.Samples.size(), 360U);
    for (const float sample : Loaded.Samples) {
        EXPECT_EQ(sample, 0.0F);
    }
}

TEST_F(Synthesis, CountsAtLeastOneChannel) {
    for (const int channels : {0, -1}) {
        Reported = {SDL_AUDIO_S16LE, channels, 44100};
        SynthesiseSfx(FakeMixer(), RecipeOf(SfxId::UiMove));
        EXPECT_EQ(Loaded.Format.channels, 1);
        EXPECT_EQ(Loaded.Samples.size(), 1984U);
    }
}

TEST_F(Synthesis, OfASingleFrameIsSilent) {
    Reported = {SDL_AUDIO_S16LE, 1, 23}; // times 45 ms: 1.035 frames
    SynthesiseSfx(FakeMixer(), RecipeOf(SfxId::UiMove));
    EXPECT_EQ(Loaded.Samples, (std::vector<float>{0.0F}));
}

TEST_F(Synthesis, IsComputedFromOneFrameOn) {
    Reported = {SDL_AUDIO_S16LE, 2, 10};
    const SfxRecipe whole{SfxId::Item, "Item", 100, 0.5F, 100};
    SynthesiseSfx(FakeMixer(), whole);
    EXPECT_EQ(Watch.LoadRawAudio.Count(), 1);
    const SfxRecipe less{SfxId::Item, "Item", 100, 0.5F, 99};
    ExpectSine(less);
    EXPECT_EQ(Watch.LoadRawAudio.Count(), 1);
}

TEST_F(Synthesis, FallsBackToASineOfTheMixersAtARateOfNothing) {
    for (const int rate : {0, -1, -44100}) {
        Reported = {SDL_AUDIO_S16LE, 2, rate};
        for (const SfxRecipe &recipe : SfxRecipes) {
            ExpectSine(recipe);
        }
    }
    EXPECT_EQ(Watch.LoadRawAudio.Count(), 0);
    EXPECT_EQ(Log.Lines, std::vector<std::string>());
}

TEST_F(Synthesis, FallsBackToASineWhereTheFormatIsUnknown) {
    Watch.GetMixerFormat.Refuse();
    ExpectSine(RecipeOf(SfxId::PlayerBomb));
    EXPECT_EQ(Watch.LoadRawAudio.Count(), 0);
}

TEST_F(Synthesis, FallsBackToASineWhereThereIsNoMixer) {
    ExpectSine(RecipeOf(SfxId::PlayerBomb), nullptr);
    EXPECT_EQ(Watch.GetMixerFormat.Count(), 0);
    EXPECT_EQ(Watch.LoadRawAudio.Count(), 0);
}

TEST_F(Synthesis, FallsBackToASineForARecipeOfNothing) {
    ExpectSine({SfxId::Item, "Item", 0, 0.5F, 100});
    ExpectSine({SfxId::Item, "Item", -5, 0.5F, 100});
    ExpectSine({SfxId::Item, "Item", 100, 0.5F, 0});
    ExpectSine({SfxId::Item, "Item", 100, 0.5F, -100});
    EXPECT_EQ(Watch.LoadRawAudio.Count(), 0);
}

TEST_F(Synthesis, FallsBackToASineWhereTheSamplesAreRefused) {
    Watch.LoadRawAudio.Refuse(1);
    ExpectSine(RecipeOf(SfxId::EnemyDown));
    EXPECT_EQ(Watch.LoadRawAudio.Count(), 1);
    EXPECT_EQ(Log.Lines, std::vector<std::string>());
}

TEST_F(Synthesis, ThatFailsAltogetherIsLoggedWithTheSoundsName) {
    Watch.LoadRawAudio.Refuse();
    Watch.CreateSineWaveAudio.Refuse();
    for (const SfxRecipe &recipe : SfxRecipes) {
        Log.Lines.clear();
        EXPECT_EQ(SynthesiseSfx(FakeMixer(), recipe), nullptr);
        const std::string name = recipe.Name;
        EXPECT_EQ(Log.Lines, (std::vector<std::string>{"MIX_CreateSineWaveAudio failed for SFX '" + name +
                                                       "': refused for the test"}));
    }
}

TEST_F(MixerTest, TheMixerPlaysTheComputedSamples) {
    ASSERT_TRUE(MIX_Init());
    const SDL_AudioSpec format{SDL_AUDIO_F32LE, 2, 48000};
    MIX_Mixer *const mixer = MIX_CreateMixer(&format);
    ASSERT_NE(mixer, nullptr) << SDL_GetError();
    const SfxRecipe &recipe = RecipeOf(SfxId::UiConfirm);
    MIX_Audio *const audio = SynthesiseSfx(mixer, recipe);
    ASSERT_NE(audio, nullptr) << SDL_GetError();
    EXPECT_EQ(MIX_GetAudioDuration(audio), 3360);
    MIX_Track *const track = MIX_CreateTrack(mixer);
    ASSERT_TRUE(MIX_SetTrackAudio(track, audio) && MIX_PlayTrack(track, 0)) << SDL_GetError();

    std::vector<float> heard(std::size_t{3360} * 2);
    MIX_Generate(mixer, heard.data(), static_cast<int>(heard.size() * sizeof(float)));
    const std::vector<float> expected = ExpectedSamples(recipe, Envelopes[1], 2);
    ASSERT_EQ(heard.size(), expected.size());
    for (std::size_t i = 0; i < heard.size(); ++i) {
        ASSERT_NEAR(heard[i], expected[i], 1e-5F) << i;
    }
    MIX_DestroyTrack(track);
    MIX_DestroyAudio(audio);
    MIX_DestroyMixer(mixer);
    MIX_Quit();
}
