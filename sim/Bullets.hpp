#pragma once

struct GameState;

/// Flies the player's shots up for dt seconds; those that are past the top leave, the others keep their
/// order.
void MoveBullets(GameState &State, float dt);
