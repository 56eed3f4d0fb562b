#include "sim/PlayerControls.hpp"

#include "sim/Bursts.hpp"
#include "sim/Lanes.hpp"
#include "sim/Limits.hpp"
#include "state/GameState.hpp"

#include <algorithm>

namespace {

constexpr float LaneMoveSeconds = 0.09F;

constexpr float SalvoCost = 3.0F;
constexpr float DualSalvoCost = 4.5F;
constexpr float FireSeconds = 0.1F;
constexpr float RefillPauseSeconds = 0.24F; ///< longer than FireSeconds: held fire never refills
constexpr float RefillPerSecond = 26.0F;
constexpr float MuzzleDistance = 14.0F;
constexpr float DualMuzzleOffset = 6.0F;
constexpr float BulletSpeed = 430.0F;
constexpr float BulletRadius = 2.0F;

constexpr std::int32_t FirstAidHp = 35;

void AddBullet(GameState &State, float X) {
    State.Bullets.push_back({X, State.Player.Y - MuzzleDistance, BulletSpeed, BulletRadius});
}

} // namespace

void MoveLane(GameState &State, const StepInput &StepInput) {
    if (StepInput.MoveLeft == StepInput.MoveRight || State.LaneMoveCooldown > 0.0F) {
        return;
    }
    State.PlayerLane = ClampLane(State.PlayerLane + (StepInput.MoveLeft ? -1 : 1));
    State.LaneMoveCooldown = LaneMoveSeconds; // at the road's edge too, where the lane stays
    State.Player.X = LaneCenterX(State.PlayerLane);
}

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
    State.Player.FireCooldown = FireSeconds;
    State.AmmoRegenPause = RefillPauseSeconds;
    State.AmmoMeter -= cost;
    PushSound(State, SfxId::PlayerFire);
}

void RefillAmmo(GameState &State, float dt) {
    if (State.AmmoRegenPause <= 0.0F) {
        State.AmmoMeter = std::min(State.AmmoMeter + RefillPerSecond * dt, MaxAmmo);
    }
}

void UseFirstAid(GameState &State) {
    Player &player = State.Player;
    if (State.Screen != ScreenPlaying || State.PlayerDying) {
        return;
    }
    if (State.FirstAidKits < 1 || player.Hp >= player.MaxHp) {
        return;
    }
    player.Hp += std::min(FirstAidHp, player.MaxHp - player.Hp); // a file may hold any MaxHp: no sum above it
    --State.FirstAidKits;
    AddBurst(State, Burst::FirstAid, player.X, player.Y);
    PushSound(State, SfxId::PlayerHeal);
}
