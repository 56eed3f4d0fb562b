#pragma once

#include "tools/desktop/Screenshot.hpp"

#include <optional>

// What a person sees of the game's screens and menus in a picture, told by colours at the places where the
// layout puts titles, rows and markers. All of it holds for screens 720 pixels high, where a logical pixel is
// a pixel of the screen, for English words, and without a controller, whose hints would make panels higher.

enum class SeenScreen { None, MainMenu, Options, Help, Playing, Paused, Credits, GameOver };

// Which screen is shown, None if it is none of the game's. A black one counts as the credits, which begin and
// end so.
SeenScreen FindScreen(const Screenshot &Seen);

// A menu: how many rows it has, and which of them, counted from 0, is bright and has the marker before it.
struct SeenMenu {
    SeenScreen Screen = SeenScreen::None;
    int Rows = 0;
    int Selected = 0;

    bool operator==(const SeenMenu &) const = default;
};

// The menu of the screen that is shown. Nothing if it has none, or not exactly one row is selected.
std::optional<SeenMenu> FindMenu(const Screenshot &Seen);

// The text lines of the credits that can be seen, as the area around them all; nothing if there is none, or
// these are not the credits.
std::optional<Area> FindCreditsText(const Screenshot &Seen);
