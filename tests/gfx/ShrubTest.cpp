#include "gfx/Scenery.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/GfxTest.hpp"

class Shrub : public GfxTest {
protected:
    /// Draws the shrubs of two bands that meet at 300: grass above, dirt below.
    Picture DrawAroundASeam(float RoadScroll) {
        Clear();
        DrawRoadside(Renderer(), 3, RoadScroll, 0.0F, 300.0F);
        DrawRoadside(Renderer(), 2, RoadScroll, 300.0F, 720.0F);
        return Shown();
    }

    /// Expects one shrub, alone within an area around it.
    static void ExpectShrub(const Picture &Shown, std::int32_t Id, float CenterX, float CenterY) {
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        expected.Sprite(Id, CenterX, CenterY, 25, 25);
        const SDL_Rect around{static_cast<int>(CenterX) - 20, static_cast<int>(CenterY) - 20, 40, 40};
        EXPECT_TRUE(expected.IsShownBy(Shown, around)) << CenterX << ", " << CenterY;
    }
};

TEST_F(Shrub, StandsEverySeventyTwoPoint8OnEachSide) {
    DrawRoadside(Renderer(), 2, 100.0F, 0.0F, 720.0F);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    // Left centres: 27.2 (what is left of 100) - 72.8 + 14 = -31.6 and on; the right ones 19.6 lower.
    for (const float y : {41.0F, 114.0F, 187.0F, 260.0F, 332.0F, 405.0F, 478.0F, 551.0F, 624.0F, 696.0F}) {
        expected.Sprite(SpriteRoadsideShrubDark, 455.0F, y, 25, 25);
    }
    for (const float y : {61.0F, 134.0F, 206.0F, 279.0F, 352.0F, 425.0F, 498.0F, 570.0F, 643.0F, 716.0F}) {
        expected.Sprite(SpriteRoadsideShrubDark, 825.0F, y, 25, 25);
    }
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Shrub, IsMissingWithoutAThemeOfShrubs) {
    for (const std::int32_t theme : {-1, 0, 1, 4}) {
        DrawRoadside(Renderer(), theme, 100.0F, 0.0F, 720.0F);
    }
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
}

TEST_F(Shrub, KeepsItsDistanceToTheRoadOnEveryScreen) {
    for (const int width : {960, 1080, 1152, 1280, 1728, 2560}) {
        Open(width, width, 720);
        DrawRoadside(Renderer(), 3, 100.0F, 30.0F, 70.0F);
        const auto roadLeft = static_cast<float>(width - 320) * 0.5F;
        ExpectedPicture expected(width, 720);
        expected.Sprite(SpriteRoadsideShrubBright, roadLeft - 25.0F, 41.0F, 25, 25);
        expected.Sprite(SpriteRoadsideShrubBright, roadLeft + 345.0F, 61.0F, 25, 25);
        EXPECT_TRUE(expected.IsShownBy(Shown())) << "width " << width;
    }
}

TEST_F(Shrub, JustAboveTheSeamIsNewAndWhole) {
    // 66.6 - 72.8 + 14 + 4 x 72.8 = 299
    ExpectShrub(DrawAroundASeam(66.6F), SpriteRoadsideShrubBright, 455.0F, 299.0F);
    // 47 - 72.8 + 33.6 + 4 x 72.8 = 299
    ExpectShrub(DrawAroundASeam(47.0F), SpriteRoadsideShrubBright, 825.0F, 299.0F);
}

TEST_F(Shrub, OnTheSeamIsOldAndWhole) {
    // 67.6 - 72.8 + 14 + 4 x 72.8 = 300
    ExpectShrub(DrawAroundASeam(67.6F), SpriteRoadsideShrubDark, 455.0F, 300.0F);
}

TEST_F(Shrub, BelongsToTheBandOfItsUnroundedCentre) {
    // 67.35 - 72.8 + 14 + 4 x 72.8 = 299.75: new, but shown at 300.
    ExpectShrub(DrawAroundASeam(67.35F), SpriteRoadsideShrubBright, 455.0F, 300.0F);
    ExpectShrub(DrawAroundASeam(47.75F), SpriteRoadsideShrubBright, 825.0F, 300.0F);
}

TEST_F(Shrub, IsNotLookedForOffTheScreen) {
    DrawRoadside(Renderer(), 2, 100.0F, -500.0F, 0.0F);
    DrawRoadside(Renderer(), 2, 100.0F, 720.0F, 900.0F);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
    DrawRoadside(Renderer(), 2, 66.6F, -500.0F, 900.0F);
    // Centres are 7.8, 80.6, ...; the one at -65 is not drawn, nor the one at 735.8.
    ExpectShrub(Shown(), SpriteRoadsideShrubDark, 455.0F, 81.0F);
    EXPECT_LT(Shown().BoundsOfAllBut(Backdrop).y, 20);
}
