#include "gfx/Draw.hpp"

#include "tests/gfx/GfxTest.hpp"

class Fill : public GfxTest {};

TEST_F(Fill, UnpacksRedFromTheLowestByteUp) {
    SetDrawColor(Renderer(), 0x44332211);
    Uint8 r = 0;
    Uint8 g = 0;
    Uint8 b = 0;
    Uint8 a = 0;
    ASSERT_TRUE(SDL_GetRenderDrawColor(Renderer(), &r, &g, &b, &a));
    EXPECT_EQ(r, 0x11);
    EXPECT_EQ(g, 0x22);
    EXPECT_EQ(b, 0x33);
    EXPECT_EQ(a, 0x44);
}

TEST_F(Fill, CoversExactlyTheRectangle) {
    FillRect(Renderer(), 100.0F, 200.0F, 30.0F, 7.0F, 0xFF0A141E);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Fill(100, 200, 30, 7, 0xFF0A141E);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Fill, BlendsByTheAlphaOfTheColor) {
    FillRect(Renderer(), 100.0F, 200.0F, 30.0F, 7.0F, 0x800A141E);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.BlendRect(100, 200, 30, 7, 0x800A141E);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}
