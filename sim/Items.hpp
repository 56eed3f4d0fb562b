#pragma once

struct GameState;

/// Rolls the items down the road for dt seconds.
void MoveItems(GameState &State, float dt);

/// Gives the player what the car touches, and removes that and what has passed the bottom of the screen.
void PickUpItems(GameState &State);
