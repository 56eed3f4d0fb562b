#include "sim/ShotHits.hpp"

#include "sim/Explosions.hpp"
#include "sim/Geometry.hpp"
#include "sim/ItemSpawn.hpp"
#include "sim/Score.hpp"
#include "sim/UsedUp.hpp"
#include "state/GameState.hpp"

#include <algorithm>
#include <vector>

namespace {

/// Takes one hit point and returns whether none is left. Hp below 0, which only a damaged file holds, counts
/// as 0, so that the smallest number does not overflow.
bool TakeHit(std::int32_t &Hp) {
    Hp = std::max(Hp, 0) - 1;
    return Hp <= 0;
}

void DestroyObstacle(GameState &State, const Obstacle &Obstacle) {
    AddScore(State, Obstacle.Score);
    AddExplosion(State, Obstacle.X, Obstacle.Y, DestroyedObstacleLook);
    PushSound(State, SfxId::ObstacleDown);
}

void DestroyEnemy(GameState &State, const Enemy &Enemy) {
    AddScore(State, Enemy.Score);
    AddExplosion(State, Enemy.X, Enemy.Y, DestroyedEnemyLook);
    PushSound(State, SfxId::EnemyDown);
    DropItem(State, Enemy.X, Enemy.Y);
}

/// Lets a shot hit the first of the targets that it touches, and returns whether it touches one. Destroy is
/// called when the target has left its list and cannot block the item that it drops.
template <typename Target>
bool HitFirst(GameState &State, const Bullet &Shot, std::vector<Target> &Targets, const ExplosionLook &Look,
    void (*Destroy)(GameState &State, const Target &Destroyed)) {
    const auto target = std::ranges::find_if(Targets, [&Shot](const Target &Candidate) {
        return Touches(Shot, Candidate);
    });
    if (target == Targets.end()) {
        return false;
    }
    target->HitFlash = HitFlashSeconds;
    AddExplosion(State, Shot.X, Shot.Y, Look);
    if (TakeHit(target->Hp)) {
        const Target destroyed = *target;
        Targets.erase(target);
        Destroy(State, destroyed);
    }
    return true;
}

} // namespace

void HitTargets(GameState &State) {
    RemoveUsedUp(State.Bullets, [&State](const Bullet &Shot) {
        return HitFirst(State, Shot, State.Obstacles, ShotOnObstacleLook, DestroyObstacle) ||
               HitFirst(State, Shot, State.Enemies, ShotOnEnemyLook, DestroyEnemy);
    });
}
