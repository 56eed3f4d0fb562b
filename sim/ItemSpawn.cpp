#include "sim/ItemSpawn.hpp"

#include "sim/Difficulty.hpp"
#include "sim/Lanes.hpp"
#include "sim/Random.hpp"
#include "sim/Road.hpp"
#include "sim/RoadLines.hpp"
#include "sim/SpawnClearance.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr float ItemRadius = 10.0F;
constexpr float DropChance = 0.08F;

/// Draws a type by need. A full pocket of kits or bombs gives way to the other where that one is still
/// wanted.
ItemType DrawType(GameState &State) {
    const bool kitsFull = State.FirstAidKits >= MaxFirstAidKits;
    const bool bombsFull = State.Bombs >= MaxBombs;
    const float health = static_cast<float>(State.Player.Hp) / static_cast<float>(State.Player.MaxHp);
    // Each bound is the one before it plus the weight of its type.
    const float firstAid = (1.0F - health) * 0.95F + (kitsFull ? 0.03F : 0.35F);
    const float bomb = firstAid + (bombsFull ? 0.05F : 0.7F);
    const float invincibility = bomb + (State.InvincibilityPowerTimer > 0.0F ? 0.08F : 0.3F);
    const float dualWeapon = invincibility + (State.DualWeaponPowerTimer > 0.0F ? 0.08F : 0.34F);
    const float r = RandomFloat(State, 0.0F, 1.0F) * dualWeapon;
    if (r < firstAid) {
        return kitsFull && !bombsFull ? ItemTypeBomb : ItemTypeFirstAid;
    }
    if (r < bomb) {
        return bombsFull && !kitsFull ? ItemTypeFirstAid : ItemTypeBomb;
    }
    return r < invincibility ? ItemTypeInvincibility : ItemTypeDualWeapon;
}

/// The lane whose centre is closest to X, the lower number on a tie.
std::int32_t NearestLane(float X) {
    return *std::ranges::min_element(LanesFromLeft, {}, [X](std::int32_t Lane) {
        return std::abs(LaneCenterX(Lane) - X);
    });
}

/// All lanes from Start outward, the left one of each pair first.
LaneOrder LanesOutwardFrom(std::int32_t Start) {
    LaneOrder lanes = LanesFromLeft;
    std::ranges::sort(lanes, {}, [Start](std::int32_t Lane) {
        return 2 * std::abs(Lane - Start) + (Lane > Start ? 1 : 0);
    });
    return lanes;
}

} // namespace

void SpawnTimedItem(GameState &State, float dt) {
    CountDown(State.ItemSpawnTimer, SpeedScale(State) * dt);
    if (State.ItemSpawnTimer > 0.0F) {
        return;
    }
    SpawnItem(State, AnyLane, AtSpawnLine);
    State.ItemSpawnTimer = RandomFloat(State, 9.0F, 14.0F);
}

void SpawnItem(GameState &State, float X, float Y) {
    Item item;
    item.Type = DrawType(State);
    item.Y = Y < 0.0F ? ItemSpawnY : Y;
    item.Speed = ItemSpeed(State.Stage);
    item.Radius = ItemRadius;
    SpawnInClearLane(State, X < 0.0F ? ShuffledLanes(State) : LanesOutwardFrom(NearestLane(X)), item);
}

void DropItem(GameState &State, float X, float Y) {
    if (RandomFloat(State, 0.0F, 1.0F) < DropChance) {
        SpawnItem(State, X, Y);
    }
}
