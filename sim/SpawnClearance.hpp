#pragma once

struct GameState;

/// Whether a circle at (X, Y) keeps clear of every enemy, obstacle and item by a margin. Shots and the player
/// do not count.
bool IsSpawnClear(const GameState &State, float X, float Y, float Radius);
