#pragma once

#include <cstdint>

struct GameState;

/// Hurts the player by Amount points: the only way to lose any. Nothing happens while the player is
/// invulnerable, invincible or dying. At 0 points a spare life is spent, or the run begins to end.
void DamagePlayer(GameState &State, std::int32_t Amount);
