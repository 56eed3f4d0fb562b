#include "sim/ItemSpawn.hpp"

#include "sim/Difficulty.hpp"
#include "sim/ItemType.hpp"
#include "sim/Lanes.hpp"
#include "sim/Random.hpp"
#include "sim/Road.hpp"
#include "sim/SpawnClearance.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <cmath>

namespace {

constexpr float ItemRadius = 10.0F;
constexpr float DropChance = 0.08F;

using LaneOrder = std::array<std::int32_t, LaneCount>;

bool KitsFull(const GameState &State) {
    return State.FirstAidKits >= MaxFirstAidKits;
}

bool BombsFull(const GameState &State) {
    return State.Bombs >= MaxBombs;
}

float FirstAidWeight(const GameState &State) {
    const float health = static_cast<float>(State.Player.Hp) / static_cast<float>(State.Player.MaxHp);
    return (1.0F - health) * 0.95F + (KitsFull(State) ? 0.03F : 0.35F);
}

float BombWeight(const GameState &State) {
    return BombsFull(State) ? 0.05F : 0.7F;
}

float InvincibilityWeight(const GameState &State) {
    return State.InvincibilityPowerTimer > 0.0F ? 0.08F : 0.3F;
}

float DualWeaponWeight(const GameState &State) {
    return State.DualWeaponPowerTimer > 0.0F ? 0.08F : 0.34F;
}

/// Draws a type by need; a full pocket of kits or bombs gives way to the other where that one is still
/// wanted.
std::int32_t DrawType(GameState &State) {
    const float c1 = FirstAidWeight(State);
    const float c2 = c1 + BombWeight(State);
    const float c3 = c2 + InvincibilityWeight(State);
    const float total = c3 + DualWeaponWeight(State);
    const float r = RandomFloat(State, 0.0F, 1.0F) * total;
    if (r < c1) {
        return KitsFull(State) && !BombsFull(State) ? ItemTypeBomb : ItemTypeFirstAid;
    }
    if (r < c2) {
        return BombsFull(State) && !KitsFull(State) ? ItemTypeFirstAid : ItemTypeBomb;
    }
    return r < c3 ? ItemTypeInvincibility : ItemTypeDualWeapon;
}

/// The lane whose centre is closest to X, the lower number on a tie.
std::int32_t NearestLane(float X) {
    std::int32_t nearest = 0;
    for (std::int32_t lane = 1; lane < LaneCount; ++lane) {
        if (std::abs(LaneCenterX(lane) - X) < std::abs(LaneCenterX(nearest) - X)) {
            nearest = lane;
        }
    }
    return nearest;
}

/// All lanes from Start outward, the left one of each pair first.
LaneOrder LanesOutwardFrom(std::int32_t Start) {
    LaneOrder lanes{Start};
    std::size_t count = 1;
    const auto add = [&lanes, &count](std::int32_t Lane) {
        if (Lane >= 0 && Lane < LaneCount) {
            lanes[count] = Lane;
            ++count;
        }
    };
    for (std::int32_t distance = 1; distance < LaneCount; ++distance) {
        add(Start - distance);
        add(Start + distance);
    }
    return lanes;
}

} // namespace

void SpawnTimedItem(GameState &State, float dt) {
    CountDown(State.ItemSpawnTimer, SpeedScale(State) * dt);
    if (State.ItemSpawnTimer > 0.0F) {
        return;
    }
    SpawnItem(State, -1.0F, -1.0F);
    State.ItemSpawnTimer = RandomFloat(State, 9.0F, 14.0F);
}

void SpawnItem(GameState &State, float X, float Y) {
    Item item;
    item.Type = DrawType(State);
    item.Y = Y < 0.0F ? ItemSpawnY : Y;
    item.Speed = ItemSpeed(State.Stage);
    item.Radius = ItemRadius;
    for (const std::int32_t lane : X < 0.0F ? ShuffledLanes(State) : LanesOutwardFrom(NearestLane(X))) {
        item.Lane = lane;
        item.X = LaneCenterX(lane);
        if (IsSpawnClear(State, item.X, item.Y, item.Radius)) {
            State.Items.push_back(item);
            return;
        }
    }
}

void DropItem(GameState &State, float X, float Y) {
    if (RandomFloat(State, 0.0F, 1.0F) < DropChance) {
        SpawnItem(State, X, Y);
    }
}
