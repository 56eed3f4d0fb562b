#include "gfx/OptionsRows.hpp"

#include "tests/gfx/ScreenTest.hpp"

namespace {

constexpr std::uint32_t Selected = 0xFFF5F5F5;
constexpr std::uint32_t Other = 0xFFB4B4B4;

class MenuRow : public ScreenTest {
protected:
    MenuRow() {
        Clear(0xFF000000);
    }
};

TEST_F(MenuRow, SelectedIsBrightBehindAMarker) {
    DrawMenuRow(Renderer(), "LABEL", "VALUE", 200.0F, true, 300.0F, 500.0F);
    ExpectedScreen expected(ScreenWidth);
    expected.Text(U">", 276, 200, 3, Selected);
    expected.Text(U"LABEL", 300, 200, 3, Selected);
    expected.Text(U"VALUE", 500, 200, 3, Selected);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(MenuRow, OtherwiseIsDimWithoutAMarker) {
    DrawMenuRow(Renderer(), "LABEL", "VALUE", 333.0F, false, 40.0F, 900.0F);
    ExpectedScreen expected(ScreenWidth);
    expected.Text(U"LABEL", 40, 333, 3, Other);
    expected.Text(U"VALUE", 900, 333, 3, Other);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(MenuRow, WithoutAValueHasNoSecondText) {
    for (const bool selected : {true, false}) {
        Clear(0xFF000000);
        DrawMenuRow(Renderer(), "LABEL", "", 200.0F, selected, 300.0F, 500.0F);
        ExpectedScreen expected(ScreenWidth);
        if (selected) {
            expected.Text(U">", 276, 200, 3, Selected);
        }
        expected.Text(U"LABEL", 300, 200, 3, selected ? Selected : Other);
        EXPECT_TRUE(expected.IsShownBy(Shown())) << selected;
    }
}

} // namespace
