#include "sim/Contacts.hpp"

#include "sim/Damage.hpp"
#include "sim/Explosions.hpp"
#include "sim/Geometry.hpp"
#include "sim/RoadLines.hpp"
#include "sim/UsedUp.hpp"
#include "state/GameState.hpp"

#include <vector>

namespace {

constexpr std::int32_t RamDamage = 34;

std::int32_t CrashDamage(std::int32_t Type) {
    switch (Type) {
    case ObstacleTypeBarrier:
        return 24;
    case ObstacleTypeRock:
        return 22;
    default: // a log, and what is of no known type
        return 18;
    }
}

/// Removes what touches the player, each with its explosion and then its damage, and what has passed LeaveY.
template <typename Thing, typename Damage>
void MeetAll(
    GameState &State, std::vector<Thing> &Things, float LeaveY, const ExplosionLook &Look, Damage DamageOf) {
    RemoveUsedUp(Things, [&](const Thing &Met) {
        if (!Touches(State.Player, Met)) {
            return Met.Y > LeaveY;
        }
        AddExplosion(State, Met.X, Met.Y, Look);
        DamagePlayer(State, DamageOf(Met));
        return true;
    });
}

} // namespace

void MeetEnemies(GameState &State) {
    MeetAll(State, State.Enemies, EnemyLeaveY, RamLook, [](const Enemy &) {
        return RamDamage;
    });
}

void MeetEnemyBullets(GameState &State) {
    MeetAll(State, State.EnemyBullets, EnemyBulletLeaveY, ShotOnPlayerLook, [](const EnemyBullet &Shot) {
        return Shot.Damage;
    });
}

void MeetObstacles(GameState &State) {
    MeetAll(State, State.Obstacles, ObstacleLeaveY, ObstacleCrashLook, [](const Obstacle &Obstacle) {
        return CrashDamage(Obstacle.Type);
    });
}
