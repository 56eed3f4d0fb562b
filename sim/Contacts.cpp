#include "sim/Contacts.hpp"

#include "sim/Bursts.hpp"
#include "sim/Damage.hpp"
#include "sim/Geometry.hpp"
#include "sim/UsedUp.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <array>

namespace {

constexpr std::int32_t RamDamage = 34;
constexpr std::array<std::int32_t, 3> CrashDamage{24, 18, 22}; ///< by the obstacle's type

std::int32_t CrashDamageOf(std::int32_t Type) {
    return CrashDamage[Type == 0 || Type == 2 ? static_cast<std::size_t>(Type) : 1];
}

template <typename Thing> bool TouchesPlayer(const Player &Player, const Thing &Other) {
    return CirclesTouch(Player.X, Player.Y, Player.Radius, Other.X, Other.Y, Other.Radius);
}

bool TouchesPlayer(const Player &Player, const Obstacle &Other) {
    return CircleHitsRect(Player.X, Player.Y, Player.Radius, Other.X, Other.Y, Other.Width, Other.Height);
}

/// Removes what touches the player, each with its burst and then its damage, and what has left the screen.
template <typename Thing, typename DamageOf>
void MeetAll(GameState &State, std::vector<Thing> &Things, float LeaveY, Burst Occasion, DamageOf Damage) {
    RemoveUsedUp(Things, [&](const Thing &Met) {
        if (!TouchesPlayer(State.Player, Met)) {
            return Met.Y > LeaveY;
        }
        AddBurst(State, Occasion, Met.X, Met.Y);
        DamagePlayer(State, Damage(Met)); // the last life lost empties the list of shots
        return true;
    });
}

} // namespace

void MeetEnemies(GameState &State) {
    MeetAll(State, State.Enemies, EnemyLeaveY, Burst::Ram, [](const Enemy &) {
        return RamDamage;
    });
}

void MeetEnemyBullets(GameState &State) {
    MeetAll(State, State.EnemyBullets, EnemyBulletLeaveY, Burst::EnemyShot, [](const EnemyBullet &Shot) {
        return Shot.Damage;
    });
}

void MeetObstacles(GameState &State) {
    MeetAll(State, State.Obstacles, ObstacleLeaveY, Burst::ObstacleCrash, [](const Obstacle &Obstacle) {
        return CrashDamageOf(Obstacle.Type);
    });
}
