#include "tests/gfx/ExpectedScenery.hpp"

#include <algorithm>

void ExpectGround(ExpectedPicture &Expected, std::int32_t GroundId, int Width, int Top, int Bottom,
    int Scroll, int LeftShift, int RightShift) {
    const int side = (Width - 320) / 2;
    Expected.Tiles(GroundId, {0, Top, side, Bottom - Top}, LeftShift, Scroll - Top);
    Expected.Tiles(GroundId, {side + 320, Top, side, Bottom - Top}, RightShift, Scroll - Top);
}

void ExpectRoad(ExpectedPicture &Expected, std::int32_t RoadId, int Width, int Top, int Bottom, int Scroll) {
    Expected.Tiles(RoadId, {(Width - 320) / 2, Top, 320, Bottom - Top}, 0, Scroll - Top);
}

void ExpectRails(ExpectedPicture &Expected, int Width, int Top, int Bottom, int FirstPost) {
    const int left = (Width - 320) / 2 + 7;
    const int right = (Width - 320) / 2 + 320 - 14;
    for (const int x : {left, right}) {
        Expected.Fill(x, Top, 7, Bottom - Top, 0xFF908780);
        for (int post = FirstPost; post < 720; post += 28) {
            const int top = std::max(post, Top);
            Expected.Fill(x, top, 7, std::min(post + 4, Bottom) - top, 0xFFBCB2AA);
        }
    }
}

void ExpectMarkings(ExpectedPicture &Expected, int Width, int FirstDash) {
    const int left = (Width - 320) / 2;
    Expected.Fill(left, 0, 4, 720, 0xFFBEB9B4);
    Expected.Fill(left + 316, 0, 4, 720, 0xFFBEB9B4);
    for (int y = FirstDash; y < 720; y += 62) {
        Expected.Fill(Width / 2 - 4, y, 7, 34, 0xFFEBEBEB);
    }
}
