#pragma once

#include "state/Screen.hpp"

#include <array>

// The screens of the game, written down apart from its own list of them.

inline constexpr std::array AllScreens{
    ScreenMainMenu, ScreenOptions, ScreenHelp, ScreenPlaying, ScreenPaused, ScreenCredits, ScreenGameOver};

/// All but the one on which a run goes on.
inline constexpr std::array OtherScreens{
    ScreenMainMenu, ScreenOptions, ScreenHelp, ScreenPaused, ScreenCredits, ScreenGameOver};
