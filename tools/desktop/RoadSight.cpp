#include "tools/desktop/RoadSight.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>

namespace {

constexpr Pixel EdgeLineColour{0xB4, 0xB9, 0xBE};
constexpr Pixel DashColour{0xEB, 0xEB, 0xEB};
constexpr Pixel CarBodyColour{0x2C, 0x5E, 0x96};
constexpr Pixel ShotColour{0xF0, 0xD0, 0x48};

constexpr int RoadWidth = 320;
constexpr int EdgeLineWidth = 4;
constexpr int DashHeight = 34;
constexpr int LaneTolerance = 2;

// Distance of the lane centres from the road's left edge.
constexpr std::array<int, LaneCount> LaneOffsets{30, 63, 95, 128, 160, 193, 225, 258, 290};

// The rows in which the car drives. Its picture also stands for the spare lives, further up.
constexpr int CarTop = 640;
constexpr int CarBottom = 700;

int RoadCentre(const Picture &Seen) {
    return Seen.Width / 2;
}

Area RoadArea(const Picture &Seen, int Top, int Bottom) {
    return {RoadCentre(Seen) - RoadWidth / 2, Top, RoadCentre(Seen) + RoadWidth / 2, Bottom};
}

// Things on the road may cover a stretch of an edge line, so a little more than half of it is enough.
bool IsEdgeLine(const Picture &Seen, int X) {
    const Area column{X, 0, X + 1, Seen.Height};
    return CountPixels(Seen, column,
               [](const Pixel &Dot) {
                   return Dot == EdgeLineColour;
               }) *
               2 >
           Seen.Height;
}

bool IsWholeDash(const Picture &Seen, int X, int Top) {
    if (Top < 1 || Top + DashHeight >= Seen.Height) {
        return false;
    }
    const auto isDash = [&](int Y) {
        return PixelAt(Seen, X, Y) == DashColour;
    };
    for (int y = Top; y < Top + DashHeight; ++y) {
        if (!isDash(y)) {
            return false;
        }
    }
    return !isDash(Top - 1) && !isDash(Top + DashHeight);
}

// Whether a pixel of a shot belongs to those already found in this group; a shot is 3 wide and 6 high.
bool Touches(const Area &Shot, int X, int Y) {
    return X >= Shot.Left - 3 && X < Shot.Right + 3 && Y >= Shot.Top - 3 && Y < Shot.Bottom + 3;
}

} // namespace

std::optional<RoadPlace> FindRoad(const Picture &Seen) {
    std::vector<int> columns;
    for (int x = 0; x < Seen.Width; ++x) {
        if (IsEdgeLine(Seen, x)) {
            columns.push_back(x);
        }
    }
    const std::size_t wanted = static_cast<std::size_t>(EdgeLineWidth) * 2;
    if (columns.size() != wanted || columns[EdgeLineWidth - 1] != columns[0] + EdgeLineWidth - 1 ||
        columns[wanted - 1] != columns[EdgeLineWidth] + EdgeLineWidth - 1) {
        return std::nullopt;
    }
    return RoadPlace{columns.front(), columns.back() + 1};
}

std::optional<Area> FindCar(const Picture &Seen) {
    const Area body = BoundsOfColour(Seen, RoadArea(Seen, CarTop, CarBottom), CarBodyColour);
    return body == Area{} ? std::nullopt : std::optional(body);
}

std::optional<int> FindCarLane(const Picture &Seen) {
    const std::optional<Area> car = FindCar(Seen);
    if (!car) {
        return std::nullopt;
    }
    const int offset = (car->Left + car->Right) / 2 - RoadArea(Seen, 0, 0).Left;
    const auto *const lane = std::find_if(LaneOffsets.begin(), LaneOffsets.end(), [offset](int Centre) {
        return std::abs(offset - Centre) <= LaneTolerance;
    });
    return lane == LaneOffsets.end() ? std::nullopt
                                     : std::optional(static_cast<int>(lane - LaneOffsets.begin()));
}

std::vector<Area> FindShots(const Picture &Seen) {
    std::vector<Area> shots;
    ForEachPixel(Seen, RoadArea(Seen, 0, CarBottom), [&](int X, int Y, const Pixel &Dot) {
        if (Dot != ShotColour) {
            return;
        }
        const auto shot = std::find_if(shots.begin(), shots.end(), [&](const Area &Known) {
            return Touches(Known, X, Y);
        });
        if (shot == shots.end()) {
            shots.push_back({X, Y, X + 1, Y + 1});
        } else {
            *shot = {std::min(shot->Left, X), shot->Top, std::max(shot->Right, X + 1), Y + 1};
        }
    });
    return shots;
}

std::optional<int> FindDashPhase(const Picture &Seen) {
    for (int top = 1; top < CarTop; ++top) {
        if (IsWholeDash(Seen, RoadCentre(Seen), top)) {
            return top % DashPeriod;
        }
    }
    return std::nullopt;
}

// The road itself is bluish throughout; under that light, red outweighs blue. It takes more than half of the
// patch of road above the car's nose to be lit, so that no shot or item counts.
bool SeesBlast(const Picture &Seen) {
    const std::optional<Area> car = FindCar(Seen);
    if (!car) {
        return false;
    }
    const Area road = RoadArea(Seen, 0, Seen.Height);
    const Area patch{std::max(car->Left - 32, road.Left), car->Top - 42,
        std::min(car->Right + 32, road.Right), car->Top - 17};
    const int lit = CountPixels(Seen, patch, [](const Pixel &Dot) {
        return Dot.Red > Dot.Blue + 4;
    });
    return lit * 2 > (patch.Right - patch.Left) * (patch.Bottom - patch.Top);
}
