#include "gfx/MainMenu.hpp"

#include "tests/gfx/ScreenTest.hpp"

#include <algorithm>
#include <vector>

namespace {

constexpr std::uint32_t FirstWordColor = 0xFFFF8237;
constexpr std::uint32_t SecondWordColor = 0xFF32A0F5;
constexpr std::uint32_t VersionColor = 0xFF919191;
constexpr std::uint32_t FooterColor = 0xFF8C8C8C;
constexpr std::uint32_t Selected = 0xFFF5F5F5;
constexpr std::uint32_t Other = 0xFFB9B9B9;

constexpr std::u32string_view FooterText = U"\u00A9 2026 Orrin";

using Words = std::vector<std::u32string_view>;

Words RowsWithoutRun() {
    return {U"NEW GAME", U"OPTIONS", U"HELP", U"CREDITS", U"QUIT"};
}

Words RowsWithRun() {
    return {U"CONTINUE GAME", U"NEW GAME", U"OPTIONS", U"HELP", U"CREDITS", U"QUIT"};
}

/// What the menu is to show, and where: Left is where its rows start.
struct Told {
    int Width;
    Words Rows;
    int Left;
    int VersionX;
    std::size_t SelectedRow = 0;
};

/// With 5 rows the block starts at 125, with 6 at 107.
void ExpectMenu(ExpectedScreen &Expected, const Told &Told) {
    const int center = Told.Width / 2;
    const int top = Told.Rows.size() == 6 ? 107 : 125;
    Expected.Text(U"KESTREL", center - 362, top, 10, FirstWordColor);
    Expected.Text(U"VOLLEY", center - 60, top + 112, 10, SecondWordColor);
    Expected.Text(U"v0.1.0", Told.VersionX, top + 198, 3, VersionColor);
    int y = top + 250;
    for (std::size_t i = 0; i < Told.Rows.size(); ++i) {
        const bool isSelected = i == Told.SelectedRow;
        if (isSelected) {
            Expected.Text(U">", Told.Left - 28, y + 4, 3, Selected);
        }
        Expected.Text(Told.Rows[i], Told.Left, y, 4, isSelected ? Selected : Other);
        y += 36;
    }
    Expected.Centered(FooterText, center, Told.Rows.size() == 6 ? 599 : 581, 3, FooterColor);
}

/// The widest row has 8 letters of 28 without a run and 13 with one. The second word's ink ends 350 right of
/// the centre, the version's ink is 123 wide.
Told MenuOf(int Width, bool HasRunState, std::size_t SelectedRow) {
    return {Width, HasRunState ? RowsWithRun() : RowsWithoutRun(), Width / 2 - (HasRunState ? 182 : 112),
        Width / 2 + 227, SelectedRow};
}

/// The column behind the last one that holds a pixel of a colour.
int RightEdgeOf(const Picture &Shown, std::uint32_t PackedColor) {
    for (int x = Shown.Width() - 1; x >= 0; --x) {
        for (int y = 0; y < Shown.Height(); ++y) {
            if (Shown.At(x, y) == PackedColor) {
                return x + 1;
            }
        }
    }
    return 0;
}

int LeftEdgeOf(const Picture &Shown, std::uint32_t PackedColor) {
    for (int x = 0; x < Shown.Width(); ++x) {
        for (int y = 0; y < Shown.Height(); ++y) {
            if (Shown.At(x, y) == PackedColor) {
                return x;
            }
        }
    }
    return Shown.Width();
}

int TopEdgeOf(const Picture &Shown, std::uint32_t PackedColor) {
    for (int y = 0; y < Shown.Height(); ++y) {
        for (int x = 0; x < Shown.Width(); ++x) {
            if (Shown.At(x, y) == PackedColor) {
                return y;
            }
        }
    }
    return Shown.Height();
}

} // namespace

class MainMenu : public ScreenTest {
protected:
    ::testing::AssertionResult Shows(const Told &Told) {
        Clear();
        RenderMainMenu(Renderer(), State);
        ExpectedScreen expected(Told.Width);
        ExpectMenu(expected, Told);
        return expected.IsShownBy(Shown());
    }

    ::testing::AssertionResult ShowsSelected(
        std::uint32_t Selection, bool HasRunState, std::size_t Row, int Width = ScreenWidth) {
        State.HasRunState = HasRunState;
        State.MainMenuSelection = Selection;
        return Shows(MenuOf(Width, HasRunState, Row));
    }
};

TEST_F(MainMenu, HasFiveRowsWithoutARunToContinue) {
    for (const int width : TestedWidths) {
        OpenWidth(width);
        EXPECT_TRUE(ShowsSelected(0, false, 0, width)) << width;
    }
}

TEST_F(MainMenu, HasSixRowsWithARunToContinue) {
    for (const int width : TestedWidths) {
        OpenWidth(width);
        EXPECT_TRUE(ShowsSelected(0, true, 0, width)) << width;
    }
}

TEST_F(MainMenu, StandsEighteenPixelsHigherWithARun) {
    RenderMainMenu(Renderer(), State);
    const Picture without = Shown();
    State.HasRunState = true;
    RenderMainMenu(Renderer(), State);
    const Picture with = Shown();
    EXPECT_EQ(TopEdgeOf(without, FirstWordColor), 125);
    EXPECT_EQ(TopEdgeOf(without, Selected), 375);
    EXPECT_EQ(TopEdgeOf(without, FooterColor), 581);
    EXPECT_EQ(TopEdgeOf(with, FirstWordColor), 107);
    EXPECT_EQ(TopEdgeOf(with, Selected), 357);
    EXPECT_EQ(TopEdgeOf(with, FooterColor), 599);
}

