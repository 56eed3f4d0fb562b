#pragma once

#include <filesystem>

/// The folder in which a target linked with this finds what ships with the game, by title storage and by
/// path. It is there from the start.
const std::filesystem::path &ProgramFolder();
