#pragma once

#include "sim/StepInput.hpp"

struct GameState;

/// Puts the player one lane further if exactly one direction is held and LaneMoveCooldown has run out, and
/// starts that anew, also at the road's edge.
void MoveLane(GameState &State, const StepInput &StepInput);
