#pragma once

#include "bench/Measurements.hpp"
#include "bench/Programs.hpp"

#include <chrono>

/// Measures the share of a core that the real game takes in menus, in the traffic of stage 30, which it plays
/// for that long, and paused ("Share/"); and the memory that it and the bare program hold then ("Resident/",
/// "Private/", and "Music" for the music's files). Throws std::runtime_error if the game does not show what
/// it should.
void MeasurePlay(const DrawingWay &Way, std::chrono::seconds PlayTime, Measurements &Results);
