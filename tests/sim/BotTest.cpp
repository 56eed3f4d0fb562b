#include "tests/sim/Bot.hpp"
#include "sim/FirstAid.hpp"
#include "sim/NewRun.hpp"
#include "sim/Step.hpp"
#include "tests/sim/RunPromises.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>

// Whole runs, from the first step to the game over, with steps of any length: what must hold after each step.

namespace {

constexpr int Runs = 200;
constexpr int MostSteps = 200000; ///< a run longer than that does not end

struct Ended {
    std::int32_t Stage = 0;
    std::int64_t Score = 0;
    int Steps = 0;
};

void PlayToGameOver(std::uint32_t Seed, Ended &Run) {
    GameState state;
    state.Rng.seed(Seed);
    std::mt19937 pace(Seed + 1000U);
    const Bot bot(1 + static_cast<std::int32_t>(Seed % 18));
    StartNewRun(state);
    state.Stage = 1;
    GameState before = state;
    for (Run.Steps = 0; Run.Steps < MostSteps && state.Screen == ScreenPlaying; ++Run.Steps) {
        const float dt = static_cast<float>(pace() % 34U) / 1000.0F; // 0 to 0.033 seconds
        if (bot.WantsFirstAid(state)) {
            UseFirstAid(state);
        }
        before = state;
        SimulationStep(state, std::min(dt, 0.033F), bot.Drive(state));
        ASSERT_EQ(BrokenRun(state), "") << "seed " << Seed << ", step " << Run.Steps;
        ASSERT_EQ(BrokenStep(before, state), "") << "seed " << Seed << ", step " << Run.Steps;
        state.PendingSounds.Count = 0;
    }
    ASSERT_EQ(state.Screen, ScreenGameOver) << "seed " << Seed << " never ended";
    ASSERT_FALSE(state.HasRunState);
    Run.Stage = state.Stage;
    Run.Score = state.Score;
}

} // namespace

TEST(Bot, TwoHundredRunsToTheirGameOverKeepEveryPromiseAndReachStageFifteen) {
    std::int32_t highest = 0;
    std::int64_t best = 0;
    long steps = 0;
    for (std::uint32_t seed = 1; seed <= Runs; ++seed) {
        Ended run;
        PlayToGameOver(seed, run);
        if (HasFatalFailure()) {
            return;
        }
        highest = std::max(highest, run.Stage);
        best = std::max(best, run.Score);
        steps += run.Steps;
    }
    EXPECT_GE(highest, 15);
    std::printf(
        "%ld steps, highest stage %d, best score %lld\n", steps, highest, static_cast<long long>(best));
}
