#include "gfx/Scenery.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/ExpectedScenery.hpp"
#include "tests/gfx/GfxTest.hpp"

class Bridge : public GfxTest {
protected:
    Picture Draw(float RoadScroll, float Y0, float Y1, std::int32_t Theme = 1) {
        GameState state = EmptyRoad();
        state.RoadScroll = RoadScroll;
        Clear();
        DrawRoad(Renderer(), state, Theme, Y0, Y1);
        return Shown();
    }

    void ExpectBridge(float RoadScroll, int WholeScroll, int Top, int Bottom, int FirstPost) {
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        ExpectRoad(expected, SpriteRoadBridge, 1280, Top, Bottom, WholeScroll);
        ExpectRails(expected, 1280, Top, Bottom, FirstPost);
        EXPECT_TRUE(expected.IsShownBy(Draw(RoadScroll, static_cast<float>(Top), static_cast<float>(Bottom))))
            << "scrolled " << RoadScroll;
    }
};

TEST_F(Bridge, HasRailsSevenInsideItsEdgesWithAPostEveryTwentyEight) {
    ExpectBridge(0.0F, 0, 0, 720, 0);
    const Picture shown = Draw(0.0F, 0.0F, 720.0F);
    for (const int x : {487, 493, 786, 792}) {
        EXPECT_EQ(shown.At(x, 28), 0xFFBCB2AAU) << x;
        EXPECT_EQ(shown.At(x, 31), 0xFFBCB2AAU) << x;
        EXPECT_EQ(shown.At(x, 27), 0xFF908780U) << x;
        EXPECT_EQ(shown.At(x, 32), 0xFF908780U) << x;
    }
    for (const int x : {486, 494, 785, 793}) {
        EXPECT_NE(shown.At(x, 28), 0xFFBCB2AAU) << x;
        EXPECT_NE(shown.At(x, 27), 0xFF908780U) << x;
    }
}

TEST_F(Bridge, MovesItsPostsWithTheRoad) {
    ExpectBridge(10.9F, 10, 0, 720, 10 - 28);
    ExpectBridge(27.5F, 27, 0, 720, 27 - 28); // the first post is cut by the top
    ExpectBridge(28.0F, 28, 0, 720, 0);
    ExpectBridge(-1.0F, -1, 0, 720, -1);
}

TEST_F(Bridge, CutsItsPostsAtTheBandsEnds) {
    ExpectBridge(14.0F, 14, 100, 296, 14); // posts at 98 and 294 reach over the ends
}

TEST_F(Bridge, TakesItsPostsIntoEveryRowThatABandTouches) {
    const Picture shown = Draw(14.0F, 99.5F, 296.5F);
    EXPECT_EQ(shown.At(487, 98), Backdrop);
    EXPECT_EQ(shown.At(487, 99), 0xFFBCB2AAU);  // rounded down
    EXPECT_EQ(shown.At(487, 296), 0xFFBCB2AAU); // rounded up
    EXPECT_EQ(shown.At(487, 297), Backdrop);
}

TEST_F(Bridge, HasItsRailsOnTheScreenOnly) {
    const Picture shown = Draw(0.0F, -100.0F, 900.0F);
    EXPECT_EQ(shown.At(490, 6), 0xFF908780U);
    EXPECT_EQ(shown.At(490, 719), 0xFF908780U);
    EXPECT_EQ(Draw(0.0F, -200.0F, -100.0F).BoundsOfAllBut(Backdrop).w, 0);
}

TEST_F(Bridge, IsARoadWithoutRailsInOtherThemes) {
    for (const std::int32_t theme : {0, 2, 3}) {
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        ExpectRoad(expected, SpriteRoadSurface, 1280, 0, 720, 14);
        EXPECT_TRUE(expected.IsShownBy(Draw(14.0F, 0.0F, 720.0F, theme))) << "theme " << theme;
    }
}
