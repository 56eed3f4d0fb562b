#include "gfx/Scenery.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/ExpectedScenery.hpp"
#include "tests/gfx/GfxTest.hpp"

class CenterDash : public GfxTest {
protected:
    /// Draws a road scrolled that far and compares the strip of the dashes.
    void ExpectDashes(float RoadScroll, int WholeScroll, int FirstDash) {
        GameState state = EmptyRoad(1);
        state.RoadScroll = RoadScroll;
        Clear();
        DrawScenery(Renderer(), state);
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        ExpectRoad(expected, SpriteRoadSurface, 1280, 0, 720, WholeScroll);
        ExpectMarkings(expected, 1280, FirstDash);
        EXPECT_TRUE(expected.IsShownBy(Shown(), {480, 0, 320, 720})) << "scrolled " << RoadScroll;
    }
};

TEST_F(CenterDash, StartsAPeriodAboveTheScreen) {
    ExpectDashes(0.0F, 0, -62);
    ExpectDashes(0.9F, 0, -62);
    ExpectDashes(1.0F, 1, -61);
}

TEST_F(CenterDash, IsJustAboveTheTopBeforeItsPeriodEnds) {
    ExpectDashes(61.5F, 61, -1);
}

TEST_F(CenterDash, StartsOverAfterItsPeriod) {
    ExpectDashes(62.0F, 62, -62);
    ExpectDashes(63.25F, 63, -61);
}

TEST_F(CenterDash, KeepsItsPlaceOnARoadThatWasScrolledBackwards) {
    ExpectDashes(-1.0F, -1, -1);
    ExpectDashes(-62.0F, -62, -62);
}

TEST_F(CenterDash, IsSevenWideAndThirtyFourLongEverySixtyTwo) {
    GameState state = EmptyRoad(1);
    DrawScenery(Renderer(), state);
    const Picture shown = Shown();
    for (int y = 0; y < ScreenHeight; ++y) {
        const bool dash = y % 62 < 34;
        EXPECT_EQ(shown.At(636, y) == 0xFFEBEBEB, dash) << "row " << y;
        EXPECT_EQ(shown.At(642, y) == 0xFFEBEBEB, dash) << "row " << y;
        EXPECT_NE(shown.At(635, y), 0xFFEBEBEBU) << "row " << y;
        EXPECT_NE(shown.At(643, y), 0xFFEBEBEBU) << "row " << y;
    }
}
