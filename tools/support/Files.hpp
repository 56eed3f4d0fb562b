#pragma once

#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

// Whole files, for every program beside the game.

/// The bytes of a file. Throws std::runtime_error if it cannot be opened.
inline std::string ReadBytes(const std::filesystem::path &Path) {
    std::ifstream file(Path, std::ios::binary);
    if (!file) {
        throw std::runtime_error(Path.string() + " cannot be read");
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Puts a file in place of what was there, and makes the folders that it lies in. Throws std::runtime_error
/// if it cannot be written.
inline void WriteBytes(const std::filesystem::path &Path, std::string_view Bytes) {
    std::filesystem::create_directories(Path.parent_path());
    std::ofstream file(Path, std::ios::binary);
    file.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error(Path.string() + " cannot be written");
    }
}
