#pragma once

struct GameState;

/// Runs the obstacle timer down by dt scaled seconds and at its end lets one obstacle in, in a random lane
/// where it keeps clear of everything. Where all nine are blocked the round is lost.
void SpawnObstacle(GameState &State, float dt);
