#pragma once

#include <set>
#include <string>

/// The functions of libraries that the game's compiled code calls, by the names that the linker knows: all of
/// SDL, the mixer and the C library, and of the C++ library those that open files or ask for them. Throws
/// std::runtime_error if the code cannot be read.
std::set<std::string> CalledFunctions();
