#pragma once

#include "tests/gfx/ExpectedPicture.hpp"

// Parts of the scenery as they must show on a logical screen of a given width (all of them even, so the
// road's edges are whole pixels). Scroll is the whole distance scrolled.

/// The ground on both sides between two rows, each bank's tiles shifted sideways.
void ExpectGround(ExpectedPicture &Expected, std::int32_t GroundId, int Width, int Top, int Bottom,
    int Scroll, int LeftShift = 0, int RightShift = 0);

/// The road's tiles between two rows.
void ExpectRoad(ExpectedPicture &Expected, std::int32_t RoadId, int Width, int Top, int Bottom, int Scroll);

/// A bridge's rails between two rows, and their posts, the first of which starts at FirstPost.
void ExpectRails(ExpectedPicture &Expected, int Width, int Top, int Bottom, int FirstPost);

/// The lines on the road's edges, and the dashes, the first of which starts at FirstDash.
void ExpectMarkings(ExpectedPicture &Expected, int Width, int FirstDash);
