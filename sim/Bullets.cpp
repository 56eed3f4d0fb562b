#include "sim/Bullets.hpp"

#include "sim/Limits.hpp"
#include "state/GameState.hpp"

void MoveBullets(GameState &State, float dt) {
    for (Bullet &bullet : State.Bullets) {
        bullet.Y -= bullet.Speed * dt;
    }
    std::erase_if(State.Bullets, [](const Bullet &Shot) {
        return Shot.Y < BulletLeaveY;
    });
}
