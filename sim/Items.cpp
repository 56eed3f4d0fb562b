#include "sim/Items.hpp"

#include "sim/Geometry.hpp"
#include "sim/Lanes.hpp"
#include "sim/Road.hpp"
#include "sim/RoadLines.hpp"
#include "sim/Score.hpp"
#include "sim/UsedUp.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <algorithm>

namespace {

constexpr float ItemLead = 2.0F;               ///< pixels a second, for RollingDistance
constexpr std::int32_t FullPocketPoints = 300; ///< before stage scaling
constexpr float InvincibilitySeconds = 6.0F;
constexpr float DualWeaponSeconds = 8.0F;

/// One more in a pocket, or points where it is full.
void Pocket(GameState &State, std::int32_t &Held, std::int32_t Most) {
    if (Held < Most) {
        ++Held;
    } else {
        AddScore(State, FullPocketPoints);
    }
}

void ApplyItem(GameState &State, std::int32_t Type) {
    switch (Type) {
    case ItemTypeFirstAid:
        Pocket(State, State.FirstAidKits, MaxFirstAidKits);
        break;
    case ItemTypeBomb:
        Pocket(State, State.Bombs, MaxBombs);
        break;
    // NOT-BUGS: Power-ups do not add up
    case ItemTypeInvincibility:
        State.InvincibilityPowerTimer = std::max(InvincibilitySeconds, State.InvincibilityPowerTimer);
        break;
    case ItemTypeDualWeapon:
        State.DualWeaponPowerTimer = std::max(DualWeaponSeconds, State.DualWeaponPowerTimer);
        break;
    default:
        break;
    }
}

bool PickUp(GameState &State, const Item &Item) {
    if (!Touches(State.Player, Item)) {
        return false;
    }
    ApplyItem(State, Item.Type);
    PushSound(State, SfxId::Item);
    return true;
}

} // namespace

void MoveItems(GameState &State, float dt) {
    for (Item &item : State.Items) {
        item.X = LaneCenterX(item.Lane);
        item.Y += RollingDistance(State, item.Speed, ItemLead, dt);
    }
}

void PickUpItems(GameState &State) {
    RemoveUsedUp(State.Items, [&State](const Item &Item) {
        return PickUp(State, Item) || Item.Y > ItemLeaveY;
    });
}
