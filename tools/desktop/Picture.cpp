#include "tools/desktop/Picture.hpp"

#include <algorithm>

Area Overlap(const Picture &Seen, Area Wanted) {
    return {std::max(Wanted.Left, 0), std::max(Wanted.Top, 0), std::min(Wanted.Right, Seen.Width),
        std::min(Wanted.Bottom, Seen.Height)};
}

Area BoundsOfColor(const Picture &Seen, Area Inside, Pixel Color) {
    Area bounds;
    bool found = false;
    ForEachPixel(Seen, Inside, [&](int X, int Y, const Pixel &Dot) {
        if (Dot != Color) {
            return;
        }
        bounds = found ? Area{std::min(bounds.Left, X), bounds.Top, std::max(bounds.Right, X + 1), Y + 1}
                       : Area{X, Y, X + 1, Y + 1};
        found = true;
    });
    return bounds;
}
