#pragma once

#include "tools/desktop/Picture.hpp"

#include <filesystem>

// Writes the picture as a PNG file. Throws std::runtime_error with the reason if that fails.
void SavePicture(const Picture &Seen, const std::filesystem::path &File);
