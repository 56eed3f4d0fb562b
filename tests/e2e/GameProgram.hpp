#pragma once

#include "tools/desktop/ChildProcess.hpp"

#include <filesystem>
#include <gtest/gtest.h>

// The program under test: the one that the environment variable KESTREL_GAME names, or the game that was
// built beside these tests.
const std::filesystem::path &GameProgram();

// Whether that program was built with AddressSanitizer, which is told by the program itself.
bool GameIsSanitized();

// Settings with which SDL chooses by itself how the game draws, as on a player's machine: by OpenGL where
// there is any. A sanitized game goes on drawing by SDL's own renderer: a system's OpenGL driver may keep a
// little memory when it is unloaded, which would count as the game's leak.
Environment DrawnAsForPlayers();

// Tests that measure the game by its sound, its memory or its pace, for which a sanitized one is too slow and
// too large.
class Measuring : public testing::Test {
protected:
    void SetUp() override;
};
