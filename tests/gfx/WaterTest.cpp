#include "gfx/Scenery.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/ExpectedScenery.hpp"
#include "tests/gfx/GfxTest.hpp"

namespace {

/// A moment, and where the two banks' tiles must be then, from
/// 2 x round((6 x sin(2.1 t + 0.03 y0) + 18 t x direction) / 2) on the left and
/// 2 x round((6 x sin(2.3 t + 0.027 y0 + 1.35) + 18 t x direction) / 2) on the right.
struct WaterMoment {
    float GameTime;
    int Top;
    std::int32_t FlowDirection;
    int LeftShift;
    int RightShift;
};

constexpr WaterMoment Moments[] = {
    {0.0F, 0, 1, 0, 6},
    {0.0F, 300, -1, 2, 0},
    {1.5F, 0, 1, 26, 22},
    {1.5F, 0, -1, -28, -32},
    {1.5F, 300, 1, 24, 28},
    {1.5F, 300, -1, -30, -26},
    {10.25F, 0, 1, 188, 184},
    {10.25F, 0, -1, -182, -186},
    {10.25F, 300, 1, 180, 190},
    {10.25F, 300, -1, -190, -178},
};

} // namespace

class Water : public GfxTest {};

TEST_F(Water, DriftsAndRipplesOnBothBanks) {
    for (const WaterMoment &moment : Moments) {
        GameState state = EmptyRoad();
        state.GameTime = moment.GameTime;
        state.RoadScroll = 77.0F;
        Clear();
        DrawGround(Renderer(), state, 1, static_cast<float>(moment.Top), 720.0F, moment.FlowDirection);

        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        ExpectGround(
            expected, SpriteGroundWater, 1280, moment.Top, 720, 77, moment.LeftShift, moment.RightShift);
        EXPECT_TRUE(expected.IsShownBy(Shown()))
            << "at " << moment.GameTime << " s from " << moment.Top << ", flowing " << moment.FlowDirection;
    }
}

TEST_F(Water, StandsStillInOtherThemes) {
    constexpr std::int32_t grounds[] = {
        SpriteGroundEarth, SpriteGroundWater, SpriteGroundDirt, SpriteGroundGrass};
    for (const std::int32_t theme : {0, 2, 3}) {
        GameState state = EmptyRoad();
        state.GameTime = 10.25F;
        Clear();
        DrawGround(Renderer(), state, theme, 0.0F, 720.0F, 1);
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        ExpectGround(expected, grounds[theme], 1280, 0, 720, 0);
        EXPECT_TRUE(expected.IsShownBy(Shown())) << "theme " << theme;
    }
}
