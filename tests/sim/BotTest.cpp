#include "tests/sim/Bot.hpp"
#include "sim/FirstAid.hpp"
#include "sim/Lanes.hpp"
#include "sim/NewRun.hpp"
#include "sim/Step.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <random>
#include <string>

// Whole runs, from the first step to the game over, with steps of any length: what must hold after each step.

namespace {

constexpr int Runs = 200;
constexpr int MostSteps = 200000; ///< a run longer than that does not end

bool IsTimer(float Value, float Most) {
    return Value >= 0.0F && Value <= Most;
}

template <typename Thing> bool IsOnItsLane(const Thing &Other) {
    return Other.Lane >= 0 && Other.Lane < LaneCount && Other.X == LaneCenterX(Other.Lane);
}

struct Promise {
    const char *Field;
    bool Holds;
};

/// The first broken promise by name; empty if all hold.
std::string FirstBroken(std::initializer_list<Promise> Promises) {
    for (const Promise &promise : Promises) {
        if (!promise.Holds) {
            return promise.Field;
        }
    }
    return {};
}

std::string BrokenFieldOfRun(const GameState &State) {
    return FirstBroken({
        {"Score", State.Score >= 0 && State.HighScore >= State.Score},
        {"Stage", State.Stage == static_cast<std::int32_t>(State.GameTime / 26.0F) + 1},
        {"PreviousStage", State.PreviousStage >= 1 && State.PreviousStage <= State.Stage},
        {"WaterFlowDirection", std::abs(State.WaterFlowDirection) == 1},
        {"PreviousWaterFlowDirection", std::abs(State.PreviousWaterFlowDirection) == 1},
        {"RoadScroll", State.RoadScroll >= 0.0F},
        {"CurrentScrollSpeed", State.CurrentScrollSpeed >= 119.0F && State.CurrentScrollSpeed <= 166.0F},
        {"StageTransition", IsTimer(State.StageTransition, 1.0F)},
        {"SpawnTimer", IsTimer(State.SpawnTimer, 1.2F)},
        {"ObstacleSpawnTimer", IsTimer(State.ObstacleSpawnTimer, 1.35F * 3.04F)},
        {"ItemSpawnTimer", IsTimer(State.ItemSpawnTimer, 14.0F)},
        {"ReadyBanner", IsTimer(State.ReadyBanner, 2.0F)},
        {"InvulnerabilityTimer", IsTimer(State.InvulnerabilityTimer, 2.0F)},
        {"LaneMoveCooldown", IsTimer(State.LaneMoveCooldown, 0.09F)},
        {"AmmoRegenPause", IsTimer(State.AmmoRegenPause, 0.24F)},
        {"AmmoMeter", IsTimer(State.AmmoMeter, 100.0F)},
        {"Bombs", State.Bombs >= 0 && State.Bombs <= 3},
        {"FirstAidKits", State.FirstAidKits >= 0 && State.FirstAidKits <= 3},
        {"SpecialTimer",
            IsTimer(State.SpecialTimer, 0.65F) && State.SpecialActive == (State.SpecialTimer > 0.0F)},
        {"InvincibilityPowerTimer", IsTimer(State.InvincibilityPowerTimer, 6.0F)},
        {"DualWeaponPowerTimer", IsTimer(State.DualWeaponPowerTimer, 8.0F)},
        {"DeathTimer", IsTimer(State.DeathTimer, 0.85F)},
    });
}

std::string BrokenFieldOfPlayer(const GameState &State) {
    const Player &player = State.Player;
    return FirstBroken({
        {"Hp", player.Hp >= 0 && player.Hp <= player.MaxHp &&
                   (player.Hp > 0 || State.PlayerDying || State.Screen == ScreenGameOver)},
        {"MaxHp", player.MaxHp == 100},
        {"Stocks", player.Stocks >= 0 && player.Stocks <= 5},
        {"Player", player.Y == 670.0F && player.Radius == 12.0F},
        {"FireCooldown", IsTimer(player.FireCooldown, 0.1F)},
        {"PlayerLane", State.PlayerLane >= 0 && State.PlayerLane < LaneCount &&
                           player.X == LaneCenterX(State.PlayerLane)},
    });
}

std::string BrokenList(const GameState &State) {
    return FirstBroken({
        {"Bullets", std::ranges::all_of(State.Bullets,
                        [](const Bullet &Shot) {
                            return Shot.Y >= -20.0F && Shot.Y <= 656.0F;
                        })},
        {"EnemyBullets", std::ranges::all_of(State.EnemyBullets,
                             [](const EnemyBullet &Shot) {
                                 return Shot.Y <= 740.0F && (Shot.Damage == 10 || Shot.Damage == 12);
                             })},
        {"Enemies", std::ranges::all_of(State.Enemies,
                        [](const Enemy &Enemy) {
                            return IsOnItsLane(Enemy) && Enemy.Y >= -20.0F && Enemy.Y <= 745.0F &&
                                   Enemy.Hp >= 1 && Enemy.Hp <= 2 && IsTimer(Enemy.HitFlash, 0.12F) &&
                                   IsTimer(Enemy.AiTimer, 0.6F) && IsTimer(Enemy.FireCooldown, 1.73F);
                        })},
        {"Obstacles", std::ranges::all_of(State.Obstacles,
                          [](const Obstacle &Obstacle) {
                              return IsOnItsLane(Obstacle) && Obstacle.Y >= -24.0F && Obstacle.Y <= 748.0F &&
                                     Obstacle.Hp >= 1 && Obstacle.Hp <= 4 && Obstacle.Type >= 0 &&
                                     Obstacle.Type <= 2 && IsTimer(Obstacle.HitFlash, 0.12F);
                          })},
        {"Items", std::ranges::all_of(State.Items,
                      [](const Item &Item) {
                          return IsOnItsLane(Item) && Item.Y >= -18.0F && Item.Y <= 744.0F &&
                                 Item.Type >= 0 && Item.Type <= 3;
                      })},
        {"Explosions", std::ranges::all_of(State.Explosions,
                           [](const Explosion &Explosion) {
                               return Explosion.Age >= 0.0F && Explosion.Age < Explosion.Life;
                           })},
        {"PendingSounds", State.PendingSounds.Count <= SoundQueue::Capacity},
    });
}

/// The first broken promise of the record by name; empty if it is whole.
std::string BrokenField(const GameState &State) {
    for (const auto broken : {BrokenFieldOfRun, BrokenFieldOfPlayer, BrokenList}) {
        std::string field = broken(State);
        if (!field.empty()) {
            return field;
        }
    }
    return {};
}

/// What one step may change and how: the broken promise by name; empty if all hold.
std::string BrokenStep(const GameState &Before, const GameState &After) {
    if (After.Score < Before.Score) {
        return "the score fell";
    }
    const std::int32_t extraLives = After.Stage / 5 - Before.Stage / 5;
    if (After.Player.Stocks < Before.Player.Stocks - 1 ||
        After.Player.Stocks > Before.Player.Stocks + extraLives) {
        return "lives came or went";
    }
    if (std::abs(After.PlayerLane - Before.PlayerLane) > 1 && After.Player.Stocks >= Before.Player.Stocks) {
        return "the car jumped lanes";
    }
    if (After.Stage < Before.Stage || After.Stage > Before.Stage + 1) {
        return "a stage was skipped";
    }
    return {};
}

/// No enemy backs up and none passes another: in a list that only lost entries and grew at its end, each
/// entry is at or below where the record before it in line stood.
std::string BackedUp(const std::vector<Enemy> &Before, const std::vector<Enemy> &After) {
    std::size_t i = 0;
    for (const Enemy &enemy : After) {
        // An enemy is known again by what never changes; those between were removed.
        while (i < Before.size() && (Before[i].Speed != enemy.Speed || Before[i].Y > enemy.Y)) {
            ++i;
        }
        if (i == Before.size()) {
            return enemy.Y <= -20.0F + 166.0F * 0.033F * 3.0F ? std::string() : "an enemy backed up";
        }
        ++i;
    }
    return {};
}

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
        ASSERT_EQ(BrokenField(state), "") << "seed " << Seed << ", step " << Run.Steps;
        ASSERT_EQ(BrokenStep(before, state), "") << "seed " << Seed << ", step " << Run.Steps;
        ASSERT_EQ(BackedUp(before.Enemies, state.Enemies), "") << "seed " << Seed << ", step " << Run.Steps;
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
