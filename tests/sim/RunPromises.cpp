#include "tests/sim/RunPromises.hpp"

#include "sim/Lanes.hpp"
#include "state/GameState.hpp"
#include "tests/support/Promises.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

bool IsTimer(float Value, float Most) {
    return Value >= 0.0F && Value <= Most;
}

template <typename Thing> bool IsOnItsLane(const Thing &Other) {
    return Other.Lane >= 0 && Other.Lane < LaneCount && Other.X == LaneCenterX(Other.Lane);
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
        {"Hp", player.Hp >= 0 && player.Hp <= player.MaxHp},
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

/// No enemy backs up and none passes another: in a list that only lost entries and grew at its end, each
/// entry is at or below where the record before it in line stood.
bool HasBackedUp(const std::vector<Enemy> &Before, const std::vector<Enemy> &After) {
    std::size_t i = 0;
    for (const Enemy &enemy : After) {
        // An enemy is known again by what never changes; those between were removed.
        while (i < Before.size() && (Before[i].Speed != enemy.Speed || Before[i].Y > enemy.Y)) {
            ++i;
        }
        if (i == Before.size()) {
            return enemy.Y > -20.0F + 166.0F * 0.033F * 3.0F;
        }
        ++i;
    }
    return false;
}

/// Whether the car drives on with no health left, as it only does in a run that was saved while it was dying.
bool DrivesWithoutHealth(const GameState &State) {
    return State.HasRunState && State.Player.Hp <= 0 && !State.PlayerDying;
}

} // namespace

std::string BrokenRun(const GameState &State) {
    for (const auto broken : {BrokenFieldOfRun, BrokenFieldOfPlayer, BrokenList}) {
        std::string field = broken(State);
        if (!field.empty()) {
            return field;
        }
    }
    return {};
}

std::string BrokenStep(const GameState &Before, const GameState &After) {
    const std::int32_t lives = After.Player.Stocks - Before.Player.Stocks;
    const std::int32_t extraLives = After.Stage / 5 - Before.Stage / 5;
    return FirstBroken({
        {"the score does not fall", After.Score >= Before.Score},
        {"the high score does not fall", After.HighScore >= Before.HighScore},
        {"lives do not come or go", lives >= -1 && lives <= extraLives},
        {"the car jumps no lane", std::abs(After.PlayerLane - Before.PlayerLane) <= 1 || lives < 0},
        {"no stage is skipped", After.Stage >= Before.Stage && After.Stage <= Before.Stage + 1},
        {"without health the car dies", !DrivesWithoutHealth(After) || DrivesWithoutHealth(Before)},
        {"no enemy backs up", !HasBackedUp(Before.Enemies, After.Enemies)},
    });
}
