#include "sim/Damage.hpp"

#include "sim/Bursts.hpp"
#include "sim/Lanes.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <algorithm>
#include <limits>

namespace {

constexpr float HurtSeconds = 1.0F;    ///< without further damage after a blow
constexpr float RespawnSeconds = 2.0F; ///< the same after a lost life
constexpr float DeathSeconds = 0.85F;

/// Stops at the ends of the 32 bits: a damaged file may hold a shot of any damage.
std::int32_t Subtract(std::int32_t Hp, std::int32_t Amount) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t rest = std::int64_t{Hp} - Amount;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(rest, Limits::min(), Limits::max()));
}

void Respawn(GameState &State) {
    Player &player = State.Player;
    --player.Stocks;
    State.PlayerLane = PlayerStartLane;
    player.Hp = player.MaxHp;
    player.X = LaneCenterX(PlayerStartLane);
    player.Y = PlayerY;
    State.InvulnerabilityTimer = RespawnSeconds;
    State.LaneMoveCooldown = 0.0F;
    AddBurst(State, Burst::Respawn, player.X, player.Y);
}

void BeginDeath(GameState &State) {
    Player &player = State.Player;
    State.PlayerDying = true;
    player.Hp = 0;
    State.DeathTimer = DeathSeconds;
    State.InvulnerabilityTimer = std::max(DeathSeconds, State.InvulnerabilityTimer);
    player.FireCooldown = 0.0F;
    State.Bullets.clear();
    State.EnemyBullets.clear();
    AddBurst(State, Burst::DyingPlayerFirst, player.X, player.Y);
    AddBurst(State, Burst::DyingPlayerSecond, player.X, player.Y);
}

} // namespace

void DamagePlayer(GameState &State, std::int32_t Amount) {
    Player &player = State.Player;
    if (State.InvulnerabilityTimer > 0.0F || State.InvincibilityPowerTimer > 0.0F ||
        State.Screen != ScreenPlaying || State.PlayerDying) {
        return;
    }
    player.Hp = Subtract(player.Hp, Amount);
    State.InvulnerabilityTimer = HurtSeconds;
    AddBurst(State, Burst::PlayerDamage, player.X, player.Y);
    PushSound(State, SfxId::PlayerHit);
    if (player.Hp > 0) {
        return;
    }
    PushSound(State, SfxId::PlayerDeath);
    if (player.Stocks > 0) {
        Respawn(State);
    } else {
        BeginDeath(State);
    }
}
