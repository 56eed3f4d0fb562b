#include "sim/FirstAid.hpp"
#include "sim/NewRun.hpp"
#include "sim/Step.hpp"
#include "state/GameState.hpp"
#include "tests/sim/RecordHash.hpp"
#include "tests/sim/ReplayInputs.hpp"
#include "tests/support/Figure.hpp"

#include <gtest/gtest.h>

#include <algorithm>

// The same seed, inputs and step length give the same run to the bit, at every optimisation level and on
// every machine.

namespace {

struct Played {
    std::uint64_t Hash = 0;
    std::int32_t HighestStage = 0;
    int RunsEnded = 0;
};

Played Play(std::uint32_t Seed) {
    GameState state;
    state.Rng.seed(Seed);
    StartNewRun(state);
    Played played;
    RecordHash chain;
    for (int i = 0; i < ReplaySteps; ++i) {
        SimulationStep(state, ReplayStepSeconds, ReplayInputAt(i));
        if (i % 400 == 0) {
            UseFirstAid(state);
            chain.Add(HashOfRun(state));
        }
        state.PendingSounds.Count = 0;
        played.HighestStage = std::max(played.HighestStage, state.Stage);
        if (state.Screen == ScreenGameOver) {
            ++played.RunsEnded;
            StartNewRun(state);
        }
    }
    chain.Add(HashOfRun(state));
    played.Hash = chain.Value();
    return played;
}

} // namespace

TEST(Replay, TheSameSeedAndInputsGiveTheSameRunToTheBitAtEveryOptimisationLevel) {
    const Played played = Play(ReplaySeed);
    EXPECT_GT(played.HighestStage, 1);
    TellFigure("replay", played.Hash);
    // Changes only when the rules of a run change, or what RecordHash takes of it, in a commit that says
    // which.
    EXPECT_EQ(played.Hash, 0x4F3867B7B53B97E1U);
}

TEST(Replay, AnotherSeedGivesAnotherRun) {
    EXPECT_NE(Play(1).Hash, Play(2).Hash);
    EXPECT_EQ(Play(3).Hash, Play(3).Hash);
}

TEST(Replay, TheChecksumSeesASingleBitOfAnyPartOfTheRecord) {
    GameState state;
    state.Enemies.emplace_back();
    const std::uint64_t before = HashOfRun(state);
    state.Enemies[0].Color.A ^= 1U;
    EXPECT_NE(HashOfRun(state), before);
    state.Enemies[0].Color.A ^= 1U;
    EXPECT_EQ(HashOfRun(state), before);
    state.GameTime = 1e-40F;
    EXPECT_NE(HashOfRun(state), before);
    state.GameTime = 0.0F;
    state.Rng();
    EXPECT_NE(HashOfRun(state), before);
}
