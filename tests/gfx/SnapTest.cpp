#include "gfx/Draw.hpp"

#include "state/LogicalScreen.hpp"
#include "tests/gfx/GfxTest.hpp"
#include "tests/support/watch/SdlWatch.hpp"

class Snap : public GfxTest {
protected:
    int StepAt(int Width, int CanvasWidth, int CanvasHeight) {
        Open(Width, CanvasWidth, CanvasHeight);
        return GetPixelSnapStep(Renderer());
    }

    /// The same for a logical screen that is stretched over the whole canvas.
    int StretchedStepAt(int Width, int CanvasWidth, int CanvasHeight) {
        Open(Width, CanvasWidth, CanvasHeight);
        EXPECT_TRUE(SDL_SetRenderLogicalPresentation(
            Renderer(), Width, LogicalHeight, SDL_LOGICAL_PRESENTATION_STRETCH));
        return GetPixelSnapStep(Renderer());
    }
};

TEST_F(Snap, IsOneWithoutARenderer) {
    EXPECT_EQ(GetPixelSnapStep(nullptr), 1);
}

TEST_F(Snap, IsOneIfTheRendererDoesNotTell) {
    Open(1280, 640, 360);
    SdlWatch watch;
    watch.GetRenderLogicalPresentationRect.Refuse();
    EXPECT_EQ(GetPixelSnapStep(Renderer()), 1);
}

TEST_F(Snap, IsOneWhereAPixelIsAPixel) {
    EXPECT_EQ(StepAt(1280, 1280, 720), 1);
    EXPECT_EQ(StepAt(960, 960, 720), 1);
}

TEST_F(Snap, IsOneInALargerWindow) {
    EXPECT_EQ(StepAt(1280, 1920, 1080), 1);
}

TEST_F(Snap, IsTwoAtHalfSizeAndThreeAtAThird) {
    EXPECT_EQ(StepAt(1280, 640, 360), 2);
    EXPECT_EQ(StepAt(960, 320, 240), 3);
    EXPECT_EQ(StepAt(2560, 1280, 360), 2);
}

TEST_F(Snap, RoundsToTheNearestWholeNumber) {
    EXPECT_EQ(StepAt(1280, 960, 540), 1); // 1 / 0.75 = 1.33
    EXPECT_EQ(StepAt(1280, 800, 450), 2); // 1 / 0.625 = 1.6
    EXPECT_EQ(StepAt(1280, 512, 288), 3); // 1 / 0.4 = 2.5
}

TEST_F(Snap, GoesByTheNarrowerSideOfALetterboxedWindow) {
    EXPECT_EQ(StepAt(1280, 640, 720), 2);
    EXPECT_EQ(StepAt(1280, 1280, 360), 2);
    EXPECT_EQ(StepAt(1280, 1280, 240), 3);
}

TEST_F(Snap, TakesTheSmallerScaleWhereTheTwoDiffer) {
    EXPECT_EQ(StretchedStepAt(1280, 640, 720), 2);
    EXPECT_EQ(StretchedStepAt(1280, 1280, 240), 3);
    EXPECT_EQ(StretchedStepAt(2560, 640, 720), 4);
}

TEST_F(Snap, StopsAtAScaleOfATenThousandth) {
    EXPECT_EQ(StretchedStepAt(1000000, 1, 1), 10000);
}

TEST_F(Snap, IsOneWhereNoLogicalScreenIsShown) {
    OpenWithoutLogicalScreen(640, 360);
    EXPECT_EQ(GetPixelSnapStep(Renderer()), 1);
}

TEST_F(Snap, RoundsAValueToAMultipleOfTheStep) {
    EXPECT_EQ(SnapToStep(31.2F, 1), 31.0F);
    EXPECT_EQ(SnapToStep(31.2F, 2), 32.0F);
    EXPECT_EQ(SnapToStep(26.0F, 2), 26.0F);
    EXPECT_EQ(SnapToStep(25.0F, 2), 26.0F); // half away from zero
    EXPECT_EQ(SnapToStep(-25.0F, 2), -26.0F);
    EXPECT_EQ(SnapToStep(31.2F, 3), 30.0F);
    EXPECT_EQ(SnapToStep(0.4F, 1), 0.0F);
}

TEST_F(Snap, TakesAStepBelowOneAsOne) {
    EXPECT_EQ(SnapToStep(31.2F, 0), 31.0F);
    EXPECT_EQ(SnapToStep(31.6F, -4), 32.0F);
}
