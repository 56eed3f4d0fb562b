#pragma once

#include <filesystem>
#include <optional>
#include <string>

// All bytes of a file; nothing if there is no such file.
std::optional<std::string> TextOf(const std::filesystem::path &File);
