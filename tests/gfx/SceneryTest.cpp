#include "gfx/Scenery.hpp"

#include "gfx/SpriteId.hpp"
#include "state/LogicalScreen.hpp"
#include "tests/gfx/ExpectedScenery.hpp"
#include "tests/gfx/GfxTest.hpp"

#include <limits>

class Scenery : public GfxTest {
protected:
    /// Draws ground and road of a theme on an empty screen.
    Picture DrawTheme(std::int32_t Theme) {
        Clear();
        const GameState state = EmptyRoad();
        DrawGround(Renderer(), state, Theme, 0.0F, 720.0F, 1);
        DrawRoadside(Renderer(), Theme, 0.0F, 0.0F, 720.0F);
        DrawRoad(Renderer(), state, Theme, 0.0F, 720.0F);
        return Shown();
    }
};

TEST_F(Scenery, OfAnUnknownThemeIsEarth) {
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectGround(expected, SpriteGroundEarth, 1280, 0, 720, 0);
    ExpectRoad(expected, SpriteRoadSurface, 1280, 0, 720, 0);
    for (const std::int32_t theme :
        {0, -1, 4, 99, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_TRUE(expected.IsShownBy(DrawTheme(theme))) << "theme " << theme;
    }
}

TEST_F(Scenery, OfStageOneIsEarthUpToTheEdgesOfEveryScreen) {
    for (const int width : {960, 1080, 1152, 1280, 1728, 2560}) {
        Open(width, width, 720);
        GameState state = EmptyRoad(1);
        state.RoadScroll = 45.7F;
        DrawScenery(Renderer(), state);

        ExpectedPicture expected(width, 720);
        ExpectGround(expected, SpriteGroundEarth, width, 0, 720, 45);
        ExpectRoad(expected, SpriteRoadSurface, width, 0, 720, 45);
        ExpectMarkings(expected, width, 45 - 62);
        EXPECT_TRUE(expected.IsShownBy(Shown())) << "width " << width;
    }
}

TEST_F(Scenery, OfStageTwoIsABridgeOverWaterOnEveryScreen) {
    for (const int width : {960, 1080, 1152, 1280, 1728, 2560}) {
        Open(width, width, 720);
        GameState state = EmptyRoad(2);
        state.RoadScroll = 45.7F;
        state.GameTime = 1.5F;
        DrawScenery(Renderer(), state);

        ExpectedPicture expected(width, 720);
        ExpectGround(expected, SpriteGroundWater, width, 0, 720, 45, 26, 22);
        ExpectRoad(expected, SpriteRoadBridge, width, 0, 720, 45);
        ExpectRails(expected, width, 0, 720, 17 - 28);
        ExpectMarkings(expected, width, 45 - 62);
        EXPECT_TRUE(expected.IsShownBy(Shown())) << "width " << width;
    }
}

TEST_F(Scenery, OfTheFourthAndEighthStageIsDirtAndGrassWithShrubs) {
    struct Row {
        std::int32_t Stage;
        std::int32_t Ground;
        std::int32_t Shrub;
    };
    for (const Row &row : {Row{4, SpriteGroundDirt, SpriteRoadsideShrubDark},
             Row{8, SpriteGroundGrass, SpriteRoadsideShrubBright}}) {
        GameState state = EmptyRoad(row.Stage);
        state.RoadScroll = 10.0F;
        Clear();
        DrawScenery(Renderer(), state);

        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        ExpectGround(expected, row.Ground, 1280, 0, 720, 10);
        for (const float y : {24.0F, 97.0F, 170.0F, 242.0F, 315.0F, 388.0F, 461.0F, 534.0F, 606.0F, 679.0F}) {
            expected.Sprite(row.Shrub, 455.0F, y, 25, 25);
        }
        for (const float y :
            {44.0F, 116.0F, 189.0F, 262.0F, 335.0F, 408.0F, 480.0F, 553.0F, 626.0F, 699.0F}) {
            expected.Sprite(row.Shrub, 825.0F, y, 25, 25);
        }
        ExpectRoad(expected, SpriteRoadSurface, 1280, 0, 720, 10);
        ExpectMarkings(expected, 1280, 10 - 62);
        EXPECT_TRUE(expected.IsShownBy(Shown())) << "stage " << row.Stage;
    }
}

TEST_F(Scenery, OfABandWithoutHeightIsNothing) {
    Clear();
    const GameState state = EmptyRoad();
    for (const float y1 : {300.0F, 200.0F}) {
        for (const std::int32_t theme : {1, 3}) {
            DrawGround(Renderer(), state, theme, 300.0F, y1, 1);
            DrawRoadside(Renderer(), theme, 0.0F, 300.0F, y1);
            DrawRoad(Renderer(), state, theme, 300.0F, y1);
        }
    }
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
}

TEST_F(Scenery, ScrollsByWholePixelsAlsoFarDownTheRoad) {
    GameState state = EmptyRoad(1);
    state.RoadScroll = 100000.5F; // 3125 x 32 and 1612 x 62 + 56
    Clear();
    DrawScenery(Renderer(), state);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectGround(expected, SpriteGroundEarth, 1280, 0, 720, 0);
    ExpectRoad(expected, SpriteRoadSurface, 1280, 0, 720, 0);
    ExpectMarkings(expected, 1280, 56 - 62);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}
