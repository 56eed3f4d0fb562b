#pragma once

struct GameState;

/// What everything keeps clear of a new thing on every side, in logical pixels.
inline constexpr float SpawnMargin = 4.0F;

/// Whether a circle at (X, Y) keeps clear of every enemy, obstacle and item by a margin. Shots and the player
/// do not count.
bool IsSpawnClear(const GameState &State, float X, float Y, float Radius);
