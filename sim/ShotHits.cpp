#include "sim/ShotHits.hpp"

#include "sim/Bursts.hpp"
#include "sim/Geometry.hpp"
#include "sim/ItemSpawn.hpp"
#include "sim/Score.hpp"
#include "sim/UsedUp.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <algorithm>

namespace {

/// Takes one hit point and tells whether none is left. Below 0, which only a damaged file holds, it stays one
/// hit.
bool TakePoint(std::int32_t &Hp) {
    Hp = std::max(Hp, 0) - 1;
    return Hp <= 0;
}

void DestroyObstacle(GameState &State, std::vector<Obstacle>::iterator Target) {
    AddScore(State, ScoreForStage(Target->Score, State.Stage));
    AddBurst(State, Burst::DestroyedObstacle, Target->X, Target->Y);
    PushSound(State, SfxId::ObstacleDown);
    State.Obstacles.erase(Target);
}

void DestroyEnemy(GameState &State, std::vector<Enemy>::iterator Target) {
    const float x = Target->X;
    const float y = Target->Y;
    AddScore(State, ScoreForStage(Target->Score, State.Stage));
    AddBurst(State, Burst::DestroyedEnemy, x, y);
    PushSound(State, SfxId::EnemyDown);
    State.Enemies.erase(Target);
    DropItem(State, x, y);
}

bool HitObstacle(GameState &State, const Bullet &Bullet) {
    const auto target = std::ranges::find_if(State.Obstacles, [&Bullet](const Obstacle &Obstacle) {
        return CircleHitsRect(
            Bullet.X, Bullet.Y, Bullet.Radius, Obstacle.X, Obstacle.Y, Obstacle.Width, Obstacle.Height);
    });
    if (target == State.Obstacles.end()) {
        return false;
    }
    const bool destroyed = TakePoint(target->Hp);
    target->HitFlash = HitFlashSeconds;
    AddBurst(State, Burst::ShotOnObstacle, Bullet.X, Bullet.Y);
    if (destroyed) {
        DestroyObstacle(State, target);
    }
    return true;
}

bool HitEnemy(GameState &State, const Bullet &Bullet) {
    const auto target = std::ranges::find_if(State.Enemies, [&Bullet](const Enemy &Enemy) {
        return CirclesTouch(Enemy.X, Enemy.Y, Enemy.Radius, Bullet.X, Bullet.Y, Bullet.Radius);
    });
    if (target == State.Enemies.end()) {
        return false;
    }
    const bool destroyed = TakePoint(target->Hp);
    target->HitFlash = HitFlashSeconds;
    AddBurst(State, Burst::ShotOnEnemy, Bullet.X, Bullet.Y);
    if (destroyed) {
        DestroyEnemy(State, target);
    }
    return true;
}

} // namespace

void HitTargets(GameState &State) {
    RemoveUsedUp(State.Bullets, [&State](const Bullet &Shot) {
        return HitObstacle(State, Shot) || HitEnemy(State, Shot);
    });
}
