#pragma once

struct GameState;

/// The step while the last life's burst runs: nothing but the burst moves. At its end the run is over: the
/// game over screen shows, and the save that is asked for holds no run.
void DyingStep(GameState &State, float dt);
