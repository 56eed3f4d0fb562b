#pragma once

#include "bench/Measurements.hpp"
#include "bench/Programs.hpp"

/// Measures the time from the launch of a program to its first picture on the screen: the game and the bare
/// program in turn, Count times each. "FirstStart" is in a new home, as after an installation; "LaterStart"
/// in one where the program ran before, with the files and caches that it left. Throws std::runtime_error if
/// either shows nothing.
void MeasureStarts(const DrawingWay &Way, int Count, Measurements &Results);
