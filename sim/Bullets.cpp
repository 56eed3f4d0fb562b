#include "sim/Bullets.hpp"

#include "sim/RoadLines.hpp"
#include "state/GameState.hpp"

namespace {

constexpr float RoadShare = 0.12F; ///< of the road's speed, added to an enemy shot's own

} // namespace

void MoveBullets(GameState &State, float dt) {
    for (Bullet &bullet : State.Bullets) {
        bullet.Y -= bullet.Speed * dt;
    }
    std::erase_if(State.Bullets, [](const Bullet &Shot) {
        return Shot.Y < BulletLeaveY;
    });
}

void MoveEnemyBullets(GameState &State, float dt) {
    for (EnemyBullet &bullet : State.EnemyBullets) {
        bullet.Y += (State.CurrentScrollSpeed * RoadShare + bullet.Speed) * dt;
    }
}
