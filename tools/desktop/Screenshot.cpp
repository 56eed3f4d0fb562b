#include "tools/desktop/Screenshot.hpp"

#include <algorithm>

Area Around(const Area &One, const Area &Other) {
    if (One == Area{} || Other == Area{}) {
        return One == Area{} ? Other : One;
    }
    return {std::min(One.Left, Other.Left), std::min(One.Top, Other.Top), std::max(One.Right, Other.Right),
        std::max(One.Bottom, Other.Bottom)};
}

Area Overlap(const Screenshot &Seen, Area Wanted) {
    return {std::max(Wanted.Left, 0), std::max(Wanted.Top, 0), std::min(Wanted.Right, Seen.Width),
        std::min(Wanted.Bottom, Seen.Height)};
}

// Each row is searched from both ends, so what lies between is not looked at twice.
Area BoundsOfColor(const Screenshot &Seen, Area Inside, Pixel Color) {
    const Area area = Overlap(Seen, Inside);
    Area bounds;
    for (int y = area.Top; y < area.Bottom && area.Left < area.Right; ++y) {
        const std::span<const std::uint32_t> row = RowOf(Seen, y, area.Left, area.Right);
        const auto first = std::find(row.begin(), row.end(), Packed(Color));
        if (first == row.end()) {
            continue;
        }
        const auto last = std::find(row.rbegin(), row.rend(), Packed(Color));
        bounds = Around(bounds, {area.Left + static_cast<int>(first - row.begin()), y,
                                    area.Left + static_cast<int>(row.rend() - last), y + 1});
    }
    return bounds;
}
