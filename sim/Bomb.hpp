#pragma once

#include "sim/StepInput.hpp"

struct GameState;

inline constexpr float BombFlashSeconds = 0.65F; ///< no other bomb can be thrown meanwhile

/// Throws a bomb where bomb is held, one is left and none is flashing: every enemy and obstacle goes for its
/// points and a bonus each, enemy shots go for nothing, items and the player's shots stay.
void ThrowBomb(GameState &State, const StepInput &StepInput);
