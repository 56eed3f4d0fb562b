#include "gfx/Draw.hpp"

#include "gfx/Atlas.hpp"
#include "tests/gfx/GfxTest.hpp"
#include "tests/support/watch/SdlWatch.hpp"

#include <optional>

class SpriteDraw : public GfxTest {
protected:
    /// Draws a sprite without holes and gives the physical pixels that it covers.
    SDL_Rect Covered(float X, float Y, float Width, float Height) {
        Clear();
        DrawSprite(Renderer(), SpriteGroundEarth, X, Y, Width, Height);
        return Shown().BoundsOfAllBut(Backdrop);
    }
};

TEST_F(SpriteDraw, ShowsEverySpriteInEverySize) {
    constexpr int sizes[] = {16, 26, 31, 48};
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    for (std::int32_t id = 0; id < SpriteCount; ++id) {
        for (int i = 0; i < 4; ++i) {
            const float x = 40.0F + 57.0F * static_cast<float>(id);
            const float y = 100.0F + 100.0F * static_cast<float>(i);
            const auto size = static_cast<float>(sizes[i]);
            DrawSprite(Renderer(), static_cast<SpriteId>(id), x, y, size, size);
            expected.Sprite(id, x, y, sizes[i], sizes[i]);
        }
    }
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(SpriteDraw, SnapsPlaceAndSizeToWholePixels) {
    DrawSprite(Renderer(), SpritePlayer, 640.4F, 300.5F, 31.2F, 18.2F);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Sprite(SpritePlayer, 640.0F, 301.0F, 31, 18);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(SpriteDraw, Of31Point2Is31WideAtStepOne) {
    const SDL_Rect covered = Covered(640.0F, 300.0F, 31.2F, 31.2F);
    EXPECT_EQ(covered.w, 31);
    EXPECT_EQ(covered.h, 31);
}

TEST_F(SpriteDraw, AtHalfSizeIsSnappedToTwo) {
    Open(1280, 640, 360);
    SDL_Rect covered = Covered(640.0F, 300.0F, 26.0F, 26.0F);
    EXPECT_EQ(covered.w, 13); // 26 logical pixels
    EXPECT_EQ(covered.h, 13);
    covered = Covered(640.0F, 300.0F, 31.2F, 31.2F);
    EXPECT_EQ(covered.w, 16); // 32 logical pixels, from 624 and 284
    EXPECT_EQ(covered.h, 16);
    EXPECT_EQ(covered.x, 312);
    EXPECT_EQ(covered.y, 142);
    covered = Covered(641.0F, 302.9F, 32.0F, 32.0F);
    EXPECT_EQ(covered.x, 313); // the centre goes to 642, 302
    EXPECT_EQ(covered.y, 143);
}

TEST_F(SpriteDraw, IsNeverNarrowerThanTheSnapStep) {
    SDL_Rect covered = Covered(640.5F, 300.5F, 0.5F, -3.0F);
    EXPECT_EQ(covered.w, 1);
    EXPECT_EQ(covered.h, 1);
    Open(1280, 640, 360);
    covered = Covered(640.0F, 300.0F, 0.5F, 0.0F);
    EXPECT_EQ(covered.w, 1); // 2 logical pixels
    EXPECT_EQ(covered.h, 1);
    Open(960, 320, 240);
    covered = Covered(600.0F, 300.0F, 0.5F, 1.2F);
    EXPECT_EQ(covered.w, 1); // 3 logical pixels
    EXPECT_EQ(covered.h, 1);
}

TEST_F(SpriteDraw, IsNeverLargerThan1024) {
    SdlWatch watch;
    std::optional<SDL_FRect> drawn;
    watch.RenderTexture.Before = [&drawn](SDL_Renderer * /*Receiver*/, SDL_Texture * /*Atlas*/,
                                     const SDL_FRect * /*Source*/, const SDL_FRect *Target) {
        drawn = *Target;
    };
    DrawSprite(Renderer(), SpritePlayer, 640.0F, 300.0F, 1e9F, 1025.0F);
    ASSERT_TRUE(drawn);
    EXPECT_EQ(drawn->x, 128.0F);
    EXPECT_EQ(drawn->y, -212.0F);
    EXPECT_EQ(drawn->w, 1024.0F);
    EXPECT_EQ(drawn->h, 1024.0F);
}

TEST_F(SpriteDraw, ReachesOverTheScreensEdges) {
    DrawSprite(Renderer(), SpritePlayer, 0.0F, 100.0F, 32.0F, 32.0F);
    DrawSprite(Renderer(), SpritePlayer, 1280.0F, 200.0F, 32.0F, 32.0F);
    DrawSprite(Renderer(), SpritePlayer, 300.0F, -4.0F, 32.0F, 32.0F);
    DrawSprite(Renderer(), SpritePlayer, 300.0F, 716.0F, 32.0F, 32.0F);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Sprite(SpritePlayer, 0.0F, 100.0F, 32, 32);
    expected.Sprite(SpritePlayer, 1280.0F, 200.0F, 32, 32);
    expected.Sprite(SpritePlayer, 300.0F, -4.0F, 32, 32);
    expected.Sprite(SpritePlayer, 300.0F, 716.0F, 32, 32);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}
