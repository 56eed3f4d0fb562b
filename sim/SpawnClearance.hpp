#pragma once

#include "sim/Lanes.hpp"
#include "state/Entities.hpp"

struct GameState;

/// How far a new thing and each that is there are widened on every side, in logical pixels.
inline constexpr float SpawnMargin = 4.0F;

/// Whether a circle at (X, Y) touches no enemy, obstacle or item, all widened. Shots and the player do not
/// count.
bool IsSpawnClear(const GameState &State, float X, float Y, float Radius);

// Each of these adds a new thing to its list, at its Y in the first of the lanes where it is clear as above.
// If it is clear in none of them, it is not added.

void SpawnInClearLane(GameState &State, const LaneOrder &Lanes, Enemy New);
void SpawnInClearLane(GameState &State, const LaneOrder &Lanes, Obstacle New);
void SpawnInClearLane(GameState &State, const LaneOrder &Lanes, Item New);
