#include "state/LogicalScreen.hpp"
#include "state/Resolutions.hpp"
#include "tests/app/ProgramTest.hpp"
#include "tests/support/watch/FakeDisplays.hpp"

namespace {

class FirstLaunch : public ProgramTest {
protected:
    /// Starts on one made-up display whose desktop mode is also the only one that it offers.
    void StartOnDesktop(int Width, int Height) {
        FakeDisplays displays(Watch);
        displays.AddOnly(Width, Height).Modes = {Mode(Width, Height, 60.0F)};
        StartAndNoteSize();
        EXPECT_TRUE(displays.Lent.empty());
    }

    /// Starts while SDL can tell nothing at all about displays.
    void StartWithoutDisplays() {
        Watch.GetPrimaryDisplay.Refuse();
        Watch.GetDisplays.Refuse();
        Watch.GetDesktopDisplayMode.Refuse();
        Watch.GetCurrentDisplayMode.Refuse();
        Watch.GetDisplayForWindow.Refuse();
        Watch.GetFullscreenDisplayModes.Refuse();
        StartAndNoteSize();
    }

    void StartAndNoteSize() {
        Start();
        const auto &[title, width, height, flags] = Watch.CreateWindow.OnlyCall();
        CreatedSize = {width, height};
        CreatedFlags = flags;
    }

    Resolution CreatedSize; ///< what the window was created with
    SDL_WindowFlags CreatedFlags = 0;
};

TEST_F(FirstLaunch, OnTheDummyDriversDesktopIsClassic) {
    StartAndNoteSize();
    EXPECT_EQ(CreatedSize, (Resolution{1024, 768}));
    EXPECT_EQ(State.AspectMode, AspectClassic4x3);
    EXPECT_EQ(LogicalWidth, 960);
    EXPECT_EQ(State.Resolutions.size(), 7U); // that driver offers no modes: the built-in table
    EXPECT_EQ(CurrentResolution(State), (Resolution{1024, 768}));
}

TEST_F(FirstLaunch, WithoutDisplayInformationIs720pWidescreenInFullscreen) {
    Watch.Forget();
    StartWithoutDisplays();
    EXPECT_EQ(CreatedSize, (Resolution{1280, 720}));
    EXPECT_EQ(CreatedFlags, SDL_WINDOW_FULLSCREEN);
    EXPECT_EQ(State.AspectMode, AspectWidescreen);
    EXPECT_EQ(LogicalWidth, 1280);
    EXPECT_TRUE(State.Fullscreen);
    EXPECT_EQ(State.ResolutionIndex, 3);
    EXPECT_EQ(State.Resolutions.size(), 21U);
    EXPECT_EQ(CurrentResolution(State), (Resolution{1280, 720}));
}

TEST_F(FirstLaunch, OnFullHdOpensAtFullHd) {
    StartOnDesktop(1920, 1080);
    EXPECT_EQ(CreatedSize, (Resolution{1920, 1080}));
    EXPECT_EQ(State.AspectMode, AspectWidescreen);
    EXPECT_EQ(LogicalWidth, 1280);
    EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{1920, 1080}}));
    EXPECT_EQ(State.ResolutionIndex, 0);
}

TEST_F(FirstLaunch, OnAnUltrawideScreenIs1728Wide) {
    StartOnDesktop(3440, 1440);
    EXPECT_EQ(CreatedSize, (Resolution{3440, 1440}));
    EXPECT_EQ(State.AspectMode, AspectWidescreen);
    EXPECT_EQ(LogicalWidth, 1728);
}

TEST_F(FirstLaunch, OnADoubleWidthScreenIs2560Wide) {
    StartOnDesktop(5120, 1440);
    EXPECT_EQ(LogicalWidth, 2560);
}

TEST_F(FirstLaunch, OnA16To10ScreenIs1152Wide) {
    StartOnDesktop(1920, 1200);
    EXPECT_EQ(LogicalWidth, 1152);
}

TEST_F(FirstLaunch, OnAThreeToTwoScreenIs1080Wide) {
    StartOnDesktop(2160, 1440);
    EXPECT_EQ(LogicalWidth, 1080);
}

TEST_F(FirstLaunch, OnAFourToThreeScreenIsClassic) {
    StartOnDesktop(1600, 1200);
    EXPECT_EQ(CreatedSize, (Resolution{1600, 1200}));
    EXPECT_EQ(State.AspectMode, AspectClassic4x3);
    EXPECT_EQ(LogicalWidth, 960);
    EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{1600, 1200}}));
}

TEST_F(FirstLaunch, OnAFiveToFourScreenEndsAtTheFallbackRow) {
    StartOnDesktop(1280, 1024);
    EXPECT_EQ(CreatedSize, (Resolution{1280, 1024}));
    EXPECT_EQ(State.AspectMode, AspectWidescreen);
    EXPECT_EQ(State.ResolutionIndex, 3);
    EXPECT_EQ(CurrentResolution(State), (Resolution{1280, 720}));
    EXPECT_EQ(LogicalWidth, 1280);
}

TEST_F(FirstLaunch, TakesTheRatesOfTheDesktopsSize) {
    FakeDisplays displays(Watch);
    displays.AddOnly(1920, 1080).Modes = {
        Mode(1920, 1080, 144.0F), Mode(1280, 720, 75.0F), Mode(1920, 1080, 0.0F, 60000, 1001)};
    Start();
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60, 144}));
    EXPECT_EQ(State.RefreshRate, 0);
}

} // namespace