TEST_F(MainMenu, MarksEachOfFiveRowsWhileItIsSelected) {
    for (std::uint32_t row = 0; row < 5; ++row) {
        EXPECT_TRUE(ShowsSelected(row, false, row)) << row;
    }
}

TEST_F(MainMenu, MarksEachOfSixRowsWhileItIsSelected) {
    for (std::uint32_t row = 0; row < 6; ++row) {
        EXPECT_TRUE(ShowsSelected(row, true, row)) << row;
    }
}

TEST_F(MainMenu, MarksTheLastRowForASelectionBeyondTheRows) {
    EXPECT_TRUE(ShowsSelected(5, false, 4)); // QUIT was selected and the run is gone
    EXPECT_TRUE(ShowsSelected(6, true, 5));
    EXPECT_TRUE(ShowsSelected(0xFFFFFFFF, false, 4));
    EXPECT_TRUE(ShowsSelected(0xFFFFFFFF, true, 5));
    EXPECT_EQ(State.MainMenuSelection, 0xFFFFFFFF);
}

TEST_F(MainMenu, EndsTheVersionsInkWhereTheSecondWordsInkEnds) {
    for (const int width : {960, 1080, 1152, 1280, 1728, 2560}) {
        OpenWidth(width);
        RenderMainMenu(Renderer(), State);
        const Picture shown = Shown();
        EXPECT_EQ(RightEdgeOf(shown, SecondWordColor), width / 2 + 350) << width;
        EXPECT_EQ(RightEdgeOf(shown, VersionColor), width / 2 + 350) << width;
    }
}

TEST_F(MainMenu, KeepsTheVersionsCell22PixelsFromTheRightEdge) {
    for (const int width : {750, 748, 700, 400}) { // narrower than any screen of the game
        OpenWidth(width);
        RenderMainMenu(Renderer(), State);
        EXPECT_EQ(RightEdgeOf(Shown(), VersionColor), width - 22 - 3)
            << width; // the cell's last column is blank
    }
    OpenWidth(752);
    RenderMainMenu(Renderer(), State);
    EXPECT_EQ(RightEdgeOf(Shown(), VersionColor), 376 + 350);
}

TEST_F(MainMenu, StartsTheVersionNoLessThan8PixelsRightOfTheCentre) {
    for (const int width : {312, 310, 300}) { // room for a cell of 126 and its margin only at 312 and more
        OpenWidth(width);
        RenderMainMenu(Renderer(), State);
        EXPECT_EQ(LeftEdgeOf(Shown(), VersionColor), width / 2 + 8 + 3)
            << width; // the v's first column is blank
    }
    OpenWidth(320);
    RenderMainMenu(Renderer(), State);
    EXPECT_EQ(LeftEdgeOf(Shown(), VersionColor), 320 - 22 - 126 + 3);
}

TEST_F(MainMenu, ShowsTheRestInPlaceAroundALimitedVersion) {
    OpenWidth(700);
    EXPECT_TRUE(Shows({700, RowsWithoutRun(), 350 - 112, 552}));
    OpenWidth(300);
    EXPECT_TRUE(Shows({300, RowsWithoutRun(), 150 - 112, 158}));
}

TEST_F(MainMenu, CentresItsRowsByTheWidestLabel) {
    Localization.Texts["MainMenu.NewGame"] = "NEUES SPIEL BEGINNEN"; // 560 wide
    Localization.Texts["MainMenu.Help"] = "HILFE f\xC3\xBCr ANF\xC3\x84NGER";
    Words rows = RowsWithoutRun();
    rows[0] = U"NEUES SPIEL BEGINNEN";
    rows[2] = U"HILFE f\u00FCr ANF\u00C4NGER";
    EXPECT_TRUE(Shows({1280, rows, 360, 867}));
}

TEST_F(MainMenu, DoesNotMeasureTheRowThatItDoesNotShow) {
    Localization.Texts["MainMenu.ContinueGame"] = "EIN ANGEFANGENES SPIEL FORTSETZEN";
    EXPECT_TRUE(ShowsSelected(0, false, 0));
}

TEST_F(MainMenu, TakesEachRowFromTheTableInEveryFrame) {
    ASSERT_TRUE(ShowsSelected(0, true, 0));
    Localization.Texts = {{"MainMenu.ContinueGame", "1A"}, {"MainMenu.NewGame", "2B"},
        {"MainMenu.Options", "3C"}, {"MainMenu.Help", "4D"}, {"MainMenu.Credits", "5E"},
        {"MainMenu.Quit", "6F"}};
    EXPECT_TRUE(Shows({1280, {U"1A", U"2B", U"3C", U"4D", U"5E", U"6F"}, 640 - 28, 867}));
}

TEST_F(MainMenu, StandsAtHalfPixelsWhereItsTextsAreOdd) {
    OpenWidth(960, 2);
    RenderMainMenu(Renderer(), State);
    ExpectedScreen expected(960, 2);
    ExpectMenu(expected, MenuOf(960, false, 0)); // the footer, 255 wide, starts at 352.5
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(MainMenu, HasNoLineAboutDevices) {
    Plug(true, true);
    EXPECT_TRUE(ShowsSelected(0, false, 0));
}
