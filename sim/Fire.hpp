#pragma once

#include "sim/StepInput.hpp"

struct GameState;

/// Fires a salvo, one shot or two with the dual weapon, if the fire control is held, FireCooldown has run out
/// and AmmoMeter holds its cost. It makes one sound.
void FireGun(GameState &State, const StepInput &StepInput);

/// Refills AmmoMeter for dt seconds, up to MaxAmmo, unless AmmoRegenPause still runs after a salvo.
void RefillAmmo(GameState &State, float dt);
