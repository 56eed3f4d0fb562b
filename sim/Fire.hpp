#pragma once

#include "sim/StepInput.hpp"

struct GameState;

/// Fires a salvo where fire is held, the gun is ready and the meter can pay: one shot, or two with the dual
/// weapon.
void FireGun(GameState &State, const StepInput &StepInput);

/// Refills the ammunition meter unless a shot has just been fired.
void RefillAmmo(GameState &State, float dt);
