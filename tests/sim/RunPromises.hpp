#pragma once

#include <string>

struct GameState;

// What holds in every run that began as a new one, whoever plays it. Each gives the first broken promise by
// name; empty if all hold.

/// After each step, and while the run waits.
std::string BrokenRun(const GameState &State);

/// From the record before a step to the one after it, presses of the first aid key included.
std::string BrokenStep(const GameState &Before, const GameState &After);
