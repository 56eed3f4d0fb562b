#pragma once

#include "state/Color.hpp"

struct GameState;

/// A burst for the eye: it grows to MaxRadius logical pixels and fades over Life seconds.
void AddExplosion(GameState &State, float X, float Y, float Life, float MaxRadius, struct Color Color);

/// Ages every burst by dt seconds and drops those that have lived their life.
void AgeExplosions(GameState &State, float dt);
