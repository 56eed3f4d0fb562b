#pragma once

struct GameState;

/// Lets the player's shots hit: each the first obstacle that it touches, otherwise the first enemy, and is
/// used up.
void HitTargets(GameState &State);
