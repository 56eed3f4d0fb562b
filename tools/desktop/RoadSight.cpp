#include "tools/desktop/RoadSight.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <span>

namespace {

constexpr Pixel EdgeLineColor{0xB4, 0xB9, 0xBE};
constexpr Pixel DashColor{0xEB, 0xEB, 0xEB};
constexpr Pixel CarBodyColor{0x2C, 0x5E, 0x96};
constexpr Pixel EnemyColor{0x8E, 0x76, 0x62};
constexpr Pixel ToughEnemyColor{0x80, 0x6C, 0x58};
constexpr Pixel ShotColor{0xF0, 0xD0, 0x48};

constexpr int RoadWidth = 320;
constexpr int EdgeLineWidth = 4;
constexpr int DashHeight = 34;
constexpr int LaneTolerance = 2;

// Distance of the lane centres from the road's left edge.
constexpr std::array<int, RoadLanes> LaneOffsets{30, 63, 95, 128, 160, 193, 225, 258, 290};

// The rows in which the car drives. Its picture also stands for the spare lives, further up.
constexpr int CarTop = 640;
constexpr int CarBottom = 700;

// The numbers in the left column, of the HUD's text size.
constexpr Pixel TextColor{0xEB, 0xEB, 0xEB};
constexpr int TextLeft = 24;
constexpr int TextHeight = 24;
constexpr int DigitAdvance = 21;
constexpr int ScoreDigits = 8;
constexpr int ScoreWidth = ScoreDigits * DigitAdvance;
constexpr int ScoreTop = 122;
constexpr int HighScoreTop = 190;

// The digit 0, a row of 7 squares each, the leftmost in bit 6.
constexpr int GlyphRows = 8;
constexpr int GlyphColumns = 7;
constexpr std::array<int, GlyphRows> ZeroRows{0x1C, 0x22, 0x26, 0x2A, 0x32, 0x22, 0x1C, 0x00};

// The panel at the right: 24 from the edge, as wide as "HEALTH", a gap of 12 and a bar of 110.
constexpr int PanelWidth = 6 * DigitAdvance + 12 + 110;
constexpr int PanelMargin = 24;
constexpr int BarHeight = 10;
constexpr int HealthBarTop = 34;
constexpr int AmmoBarTop = 68;
constexpr Pixel HealthColor{0x5F, 0xE6, 0x82};
constexpr Pixel AmmoColor{0xF0, 0xDC, 0x50};
constexpr Pixel BombColor{0xCD, 0xD7, 0xEB};
constexpr Pixel KitColor{0x5A, 0xE1, 0x87};
constexpr int BombRowTop = 137;
constexpr int KitRowTop = 167;
constexpr int IconSize = 26;
constexpr std::array<int, 3> IconLefts{0, 30, 60};

int RoadCentre(const Screenshot &Seen) {
    return Seen.Width / 2;
}

int RoadLeft(const Screenshot &Seen) {
    return RoadCentre(Seen) - RoadWidth / 2;
}

Area RoadArea(const Screenshot &Seen, int Top, int Bottom) {
    return {RoadLeft(Seen), Top, RoadLeft(Seen) + RoadWidth, Bottom};
}

int PanelLeft(const Screenshot &Seen) {
    return Seen.Width - PanelMargin - PanelWidth;
}

// How many pixels of each column have the colour of the road's edge lines.
std::vector<int> EdgeLinePixels(const Screenshot &Seen) {
    std::vector<int> counts(static_cast<std::size_t>(Seen.Width));
    for (int y = 0; y < Seen.Height; ++y) {
        const std::span<const std::uint32_t> row = RowOf(Seen, y, 0, Seen.Width);
        for (std::size_t x = 0; x < row.size(); ++x) {
            counts[x] += row[x] == Packed(EdgeLineColor) ? 1 : 0;
        }
    }
    return counts;
}

bool IsWholeDash(const Screenshot &Seen, int X, int Top) {
    if (Top < 1 || Top + DashHeight >= Seen.Height) {
        return false;
    }
    const auto isDash = [&](int Y) {
        return PixelAt(Seen, X, Y) == DashColor;
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

// How wide a bar's fill is: the run of its colour in the middle row of the bar.
int BarShown(const Screenshot &Seen, int Top, Pixel Color) {
    const Area row{PanelLeft(Seen), Top + BarHeight / 2, Seen.Width, Top + BarHeight / 2 + 1};
    return CountPixels(Seen, row, [Color](const Pixel &Dot) {
        return Dot == Color;
    });
}

// The lane in which a thing of one of these colours is lowest on the road, but not below the car.
std::optional<int> LaneOfLowest(const Screenshot &Seen, std::initializer_list<Pixel> Colors) {
    constexpr int halfBody = 8;
    std::optional<int> lane;
    int lowest = 0;
    for (int i = 0; i < RoadLanes; ++i) {
        const int x = RoadLeft(Seen) + LaneOffsets[static_cast<std::size_t>(i)];
        for (const Pixel &color : Colors) {
            const Area thing = BoundsOfColor(Seen, {x - halfBody, 0, x + halfBody, CarBottom}, color);
            lane = thing.Bottom > lowest ? i : lane;
            lowest = std::max(lowest, thing.Bottom);
        }
    }
    return lane;
}

// How many icons with this colour stand in the row of the panel.
int IconsShown(const Screenshot &Seen, int Top, Pixel Color) {
    return static_cast<int>(std::count_if(IconLefts.begin(), IconLefts.end(), [&](int Left) {
        const int x = PanelLeft(Seen) + Left;
        return BoundsOfColor(Seen, {x, Top, x + IconSize, Top + IconSize}, Color) != Area{};
    }));
}

// Which pixels of a score's digits in the left column are lit.
std::vector<bool> DigitsAt(const Screenshot &Seen, int Top) {
    std::vector<bool> lit;
    ForEachPixel(
        Seen, {TextLeft, Top, TextLeft + ScoreWidth, Top + TextHeight}, [&lit](int, int, const Pixel &Dot) {
            lit.push_back(Dot == TextColor);
        });
    return lit;
}

} // namespace

std::optional<RoadPlace> FindRoad(const Screenshot &Seen) {
    const std::vector<int> counts = EdgeLinePixels(Seen);
    std::vector<int> columns;
    for (int x = 0; x < Seen.Width; ++x) {
        // Things on the road may cover a stretch of an edge line, so a little more than half of it is enough.
        if (counts[static_cast<std::size_t>(x)] * 2 > Seen.Height) {
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

std::optional<Area> FindCar(const Screenshot &Seen) {
    const Area body = BoundsOfColor(Seen, RoadArea(Seen, CarTop, CarBottom), CarBodyColor);
    return body == Area{} ? std::nullopt : std::optional(body);
}

std::optional<int> FindCarLane(const Screenshot &Seen) {
    const std::optional<Area> car = FindCar(Seen);
    if (!car) {
        return std::nullopt;
    }
    const int offset = (car->Left + car->Right) / 2 - RoadLeft(Seen);
    const auto *const lane = std::find_if(LaneOffsets.begin(), LaneOffsets.end(), [offset](int Centre) {
        return std::abs(offset - Centre) <= LaneTolerance;
    });
    return lane == LaneOffsets.end() ? std::nullopt
                                     : std::optional(static_cast<int>(lane - LaneOffsets.begin()));
}

std::vector<Area> FindShots(const Screenshot &Seen) {
    std::vector<Area> shots;
    ForEachPixel(Seen, RoadArea(Seen, 0, CarBottom), [&](int X, int Y, const Pixel &Dot) {
        if (Dot != ShotColor) {
            return;
        }
        const auto shot = std::find_if(shots.begin(), shots.end(), [&](const Area &Known) {
            return Touches(Known, X, Y);
        });
        const Area dot{X, Y, X + 1, Y + 1};
        if (shot == shots.end()) {
            shots.push_back(dot);
        } else {
            *shot = Around(*shot, dot);
        }
    });
    return shots;
}

bool SeesEnemy(const Screenshot &Seen) {
    return CountPixels(Seen, RoadArea(Seen, 0, CarTop), [](const Pixel &Dot) {
        return Dot == EnemyColor || Dot == ToughEnemyColor;
    }) > 0;
}

std::optional<int> FindEnemyLane(const Screenshot &Seen) {
    return LaneOfLowest(Seen, {EnemyColor, ToughEnemyColor});
}

std::optional<int> FindKitLane(const Screenshot &Seen) {
    return LaneOfLowest(Seen, {KitColor});
}

std::optional<int> FindDashPhase(const Screenshot &Seen) {
    for (int top = 1; top < CarTop; ++top) {
        if (IsWholeDash(Seen, RoadCentre(Seen), top)) {
            return top % DashPeriod;
        }
    }
    return std::nullopt;
}

// The road itself is bluish throughout; under that light, red outweighs blue. It takes more than half of the
// road around the car to be lit, so that no shot, item or burst counts.
bool SeesBlast(const Screenshot &Seen) {
    const Area patch = RoadArea(Seen, CarTop - 60, CarBottom);
    const int lit = CountPixels(Seen, patch, [](const Pixel &Dot) {
        return Dot.Red > Dot.Blue + 4;
    });
    return lit * 2 > (patch.Right - patch.Left) * (patch.Bottom - patch.Top);
}

int HealthShown(const Screenshot &Seen) {
    return BarShown(Seen, HealthBarTop, HealthColor);
}

int AmmoShown(const Screenshot &Seen) {
    return BarShown(Seen, AmmoBarTop, AmmoColor);
}

int BombsShown(const Screenshot &Seen) {
    return IconsShown(Seen, BombRowTop, BombColor);
}

int KitsShown(const Screenshot &Seen) {
    return IconsShown(Seen, KitRowTop, KitColor);
}

bool ScoreEqualsHighScore(const Screenshot &Seen) {
    return DigitsAt(Seen, ScoreTop) == DigitsAt(Seen, HighScoreTop);
}

bool ScoreEquals(const Screenshot &Seen, const Screenshot &Other) {
    return DigitsAt(Seen, ScoreTop) == DigitsAt(Other, ScoreTop);
}

bool ScoreIsZero(const Screenshot &Seen) {
    constexpr int scale = 3;
    for (int digit = 0; digit < ScoreDigits; ++digit) {
        const int left = TextLeft + digit * DigitAdvance;
        for (int row = 0; row < GlyphRows; ++row) {
            for (int column = 0; column < GlyphColumns; ++column) {
                const bool lit = PixelAt(Seen, left + column * scale, ScoreTop + row * scale) == TextColor;
                const int squares = ZeroRows[static_cast<std::size_t>(row)];
                if (lit != ((squares >> (GlyphColumns - 1 - column) & 1) != 0)) {
                    return false;
                }
            }
        }
    }
    return true;
}
