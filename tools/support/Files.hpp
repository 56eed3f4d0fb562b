#pragma once

#include <filesystem>
#include <fstream>
#include <ios>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

// Whole files, for every program beside the game.

/// The bytes of a file; nothing if it cannot be opened.
inline std::optional<std::string> FindBytes(const std::filesystem::path &Path) {
    const std::ifstream file(Path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return std::move(bytes).str();
}

/// The bytes of a file. Throws std::runtime_error if it cannot be opened.
inline std::string ReadBytes(const std::filesystem::path &Path) {
    std::optional<std::string> bytes = FindBytes(Path);
    if (!bytes) {
        throw std::runtime_error(Path.string() + " cannot be read");
    }
    return std::move(*bytes);
}

/// Puts a file in place of what was there, and makes the folders that it lies in. Throws std::runtime_error
/// if it cannot be written.
inline void WriteBytes(const std::filesystem::path &Path, std::string_view Bytes) {
    if (Path.has_parent_path()) {
        std::filesystem::create_directories(Path.parent_path());
    }
    std::ofstream file(Path, std::ios::binary);
    file.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error(Path.string() + " cannot be written");
    }
}
