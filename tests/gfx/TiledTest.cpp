#include "gfx/Draw.hpp"

#include "gfx/Atlas.hpp"
#include "tests/gfx/GfxTest.hpp"

class Tiled : public GfxTest {
protected:
    Picture Draw(float X, float Y, float W, float H, float OffsetX, float OffsetY, float Scale = 2.0F) {
        Clear();
        DrawTiledSprite(Renderer(), SpriteRoadBridge, X, Y, W, H, OffsetX, OffsetY, Scale);
        return Shown();
    }

    bool DrawsNothing(float W, float H, float Scale) {
        return Draw(100.0F, 100.0F, W, H, 0.0F, 0.0F, Scale).BoundsOfAllBut(Backdrop).w == 0;
    }
};

TEST_F(Tiled, CoversTheRectangleAndNothingElse) {
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Tiles(SpriteRoadBridge, {96, 64, 320, 224}, 0, 0);
    EXPECT_TRUE(expected.IsShownBy(Draw(96.0F, 64.0F, 320.0F, 224.0F, 0.0F, 0.0F)));
}

TEST_F(Tiled, ShiftsThePatternByTheOffset) {
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Tiles(SpriteRoadBridge, {100, 50, 150, 130}, 6, 17);
    EXPECT_TRUE(expected.IsShownBy(Draw(100.0F, 50.0F, 150.0F, 130.0F, 6.0F, 17.0F)));
}

TEST_F(Tiled, RoundsTheOffsetDown) {
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Tiles(SpriteRoadBridge, {100, 50, 150, 130}, 5, -4);
    EXPECT_TRUE(expected.IsShownBy(Draw(100.0F, 50.0F, 150.0F, 130.0F, 5.7F, -3.2F)));
}

TEST_F(Tiled, TakesAnOffsetOfAnySizeByTheTile) {
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Tiles(SpriteRoadBridge, {100, 50, 150, 130}, 8, 24); // 1000008 = 31250 x 32 + 8
    EXPECT_TRUE(expected.IsShownBy(Draw(100.0F, 50.0F, 150.0F, 130.0F, 1000008.0F, -1000008.0F)));
}

TEST_F(Tiled, ShowsTheSameForANegativeOffsetAndATileMore) {
    for (const float offset : {-1.0F, -7.0F, -31.0F, -32.0F}) {
        const Picture negative = Draw(100.0F, 50.0F, 150.0F, 130.0F, offset, offset);
        const Picture tileMore = Draw(100.0F, 50.0F, 150.0F, 130.0F, offset + 32.0F, offset + 32.0F);
        EXPECT_TRUE(negative == tileMore) << offset;
        EXPECT_EQ(negative.BoundsOfAllBut(Backdrop).w, 150);
    }
}

TEST_F(Tiled, RoundsTheTileSize) {
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Tiles(SpriteRoadBridge, {100, 50, 220, 198}, 3, 5, 22); // 16 x 1.4 = 22.4
    EXPECT_TRUE(expected.IsShownBy(Draw(100.0F, 50.0F, 220.0F, 198.0F, 3.0F, 5.0F, 1.4F)));
}

TEST_F(Tiled, HasTilesOfAPixelAtLeast) {
    const SDL_Rect covered = Draw(100.0F, 50.0F, 9.0F, 7.0F, 0.0F, 0.0F, 0.001F).BoundsOfAllBut(Backdrop);
    EXPECT_EQ(covered.x, 100);
    EXPECT_EQ(covered.y, 50);
    EXPECT_EQ(covered.w, 9);
    EXPECT_EQ(covered.h, 7);
}

TEST_F(Tiled, CoversAllPixelsThatAFractionalRectangleTouches) {
    const SDL_Rect covered = Draw(10.4F, 20.9F, 20.2F, 5.2F, 0.0F, 0.0F).BoundsOfAllBut(Backdrop);
    EXPECT_EQ(covered.x, 10);
    EXPECT_EQ(covered.y, 20);
    EXPECT_EQ(covered.w, 21); // up to 30.6
    EXPECT_EQ(covered.h, 7);  // up to 26.1
}

TEST_F(Tiled, CountsTheOffsetFromTheWholePixelOfAFractionalRectangle) {
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Tiles(SpriteRoadBridge, {10, 20, 161, 129}, 0, 0);
    EXPECT_TRUE(expected.IsShownBy(Draw(10.9F, 20.9F, 160.0F, 128.0F, 0.0F, 0.0F)));
}

TEST_F(Tiled, OverlapsItsRowsSoThatNoSeamOpensInASmallWindow) {
    Open(1280, 854, 480);
    DrawTiledSprite(Renderer(), SpriteGroundEarth, 0.0F, 0.0F, 1280.0F, 720.0F, 0.0F, 0.0F, 2.0F);
    const Picture shown = Shown();
    for (int y = 1; y < 479; ++y) {
        EXPECT_NE(shown.At(10, y), Backdrop) << "row " << y;
    }
}

TEST_F(Tiled, DrawsNothingWithoutWidthHeightOrScale) {
    EXPECT_TRUE(DrawsNothing(0.0F, 10.0F, 2.0F));
    EXPECT_TRUE(DrawsNothing(-5.0F, 10.0F, 2.0F));
    EXPECT_TRUE(DrawsNothing(10.0F, 0.0F, 2.0F));
    EXPECT_TRUE(DrawsNothing(10.0F, -5.0F, 2.0F));
    EXPECT_TRUE(DrawsNothing(10.0F, 10.0F, 0.0F));
    EXPECT_TRUE(DrawsNothing(10.0F, 10.0F, -2.0F));
    EXPECT_TRUE(DrawsNothing(0.000001F, 10.0F, 2.0F)); // 100 and this are 100 in single precision
    EXPECT_TRUE(DrawsNothing(10.0F, 0.000001F, 2.0F));
    EXPECT_FALSE(DrawsNothing(10.0F, 10.0F, 2.0F));
}

TEST_F(Tiled, LeavesTheClipStateAsItWas) {
    const SDL_Rect clip{110, 60, 40, 30};
    SDL_Rect after{};
    for (const float width : {0.0F, 150.0F}) {
        ASSERT_TRUE(SDL_SetRenderClipRect(Renderer(), nullptr));
        Draw(100.0F, 50.0F, width, 130.0F, 0.0F, 0.0F);
        EXPECT_FALSE(SDL_RenderClipEnabled(Renderer())) << width;

        ASSERT_TRUE(SDL_SetRenderClipRect(Renderer(), &clip));
        Draw(100.0F, 50.0F, width, 130.0F, 0.0F, 0.0F);
        EXPECT_TRUE(SDL_RenderClipEnabled(Renderer())) << width;
        ASSERT_TRUE(SDL_GetRenderClipRect(Renderer(), &after));
        EXPECT_TRUE(SDL_RectsEqual(&clip, &after)) << width;
    }
}
