#pragma once

struct GameState;

/// Lets every enemy think, drive and shoot for dt seconds. What an enemy sees of the others is where they
/// stood at the start of the frame.
void MoveEnemies(GameState &State, float dt);
