#include "gfx/GameOverPanel.hpp"

#include "gfx/World.hpp"
#include "tests/gfx/ScreenTest.hpp"

#include <algorithm>

namespace {

constexpr std::uint32_t BorderColor = 0xB44E4E4E;
constexpr std::uint32_t VeilColor = 0xAF000000;
constexpr std::uint32_t TitleColor = 0xFF7878FF;
constexpr std::uint32_t HintColor = 0xFFEBEBEB;
constexpr std::uint32_t DeviceLineColor = 0xFFE1E1E1;

constexpr std::array DeviceCases{
    DeviceCase{false, false, U""},
    DeviceCase{true, false, U"PAD A OR B MAIN MENU"},
    DeviceCase{false, true, U"JOY BUTTON 0 OR BUTTON 3 MAIN MENU"},
    DeviceCase{true, true, U"PAD A OR B MAIN MENU   JOY BUTTON 0 OR BUTTON 3 MAIN MENU"},
};

struct Told {
    int PanelWidth = 564; // the hint has 30 letters of 14, then 144
    std::u32string_view DeviceLine{};
    int Width = ScreenWidth;
    std::u32string_view Title = U"GAME OVER";
    std::u32string_view Hint = U"ENTER OR ESC BACK TO MAIN MENU";
};

/// 180 high from 270 on, or with a device line 210 high from 255 on.
void ExpectPanel(ExpectedScreen &Expected, const Told &Told) {
    const bool hasLine = !Told.DeviceLine.empty();
    const int top = hasLine ? 255 : 270;
    const int height = hasLine ? 210 : 180;
    const double left = (Told.Width - Told.PanelWidth) / 2.0;
    Expected.Blend(left - 2, top - 2, Told.PanelWidth + 4, height + 4, BorderColor);
    Expected.Blend(left, top, Told.PanelWidth, height, VeilColor);
    const int center = Told.Width / 2;
    Expected.Centered(Told.Title, center, top + 34, 6, TitleColor);
    Expected.Centered(Told.Hint, center, top + 134, 2, HintColor);
    Expected.Centered(Told.DeviceLine, center, top + 164, 2, DeviceLineColor);
}

} // namespace

class GameOverPanel : public ScreenTest {
protected:
    ::testing::AssertionResult Shows(const Told &Told) {
        GameState state = RunBehindAPanel();
        state.Screen = ScreenGameOver;
        state.PauseSelection = State.PauseSelection;
        Clear();
        RenderGameplay(Renderer(), state);
        ExpectedScreen expected(Shown());
        RenderGameOverOverlay(Renderer(), state, Devices);
        ExpectPanel(expected, Told);
        return expected.IsShownBy(Shown());
    }
};

TEST_F(GameOverPanel, StandsInTheMiddleOfEveryScreenWithEverySetOfDevices) {
    for (const int width : TestedWidths) {
        OpenWidth(width);
        for (const DeviceCase &devices : DeviceCases) {
            Plug(devices);
            const int asked = std::max(420, CellWidth(devices.Line, 2)) + 144;
            const Told told{
                .PanelWidth = std::min(asked, width - 80), .DeviceLine = devices.Line, .Width = width};
            EXPECT_TRUE(Shows(told)) << width << " " << devices.HasGamepad << devices.HasJoystick;
        }
    }
}

TEST_F(GameOverPanel, Is180HighAnd210WithADeviceLine) {
    RenderGameOverOverlay(Renderer(), State, Devices);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).y, 268);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).h, 184);
    Plug(true, false);
    Clear();
    RenderGameOverOverlay(Renderer(), State, Devices);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).y, 253);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).h, 214);
}

TEST_F(GameOverPanel, FitsTheTitle) {
    Localization.Texts["GameOver.Title"] = "SPIEL ZU ENDE!!"; // 630
    EXPECT_TRUE(Shows({.PanelWidth = 774, .Title = U"SPIEL ZU ENDE!!"}));
}

TEST_F(GameOverPanel, FitsTheDeviceLine) {
    Plug(false, true);
    EXPECT_TRUE(Shows({.PanelWidth = 620, .DeviceLine = DeviceCases[2].Line})); // 476
}

TEST_F(GameOverPanel, IsNeverNarrowerThan440) {
    Localization.Texts = {{"GameOver.Title", "ENDE"}, {"GameOver.Hint.BackToMainMenu", "ESC"}};
    EXPECT_TRUE(Shows({.PanelWidth = 440, .Title = U"ENDE", .Hint = U"ESC"}));
    Localization.Texts["GameOver.Hint.BackToMainMenu"] = "TWENTY-ONE LETTERS OF"; // 294
    EXPECT_TRUE(Shows({.PanelWidth = 440, .Title = U"ENDE", .Hint = U"TWENTY-ONE LETTERS OF"}));
    Localization.Texts["GameOver.Hint.BackToMainMenu"] = "TWENTY-TWO LETTERS OF 1"; // 322
    EXPECT_TRUE(Shows({.PanelWidth = 466, .Title = U"ENDE", .Hint = U"TWENTY-TWO LETTERS OF 1"}));
}

TEST_F(GameOverPanel, GrowsUpToTheScreenLess80AndItsTextsBeyond) {
    OpenWidth(960);
    Localization.Texts["GameOver.Title"] = "ABCDEFGHIJKLMNOPQ"; // 714
    EXPECT_TRUE(Shows({.PanelWidth = 858, .Width = 960, .Title = U"ABCDEFGHIJKLMNOPQ"}));
    Localization.Texts["GameOver.Title"] = "ABCDEFGHIJKLMNOPQR"; // 756
    EXPECT_TRUE(Shows({.PanelWidth = 880, .Width = 960, .Title = U"ABCDEFGHIJKLMNOPQR"}));
    Localization.Texts["GameOver.Title"] = "ABCDEFGHIJKLMNOPQRSTUV"; // 924
    EXPECT_TRUE(Shows({.PanelWidth = 880, .Width = 960, .Title = U"ABCDEFGHIJKLMNOPQRSTUV"}));
}

TEST_F(GameOverPanel, HasNothingToSelect) {
    for (const int selection : {0, 1, 2, 3}) {
        State.PauseSelection = selection;
        EXPECT_TRUE(Shows({})) << selection;
    }
}

TEST_F(GameOverPanel, TakesEachOfItsTextsFromTheTableInEveryFrame) {
    Plug(true, true);
    ASSERT_TRUE(Shows({.PanelWidth = 942, .DeviceLine = DeviceCases[3].Line}));
    Localization.Texts = {{"GameOver.Title", "T"}, {"GameOver.Hint.BackToMainMenu", "H"},
        {"Controller.Hint.MainMenu", "M3"}, {"Controller.Hint.Select", "X"}, {"Controller.Hint.Back", "Y"}};
    EXPECT_TRUE(Shows({.PanelWidth = 43 * 14 + 144,
        .DeviceLine = U"PAD A OR B M3   JOY BUTTON 0 OR BUTTON 3 M3",
        .Title = U"T",
        .Hint = U"H"}));
}
