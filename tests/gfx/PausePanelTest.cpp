#include "gfx/PausePanel.hpp"

#include "gfx/World.hpp"
#include "tests/gfx/ScreenTest.hpp"

#include <algorithm>

namespace {

constexpr std::uint32_t BorderColor = 0xB44E4E4E;
constexpr std::uint32_t VeilColor = 0x78000000;
constexpr std::uint32_t Selected = 0xFFF5F5F5;
constexpr std::uint32_t Other = 0xFFB4B4B4;
constexpr std::uint32_t HintColor = 0xFFE1E1E1;

constexpr std::array DeviceCases{
    DeviceCase{false, false, U""},
    DeviceCase{true, false, U"PAD A SELECT B RESUME"},
    DeviceCase{false, true, U"JOY BUTTON 0 SELECT BUTTON 3 RESUME"},
    DeviceCase{true, true, U"PAD A SELECT B RESUME   JOY BUTTON 0 SELECT BUTTON 3 RESUME"},
};

/// What the panel is to show, and how wide it is to be.
struct Told {
    int PanelWidth = 486; // the hint has 25 letters of 14, then 136
    std::u32string_view DeviceLine{};
    int SelectedRow = 0;
    int Width = ScreenWidth;
    std::array<std::u32string_view, 4> Rows{U"RESUME", U"OPTIONS", U"HELP", U"MAIN MENU"};
    std::u32string_view Title = U"PAUSED";
    std::u32string_view Hint = U"ENTER SELECT   ESC RESUME";
};

/// 382 high from 169 on, or with a device line 424 high from 148 on.
void ExpectPanel(ExpectedScreen &Expected, const Told &Told) {
    const bool hasLine = !Told.DeviceLine.empty();
    const int top = hasLine ? 148 : 169;
    const int height = hasLine ? 424 : 382;
    const double left = (Told.Width - Told.PanelWidth) / 2.0;
    Expected.Blend(left - 2, top - 2, Told.PanelWidth + 4, height + 4, BorderColor);
    Expected.Blend(left, top, Told.PanelWidth, height, VeilColor);

    const int center = Told.Width / 2;
    Expected.Centered(Told.Title, center, top + 26, 6, Selected);
    int rowWidth = 0;
    for (const std::u32string_view row : Told.Rows) {
        rowWidth = std::max(rowWidth, CellWidth(row, 4));
    }
    const double rowLeft = center - rowWidth / 2.0;
    for (int i = 0; i < 4; ++i) {
        const int y = top + 128 + i * 48;
        if (i == Told.SelectedRow) {
            Expected.Text(U">", rowLeft - 27, y + 4, 3, Selected);
        }
        Expected.Text(Told.Rows.at(static_cast<std::size_t>(i)), rowLeft, y, 4,
            i == Told.SelectedRow ? Selected : Other);
    }
    Expected.Centered(Told.Hint, center, top + 344, 2, HintColor);
    Expected.Centered(Told.DeviceLine, center, top + 370, 2, HintColor);
}

/// A panel's width by its widest content, which has 136 more, at least 420 and at most all but 80.
int PanelWidthFor(int ContentWidth, int Width) {
    return std::min(std::max(ContentWidth + 136, 420), Width - 80);
}

} // namespace

class PausePanel : public ScreenTest {
protected:
    /// Over a run that goes on in the middle of the screen.
    ::testing::AssertionResult Shows(const Told &Told) {
        GameState state = RunBehindAPanel();
        state.Screen = ScreenPaused;
        state.PauseSelection = State.PauseSelection;
        state.GamepadBindings = State.GamepadBindings;
        Clear();
        RenderGameplay(Renderer(), state);
        ExpectedScreen expected(Shown());
        RenderPauseOverlay(Renderer(), state, Devices);
        ExpectPanel(expected, Told);
        return expected.IsShownBy(Shown());
    }
};

