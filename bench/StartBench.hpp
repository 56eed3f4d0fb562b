#pragma once

#include "bench/Measurements.hpp"
#include "bench/Programs.hpp"
#include "tools/desktop/PreparedHome.hpp"

#include <filesystem>

/// Has a program start in a home, show something, and close again as a person closes it. Throws
/// std::runtime_error, with what the program wrote, if it does not.
void RunOnce(const std::filesystem::path &Program, const PreparedHome &Home, const DrawingWay &Way);

/// Measures the time from the launch of a program to its first picture on the screen: the game and the bare
/// program in turn, Count times each. "FirstStart" is in a new home, as after an installation; "LaterStart"
/// in one where the program ran before, with the files and caches that it left. Throws std::runtime_error if
/// either shows nothing.
void MeasureStarts(const DrawingWay &Way, int Count, Measurements &Results);
