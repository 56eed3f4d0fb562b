#pragma once

struct GameState;

/// Runs the item timer down by dt scaled seconds and at its end lets one item in.
void SpawnTimedItem(GameState &State, float dt);

/// Lets an item in that the player is likely to need. A negative X means a random lane, otherwise the lanes
/// are tried from the one nearest to X outward; a negative Y means the spawn line. Where no lane is clear
/// there is none.
void SpawnItem(GameState &State, float X, float Y);

/// Lets a destroyed enemy at (X, Y) drop an item now and then.
void DropItem(GameState &State, float X, float Y);
