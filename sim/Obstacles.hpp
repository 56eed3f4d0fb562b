#pragma once

#include "state/Entities.hpp"

struct GameState;

/// The y that an obstacle will have when it has moved on for dt seconds. Enemies, which move before the
/// obstacles in a step, go by it.
float PredictedY(const GameState &State, const Obstacle &Obstacle, float dt);

/// Rolls the obstacles down the road for dt seconds.
void MoveObstacles(GameState &State, float dt);
