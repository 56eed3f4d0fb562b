#include "tests/options/PresentationTest.hpp"

namespace {

class WindowMode : public PresentationTest {
protected:
    /// Brings the window into fullscreen before the test watches.
    void BeginFullscreen() {
        ASSERT_TRUE(SDL_SetWindowFullscreen(Window, true)) << SDL_GetError();
        ASSERT_TRUE(SDL_SyncWindow(Window));
        ASSERT_TRUE(IsFullscreen());
    }

    /// What applying asks of the window, in order.
    CallNames CallsOfApply() {
        Watch.Forget();
        Apply();
        return Watch.OrderOf({Watch.SetWindowFullscreenMode, Watch.SetWindowFullscreen, Watch.SetWindowSize,
            Watch.SetWindowPosition});
    }

    /// Expects that the window was told once to be fullscreen without a video mode of its own.
    void ExpectBorderless() const {
        EXPECT_EQ(Watch.SetWindowFullscreenMode.OnlyCall(), std::tuple(Window, nullptr));
    }
};

constexpr auto Centred = static_cast<int>(SDL_WINDOWPOS_CENTERED);

TEST_F(WindowMode, AWindowThatStaysAWindowGetsItsSizeAndKeepsItsPlace) {
    EXPECT_EQ(CallsOfApply(), CallNames{Watch.SetWindowSize});
    EXPECT_EQ(Watch.SetWindowSize.OnlyCall(), std::tuple(Window, 1280, 720));
}

TEST_F(WindowMode, TheSizeReachesTheWindow) {
    Choose(800, 450);
    Apply();
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(Window, &width, &height);
    EXPECT_EQ(width, 800);
    EXPECT_EQ(height, 450);
    EXPECT_FALSE(IsFullscreen());
}

TEST_F(WindowMode, LeavingFullscreenSetsTheSizeAndThenCentres) {
    BeginFullscreen();
    EXPECT_EQ(
        CallsOfApply(), (CallNames{Watch.SetWindowFullscreen, Watch.SetWindowSize, Watch.SetWindowPosition}));
    EXPECT_EQ(Watch.SetWindowFullscreen.OnlyCall(), std::tuple(Window, false));
    EXPECT_EQ(Watch.SetWindowSize.OnlyCall(), std::tuple(Window, 1280, 720));
    EXPECT_EQ(Watch.SetWindowPosition.OnlyCall(), std::tuple(Window, Centred, Centred));
    EXPECT_FALSE(IsFullscreen());
}

TEST_F(WindowMode, EnteringFullscreenIsBorderlessAndSetsNoSize) {
    State.Fullscreen = true;
    EXPECT_EQ(CallsOfApply(), (CallNames{Watch.SetWindowFullscreenMode, Watch.SetWindowFullscreen}));
    ExpectBorderless();
    EXPECT_EQ(Watch.SetWindowFullscreen.OnlyCall(), std::tuple(Window, true));
    EXPECT_TRUE(IsFullscreen());
    EXPECT_EQ(SDL_GetWindowFullscreenMode(Window), nullptr); // no video mode is switched
}

TEST_F(WindowMode, StayingFullscreenOnlyMakesItBorderless) {
    BeginFullscreen();
    State.Fullscreen = true;
    EXPECT_EQ(CallsOfApply(), CallNames{Watch.SetWindowFullscreenMode});
    ExpectBorderless();
    EXPECT_TRUE(IsFullscreen());
}

TEST_F(WindowMode, ARefreshRateNeverReachesSdl) {
    State.Fullscreen = true;
    State.RefreshRate = 144;
    State.RefreshRates = {0, 144};
    State.DisplayModes = {{1280, 720, 144}};
    EXPECT_EQ(CallsOfApply(), (CallNames{Watch.SetWindowFullscreenMode, Watch.SetWindowFullscreen}));
    ExpectBorderless();
    EXPECT_EQ(Watch.SetWindowFullscreen.OnlyCall(), std::tuple(Window, true));
    EXPECT_EQ(State.RefreshRate, 144);
}

TEST_F(WindowMode, TheSizeIsTheClampedEntryOfTheList) {
    State.Resolutions = {{640, 360}, {960, 540}};
    State.ResolutionIndex = 40;
    EXPECT_EQ(CallsOfApply(), CallNames{Watch.SetWindowSize});
    EXPECT_EQ(Watch.SetWindowSize.OnlyCall(), std::tuple(Window, 960, 540));
    EXPECT_EQ(State.ResolutionIndex, 40);
}

} // namespace
