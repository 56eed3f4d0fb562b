#pragma once

#include <string>

struct GameState;

/// What holds for the options and their pages whatever keys were pressed: the first broken promise by name;
/// empty if all hold. For a program that has started.
std::string BrokenOption(const GameState &State);
