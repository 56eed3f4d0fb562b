#include "tests/e2e/PageSight.hpp"

#include "tests/e2e/TextSight.hpp"

#include <array>
#include <utility>

namespace {

constexpr Pixel SelectedColor{0xF5, 0xF5, 0xF5};
constexpr Pixel OtherColor{0xB4, 0xB4, 0xB4};
constexpr Pixel HeadingColor{0x69, 0xAF, 0xFF};

constexpr int MostRows = 10;

constexpr int HeadingTop = 100;
constexpr int HeadingScale = 4;
constexpr int FirstRowTop = 150;
constexpr int RowDistance = 34;
constexpr int RowScale = 3;
constexpr int RowHeight = 8 * RowScale;

// In the order of Page.
constexpr std::array Headings{"CONTROLS", "GRAPHICS", "AUDIO"};

int TopOfRow(int Row) {
    return FirstRowTop + Row * RowDistance;
}

// The only row that is bright; nothing if there are several or none.
std::optional<int> FindSelectedRow(const Screenshot &Seen) {
    std::optional<int> selected;
    for (int row = 0; row < MostRows; ++row) {
        const Area band{0, TopOfRow(row), Seen.Width, TopOfRow(row) + RowHeight};
        if (BoundsOfColor(Seen, band, SelectedColor) != Area{}) {
            if (selected) {
                return std::nullopt;
            }
            selected = row;
        }
    }
    return selected;
}

bool ShowsHeading(const Screenshot &Seen, Page Shown) {
    return ShowsText(
        Seen, Headings[static_cast<std::size_t>(Shown)], HeadingTop, HeadingScale, {HeadingColor});
}

} // namespace

Sight PageIs(Page Shown, int Row) {
    return [Shown, Row](const Screenshot &Seen) {
        return ShowsHeading(Seen, Shown) && FindSelectedRow(Seen) == Row;
    };
}

Sight SelectedRowIs(int Row) {
    return [Row](const Screenshot &Seen) {
        return FindSelectedRow(Seen) == Row;
    };
}

Sight RowShows(int Row, const std::string &Text) {
    return [Row, Text](const Screenshot &Seen) {
        return ShowsText(Seen, Text, TopOfRow(Row), RowScale, {SelectedColor, OtherColor});
    };
}

void OpenPage(OpenedGame &Game, Page Wanted) {
    const std::optional<Screenshot> options = Game.WaitForPicture([](const Screenshot &Seen) {
        const std::optional<SeenMenu> menu = FindMenu(Seen);
        return menu && menu->Screen == SeenScreen::Options;
    });
    ASSERT_TRUE(options) << "the options do not come";
    for (int row = FindMenu(*options)->Selected; row != static_cast<int>(Wanted);) {
        row = (row + 1) % 4;
        ASSERT_TRUE(Game.Tap(Key::Down, OptionsMenu(row))) << row;
    }
    ASSERT_TRUE(Game.Tap(Key::Return, [Wanted](const Screenshot &Seen) {
        return ShowsHeading(Seen, Wanted);
    }));
}

void OpenPageFromMainMenu(OpenedGame &Game, Page Wanted) {
    ASSERT_TRUE(Game.WaitForPicture(FiveRowMenu(0)));
    ASSERT_TRUE(Game.Tap(Key::Down, FiveRowMenu(1)));
    ASSERT_TRUE(Game.Tap(Key::Return, ScreenIs(SeenScreen::Options)));
    OpenPage(Game, Wanted);
}

void GoToRow(OpenedGame &Game, Page Shown, int Row) {
    const std::optional<Screenshot> page = Game.WaitForPicture([Shown](const Screenshot &Seen) {
        return ShowsHeading(Seen, Shown) && FindSelectedRow(Seen);
    });
    ASSERT_TRUE(page) << "the page does not come";
    for (int row = *FindSelectedRow(*page); row != Row;) {
        const bool isUp = Row < row;
        row += isUp ? -1 : 1;
        ASSERT_TRUE(Game.Tap(isUp ? Key::Up : Key::Down, PageIs(Shown, row))) << row;
    }
}

void ActivateRow(OpenedGame &Game, Page Shown, int Row, const Sight &Shows) {
    ASSERT_NO_FATAL_FAILURE(GoToRow(Game, Shown, Row));
    ASSERT_TRUE(Game.Tap(Key::Return, Shows)) << "row " << Row;
}
