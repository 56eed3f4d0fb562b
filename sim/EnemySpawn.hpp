#pragma once

struct GameState;

/// Counts SpawnTimer down by dt seconds, scaled by the road speed; at its end one enemy enters, in a random
/// lane that is clear, or none if none is, and the timer starts anew.
void SpawnEnemy(GameState &State, float dt);
