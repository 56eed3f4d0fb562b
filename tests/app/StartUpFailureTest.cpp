#include "gfx/Atlas.hpp"
#include "tests/app/ProgramTest.hpp"

namespace {

class StartUpFailure : public ProgramTest {
protected:
    /// What is taken down, in order, when a call fails at start-up; the one log line goes to Line.
    template <typename Call> CallNames CleanUpAfter(Call &Failing) {
        Failing.Refuse(1);
        return CleanUp();
    }

    CallNames CleanUp() {
        const LogCatcher log;
        EXPECT_FALSE(StartUp(Program));
        EXPECT_EQ(log.Lines.size(), 1U);
        Line = log.Lines.empty() ? "" : log.Lines.front();
        Error = SDL_GetError();
        ChooseSoftwareDrivers(); // the end of SDL forgets what was chosen
        return Watch.OrderOf({Watch.DestroyTexture, Watch.DestroyRenderer, Watch.HideWindow,
            Watch.DestroyWindow, Watch.Quit, Watch.CloseGamepad, Watch.CloseJoystick});
    }

    std::string Line;
    std::string Error; ///< SDL's, right after the failure
};

TEST_F(StartUpFailure, OfSdlTakesNothingDown) {
    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "no-such-driver");
    Watch.Forget();
    EXPECT_EQ(CleanUp(), CallNames{}); // and SDL_Quit is not called either
    EXPECT_EQ(Line, "SDL_Init failed: " + Error);
    EXPECT_NE(Line, "SDL_Init failed: ");
    EXPECT_EQ(Watch.CreateWindow.Count(), 0);
}

TEST_F(StartUpFailure, OfTheWindowQuitsSdl) {
    EXPECT_EQ(CleanUpAfter(Watch.CreateWindow), (CallNames{Watch.Quit}));
    EXPECT_EQ(Line, "SDL_CreateWindow failed: refused for the test");
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(StartUpFailure, OfTheRendererTakesTheWindowDown) {
    EXPECT_EQ(
        CleanUpAfter(Watch.CreateRenderer), (CallNames{Watch.HideWindow, Watch.DestroyWindow, Watch.Quit}));
    EXPECT_EQ(Line, "SDL_CreateRenderer failed: refused for the test");
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(StartUpFailure, OfTheAtlasTextureTakesRendererAndWindowDown) {
    EXPECT_EQ(CleanUpAfter(Watch.CreateTexture),
        (CallNames{Watch.DestroyRenderer, Watch.HideWindow, Watch.DestroyWindow, Watch.Quit}));
    EXPECT_EQ(Line, "BuildTextureAtlas failed: refused for the test");
    EXPECT_EQ(SpriteAtlas.Texture, nullptr);
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(StartUpFailure, OfDrawingToTheAtlasTakesItsTextureDownFirst) {
    EXPECT_EQ(CleanUpAfter(Watch.SetRenderTarget), (CallNames{Watch.DestroyTexture, Watch.DestroyRenderer,
                                                       Watch.HideWindow, Watch.DestroyWindow, Watch.Quit}));
    EXPECT_EQ(Line, "BuildTextureAtlas failed: refused for the test");
    EXPECT_EQ(SpriteAtlas.Texture, nullptr);
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(StartUpFailure, WritesNoFile) {
    CleanUpAfter(Watch.CreateWindow);
    EXPECT_EQ(Written.OptionsWrites, 0);
    EXPECT_EQ(Written.SaveWrites, 0);
}

TEST_F(StartUpFailure, LeavesNothingInTheWayOfAnotherStart) {
    CleanUpAfter(Watch.SetRenderTarget);
    Start();
    EXPECT_NE(SpriteAtlas.Texture, nullptr);
}

} // namespace
