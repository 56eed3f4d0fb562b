#pragma once

struct GameState;

/// Eases the road towards its stage's speed, then drives on for dt seconds: the distance, the time and the
/// seam of the scenery.
void MoveRoad(GameState &State, float dt);
