#pragma once

struct GameState;

/// Begins the death of the player: PlayerDying is set, and all shots are removed, also those of a list that a
/// caller is walking through.
void BeginDeath(GameState &State);

/// The step of dt seconds while PlayerDying is set: only the explosions go on. When DeathTimer has run out
/// the run is over: ScreenGameOver shows, HasRunState is false, and a save is asked for at once.
void DyingStep(GameState &State, float dt);
