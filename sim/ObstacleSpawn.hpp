#pragma once

struct GameState;

/// Counts ObstacleSpawnTimer down by dt seconds, scaled by the road speed; at its end one obstacle enters, in
/// a random lane that is clear, or none if none is, and the timer starts anew.
void SpawnObstacle(GameState &State, float dt);
