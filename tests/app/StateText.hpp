#pragma once

#include <string>

struct GameState;

/// The whole record as text, a line for each field of the menus, the options and the sounds, and one line for
/// the run: two records are alike exactly if their texts are, and a test shows the lines that differ.
std::string TextOf(const GameState &State);
