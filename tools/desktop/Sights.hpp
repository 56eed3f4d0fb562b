#pragma once

#include "tools/desktop/MenuSight.hpp"
#include "tools/desktop/Screenshot.hpp"

#include <functional>

// What a picture is asked for.
using Sight = std::function<bool(const Screenshot &)>;

// Whether there is anything but black, which is what an empty screen is.
bool ShowsAnything(const Screenshot &Seen);

// Whether a screen is shown.
Sight ScreenIs(SeenScreen Screen);

// Whether a menu is shown with that many rows and one of them, counted from 0, selected.
Sight MenuIs(SeenScreen Screen, int Rows, int Selected);
