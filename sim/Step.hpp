#pragma once

#include "sim/StepInput.hpp"

struct GameState;

/// Advances the run by one frame of DeltaSeconds (0 or more). Called once a frame on ScreenPlaying; results
/// are the changed records, the sounds asked for, and at a death's end the change to ScreenGameOver.
void SimulationStep(GameState &State, float DeltaSeconds, const StepInput &StepInput);
