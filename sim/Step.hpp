#pragma once

#include "sim/StepInput.hpp"

struct GameState;

/// Advances the run by one frame of DeltaSeconds, 0 or more. Contacts are tested where things stand, not
/// along their way, so the caller keeps it short. Called once a frame on ScreenPlaying; results are the
/// changed records, the sounds asked for, a save asked for within 0.8 seconds, and at a death's end the
/// change to ScreenGameOver. While the player dies StepInput has no effect.
void SimulationStep(GameState &State, float DeltaSeconds, const StepInput &StepInput);
