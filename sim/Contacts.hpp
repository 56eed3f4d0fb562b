#pragma once

struct GameState;

// What touches the player's car is removed, whether it hurts or not, and so is what has passed the bottom of
// the screen. No points are paid for what is removed here.
// NOT-BUGS: Rammed cars and obstacles vanish without points

/// Enemies ram the player.
void MeetEnemies(GameState &State);

/// Enemy shots strike the player.
void MeetEnemyBullets(GameState &State);

/// The player crashes into obstacles.
void MeetObstacles(GameState &State);
