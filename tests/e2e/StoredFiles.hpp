#pragma once

#include "tools/desktop/PreparedHome.hpp"

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>

// The two files that the game keeps, read as bytes and without the game's own code.

inline constexpr const char *OptionsFile = "Config.ini";
inline constexpr const char *SaveFile = "SaveState.bin";

// Where a file of the game lies in a home.
std::filesystem::path StoredPath(const PreparedHome &Home, const std::string &Name);

// The value of an option, without its quotes; nothing if there is no such line.
std::optional<std::string> StoredOption(
    const PreparedHome &Home, const std::string &Section, const std::string &Key);

// Whether an option has or soon gets that value: the game writes the file in the frame that applies it.
testing::AssertionResult Keeps(
    const PreparedHome &Home, const std::string &Section, const std::string &Key, const std::string &Value);

// The high score, and whether there is a run; nothing if the file is missing or too short to tell.
std::optional<std::int64_t> StoredHighScore(const PreparedHome &Home);
std::optional<bool> StoresRun(const PreparedHome &Home);

// Whether a save begins with an object and ends where that ends, with whole tokens between.
bool SaveIsWhole(const std::string &Save);

// Whether options have the same sections and keys as others that are known to be whole, each with a value.
bool OptionsAreWhole(const std::string &Found, const std::string &Whole);

// What a made save says of its run; all else of it is as a new run has it.
struct MadeRun {
    std::int64_t HighScore = 0;
    std::int64_t Score = 0;
    std::int32_t Lane = 4;
    std::int32_t Hp = 100;
    std::int32_t Stocks = 2;
};

// A save file with such a run, as the game would find it.
std::string MadeSave(const MadeRun &Run);
