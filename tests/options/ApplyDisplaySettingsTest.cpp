#include "tests/options/PresentationTest.hpp"

namespace {

using Presentation = PresentationTest;
using Lines = std::vector<std::string>;

class ApplySettings : public PresentationTest {
protected:
    void RefuseAll() {
        Watch.SetWindowFullscreenMode.Refuse();
        Watch.SetWindowFullscreen.Refuse();
        Watch.SetWindowSize.Refuse();
        Watch.SetWindowPosition.Refuse();
        Watch.SetRenderVSync.Refuse();
        Watch.GetRenderVSync.Refuse();
        Watch.SetRenderLogicalPresentation.Refuse();
    }
};

TEST_F(ApplySettings, GoesStepByStepIntoFullscreen) {
    State.Fullscreen = true;
    Watch.Forget();
    const LogCatcher log;
    Apply();
    EXPECT_EQ(
        DisplayCalls(), (CallNames{Watch.SetWindowFullscreenMode, Watch.SetWindowFullscreen,
                            Watch.SetRenderVSync, Watch.GetRenderVSync, Watch.SetRenderLogicalPresentation}));
    EXPECT_EQ(log.Lines, Lines{});
}

TEST_F(ApplySettings, GoesStepByStepIntoAWindow) {
    ASSERT_TRUE(SDL_SetWindowFullscreen(Window, true));
    Watch.Forget();
    const LogCatcher log;
    Apply();
    EXPECT_EQ(
        DisplayCalls(), (CallNames{Watch.SetWindowFullscreen, Watch.SetWindowSize, Watch.SetWindowPosition,
                            Watch.SetRenderVSync, Watch.GetRenderVSync, Watch.SetRenderLogicalPresentation}));
    EXPECT_EQ(log.Lines, Lines{});
}

TEST_F(ApplySettings, LogsEachFailureIntoFullscreenAndGoesOn) {
    State.Fullscreen = true;
    Watch.Forget();
    RefuseAll();
    const LogCatcher log;
    Apply();
    EXPECT_EQ(log.Lines, (Lines{"SDL_SetWindowFullscreenMode(borderless) failed: refused for the test",
                             "SDL_SetWindowFullscreen(true) failed: refused for the test",
                             "SDL_SetRenderVSync(1) failed: refused for the test",
                             "SDL_GetRenderVSync failed: refused for the test",
                             "SDL_SetRenderLogicalPresentation failed: refused for the test"}));
    EXPECT_TRUE(State.Fullscreen); // the option stays as it was chosen
    EXPECT_TRUE(State.ResetFrameClock);
}

TEST_F(ApplySettings, LogsEachFailureIntoAWindowAndGoesOn) {
    ASSERT_TRUE(SDL_SetWindowFullscreen(Window, true));
    State.VSync = false;
    Choose(1920, 1200);
    Watch.Forget();
    RefuseAll();
    const LogCatcher log;
    Apply();
    EXPECT_EQ(log.Lines, (Lines{"SDL_SetWindowFullscreen(false) failed: refused for the test",
                             "SDL_SetWindowSize(1920, 1200) failed: refused for the test",
                             "SDL_SetWindowPosition(centered) failed: refused for the test",
                             "SDL_SetRenderVSync(0) failed: refused for the test",
                             "SDL_GetRenderVSync failed: refused for the test",
                             "SDL_SetRenderLogicalPresentation failed: refused for the test"}));
    EXPECT_EQ(LogicalWidth, 1152); // an earlier step is not undone
    EXPECT_FALSE(State.Fullscreen);
    EXPECT_TRUE(State.ResetFrameClock);
}

TEST_F(ApplySettings, AFailureOfOneStepLeavesTheOthersTheirEffect) {
    ASSERT_TRUE(SDL_SetWindowFullscreen(Window, true));
    Watch.SetWindowPosition.Refuse();
    Choose(800, 450);
    const LogCatcher log;
    Apply();
    EXPECT_EQ(log.Lines, (Lines{"SDL_SetWindowPosition(centered) failed: refused for the test"}));
    EXPECT_FALSE(IsFullscreen());
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(Window, &width, &height);
    EXPECT_EQ(width, 800);
    EXPECT_EQ(height, 450);
    EXPECT_TRUE(State.VSyncActive);
}

TEST_F(ApplySettings, RestartsTheFrameClock) {
    ASSERT_FALSE(State.ResetFrameClock);
    Apply();
    EXPECT_TRUE(State.ResetFrameClock);
}

TEST_F(ApplySettings, WithoutAWindowDoesNothing) {
    State.AspectMode = AspectClassic4x3;
    State.Bullets = {{608.0F, 100.0F, 430.0F, 2.0F}};
    Watch.Forget();
    ApplyDisplaySettings(State, nullptr, Renderer);
    EXPECT_EQ(Watch.Order(), CallNames{});
    EXPECT_EQ(LogicalWidth, 1280);
    EXPECT_FLOAT_EQ(State.Bullets[0].X, 608.0F);
    EXPECT_FALSE(State.ResetFrameClock);
}

TEST_F(Presentation, LetterboxesTheLogicalScreen) {
    for (const std::int32_t width : {960, 1080, 1152, 1280, 1728, 2560}) {
        LogicalWidth = width;
        ApplyLogicalPresentation(Window, Renderer);
        int actualWidth = 0;
        int actualHeight = 0;
        SDL_RendererLogicalPresentation mode{};
        ASSERT_TRUE(SDL_GetRenderLogicalPresentation(Renderer, &actualWidth, &actualHeight, &mode));
        EXPECT_EQ(actualWidth, width);
        EXPECT_EQ(actualHeight, 720);
        EXPECT_EQ(mode, SDL_LOGICAL_PRESENTATION_LETTERBOX);
    }
}

TEST_F(Presentation, TakesTheWidthOfTheChosenShape) {
    Choose(3840, 1600);
    Watch.Forget();
    Apply();
    EXPECT_EQ(Watch.SetRenderLogicalPresentation.OnlyCall(),
        std::tuple(Renderer, 1728, 720, SDL_LOGICAL_PRESENTATION_LETTERBOX));
}

TEST_F(Presentation, DoesNothingWithoutAWindow) {
    Watch.Forget();
    ApplyLogicalPresentation(nullptr, Renderer);
    EXPECT_EQ(Watch.Order(), CallNames{});
}

TEST_F(Presentation, LogsItsFailure) {
    Watch.SetRenderLogicalPresentation.Refuse();
    const LogCatcher log;
    ApplyLogicalPresentation(Window, Renderer);
    EXPECT_EQ(log.Lines, (Lines{"SDL_SetRenderLogicalPresentation failed: refused for the test"}));
}

} // namespace