TEST_F(PausePanel, StandsInTheMiddleOfEveryScreenWithEverySetOfDevices) {
    for (const int width : TestedWidths) {
        OpenWidth(width);
        for (const DeviceCase &devices : DeviceCases) {
            Plug(devices);
            const int content = std::max(350, CellWidth(devices.Line, 2));
            const Told told{
                .PanelWidth = PanelWidthFor(content, width), .DeviceLine = devices.Line, .Width = width};
            EXPECT_TRUE(Shows(told)) << width << " " << devices.HasGamepad << devices.HasJoystick;
        }
    }
}

TEST_F(PausePanel, Is42PixelsShorterWithoutADevice) {
    Clear();
    RenderPauseOverlay(Renderer(), State, Devices);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).h, 382 + 4);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).y, 169 - 2);
    for (const DeviceCase &devices : DeviceCases) {
        if (!devices.Line.empty()) {
            Plug(devices);
            Clear();
            RenderPauseOverlay(Renderer(), State, Devices);
            EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).h, 424 + 4);
            EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).y, 148 - 2);
        }
    }
}

TEST_F(PausePanel, MarksEachRowWhileItIsSelected) {
    for (int row = 0; row < 4; ++row) {
        State.PauseSelection = row;
        EXPECT_TRUE(Shows({.SelectedRow = row})) << row;
    }
}

TEST_F(PausePanel, MarksNoRowForASelectionThatIsNone) {
    for (const int selection : {-1, 4}) {
        State.PauseSelection = selection;
        EXPECT_TRUE(Shows({.SelectedRow = -1})) << selection;
    }
}

TEST_F(PausePanel, FitsTheWidestRowWithItsMarker) {
    Localization.Texts["Pause.Menu.Options"] = "SPIELEINSTELLUNGEN"; // 504, and 33 for the marker
    Told told{.PanelWidth = 673};
    told.Rows[1] = U"SPIELEINSTELLUNGEN";
    EXPECT_TRUE(Shows(told));
}

TEST_F(PausePanel, FitsTheTitle) {
    Localization.Texts["Pause.Title"] = "SPIEL ANGEHALTEN"; // 672
    EXPECT_TRUE(Shows({.PanelWidth = 808, .Title = U"SPIEL ANGEHALTEN"}));
}

TEST_F(PausePanel, FitsTheHint) {
    Localization.Texts["Pause.Hint.Primary"] = "EINGABE W\xC3\x84HLEN   ESC WEITERSPIELEN"; // 476
    EXPECT_TRUE(Shows({.PanelWidth = 612, .Hint = U"EINGABE W\u00C4HLEN   ESC WEITERSPIELEN"}));
}

TEST_F(PausePanel, FitsTheDeviceLine) {
    Plug(false, true);
    EXPECT_TRUE(Shows({.PanelWidth = 626, .DeviceLine = DeviceCases[2].Line})); // 490
}

TEST_F(PausePanel, IsNeverNarrowerThan420) {
    Localization.Texts = {{"Pause.Title", "A"}, {"Pause.Menu.Resume", "B"}, {"Pause.Menu.Options", "C"},
        {"Pause.Menu.Help", "D"}, {"Pause.Menu.MainMenu", "E"}, {"Pause.Hint.Primary", "F"}};
    EXPECT_TRUE(Shows({.PanelWidth = 420, .Rows = {U"B", U"C", U"D", U"E"}, .Title = U"A", .Hint = U"F"}));
    Localization.Texts["Pause.Hint.Primary"] = "TWENTY LETTERS LONG!"; // 280
    EXPECT_TRUE(Shows({.PanelWidth = 420,
        .Rows = {U"B", U"C", U"D", U"E"},
        .Title = U"A",
        .Hint = U"TWENTY LETTERS LONG!"}));
    Localization.Texts["Pause.Hint.Primary"] = "TWENTY-ONE LETTERS OF"; // 294
    EXPECT_TRUE(Shows({.PanelWidth = 430,
        .Rows = {U"B", U"C", U"D", U"E"},
        .Title = U"A",
        .Hint = U"TWENTY-ONE LETTERS OF"}));
}

