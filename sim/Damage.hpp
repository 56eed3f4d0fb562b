#pragma once

#include <cstdint>

struct GameState;

/// Takes Amount hit points from the player, who loses them nowhere else. Does nothing while the player is
/// invulnerable, invincible or dying, or off ScreenPlaying. At 0 or below a spare life is spent and the
/// player is back with full health in the middle lane; without one PlayerDying is set and all shots are
/// removed.
void DamagePlayer(GameState &State, std::int32_t Amount);
