#include "gfx/Atlas.hpp"
#include "tests/app/ProgramTest.hpp"

namespace {

using Names = std::vector<std::string>;

class StartUpFailure : public ProgramTest {
protected:
    /// What is taken down, in order, when Function fails at start-up; the one log line goes to Line.
    Names CleanUpAfter(const std::string &Function) {
        SdlWatch watch;
        watch.Refuse(Function, 1);
        return CleanUp(watch);
    }

    Names CleanUp(const SdlWatch &Watch) {
        const LogCatcher log;
        EXPECT_FALSE(StartUp(Program));
        EXPECT_EQ(log.Lines.size(), 1U);
        Line = log.Lines.empty() ? "" : log.Lines.front();
        Error = SDL_GetError();
        ChooseSoftwareDrivers(); // the end of SDL forgets what was chosen
        return Watch.NamesAmong({"SDL_DestroyTexture", "SDL_DestroyRenderer", "SDL_HideWindow",
            "SDL_DestroyWindow", "SDL_Quit", "SDL_CloseGamepad", "SDL_CloseJoystick"});
    }

    std::string Line;
    std::string Error; ///< SDL's, right after the failure
};

TEST_F(StartUpFailure, OfSdlTakesNothingDown) {
    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "no-such-driver");
    const SdlWatch watch;
    EXPECT_EQ(CleanUp(watch), Names{}); // and SDL_Quit is not called either
    EXPECT_EQ(Line, "SDL_Init failed: " + Error);
    EXPECT_NE(Line, "SDL_Init failed: ");
    EXPECT_EQ(watch.Count("SDL_CreateWindow"), 0);
}

TEST_F(StartUpFailure, OfTheWindowQuitsSdl) {
    EXPECT_EQ(CleanUpAfter("SDL_CreateWindow"), (Names{"SDL_Quit"}));
    EXPECT_EQ(Line, "SDL_CreateWindow failed: refused for the test");
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(StartUpFailure, OfTheRendererTakesTheWindowDown) {
    EXPECT_EQ(CleanUpAfter("SDL_CreateRenderer"), (Names{"SDL_HideWindow", "SDL_DestroyWindow", "SDL_Quit"}));
    EXPECT_EQ(Line, "SDL_CreateRenderer failed: refused for the test");
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(StartUpFailure, OfTheAtlasTextureTakesRendererAndWindowDown) {
    EXPECT_EQ(CleanUpAfter("SDL_CreateTexture"),
        (Names{"SDL_DestroyRenderer", "SDL_HideWindow", "SDL_DestroyWindow", "SDL_Quit"}));
    EXPECT_EQ(Line, "BuildTextureAtlas failed: refused for the test");
    EXPECT_EQ(SpriteAtlas.Texture, nullptr);
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(StartUpFailure, OfDrawingToTheAtlasTakesItsTextureDownFirst) {
    EXPECT_EQ(CleanUpAfter("SDL_SetRenderTarget"), (Names{"SDL_DestroyTexture", "SDL_DestroyRenderer",
                                                       "SDL_HideWindow", "SDL_DestroyWindow", "SDL_Quit"}));
    EXPECT_EQ(Line, "BuildTextureAtlas failed: refused for the test");
    EXPECT_EQ(SpriteAtlas.Texture, nullptr);
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(StartUpFailure, WritesNoFile) {
    CleanUpAfter("SDL_CreateWindow");
    EXPECT_EQ(Written.OptionsWrites, 0);
    EXPECT_EQ(Written.SaveWrites, 0);
}

TEST_F(StartUpFailure, LeavesNothingInTheWayOfAnotherStart) {
    CleanUpAfter("SDL_SetRenderTarget");
    Start();
    EXPECT_NE(SpriteAtlas.Texture, nullptr);
}

} // namespace
