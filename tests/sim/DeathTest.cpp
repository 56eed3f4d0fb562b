#include "sim/Step.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

#include <tuple>

namespace {

constexpr StepInput HeldEverything{true, false, true, true};

/// The last life is lost, in a run that has moved on and with something of everything on the road.
GameState DyingRun() {
    GameState state = QuietRunInStage(3);
    state.PlayerDying = true;
    state.DeathTimer = 0.75F;
    state.Score = 5000;
    state.HighScore = 4000;
    state.Player.Hp = 0;
    state.Player.Stocks = 0;
    state.RoadScroll = 9000.0F;
    state.StageTransition = 0.5F;
    state.AmmoMeter = 50.0F;
    state.InvulnerabilityTimer = 0.85F;
    state.ReadyBanner = 0.5F;
    state.DualWeaponPowerTimer = 3.0F;
    state.SpecialActive = true;
    state.SpecialTimer = 0.25F;
    state.Bullets = {{300.0F, 300.0F, 430.0F, 2.0F}};
    state.EnemyBullets = {{400.0F, 300.0F, 190.0F, 2.0F, 12}};
    state.Enemies = {EnemyAt(510.0F, 100.0F)};
    state.Obstacles = {ObstacleAt(575.0F, 200.0F)};
    state.Items = {ItemAt(705.0F, 300.0F)};
    state.Explosions = {{640.0F, 670.0F, 0.0F, 0.85F, 80.0F, {}}};
    return state;
}

auto RoadOf(const GameState &State) {
    return std::tie(State.Stage, State.GameTime, State.RoadScroll, State.CurrentScrollSpeed,
        State.StageTransition, State.SpawnTimer, State.ObstacleSpawnTimer, State.ItemSpawnTimer);
}

auto PlayerOf(const GameState &State) {
    return std::tie(State.Player, State.PlayerLane, State.Score, State.AmmoMeter, State.Bombs);
}

auto TimersOf(const GameState &State) {
    return std::tie(State.InvulnerabilityTimer, State.LaneMoveCooldown, State.AmmoRegenPause,
        State.ReadyBanner, State.InvincibilityPowerTimer, State.DualWeaponPowerTimer, State.SpecialActive,
        State.SpecialTimer);
}

auto TrafficOf(const GameState &State) {
    return std::tie(State.Bullets, State.EnemyBullets, State.Enemies, State.Obstacles, State.Items);
}

void ExpectTheWorldStoodStill(const GameState &State, const GameState &Before) {
    EXPECT_EQ(RoadOf(State), RoadOf(Before));
    EXPECT_EQ(PlayerOf(State), PlayerOf(Before));
    EXPECT_EQ(TimersOf(State), TimersOf(Before));
    EXPECT_EQ(TrafficOf(State), TrafficOf(Before));
    EXPECT_TRUE(State.Rng == Before.Rng && State.PendingSounds.Count == Before.PendingSounds.Count);
}

} // namespace

TEST(Death, OnlyTheExplosionMovesWhileItRuns) {
    GameState state = DyingRun();
    const GameState before = state;
    SimulationStep(state, 0.25F, HeldEverything);
    ExpectTheWorldStoodStill(state, before);
    EXPECT_EQ(state.DeathTimer, 0.5F);
    EXPECT_EQ(state.Explosions, (std::vector<Explosion>{{640.0F, 670.0F, 0.25F, 0.85F, 80.0F, {}}}));
}

TEST(Death, GoesOnWhileTimeIsLeft) {
    GameState state = DyingRun();
    SimulationStep(state, 0.5F, HeldNothing);
    EXPECT_EQ(state.DeathTimer, 0.25F);
    EXPECT_TRUE(state.PlayerDying);
    EXPECT_EQ(state.Screen, ScreenPlaying);
    EXPECT_TRUE(state.HasRunState);
    EXPECT_EQ(state.HighScore, 4000);
    EXPECT_FALSE(state.SaveRequested);
}

TEST(Death, DropsExplosionsThatHaveLivedTheirLife) {
    GameState state = DyingRun();
    state.Explosions = {{1.0F, 0.0F, 0.25F, 0.5F, 20.0F, {}}, {2.0F, 0.0F, 0.0F, 0.5F, 20.0F, {}}};
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_EQ(state.Explosions, (std::vector<Explosion>{{2.0F, 0.0F, 0.25F, 0.5F, 20.0F, {}}}));
}

TEST(Death, EndsTheRunAtExactlyZero) {
    GameState state = DyingRun();
    SimulationStep(state, 0.75F, HeldNothing);
    EXPECT_EQ(state.DeathTimer, 0.0F);
    EXPECT_FALSE(state.PlayerDying);
    EXPECT_EQ(state.Screen, ScreenGameOver);
    EXPECT_FALSE(state.HasRunState);
}

TEST(Death, EndsTheRunWithoutFallingBelowZero) {
    GameState state = DyingRun();
    SimulationStep(state, 1.0F, HeldNothing);
    EXPECT_EQ(state.DeathTimer, 0.0F);
    EXPECT_EQ(state.Screen, ScreenGameOver);
}

TEST(Death, LeavesTheScoreAndTheRoadForTheGameOverScreen) {
    GameState state = DyingRun();
    const GameState before = state;
    SimulationStep(state, 0.75F, HeldEverything);
    ExpectTheWorldStoodStill(state, before);
    EXPECT_EQ(state.Score, 5000);
    EXPECT_EQ(state.Explosions, (std::vector<Explosion>{{640.0F, 670.0F, 0.75F, 0.85F, 80.0F, {}}}));
}

TEST(Death, RaisesTheHighScore) {
    GameState state = DyingRun();
    SimulationStep(state, 0.75F, HeldNothing);
    EXPECT_EQ(state.HighScore, 5000);

    state = DyingRun();
    state.HighScore = 6000;
    SimulationStep(state, 0.75F, HeldNothing);
    EXPECT_EQ(state.HighScore, 6000);
}

TEST(Death, AsksForASaveAtOnce) {
    GameState state = DyingRun();
    state.SaveRequested = true;
    state.SaveDelay = 0.6F;
    SimulationStep(state, 0.5F, HeldNothing);
    EXPECT_EQ(state.SaveDelay, 0.6F);
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_TRUE(state.SaveRequested);
    EXPECT_EQ(state.SaveDelay, 0.0F);
}
