#pragma once

#include <cstdint>

/// The screens of the game. Never stored in a file.
enum Screen : std::int32_t {
    ScreenMainMenu = 0,
    ScreenOptions = 1,
    ScreenHelp = 2,
    ScreenPlaying = 3,
    ScreenPaused = 4,
    ScreenCredits = 5,
    ScreenGameOver = 6,
};
