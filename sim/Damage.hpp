#pragma once

#include <cstdint>

struct GameState;

/// Hurts the player by Amount hit points: the only way to lose any. Who deals how much stands with the
/// contacts and the enemies' shots. Nothing happens while the player is invulnerable, invincible or dying. At
/// 0 hit points a spare life is spent, or the run begins to end.
void DamagePlayer(GameState &State, std::int32_t Amount);
