#pragma once

struct GameState;

/// Runs the enemy timer down by dt scaled seconds and at its end lets one enemy in, in a random lane that is
/// clear. Where all nine are blocked the round is lost.
void SpawnEnemy(GameState &State, float dt);