TEST_F(PausePanel, GrowsWithALongLabelUpToTheScreenLess80) {
    struct Case {
        const char *Label;
        std::u32string_view Letters;
        int PanelWidth;
    };
    constexpr std::array cases{
        Case{"ABCDEFGHIJKLMNOPQRSTUVWXY", U"ABCDEFGHIJKLMNOPQRSTUVWXY", 869},                 // 700
        Case{"ABCDEFGHIJKLMNOPQRSTUVWXYZ", U"ABCDEFGHIJKLMNOPQRSTUVWXYZ", 880},               // 897 asked
        Case{"ABCDEFGHIJKLMNOPQRSTUVWXYZ12345", U"ABCDEFGHIJKLMNOPQRSTUVWXYZ12345", 880},     // 868 of text
        Case{"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567", U"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567", 880}, // 924: beyond
    };
    OpenWidth(960);
    State.PauseSelection = 3;
    for (const Case &label : cases) {
        Localization.Texts["Pause.Menu.MainMenu"] = label.Label;
        Told told{.PanelWidth = label.PanelWidth, .SelectedRow = 3, .Width = 960};
        told.Rows[3] = label.Letters;
        EXPECT_TRUE(Shows(told)) << label.Label;
    }
}

TEST_F(PausePanel, GrowsFartherOnAWiderScreen) {
    Localization.Texts["Pause.Menu.Help"] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567"; // 924
    for (const int width : {1280, 2560}) {
        OpenWidth(width);
        Told told{.PanelWidth = 1093, .Width = width};
        told.Rows[2] = U"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567";
        EXPECT_TRUE(Shows(told)) << width;
    }
}

TEST_F(PausePanel, StandsAtHalfPixelsWhereItsWidthIsOdd) {
    OpenWidth(960, 2);
    Localization.Texts["Pause.Menu.Options"] = "EINSTELLUNGEN"; // 364, and 33 and 136
    Told told{.PanelWidth = 533, .Width = 960};
    told.Rows[1] = U"EINSTELLUNGEN";
    EXPECT_TRUE(Shows(told)); // from 213.5 on
}

TEST_F(PausePanel, TakesEachOfItsTextsFromTheTableInEveryFrame) {
    Plug(true, true);
    ASSERT_TRUE(Shows({.PanelWidth = 962, .DeviceLine = DeviceCases[3].Line}));
    Localization.Texts = {{"Pause.Title", "T"}, {"Pause.Menu.Resume", "R"}, {"Pause.Menu.Options", "O"},
        {"Pause.Menu.Help", "H"}, {"Pause.Menu.MainMenu", "M"}, {"Pause.Hint.Primary", "P"},
        {"Controller.Hint.Select", "S1"}, {"Controller.Hint.Resume", "R2"}, {"Controller.Hint.Back", "X"},
        {"Hud.Stage", "STAGE"}};
    EXPECT_TRUE(Shows({.PanelWidth = PanelWidthFor(43 * 14, 1280),
        .DeviceLine = U"PAD A S1 B R2   JOY BUTTON 0 S1 BUTTON 3 R2",
        .Rows = {U"R", U"O", U"H", U"M"},
        .Title = U"T",
        .Hint = U"P"}));
}

TEST_F(PausePanel, FollowsRebindingAtOnce) {
    Plug(true, false);
    State.GamepadBindings[3] = 2;
    State.GamepadBindings[4] = -1;
    EXPECT_TRUE(Shows({.PanelWidth = 514, .DeviceLine = U"PAD X SELECT UNBOUND RESUME"})); // 378
}

TEST_F(PausePanel, HasNoVeilOverTheRestOfTheScreen) {
    RenderPauseOverlay(Renderer(), State, Devices);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).x, 395);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 490);
}
