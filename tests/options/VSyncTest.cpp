#include "tests/options/PresentationTest.hpp"

namespace {

using VSync = PresentationTest;

TEST_F(VSync, IsAskedForWhenItIsOn) {
    State.VSync = true;
    Watch.Forget();
    Apply();
    EXPECT_EQ(Watch.SetRenderVSync.OnlyCall(), std::tuple(Renderer, 1));
    EXPECT_TRUE(State.VSyncActive);
}

TEST_F(VSync, IsSwitchedOffWhenItIsOff) {
    State.VSyncActive = true;
    State.VSync = false;
    Watch.Forget();
    Apply();
    EXPECT_EQ(Watch.SetRenderVSync.OnlyCall(), std::tuple(Renderer, 0));
    EXPECT_FALSE(State.VSyncActive);
}

TEST_F(VSync, RefusedByTheDriverIsNotActive) {
    State.VSync = true;
    State.VSyncActive = true;
    Watch.Forget();
    Watch.SetRenderVSync.Refuse();
    const LogCatcher log;
    Apply();
    EXPECT_FALSE(State.VSyncActive);
    EXPECT_TRUE(State.VSync); // the option stays
    EXPECT_EQ(log.Lines, (std::vector<std::string>{"SDL_SetRenderVSync(1) failed: refused for the test"}));
    EXPECT_EQ(Watch.GetRenderVSync.Count(), 1);
}

TEST_F(VSync, ThatCannotBeSwitchedOffStaysActive) {
    ASSERT_TRUE(SDL_SetRenderVSync(Renderer, 1)) << SDL_GetError();
    State.VSync = false;
    Watch.SetRenderVSync.Refuse();
    const LogCatcher log;
    Apply();
    EXPECT_TRUE(State.VSyncActive); // what the renderer tells counts
    EXPECT_EQ(log.Lines, (std::vector<std::string>{"SDL_SetRenderVSync(0) failed: refused for the test"}));
}

TEST_F(VSync, ThatCannotBeReadIsNotActive) {
    State.VSync = true;
    State.VSyncActive = true;
    Watch.GetRenderVSync.Refuse();
    const LogCatcher log;
    Apply();
    EXPECT_FALSE(State.VSyncActive);
    EXPECT_EQ(log.Lines, (std::vector<std::string>{"SDL_GetRenderVSync failed: refused for the test"}));
}

TEST_F(VSync, ThatAdaptsIsActive) {
    Watch.GetRenderVSync.Answer = [](SDL_Renderer * /*Asked*/, int *Interval) {
        *Interval = SDL_RENDERER_VSYNC_ADAPTIVE;
        return true;
    };
    Apply();
    EXPECT_TRUE(State.VSyncActive);
}

TEST_F(VSync, LogsBothFailuresInOrder) {
    Watch.SetRenderVSync.Refuse();
    Watch.GetRenderVSync.Refuse();
    const LogCatcher log;
    Apply();
    EXPECT_FALSE(State.VSyncActive);
    EXPECT_EQ(log.Lines, (std::vector<std::string>{"SDL_SetRenderVSync(1) failed: refused for the test",
                             "SDL_GetRenderVSync failed: refused for the test"}));
}

} // namespace
