#include "sim/Fire.hpp"

#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <algorithm>

namespace {

constexpr float SalvoCost = 3.0F;
constexpr float DualSalvoCost = 4.5F;
constexpr float FireSeconds = 0.1F;
constexpr float RefillPauseSeconds = 0.24F;
static_assert(RefillPauseSeconds > FireSeconds, "no refill between the salvos of a held gun");
constexpr float RefillPerSecond = 26.0F;
constexpr float MuzzleDistance = 14.0F;
constexpr float DualMuzzleOffset = 6.0F;
constexpr float BulletSpeed = 430.0F;
constexpr float BulletRadius = 2.0F;

void AddBullet(GameState &State, float X) {
    State.Bullets.push_back({X, State.Player.Y - MuzzleDistance, BulletSpeed, BulletRadius});
}

} // namespace

void FireGun(GameState &State, const StepInput &StepInput) {
    const bool dual = State.DualWeaponPowerTimer > 0.0F;
    const float cost = dual ? DualSalvoCost : SalvoCost;
    if (!StepInput.Fire || State.Player.FireCooldown > 0.0F || State.AmmoMeter < cost) {
        return;
    }
    if (dual) {
        AddBullet(State, State.Player.X - DualMuzzleOffset);
        AddBullet(State, State.Player.X + DualMuzzleOffset);
    } else {
        AddBullet(State, State.Player.X);
    }
    // NOT-BUGS: Shots, lane moves and spawns come a little later at a low frame rate
    State.Player.FireCooldown = FireSeconds;
    State.AmmoRegenPause = RefillPauseSeconds;
    State.AmmoMeter -= cost;
    PushSound(State, SfxId::PlayerFire);
}

void RefillAmmo(GameState &State, float dt) {
    if (State.AmmoRegenPause <= 0.0F) {
        State.AmmoMeter = std::min(MaxAmmo, State.AmmoMeter + RefillPerSecond * dt);
    }
}
