#include "gfx/Draw.hpp"

#include "gfx/Atlas.hpp"
#include "tests/gfx/GfxTest.hpp"

class Tint : public GfxTest {};

TEST_F(Tint, LaysAReddenedCopyOverTheSprite) {
    DrawSprite(Renderer(), SpriteEnemy, 640.0F, 300.0F, 26.0F, 26.0F);
    DrawSpriteTinted(Renderer(), SpriteEnemy, 640.0F, 300.0F, 26.0F, 26.0F, 0xB43C3CFF);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.FlashedSprite(SpriteEnemy, 640.0F, 300.0F, 26, 26, 0xB4);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Tint, ReadsTheAlphaOfTheTintAloneForEverySprite) {
    const std::uint32_t tints[] = {0x78000000, 0xB4FFFFFF, 0xF0123456, 0xFF00FF00};
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    for (std::int32_t id = 0; id < SpriteCount; ++id) {
        for (int i = 0; i < 4; ++i) {
            const float x = 40.0F + 57.0F * static_cast<float>(id);
            const float y = 100.0F + 100.0F * static_cast<float>(i);
            DrawSpriteTinted(Renderer(), static_cast<SpriteId>(id), x, y, 26.0F, 26.0F, tints[i]);
            expected.RedSprite(id, x, y, 26, 26, static_cast<int>(tints[i] >> 24U));
        }
    }
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Tint, OfAlphaZeroShowsNothing) {
    DrawSpriteTinted(Renderer(), SpriteGroundEarth, 640.0F, 300.0F, 26.0F, 26.0F, 0x00FFFFFF);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
}

TEST_F(Tint, IsSnappedAsTheSpriteIs) {
    Open(1280, 640, 360);
    DrawSpriteTinted(Renderer(), SpriteGroundEarth, 641.0F, 302.9F, 31.2F, 0.5F, 0xFF3C3CFF);
    const SDL_Rect covered = Shown().BoundsOfAllBut(Backdrop);
    EXPECT_EQ(covered.x, 313); // centre 642, width 32
    EXPECT_EQ(covered.w, 16);
    EXPECT_EQ(covered.y, 150); // centre 302, height 2
    EXPECT_EQ(covered.h, 1);
}

TEST_F(Tint, IsGoneForTheNextSprite) {
    DrawSpriteTinted(Renderer(), SpriteEnemy, 100.0F, 100.0F, 26.0F, 26.0F, 0xB43C3CFF);
    Uint8 r = 0;
    Uint8 g = 0;
    Uint8 b = 0;
    Uint8 a = 0;
    ASSERT_TRUE(SDL_GetTextureColorMod(SpriteAtlas.Texture, &r, &g, &b));
    ASSERT_TRUE(SDL_GetTextureAlphaMod(SpriteAtlas.Texture, &a));
    EXPECT_EQ(r, 255);
    EXPECT_EQ(g, 255);
    EXPECT_EQ(b, 255);
    EXPECT_EQ(a, 255);

    Clear();
    DrawSprite(Renderer(), SpriteEnemy, 100.0F, 100.0F, 26.0F, 26.0F);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Sprite(SpriteEnemy, 100.0F, 100.0F, 26, 26);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}
