#pragma once

#include <cstdint>

struct GameState;

/// Takes Amount hit points from the player, who loses them nowhere else; a negative one, which only a damaged
/// file holds, adds. Does nothing while the player is invulnerable, invincible or dying, or off
/// ScreenPlaying. Each blow leaves the player invulnerable for a while: of all that touches the car in one
/// step only the first thing hurts. At 0 or below a spare life is spent and the player is back with full
/// health in the middle lane; without one the death begins.
void DamagePlayer(GameState &State, std::int32_t Amount);
