#include "tests/app/FilesTest.hpp"
#include "tests/app/PushEvents.hpp"
#include "tests/support/watch/FakeDisplays.hpp"

#include <utility>

namespace {

/// The Graphics page in fullscreen, reached by keys, on a display that offers two rates at its size.
class RateChoice : public FilesTest {
protected:
    RateChoice() {
        Displays.AddOnly(1920, 1080).Modes = {Mode(1920, 1080, 60.0F), Mode(1920, 1080, 144.0F)};
    }

    void SetUp() override {
        Start();
        ForgetEvents();
        ShowWithoutWaiting(ScreenMainMenu);
        Frame({SDL_SCANCODE_DOWN, SDL_SCANCODE_RETURN}); // OPTIONS
        Frame({SDL_SCANCODE_DOWN, SDL_SCANCODE_RETURN}); // GRAPHICS
        ASSERT_EQ(State.OptionsPage, OptionsPageGraphics);
        ASSERT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60, 144}));
    }

    /// One frame with these presses in it.
    void Frame(std::initializer_list<SDL_Scancode> Keys) {
        PushKeys(Keys);
        RunFrame(Program);
    }

    void ChooseTheHighestRate() {
        Frame({SDL_SCANCODE_DOWN, SDL_SCANCODE_DOWN, SDL_SCANCODE_RIGHT, SDL_SCANCODE_RIGHT});
        ASSERT_EQ(State.RefreshRate, 144);
    }

    /// From the row of the rates down to APPLY.
    void ApplyIt() {
        Frame({SDL_SCANCODE_DOWN, SDL_SCANCODE_DOWN, SDL_SCANCODE_DOWN, SDL_SCANCODE_DOWN,
            SDL_SCANCODE_RETURN});
    }

    std::pair<int, int> WindowSize() const {
        std::pair<int, int> size;
        SDL_GetWindowSize(Program.Window, &size.first, &size.second);
        return size;
    }

    FakeDisplays Displays{Watch};
};

TEST_F(RateChoice, ReachesTheFileInTheFrameOfApplyAndChangesNothingElseInIt) {
    const std::string before = Contents("Config.ini");
    const std::string automatic = "RefreshRate=\"0\"\r\n";
    const std::size_t place = before.find(automatic);
    ASSERT_NE(place, std::string::npos);
    ChooseTheHighestRate();
    EXPECT_EQ(Contents("Config.ini"), before);
    ApplyIt();
    std::string after = before;
    after.replace(place, automatic.size(), "RefreshRate=\"144\"\r\n");
    EXPECT_EQ(Contents("Config.ini"), after);
}

TEST_F(RateChoice, IsNeverHandedToTheDisplay) {
    const std::pair<int, int> size = WindowSize();
    Watch.Forget();
    ChooseTheHighestRate();
    EXPECT_EQ(Watch.SetWindowFullscreenMode.Count(), 0);
    ApplyIt();
    EXPECT_EQ(Watch.SetWindowFullscreenMode.OnlyCall(),
        std::tuple(Program.Window, nullptr)); // no mode: borderless on the desktop
    EXPECT_EQ(Watch.OrderOf({Watch.SetWindowFullscreen, Watch.SetWindowSize, Watch.SetWindowPosition}),
        CallNames{});
    EXPECT_EQ(SDL_GetWindowFullscreenMode(Program.Window), nullptr);
    EXPECT_NE(SDL_GetWindowFlags(Program.Window) & SDL_WINDOW_FULLSCREEN, 0U);
    EXPECT_EQ(WindowSize(), size);
}

TEST_F(RateChoice, IsStillChosenAtTheNextLaunch) {
    ChooseTheHighestRate();
    ApplyIt();
    Stop();
    Watch.Forget();
    Start();
    EXPECT_EQ(State.RefreshRate, 144);
    EXPECT_EQ(Watch.SetWindowFullscreenMode.OnlyCall(), std::tuple(Program.Window, nullptr));
}

} // namespace
