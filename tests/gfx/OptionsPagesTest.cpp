#include "gfx/OptionsPages.hpp"

#include "tests/gfx/ScreenTest.hpp"

namespace {

constexpr std::uint32_t TitleColor = 0xFFF0F0F0;
constexpr std::uint32_t SectionColor = 0xFFFFAF69;
constexpr std::uint32_t Selected = 0xFFF5F5F5;
constexpr std::uint32_t Other = 0xFFB4B4B4;
constexpr std::uint32_t HintColor = 0xFFE1E1E1;

constexpr std::u32string_view MainMenuHint = U"ENTER SELECT   ESC BACK TO MAIN MENU";
constexpr std::u32string_view PauseMenuHint = U"ENTER SELECT   ESC BACK TO PAUSE MENU";

constexpr std::array MainMenuCases{
    DeviceCase{false, false, U""},
    DeviceCase{true, false, U"PAD A SELECT B MAIN MENU"},
    DeviceCase{false, true, U"JOY BUTTON 0 SELECT BUTTON 3 MAIN MENU"},
    DeviceCase{true, true, U"PAD A SELECT B MAIN MENU   JOY BUTTON 0 SELECT BUTTON 3 MAIN MENU"},
};

constexpr std::array PauseMenuCases{
    DeviceCase{false, false, U""},
    DeviceCase{true, false, U"PAD A SELECT B PAUSE MENU"},
    DeviceCase{false, true, U"JOY BUTTON 0 SELECT BUTTON 3 PAUSE MENU"},
    DeviceCase{true, true, U"PAD A SELECT B PAUSE MENU   JOY BUTTON 0 SELECT BUTTON 3 PAUSE MENU"},
};

struct Told {
    int Width = ScreenWidth;
    double Left = ScreenWidth / 2.0 - 84; // the widest row has 8 letters of 21
    int SelectedRow = 0;
    std::u32string_view Hint = MainMenuHint;
    std::u32string_view DeviceLine{};
    std::array<std::u32string_view, 4> Rows{U"CONTROLS", U"GRAPHICS", U"AUDIO", U"BACK"};
    std::u32string_view Title = U"OPTIONS";
    std::u32string_view Section = U"MENU";
};

void ExpectHeadings(
    ExpectedScreen &Expected, int Width, std::u32string_view Title, std::u32string_view Section) {
    Expected.Centered(Title, Width / 2.0, 42, 6, TitleColor);
    Expected.Centered(Section, Width / 2.0, 100, 4, SectionColor);
}

void ExpectMainPage(ExpectedScreen &Expected, const Told &Told) {
    ExpectHeadings(Expected, Told.Width, Told.Title, Told.Section);
    constexpr std::array rowTops{217, 251, 285, 319};
    for (std::size_t i = 0; i < rowTops.size(); ++i) {
        const bool isSelected = static_cast<int>(i) == Told.SelectedRow;
        if (isSelected) {
            Expected.Text(U">", Told.Left - 27, rowTops[i], 3, Selected);
        }
        Expected.Text(Told.Rows[i], Told.Left, rowTops[i], 3, isSelected ? Selected : Other);
    }
    Expected.Centered(Told.Hint, Told.Width / 2.0, 430, 2, HintColor);
    Expected.Centered(Told.DeviceLine, Told.Width / 2.0, 458, 2, HintColor);
}

} // namespace

class OptionsPages : public ScreenTest {
protected:
    OptionsPages() {
        State.Screen = ScreenOptions;
    }

    ::testing::AssertionResult Shows(const Told &Told, int Zoom = 1) {
        Clear();
        RenderOptions(Renderer(), State, Devices);
        ExpectedScreen expected(Told.Width, Zoom);
        ExpectMainPage(expected, Told);
        return expected.IsShownBy(Shown());
    }

    void ExpectOnEveryScreen(const std::array<DeviceCase, 4> &Cases, std::u32string_view Hint) {
        for (const int width : TestedWidths) {
            OpenWidth(width);
            for (const DeviceCase &devices : Cases) {
                Plug(devices);
                const Told told{
                    .Width = width, .Left = width / 2.0 - 84, .Hint = Hint, .DeviceLine = devices.Line};
                EXPECT_TRUE(Shows(told)) << width << " " << devices.HasGamepad << devices.HasJoystick;
            }
        }
    }
};

TEST_F(OptionsPages, MainPageFromTheMainMenuLeadsBackThere) {
    ExpectOnEveryScreen(MainMenuCases, MainMenuHint);
}

TEST_F(OptionsPages, MainPageFromThePauseMenuLeadsBackThere) {
    State.OptionsReturnScreen = ScreenPaused;
    ExpectOnEveryScreen(PauseMenuCases, PauseMenuHint);
}

