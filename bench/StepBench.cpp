#include "bench/BusyRoad.hpp"
#include "sim/NewRun.hpp"
#include "sim/Step.hpp"

#include <benchmark/benchmark.h>

namespace {

constexpr float FrameSeconds = 1.0F / 125.0F;

/// Steps a run that is put back to its start before each step, so that the road stays as full as it was.
/// Putting it back copies some kilobytes without allocating, and is part of the figure.
void StepFrom(benchmark::State &Bench, const GameState &Start) {
    GameState state = Start;
    for (auto iteration : Bench) {
        state.Bullets = Start.Bullets;
        state.EnemyBullets = Start.EnemyBullets;
        state.Enemies = Start.Enemies;
        state.Obstacles = Start.Obstacles;
        state.Items = Start.Items;
        state.Explosions = Start.Explosions;
        state.PendingSounds.Count = 0;
        SimulationStep(state, FrameSeconds, {});
        benchmark::ClobberMemory();
    }
}

void StepOnEmptyRoad(benchmark::State &Bench) {
    GameState start;
    StartNewRun(start);
    StepFrom(Bench, start);
}

void StepOnFullRoad(benchmark::State &Bench) {
    StepFrom(Bench, BusyRoad());
}

void StepInStage30(benchmark::State &Bench) {
    StepFrom(Bench, RoadOfStage30());
}

BENCHMARK(StepOnEmptyRoad);
BENCHMARK(StepOnFullRoad);
BENCHMARK(StepInStage30);

} // namespace
