#pragma once

#include "sim/StepInput.hpp"

struct GameState;

/// Jumps one lane where exactly one direction is held and the cooldown has run out. The cooldown starts anew
/// also at the road's edge.
void MoveLane(GameState &State, const StepInput &StepInput);
