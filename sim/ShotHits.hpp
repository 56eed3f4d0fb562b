#pragma once

struct GameState;

/// Lets each of the player's shots hit the first obstacle that it touches, or else the first enemy, and
/// removes it if it has hit.
void HitTargets(GameState &State);
