#pragma once

#include "tools/desktop/ChildProcess.hpp"
#include "tools/desktop/PreparedHome.hpp"

#include <filesystem>

// The programs that are measured from outside, and how they are made to draw.

/// The real game and the bare program, as they were built beside the benchmarks.
inline constexpr const char *GameProgram = GAME_BUILT_HERE;
inline constexpr const char *BareProgram = BARE_BUILT_HERE;

/// A way in which SDL draws: its part of a measurement's name, and the settings that make a program draw so.
struct DrawingWay {
    const char *Name;
    Environment Settings;
};

/// SDL's own renderer, in which sessions run unless they are told otherwise, and OpenGL.
DrawingWay Software();
DrawingWay OpenGl();

/// Has a program start in a home, show something, and close again as a person closes it. Throws
/// std::runtime_error, with what the program wrote, if it does not.
void RunOnce(const std::filesystem::path &Program, const PreparedHome &Home, const DrawingWay &Way);

/// Whether the bare program can show its picture that way.
bool CanDraw(const DrawingWay &Way);
