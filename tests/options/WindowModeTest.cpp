#include "tests/options/PresentationTest.hpp"

namespace {

const std::vector<std::string> WindowCalls{
    "SDL_SetWindowFullscreenMode", "SDL_SetWindowFullscreen", "SDL_SetWindowSize", "SDL_SetWindowPosition"};

class WindowMode : public PresentationTest {
protected:
    /// Brings the window into fullscreen before the test watches.
    void BeginFullscreen() {
        ASSERT_TRUE(SDL_SetWindowFullscreen(Window, true)) << SDL_GetError();
        ASSERT_TRUE(SDL_SyncWindow(Window));
        ASSERT_TRUE(IsFullscreen());
    }

    std::vector<SdlCall> CallsOfApply() {
        const SdlWatch watch;
        Apply();
        std::vector<SdlCall> calls;
        for (const SdlCall &call : watch.Calls) {
            if (std::find(WindowCalls.begin(), WindowCalls.end(), call.Name) != WindowCalls.end()) {
                calls.push_back(call);
            }
        }
        return calls;
    }
};

using Calls = std::vector<SdlCall>;

constexpr auto Centred = static_cast<std::int64_t>(SDL_WINDOWPOS_CENTERED);

TEST_F(WindowMode, AWindowThatStaysAWindowGetsItsSizeAndKeepsItsPlace) {
    EXPECT_EQ(CallsOfApply(), (Calls{{"SDL_SetWindowSize", {1, 1280, 720}}}));
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
        CallsOfApply(), (Calls{{"SDL_SetWindowFullscreen", {1, 0}}, {"SDL_SetWindowSize", {1, 1280, 720}},
                            {"SDL_SetWindowPosition", {1, Centred, Centred}}}));
    EXPECT_FALSE(IsFullscreen());
}

TEST_F(WindowMode, EnteringFullscreenIsBorderlessAndSetsNoSize) {
    State.Fullscreen = true;
    EXPECT_EQ(CallsOfApply(),
        (Calls{{"SDL_SetWindowFullscreenMode", {1, 0}}, {"SDL_SetWindowFullscreen", {1, 1}}}));
    EXPECT_TRUE(IsFullscreen());
    EXPECT_EQ(SDL_GetWindowFullscreenMode(Window), nullptr); // no video mode is switched
}

TEST_F(WindowMode, StayingFullscreenOnlyMakesItBorderless) {
    BeginFullscreen();
    State.Fullscreen = true;
    EXPECT_EQ(CallsOfApply(), (Calls{{"SDL_SetWindowFullscreenMode", {1, 0}}}));
    EXPECT_TRUE(IsFullscreen());
}

TEST_F(WindowMode, ARefreshRateNeverReachesSdl) {
    State.Fullscreen = true;
    State.RefreshRate = 144;
    State.RefreshRates = {0, 144};
    State.DisplayModes = {{1280, 720, 144}};
    EXPECT_EQ(CallsOfApply(),
        (Calls{{"SDL_SetWindowFullscreenMode", {1, 0}}, {"SDL_SetWindowFullscreen", {1, 1}}}));
    EXPECT_EQ(State.RefreshRate, 144);
}

TEST_F(WindowMode, TheSizeIsTheClampedEntryOfTheList) {
    State.Resolutions = {{640, 360}, {960, 540}};
    State.ResolutionIndex = 40;
    EXPECT_EQ(CallsOfApply(), (Calls{{"SDL_SetWindowSize", {1, 960, 540}}}));
    EXPECT_EQ(State.ResolutionIndex, 40);
}

} // namespace
