#pragma once

struct GameState;

/// Counts ItemSpawnTimer down by dt seconds, scaled by the road speed; at its end SpawnItem runs for a random
/// lane at the spawn line, and the timer starts anew.
void SpawnTimedItem(GameState &State, float dt);

inline constexpr float AnyLane = -1.0F;     ///< as X of SpawnItem
inline constexpr float AtSpawnLine = -1.0F; ///< as Y of SpawnItem

/// Adds an item that the player is likely to need. A negative X means a random lane, otherwise the lanes are
/// tried from the one nearest to X outward. A negative Y means the spawn line, also for an enemy that was
/// destroyed above the screen. If no lane is clear, no item is added.
void SpawnItem(GameState &State, float X, float Y);

/// Calls SpawnItem for a destroyed enemy at (X, Y) now and then, by chance.
void DropItem(GameState &State, float X, float Y);
