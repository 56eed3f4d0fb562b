#pragma once

#include "sim/StepInput.hpp"

struct GameState;

/// Jumps one lane where exactly one direction is held and the cooldown has run out. The cooldown starts anew
/// also at the road's edge.
void MoveLane(GameState &State, const StepInput &StepInput);

/// Fires a salvo where fire is held, the gun is ready and the meter can pay: one shot, or two with the dual
/// weapon.
void FireGun(GameState &State, const StepInput &StepInput);

/// Refills the ammunition meter unless a shot has just been fired.
void RefillAmmo(GameState &State, float dt);

/// Uses a first aid kit, on ScreenPlaying and not while dying. Without a kit or at full health nothing
/// happens and nothing sounds.
void UseFirstAid(GameState &State);
