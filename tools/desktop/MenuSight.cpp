#include "tools/desktop/MenuSight.hpp"

#include "tools/desktop/RoadSight.hpp"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

// A glyph's cell in squares; a text's scale is the side of a square in pixels.
constexpr int CellColumns = 7;
constexpr int CellRows = 8;

constexpr Pixel Black{};
constexpr Pixel SelectedColor{0xF5, 0xF5, 0xF5};
constexpr Pixel NameColor{0xB9, 0xB9, 0xB9};

constexpr int MarkerScale = 3;

// A word that tells a screen: where its first cell begins, from the screen's centre and top.
struct Title {
    SeenScreen Screen;
    int Letters;
    int Scale;
    int Left;
    int Top;
    Pixel Color;
};

constexpr int CentredLeft(int Letters, int Scale) {
    return -Letters * CellColumns * Scale / 2;
}

constexpr std::array Titles{
    Title{SeenScreen::MainMenu, 7, 10, -362, 125, {0x37, 0x82, 0xFF}},             // KESTREL over 5 rows
    Title{SeenScreen::MainMenu, 7, 10, -362, 107, {0x37, 0x82, 0xFF}},             // KESTREL over 6 rows
    Title{SeenScreen::Options, 7, 6, CentredLeft(7, 6), 42, {0xF0, 0xF0, 0xF0}},   // OPTIONS
    Title{SeenScreen::Help, 4, 6, CentredLeft(4, 6), 42, {0xF0, 0xF0, 0xF0}},      // HELP
    Title{SeenScreen::Paused, 6, 6, CentredLeft(6, 6), 195, SelectedColor},        // PAUSED
    Title{SeenScreen::GameOver, 9, 6, CentredLeft(9, 6), 304, {0xFF, 0x78, 0x78}}, // GAME OVER
};

// Where a menu's rows stand: all begin where the widest label does, which is centred.
struct MenuPlace {
    SeenScreen Screen;
    int Rows;
    int FirstTop;
    int Distance;
    int Scale;
    int WidestLetters;
    int MarkerGap;
    int MarkerDrop;
};

constexpr std::array Menus{
    MenuPlace{SeenScreen::MainMenu, 5, 375, 36, 4, 8, 28, 4},  // NEW GAME is the widest
    MenuPlace{SeenScreen::MainMenu, 6, 357, 36, 4, 13, 28, 4}, // CONTINUE GAME
    MenuPlace{SeenScreen::Options, 4, 217, 34, 3, 8, 27, 0},   // CONTROLS
    MenuPlace{SeenScreen::Paused, 4, 297, 48, 4, 9, 27, 4},    // MAIN MENU
};

Area CellsAt(int Left, int Top, int Letters, int Scale) {
    return {Left, Top, Left + Letters * CellColumns * Scale, Top + CellRows * Scale};
}

// Whether the word fills its cells but for the blank squares at their sides, and nothing of its colour stands
// in the cells before and after it, where a longer word would go on.
bool Stands(const Screenshot &Seen, const Title &Word) {
    const int cell = CellColumns * Word.Scale;
    const Area cells = CellsAt(Seen.Width / 2 + Word.Left, Word.Top, Word.Letters, Word.Scale);
    const Area around{cells.Left - cell, cells.Top - 1, cells.Right + cell, cells.Bottom + 1};
    const Area ink = BoundsOfColor(Seen, around, Word.Color);
    const int blank = 2 * Word.Scale;
    return ink.Left >= cells.Left && ink.Left <= cells.Left + blank && ink.Right <= cells.Right &&
           ink.Right >= cells.Right - blank && ink.Top == cells.Top && ink.Bottom <= cells.Bottom;
}

bool IsLit(const Screenshot &Seen, const Area &Cells) {
    return BoundsOfColor(Seen, Cells, SelectedColor) != Area{};
}

// The one row of the menu that is bright and marked; nothing unless that is exactly one, and all others are
// neither.
std::optional<int> FindSelectedRow(const Screenshot &Seen, const MenuPlace &Menu) {
    const int left = Seen.Width / 2 + CentredLeft(Menu.WidestLetters, Menu.Scale);
    std::optional<int> selected;
    for (int row = 0; row < Menu.Rows; ++row) {
        const int top = Menu.FirstTop + row * Menu.Distance;
        const bool bright = IsLit(Seen, CellsAt(left, top, Menu.WidestLetters, Menu.Scale));
        const bool marked =
            IsLit(Seen, CellsAt(left - Menu.MarkerGap, top + Menu.MarkerDrop, 1, MarkerScale));
        if (bright != marked || (bright && selected)) {
            return std::nullopt;
        }
        selected = bright ? std::optional(row) : selected;
    }
    return selected;
}

// The layout of the menu on that screen. The main menu has one with and one without its first row, told by
// the title, which stands over the rows at the same distance.
const MenuPlace *PlaceOfMenu(const Title &Word) {
    constexpr int mainMenuRowsDrop = 250;
    const auto *const found = std::find_if(Menus.begin(), Menus.end(), [&Word](const MenuPlace &Menu) {
        return Menu.Screen == Word.Screen &&
               (Word.Screen != SeenScreen::MainMenu || Menu.FirstTop == Word.Top + mainMenuRowsDrop);
    });
    return found == Menus.end() ? nullptr : &*found;
}

const Title *FindTitle(const Screenshot &Seen) {
    const auto *const found = std::find_if(Titles.begin(), Titles.end(), [&Seen](const Title &Word) {
        return Stands(Seen, Word);
    });
    return found == Titles.end() ? nullptr : &*found;
}

bool IsCredits(const Screenshot &Seen) {
    return std::all_of(Seen.Pixels.begin(), Seen.Pixels.end(), [](std::uint32_t Dot) {
        return Dot == Packed(Black) || Dot == Packed(SelectedColor) || Dot == Packed(NameColor);
    });
}

} // namespace

SeenScreen FindScreen(const Screenshot &Seen) {
    if (const Title *const title = FindTitle(Seen)) {
        return title->Screen;
    }
    if (FindRoad(Seen)) {
        return SeenScreen::Playing;
    }
    return IsCredits(Seen) ? SeenScreen::Credits : SeenScreen::None;
}

std::optional<SeenMenu> FindMenu(const Screenshot &Seen) {
    const Title *const title = FindTitle(Seen);
    const MenuPlace *const menu = title != nullptr ? PlaceOfMenu(*title) : nullptr;
    const std::optional<int> row = menu != nullptr ? FindSelectedRow(Seen, *menu) : std::nullopt;
    return row ? std::optional(SeenMenu{menu->Screen, menu->Rows, *row}) : std::nullopt;
}

std::optional<Area> FindCreditsText(const Screenshot &Seen) {
    if (FindScreen(Seen) != SeenScreen::Credits) {
        return std::nullopt;
    }
    const Area screen{0, 0, Seen.Width, Seen.Height};
    const Area text =
        Around(BoundsOfColor(Seen, screen, SelectedColor), BoundsOfColor(Seen, screen, NameColor));
    return text == Area{} ? std::nullopt : std::optional(text);
}
