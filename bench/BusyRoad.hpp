#pragma once

#include "state/GameState.hpp"

/// A run in the thick of it: 20 enemies, 10 obstacles, 40 shots (half of them the enemies'), items and
/// explosions.
GameState BusyRoad();

/// What the traffic of stage 30 has become after half a minute of play without losses.
GameState RoadOfStage30();
