#include "sim/Death.hpp"

#include "sim/Explosions.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"
#include "state/SaveRequest.hpp"

#include <algorithm>

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
