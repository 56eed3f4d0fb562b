#include "gfx/Draw.hpp"

#include "tests/gfx/GfxTest.hpp"

#include <chrono>
#include <cmath>
#include <limits>

class Disc : public GfxTest {
protected:
    /// Draws a disc that no screen could hold, which must not take longer than one that fills it.
    void ExpectPromptDisc(float X, float Y, float Radius) {
        const auto start = std::chrono::steady_clock::now();
        FillDisc(Renderer(), X, Y, Radius, 0xFF112233);
        SDL_FlushRenderer(Renderer());
        const auto taken = std::chrono::steady_clock::now() - start;
        EXPECT_LT(taken, std::chrono::seconds(2)) << X << ", " << Y << ", radius " << Radius;
    }
};

TEST_F(Disc, IsMadeOfSpansOfTheChordsLengthAndOne) {
    FillDisc(Renderer(), 100.0F, 200.0F, 5.0F, 0xFF112233);
    const Picture shown = Shown();
    // Rows 0, 3, 4 and 5 from the centre have chords of whole length: 10, 8, 6 and 0.
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Fill(95, 200, 11, 1, 0xFF112233);
    for (const int side : {-1, 1}) {
        expected.Fill(96, 200 + side * 3, 9, 1, 0xFF112233);
        expected.Fill(97, 200 + side * 4, 7, 1, 0xFF112233);
        expected.Fill(100, 200 + side * 5, 1, 1, 0xFF112233);
    }
    for (const int row : {194, 195, 196, 197, 200, 203, 204, 205, 206}) {
        EXPECT_TRUE(expected.IsShownBy(shown, {0, row, ScreenWidth, 1}));
    }
    ExpectedPicture whole(ScreenWidth, ScreenHeight);
    whole.Disc(100, 200, 5.0, 0xFF112233);
    EXPECT_TRUE(whole.IsShownBy(shown));
}

TEST_F(Disc, OfAFractionalRadiusKeepsItsLengthButRoundsItsRows) {
    FillDisc(Renderer(), 640.0F, 300.0F, 18.2F, 0x6E96EBFF);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Disc(640, 300, 18.2, 0x6E96EBFF);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
    const SDL_Rect bounds = Shown().BoundsOfAllBut(Backdrop);
    EXPECT_EQ(bounds.y, 282);
    EXPECT_EQ(bounds.h, 37);
}

TEST_F(Disc, WhoseRadiusRoundsUpHasARowMoreOfASinglePixel) {
    FillDisc(Renderer(), 640.0F, 300.0F, 3.5F, 0xFF112233);
    const Picture shown = Shown();
    const SDL_Rect bounds = shown.BoundsOfAllBut(Backdrop);
    EXPECT_EQ(bounds.y, 296);
    EXPECT_EQ(bounds.h, 9);
    EXPECT_EQ(shown.At(639, 296), Backdrop);
    EXPECT_EQ(shown.At(640, 296), 0xFF112233U);
    EXPECT_EQ(shown.At(641, 296), Backdrop);
}

TEST_F(Disc, BlendsByTheAlphaOfItsColorEachPixelOnce) {
    FillDisc(Renderer(), 100.0F, 200.0F, 40.0F, 0x80FFFFFF);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Disc(100, 200, 40.0, 0x80FFFFFF);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Disc, OfRadiusZeroIsOnePixel) {
    FillDisc(Renderer(), 100.0F, 200.0F, 0.0F, 0xFF112233);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Fill(100, 200, 1, 1, 0xFF112233);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Disc, OfANegativeRadiusIsNothing) {
    FillDisc(Renderer(), 100.0F, 200.0F, -5.0F, 0xFF112233);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
}

TEST_F(Disc, ReachesOverTheScreensEdges) {
    FillDisc(Renderer(), 100.0F, 3.0F, 10.0F, 0xFF112233);
    FillDisc(Renderer(), 200.0F, 716.0F, 10.0F, 0xFF112233);
    FillDisc(Renderer(), 300.0F, -6.0F, 10.0F, 0xFF112233);
    FillDisc(Renderer(), 2.0F, 300.0F, 10.0F, 0xFF112233);
    FillDisc(Renderer(), 1279.0F, 300.0F, 10.0F, 0xFF112233);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Disc(100, 3, 10.0, 0xFF112233);
    expected.Disc(200, 716, 10.0, 0xFF112233);
    expected.Disc(300, -6, 10.0, 0xFF112233);
    expected.Disc(2, 300, 10.0, 0xFF112233);
    expected.Disc(1279, 300, 10.0, 0xFF112233);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Disc, OfALargeRadiusFillsTheScreenPromptly) {
    ExpectPromptDisc(100.0F, 200.0F, 1e6F);
    EXPECT_EQ(Shown().BoundsOfAllBut(0xFF112233).w, 0);
}

TEST_F(Disc, ReturnsPromptlyForAnyRadiusAndPlace) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::nanf("");
    const float values[] = {
        nan, infinity, -infinity, 3e9F, -3e9F, 1e30F, -1e30F, 2147483648.0F, -2147483648.0F, 1e9F, 100.0F};
    for (const float x : values) {
        for (const float y : values) {
            for (const float radius : values) {
                ExpectPromptDisc(x, y, radius);
            }
        }
    }
    Clear();
    FillDisc(Renderer(), 100.0F, 200.0F, 0.0F, 0xFF112233);
    EXPECT_EQ(Shown().At(100, 200), 0xFF112233U);
}
