#pragma once

#include "tools/desktop/Screenshot.hpp"

#include <string_view>
#include <vector>

// The game's text in a picture, found by its letters. All of it holds for screens 720 pixels high, where a
// logical pixel is a pixel of the screen.

// Whether the text stands somewhere in the row of letters that begins at Top, in squares of Scale pixels and
// in one of these colours, with nothing of that colour right before or behind it: ON is not found in ONE.
bool ShowsText(
    const Screenshot &Seen, std::string_view Text, int Top, int Scale, const std::vector<Pixel> &Colors);
