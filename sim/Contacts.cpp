#include "sim/Contacts.hpp"

#include "sim/Bursts.hpp"
#include "sim/Damage.hpp"
#include "sim/Geometry.hpp"
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
void MeetAll(
    GameState &State, std::vector<Thing> GameState::*List, float LeaveY, Burst Occasion, DamageOf Damage) {
    std::vector<Thing> &things = State.*List;
    for (std::size_t i = 0; i < things.size();) {
        const Thing thing = things[i];
        const bool touches = TouchesPlayer(State.Player, thing);
        if (!touches && !(thing.Y > LeaveY)) {
            ++i;
            continue;
        }
        things.erase(things.begin() + static_cast<std::ptrdiff_t>(i));
        if (touches) {
            AddBurst(State, Occasion, thing.X, thing.Y);
            DamagePlayer(State, Damage(thing)); // the last life lost empties the list of shots
        }
    }
}

} // namespace

void MeetEnemies(GameState &State) {
    MeetAll(State, &GameState::Enemies, EnemyLeaveY, Burst::Ram, [](const Enemy &) {
        return RamDamage;
    });
}

void MeetEnemyBullets(GameState &State) {
    MeetAll(
        State, &GameState::EnemyBullets, EnemyBulletLeaveY, Burst::EnemyShot, [](const EnemyBullet &Shot) {
            return Shot.Damage;
        });
}

void MeetObstacles(GameState &State) {
    MeetAll(State, &GameState::Obstacles, ObstacleLeaveY, Burst::ObstacleCrash, [](const Obstacle &Obstacle) {
        return CrashDamageOf(Obstacle.Type);
    });
}
