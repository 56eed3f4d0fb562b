#include "sim/Damage.hpp"

#include "sim/Death.hpp"
#include "sim/Explosions.hpp"
#include "sim/Lanes.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"

#include <algorithm>
#include <limits>

namespace {

constexpr float HurtSeconds = 1.0F;    ///< nothing hurts after a blow
constexpr float RespawnSeconds = 2.0F; ///< nothing hurts after a lost life

/// Hp less Amount, kept within 32 bits: a damaged file may hold a shot of any damage.
std::int32_t SaturatingSubtract(std::int32_t Hp, std::int32_t Amount) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t rest = std::int64_t{Hp} - Amount;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(rest, Limits::min(), Limits::max()));
}

void Respawn(GameState &State) {
    Player &player = State.Player;
    --player.Stocks;
    State.PlayerLane = MiddleLane;
    player.Hp = player.MaxHp;
    player.X = LaneCenterX(MiddleLane);
    player.Y = PlayerY;
    State.InvulnerabilityTimer = RespawnSeconds;
    State.LaneMoveCooldown = 0.0F;
    AddExplosion(State, player.X, player.Y, RespawnLook);
}

} // namespace

void DamagePlayer(GameState &State, std::int32_t Amount) {
    Player &player = State.Player;
    if (State.InvulnerabilityTimer > 0.0F || State.InvincibilityPowerTimer > 0.0F ||
        State.Screen != ScreenPlaying || State.PlayerDying) {
        return;
    }
    player.Hp = SaturatingSubtract(player.Hp, Amount);
    State.InvulnerabilityTimer = HurtSeconds;
    AddExplosion(State, player.X, player.Y, PlayerDamageLook);
    PushSound(State, SfxId::PlayerHit);
    if (player.Hp > 0) {
        return;
    }
    // NOT-BUGS: A lost life plays two sounds
    PushSound(State, SfxId::PlayerDeath);
    if (player.Stocks > 0) {
        Respawn(State);
    } else {
        BeginDeath(State);
    }
}
