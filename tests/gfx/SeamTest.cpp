#include "gfx/Scenery.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/ExpectedScenery.hpp"
#include "tests/gfx/GfxTest.hpp"

class Seam : public GfxTest {
protected:
    /// Draws a change from one stage to another, scrolled in by so many rows of the screen.
    static GameState Change(std::int32_t OldStage, std::int32_t NewStage, float Rows) {
        GameState state = EmptyRoad(NewStage);
        state.PreviousStage = OldStage;
        state.StageTransition = Rows / 720.0F;
        state.RoadScroll = 100.0F;
        state.GameTime = 1.5F;
        state.WaterFlowDirection = 1;
        state.PreviousWaterFlowDirection = -1;
        return state;
    }

    void ExpectAllEarth(const GameState &State) {
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        ExpectGround(expected, SpriteGroundEarth, 1280, 0, 720, 100);
        ExpectRoad(expected, SpriteRoadSurface, 1280, 0, 720, 100);
        ExpectMarkings(expected, 1280, 38 - 62);
        ExpectFrame(expected, State);
    }

    /// All water; at 1.5 s flowing right, the left bank is at 26 and the right one at 22.
    void ExpectAllWater(const GameState &State) {
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        ExpectGround(expected, SpriteGroundWater, 1280, 0, 720, 100, 26, 22);
        ExpectRoad(expected, SpriteRoadBridge, 1280, 0, 720, 100);
        ExpectRails(expected, 1280, 0, 720, 16 - 28);
        ExpectMarkings(expected, 1280, 38 - 62);
        ExpectFrame(expected, State);
    }

    void ExpectFrame(const ExpectedPicture &Expected, const GameState &State) {
        Clear();
        DrawScenery(Renderer(), State);
        EXPECT_TRUE(Expected.IsShownBy(Shown())) << "at " << State.StageTransition;
    }
};

TEST_F(Seam, StartsAtTheTopWithAllOldScenery) {
    ExpectAllEarth(Change(1, 2, 0.0F));
    ExpectAllEarth(Change(1, 2, -50.0F));
}

TEST_F(Seam, DividesNewWaterFromOldEarth) {
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectGround(expected, SpriteGroundWater, 1280, 0, 300, 100, 26, 22);
    ExpectGround(expected, SpriteGroundEarth, 1280, 300, 720, 100);
    ExpectRoad(expected, SpriteRoadBridge, 1280, 0, 300, 100);
    ExpectRails(expected, 1280, 0, 300, 16 - 28);
    ExpectRoad(expected, SpriteRoadSurface, 1280, 300, 720, 100);
    ExpectMarkings(expected, 1280, 38 - 62);
    ExpectFrame(expected, Change(1, 2, 300.0F));
}

TEST_F(Seam, LetsOldWaterFlowAsItDid) {
    // 100 - 72.8 + 14 - 72.8 = -31.6 on the left and -12 on the right: the shrubs above 300.
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectGround(expected, SpriteGroundDirt, 1280, 0, 300, 100);
    ExpectGround(expected, SpriteGroundWater, 1280, 300, 720, 100, -30, -26);
    for (const float y : {41.0F, 114.0F, 187.0F, 260.0F}) {
        expected.Sprite(SpriteRoadsideShrubDark, 455.0F, y, 25, 25);
    }
    for (const float y : {61.0F, 134.0F, 206.0F, 279.0F}) {
        expected.Sprite(SpriteRoadsideShrubDark, 825.0F, y, 25, 25);
    }
    ExpectRoad(expected, SpriteRoadSurface, 1280, 0, 300, 100);
    ExpectRoad(expected, SpriteRoadBridge, 1280, 300, 720, 100);
    ExpectRails(expected, 1280, 300, 720, 16);
    ExpectMarkings(expected, 1280, 38 - 62);
    ExpectFrame(expected, Change(3, 4, 300.0F));
}

TEST_F(Seam, ShowsAShrubWholeOverTheOtherBandsGround) {
    GameState state = Change(7, 8, 300.0F);
    state.RoadScroll = 66.6F; // a left shrub's centre is at 299
    Clear();
    DrawScenery(Renderer(), state);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectGround(expected, SpriteGroundGrass, 1280, 0, 300, 66);
    ExpectGround(expected, SpriteGroundDirt, 1280, 300, 720, 66);
    expected.Sprite(SpriteRoadsideShrubBright, 455.0F, 299.0F, 25, 25);
    EXPECT_TRUE(expected.IsShownBy(Shown(), {435, 280, 40, 40}));
}

TEST_F(Seam, IsNotShownOnceTheNewSceneryFillsTheScreen) {
    ExpectAllWater(Change(1, 2, 720.0F));
    ExpectAllWater(Change(1, 2, 900.0F));
}

TEST_F(Seam, IsNotShownBetweenStagesOfOneTheme) {
    ExpectAllWater(Change(2, 3, 0.0F));
    ExpectAllWater(Change(2, 3, 300.0F));
}

TEST_F(Seam, IsNotShownOnARunsFirstFrame) {
    ExpectAllEarth(Change(1, 1, 720.0F));
}
