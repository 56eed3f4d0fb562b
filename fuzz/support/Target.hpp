#pragma once

#include "tests/support/TemporaryHome.hpp"
#include "tools/support/Files.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// What the fuzz targets share. A target makes its input a file, has the game read it, and checks what came of
// it. A crash, a report of a sanitizer and a broken demand are findings.

/// The bytes of an input as text.
std::string_view TextOf(std::span<const std::uint8_t> Input);

/// Ends the program, with these words for the report, unless the condition holds.
void Demand(bool Holds, const char *Words);

/// Whether a quoted value of an INI file comes back as it was: valid UTF-8 without control characters.
bool SurvivesEscaping(std::string_view Text);

/// Where a target's files are. The first call makes the folder, drops all messages of the game from then on
/// and has SDL keep the user's files there.
const TemporaryHome &Home();
