#pragma once

#include "sim/Lanes.hpp"

#include <cstdint>

struct GameState;

// The draws of a run, from State.Rng. They do not use the standard library's distributions, so that the same
// seed gives the same draws with every compiler.

/// A uniform draw in [A, B); rounding may reach B where A is not 0.
float RandomFloat(GameState &State, float A, float B);

/// A uniform draw in 0 to N - 1; N is at least 1.
std::uint32_t RandomIndex(GameState &State, std::uint32_t N);

/// The nine lanes in a random order, by four calls of RandomIndex.
LaneOrder ShuffledLanes(GameState &State);

/// -1 or +1.
std::int32_t RandomFlowDirection(GameState &State);
