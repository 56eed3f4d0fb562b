#include "sim/Death.hpp"

#include "sim/Explosions.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"
#include "state/SaveRequest.hpp"

#include <algorithm>

namespace {

constexpr float DeathSeconds = 0.85F; ///< the death is shown

} // namespace

void BeginDeath(GameState &State) {
    Player &player = State.Player;
    State.PlayerDying = true;
    player.Hp = 0;
    State.DeathTimer = DeathSeconds;
    State.InvulnerabilityTimer = std::max(DeathSeconds, State.InvulnerabilityTimer);
    player.FireCooldown = 0.0F;
    State.Bullets.clear();
    State.EnemyBullets.clear();
    AddExplosion(State, player.X, player.Y, DyingPlayerFirstLook);
    AddExplosion(State, player.X, player.Y, DyingPlayerSecondLook);
}

void DyingStep(GameState &State, float dt) {
    CountDown(State.DeathTimer, dt);
    AgeExplosions(State, dt);
    if (State.DeathTimer > 0.0F) {
        return;
    }
    State.PlayerDying = false;
    State.Screen = ScreenGameOver;
    State.HasRunState = false;
    State.HighScore = std::max(State.HighScore, State.Score);
    RequestSave(State, 0.0F);
}
