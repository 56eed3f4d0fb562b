#pragma once

struct GameState;

/// The step of dt seconds while PlayerDying is set: only the explosions go on. When DeathTimer has run out
/// the run is over: ScreenGameOver shows, HasRunState is false, and a save is asked for at once.
void DyingStep(GameState &State, float dt);
