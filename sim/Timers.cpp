#include "sim/Timers.hpp"

#include "state/GameState.hpp"

#include <algorithm>

void CountDown(float &Timer, float dt) {
    // With the arguments in this order NaN becomes 0 as well.
    Timer = std::max(0.0F, Timer - dt);
}

void RunTimers(GameState &State, float dt) {
    CountDown(State.Player.FireCooldown, dt);
    CountDown(State.InvulnerabilityTimer, dt);
    CountDown(State.LaneMoveCooldown, dt);
    CountDown(State.AmmoRegenPause, dt);
    CountDown(State.InvincibilityPowerTimer, dt);
    CountDown(State.DualWeaponPowerTimer, dt);
    CountDown(State.ReadyBanner, dt);
    if (State.SpecialActive) {
        CountDown(State.SpecialTimer, dt);
        State.SpecialActive = State.SpecialTimer > 0.0F;
    }
}