TEST_F(OptionsPages, MainPageFromAnyOtherScreenNamesTheMainMenu) {
    Plug(true, false);
    for (const enum Screen from : {ScreenOptions, ScreenHelp, ScreenPlaying, ScreenCredits, ScreenGameOver}) {
        State.OptionsReturnScreen = from;
        EXPECT_TRUE(Shows({.DeviceLine = MainMenuCases[1].Line})) << from;
    }
}

TEST_F(OptionsPages, MainPageMarksEachRowWhileItIsSelected) {
    for (int row = 0; row < 4; ++row) {
        State.OptionsMainSelection = row;
        EXPECT_TRUE(Shows({.SelectedRow = row})) << row;
    }
}

TEST_F(OptionsPages, MainPageMarksNoRowForASelectionThatIsNone) {
    for (const int selection : {-1, 4}) {
        State.OptionsMainSelection = selection;
        EXPECT_TRUE(Shows({.SelectedRow = -1})) << selection;
    }
}

TEST_F(OptionsPages, MainPageCentresItsRowsByTheWidestLabel) {
    Localization.Texts["Common.Back"] = "ZUR\xC3\x9C"
                                        "CK ZUM MEN\xC3\x9C"; // 315 wide
    Told told{.Left = 640 - 157.5};
    told.Rows[3] = U"ZUR\u00DCCK ZUM MEN\u00DC";
    EXPECT_TRUE(Shows(told));
}

TEST_F(OptionsPages, MainPageStandsAtHalfPixelsWhereItsTextsAreOdd) {
    OpenWidth(960, 2);
    Localization.Texts["Options.Main.Graphics"] = "DARSTELLUNG"; // 231 wide
    Told told{.Width = 960, .Left = 364.5};
    told.Rows[1] = U"DARSTELLUNG";
    EXPECT_TRUE(Shows(told, 2));
}

TEST_F(OptionsPages, MainPageTakesEachOfItsTextsFromTheTableInEveryFrame) {
    Plug(true, false);
    ASSERT_TRUE(Shows({.DeviceLine = MainMenuCases[1].Line}));
    Localization.Texts = {{"Options.Title", "T"}, {"Options.Section.Menu", "S"},
        {"Options.Main.Controls", "C"}, {"Options.Main.Graphics", "G"}, {"Options.Main.Audio", "A"},
        {"Common.Back", "B"}, {"Options.Hint.MainBackToMainMenu", "M"},
        {"Options.Hint.MainBackToPauseMenu", "P"}, {"Controller.Hint.Select", "S1"},
        {"Controller.Hint.MainMenu", "M2"}, {"Controller.Hint.PauseMenu", "P3"},
        {"Controller.Hint.Back", "X"}, {"Options.Section.Controls", "X"}};
    Told told{.Left = 640 - 10.5,
        .Hint = U"M",
        .DeviceLine = U"PAD A S1 B M2",
        .Rows = {U"C", U"G", U"A", U"B"},
        .Title = U"T",
        .Section = U"S"};
    EXPECT_TRUE(Shows(told));
    State.OptionsReturnScreen = ScreenPaused;
    told.Hint = U"P";
    told.DeviceLine = U"PAD A S1 B P3";
    EXPECT_TRUE(Shows(told));
}

TEST_F(OptionsPages, ShowTheTitleAndTheirSectionOnBlack) {
    struct Case {
        enum OptionsPage Page;
        std::u32string_view Section;
    };
    constexpr std::array cases{
        Case{OptionsPageMain, U"MENU"},
        Case{OptionsPageControls, U"CONTROLS"},
        Case{OptionsPageGraphics, U"GRAPHICS"},
        Case{OptionsPageAudio, U"AUDIO"},
    };
    for (const int width : TestedWidths) {
        OpenWidth(width);
        for (const Case &page : cases) {
            State.OptionsPage = page.Page;
            Clear();
            RenderOptions(Renderer(), State, Devices);
            ExpectedScreen expected(width);
            ExpectHeadings(expected, width, U"OPTIONS", page.Section);
            EXPECT_TRUE(expected.IsShownBy(Shown(), 0, 150)) << width << " " << page.Page;
        }
    }
}

TEST_F(OptionsPages, TakeEachSectionFromTheTable) {
    Localization.Texts = {{"Options.Section.Menu", "M1"}, {"Options.Section.Controls", "C2"},
        {"Options.Section.Graphics", "G3"}, {"Options.Section.Audio", "A4"}};
    constexpr std::array<std::u32string_view, 4> sections{U"M1", U"C2", U"G3", U"A4"};
    for (std::size_t page = 0; page < sections.size(); ++page) {
        State.OptionsPage = static_cast<enum OptionsPage>(page);
        RenderOptions(Renderer(), State, Devices);
        ExpectedScreen expected(ScreenWidth);
        ExpectHeadings(expected, ScreenWidth, U"OPTIONS", sections[page]);
        EXPECT_TRUE(expected.IsShownBy(Shown(), 0, 150)) << page;
    }
}
