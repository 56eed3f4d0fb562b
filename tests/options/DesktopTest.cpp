#include "options/Desktop.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "tests/support/LogicalWidthScope.hpp"
#include "tests/support/watch/FakeDisplays.hpp"

#include <gtest/gtest.h>

namespace {

class DesktopSize : public ::testing::Test {
protected:
    DesktopSize() {
        Displays.Primary = 7;
    }

    void ExpectTaken(enum AspectMode AspectMode, Resolution Size, std::int32_t Width) {
        UseDesktopSize(State);
        EXPECT_EQ(State.AspectMode, AspectMode);
        EXPECT_EQ(State.Resolutions, std::vector<Resolution>{Size});
        EXPECT_EQ(State.ResolutionIndex, 0);
        EXPECT_EQ(LogicalWidth, Width);
    }

    void ExpectUntouched() {
        State.AspectMode = AspectClassic4x3;
        State.Resolutions = {{1, 2}, {3, 4}};
        State.ResolutionIndex = 1;
        LogicalWidth = 1152;
        UseDesktopSize(State);
        EXPECT_EQ(State.AspectMode, AspectClassic4x3);
        EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{1, 2}, {3, 4}}));
        EXPECT_EQ(State.ResolutionIndex, 1);
        EXPECT_EQ(LogicalWidth, 1152);
    }

    LogicalWidthScope Width{1280};
    GameState State;
    SdlWatch Watch;
    FakeDisplays Displays{Watch};
};

TEST_F(DesktopSize, IsThePrimaryDisplays) {
    Displays.Add(3, 800, 600);
    Displays.Add(7, 1920, 1080);
    ExpectTaken(AspectWidescreen, {1920, 1080}, 1280);
}

TEST_F(DesktopSize, IsTheFirstDisplaysWithoutAPrimaryOne) {
    Displays.Primary = 0;
    Displays.Add(3, 3440, 1440);
    Displays.Add(7, 1920, 1080);
    ExpectTaken(AspectWidescreen, {3440, 1440}, 1728);
    EXPECT_TRUE(Displays.Lent.empty()); // the list was freed
}

TEST_F(DesktopSize, ReplacesWhatWasListed) {
    State.Resolutions = {{1, 1}, {2, 2}};
    State.ResolutionIndex = 1;
    Displays.Add(7, 2560, 1600);
    ExpectTaken(AspectWidescreen, {2560, 1600}, 1152);
}

TEST_F(DesktopSize, OfFourToThreeMeansClassic) {
    Displays.Add(7, 1600, 1200);
    ExpectTaken(AspectClassic4x3, {1600, 1200}, 960);
}

TEST_F(DesktopSize, OfAnyOtherShapeMeansWidescreen) {
    State.AspectMode = AspectClassic4x3;
    Displays.Add(7, 1280, 1024);
    ExpectTaken(AspectWidescreen, {1280, 1024}, 1280);
}

TEST_F(DesktopSize, OfAThreeToTwoScreenGives1080) {
    Displays.Add(7, 3000, 2000);
    ExpectTaken(AspectWidescreen, {3000, 2000}, 1080);
}

TEST_F(DesktopSize, OfADoubleWidthScreenGives2560) {
    Displays.Add(7, 5120, 1440);
    ExpectTaken(AspectWidescreen, {5120, 1440}, 2560);
}

TEST_F(DesktopSize, IsTheCurrentModesWhereTheDesktopsIsMissing) {
    FakeDisplay &display = Displays.Add(7, 1920, 1080);
    display.Desktop.reset();
    display.Current = Mode(1024, 768, 60.0F);
    ExpectTaken(AspectClassic4x3, {1024, 768}, 960);
}

TEST_F(DesktopSize, IsTheCurrentModesWhereTheDesktopsHasNoWidth) {
    FakeDisplay &display = Displays.Add(7, 0, 1080);
    display.Current = Mode(1280, 800, 60.0F);
    ExpectTaken(AspectWidescreen, {1280, 800}, 1152);
}

TEST_F(DesktopSize, IsTheCurrentModesWhereTheDesktopsHasNoHeight) {
    FakeDisplay &display = Displays.Add(7, 1920, -1);
    display.Current = Mode(1280, 800, 60.0F);
    ExpectTaken(AspectWidescreen, {1280, 800}, 1152);
}

TEST_F(DesktopSize, IsTheDesktopModesWhereBothAreThere) {
    FakeDisplay &display = Displays.Add(7, 1920, 1080);
    display.Current = Mode(640, 480, 60.0F);
    ExpectTaken(AspectWidescreen, {1920, 1080}, 1280);
}

TEST_F(DesktopSize, OfNoDisplayChangesNothing) {
    Displays.Primary = 0;
    ExpectUntouched();
    EXPECT_TRUE(Displays.Lent.empty());
}

TEST_F(DesktopSize, OfNoDisplayListChangesNothing) {
    Displays.Primary = 0;
    Displays.Add(7, 1920, 1080);
    Watch.GetDisplays.Refuse();
    ExpectUntouched();
}

TEST_F(DesktopSize, OfADisplayWithoutModesChangesNothing) {
    FakeDisplay &display = Displays.Add(7, 1920, 1080);
    display.Desktop.reset();
    display.Current.reset();
    ExpectUntouched();
}

TEST_F(DesktopSize, OfACurrentModeWithoutASizeChangesNothing) {
    FakeDisplay &display = Displays.Add(7, 0, 0);
    display.Current = Mode(1920, 0, 60.0F);
    ExpectUntouched();
    display.Current = Mode(-1, 1080, 60.0F);
    ExpectUntouched();
}

TEST_F(DesktopSize, IsNotLookedForOnASecondDisplayWhereThePrimaryTellsNone) {
    Displays.Add(3, 1920, 1080);
    FakeDisplay &display = Displays.Add(7, 0, 0);
    display.Current.reset();
    ExpectUntouched();
}

} // namespace
