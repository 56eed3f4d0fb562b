#pragma once

struct GameState;

/// Lets every enemy think, drive and shoot for dt seconds. What an enemy sees of the others is where they
/// stood before any of them moved.
void MoveEnemies(GameState &State, float dt);
