#pragma once

struct GameState;

/// Flies the player's shots up for dt seconds and removes those that have passed the top of the screen.
void MoveBullets(GameState &State, float dt);

/// Flies the enemies' shots straight down for dt seconds, a little faster on a faster road. MeetEnemyBullets
/// removes those that have passed the bottom.
void MoveEnemyBullets(GameState &State, float dt);
