#pragma once

struct GameState;

/// Flies the player's shots up for dt seconds; those that are past the top leave, the others keep their
/// order.
void MoveBullets(GameState &State, float dt);

/// Flies the enemies' shots straight down for dt seconds, a little faster on a faster road.
void MoveEnemyBullets(GameState &State, float dt);
