#pragma once

#include "sim/StepInput.hpp"

struct GameState;

/// How long a bomb's flash runs; no other bomb can be thrown meanwhile.
inline constexpr float BombFlashSeconds = 0.65F;

/// Throws a bomb if the bomb control is held, one is left and no flash runs: every enemy and obstacle is
/// destroyed and pays its points and a bonus, enemy shots vanish, items and the player's shots stay.
void ThrowBomb(GameState &State, const StepInput &StepInput);
