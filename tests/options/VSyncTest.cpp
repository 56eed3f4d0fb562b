#include "tests/options/PresentationTest.hpp"

namespace {

using VSync = PresentationTest;
using Calls = std::vector<SdlCall>;

TEST_F(VSync, IsAskedForWhenItIsOn) {
    State.VSync = true;
    const SdlWatch watch;
    Apply();
    EXPECT_EQ(watch.CallsOf("SDL_SetRenderVSync"), (Calls{{"SDL_SetRenderVSync", {1, 1}}}));
    EXPECT_TRUE(State.VSyncActive);
}

TEST_F(VSync, IsSwitchedOffWhenItIsOff) {
    State.VSyncActive = true;
    State.VSync = false;
    const SdlWatch watch;
    Apply();
    EXPECT_EQ(watch.CallsOf("SDL_SetRenderVSync"), (Calls{{"SDL_SetRenderVSync", {1, 0}}}));
    EXPECT_FALSE(State.VSyncActive);
}

TEST_F(VSync, RefusedByTheDriverIsNotActive) {
    State.VSync = true;
    State.VSyncActive = true;
    SdlWatch watch;
    watch.Refuse("SDL_SetRenderVSync");
    const LogCatcher log;
    Apply();
    EXPECT_FALSE(State.VSyncActive);
    EXPECT_TRUE(State.VSync); // the option stays
    EXPECT_EQ(log.Lines, (std::vector<std::string>{"SDL_SetRenderVSync(1) failed: refused for the test"}));
    EXPECT_EQ(watch.Count("SDL_GetRenderVSync"), 1);
}

TEST_F(VSync, ThatCannotBeSwitchedOffStaysActive) {
    ASSERT_TRUE(SDL_SetRenderVSync(Renderer, 1)) << SDL_GetError();
    State.VSync = false;
    SdlWatch watch;
    watch.Refuse("SDL_SetRenderVSync");
    const LogCatcher log;
    Apply();
    EXPECT_TRUE(State.VSyncActive); // what the renderer tells counts
    EXPECT_EQ(log.Lines, (std::vector<std::string>{"SDL_SetRenderVSync(0) failed: refused for the test"}));
}

TEST_F(VSync, ThatCannotBeReadIsNotActive) {
    State.VSync = true;
    State.VSyncActive = true;
    SdlWatch watch;
    watch.Refuse("SDL_GetRenderVSync");
    const LogCatcher log;
    Apply();
    EXPECT_FALSE(State.VSyncActive);
    EXPECT_EQ(log.Lines, (std::vector<std::string>{"SDL_GetRenderVSync failed: refused for the test"}));
}

TEST_F(VSync, LogsBothFailuresInOrder) {
    SdlWatch watch;
    watch.Refuse("SDL_SetRenderVSync");
    watch.Refuse("SDL_GetRenderVSync");
    const LogCatcher log;
    Apply();
    EXPECT_FALSE(State.VSyncActive);
    EXPECT_EQ(log.Lines, (std::vector<std::string>{"SDL_SetRenderVSync(1) failed: refused for the test",
                             "SDL_GetRenderVSync failed: refused for the test"}));
}

} // namespace
