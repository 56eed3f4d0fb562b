#pragma once

#include "tools/desktop/Screenshot.hpp"

#include <filesystem>

// Writes the picture as a PNG file. Throws std::runtime_error with the reason if that fails.
void SaveScreenshot(const Screenshot &Seen, const std::filesystem::path &File);
