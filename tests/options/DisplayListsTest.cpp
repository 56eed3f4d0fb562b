#include "options/Displays.hpp"
#include "state/GameState.hpp"
#include "state/Resolutions.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/watch/FakeDisplays.hpp"

#include <limits>

namespace {

class DisplayLists : public SdlTest {
protected:
    DisplayLists() {
        Window = SDL_CreateWindow("Display lists", 640, 360, 0);
        EXPECT_NE(Window, nullptr) << SDL_GetError();
        Displays.OfWindow = 7;
        Displays.Add(7, 1920, 1080);
    }

    ~DisplayLists() override {
        SDL_DestroyWindow(Window);
    }

    void Offer(std::vector<SDL_DisplayMode> Modes) {
        Displays.List.front().Modes = std::move(Modes);
    }

    void Rebuild() {
        RebuildDisplayLists(State, Window);
    }

    GameState State;
    SdlWatch Watch;
    FakeDisplays Displays{Watch};
    SDL_Window *Window = nullptr;
};

std::vector<Resolution> BuiltIn(enum AspectMode AspectMode) {
    const std::span<const Resolution> table = BuiltInResolutions(AspectMode);
    return {table.begin(), table.end()};
}

TEST_F(DisplayLists, KeepTheModesInSdlsOrder) {
    Offer({Mode(3840, 2160, 60.0F), Mode(1280, 1024, 75.0F), Mode(1920, 1080, 144.0F),
        Mode(1920, 1080, 60.0F), Mode(640, 480, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes, (std::vector<DisplayMode>{{3840, 2160, 60}, {1280, 1024, 75},
                                      {1920, 1080, 144}, {1920, 1080, 60}, {640, 480, 60}}));
}

TEST_F(DisplayLists, HoldEachModeOnce) {
    Offer({Mode(1920, 1080, 60.0F), Mode(1280, 720, 60.0F), Mode(1920, 1080, 59.94F), Mode(1920, 1080, 60.0F),
        Mode(1280, 720, 59.0F)});
    Rebuild();
    EXPECT_EQ(
        State.DisplayModes, (std::vector<DisplayMode>{{1920, 1080, 60}, {1280, 720, 60}, {1280, 720, 59}}));
}

TEST_F(DisplayLists, LeaveModesWithoutASizeOut) {
    Offer({Mode(0, 1080, 60.0F), Mode(1920, 0, 60.0F), Mode(-1920, -1080, 60.0F), Mode(1920, 1080, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes, (std::vector<DisplayMode>{{1920, 1080, 60}}));
}

TEST_F(DisplayLists, ReplaceWhatWasListedBefore) {
    State.DisplayModes = {{1, 1, 1}};
    State.Resolutions = {{1, 1}};
    State.RefreshRates = {0, 1};
    Offer({Mode(1920, 1080, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes, (std::vector<DisplayMode>{{1920, 1080, 60}}));
    EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{1920, 1080}}));
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60}));
}

TEST_F(DisplayLists, FreeWhatSdlGaveOut) {
    Displays.OfWindow = 0; // so that the list of displays is asked for as well
    Offer({Mode(1920, 1080, 60.0F), Mode(1920, 1080, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes.size(), 1U);
    EXPECT_TRUE(Displays.Lent.empty());
}

TEST_F(DisplayLists, RoundTheRateToWholeHz) {
    Offer({Mode(640, 360, 59.94F), Mode(800, 450, 59.49F), Mode(960, 540, 59.5F), Mode(1280, 720, 0.4F),
        Mode(1600, 900, 0.5F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes, (std::vector<DisplayMode>{{640, 360, 60}, {800, 450, 59}, {960, 540, 60},
                                      {1280, 720, 0}, {1600, 900, 1}}));
}

TEST_F(DisplayLists, TakeTheExactFractionBeforeTheRate) {
    Offer({Mode(640, 360, 0.0F, 60000, 1001), Mode(800, 450, 144.0F, 120, 1), Mode(960, 540, 60.0F, 119, 2)});
    Rebuild();
    EXPECT_EQ(
        State.DisplayModes, (std::vector<DisplayMode>{{640, 360, 60}, {800, 450, 120}, {960, 540, 60}}));
}

TEST_F(DisplayLists, TakeTheRateWhereTheFractionIsIncomplete) {
    Offer({Mode(640, 360, 75.0F, 0, 1), Mode(800, 450, 75.0F, 60, 0), Mode(960, 540, 75.0F, -60, -1),
        Mode(1280, 720, 75.0F, 60, -1)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes,
        (std::vector<DisplayMode>{{640, 360, 75}, {800, 450, 75}, {960, 540, 75}, {1280, 720, 75}}));
}

TEST_F(DisplayLists, TakeARateOfZeroOrLessAsUntold) {
    Offer({Mode(640, 360, 0.0F), Mode(800, 450, -60.0F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes, (std::vector<DisplayMode>{{640, 360, 0}, {800, 450, 0}}));
}

TEST_F(DisplayLists, OfferTheShapesOfTheAspectModeOnly) {
    Offer({Mode(1024, 768, 60.0F), Mode(1280, 1024, 60.0F), Mode(1366, 768, 60.0F), Mode(1920, 1200, 60.0F),
        Mode(1600, 1200, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{1366, 768}, {1920, 1200}}));
    State.AspectMode = AspectClassic4x3;
    Rebuild();
    EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{1024, 768}, {1600, 1200}}));
}

TEST_F(DisplayLists, OfferEachSizeOnceWhateverItsRates) {
    Offer({Mode(1920, 1080, 144.0F), Mode(1920, 1080, 120.0F), Mode(1920, 1080, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{1920, 1080}}));
}

TEST_F(DisplayLists, SortSizesByWidthThenHeight) {
    Offer({Mode(3840, 2160, 60.0F), Mode(2560, 1600, 60.0F), Mode(640, 360, 60.0F), Mode(2560, 1080, 60.0F),
        Mode(2560, 1440, 60.0F), Mode(1920, 1200, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{640, 360}, {1920, 1200}, {2560, 1080},
                                     {2560, 1440}, {2560, 1600}, {3840, 2160}}));
}

TEST_F(DisplayLists, FallBackToTheBuiltInTableWhereNothingFits) {
    Offer({Mode(1280, 1024, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes.size(), 1U);
    EXPECT_EQ(State.Resolutions, BuiltIn(AspectWidescreen));
}

TEST_F(DisplayLists, InClassicOnAWideDisplayHoldTheSevenBuiltInRows) {
    State.AspectMode = AspectClassic4x3;
    State.ResolutionIndex = 0;
    State.Resolutions = {{1920, 1080}};
    Offer({Mode(1920, 1080, 60.0F), Mode(1280, 720, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.Resolutions, BuiltIn(AspectClassic4x3));
    EXPECT_EQ(State.ResolutionIndex, 2); // 960x720
}

TEST_F(DisplayLists, FallBackWhereTheModesCannotBeListed) {
    Offer({Mode(1920, 1080, 60.0F)});
    Watch.GetFullscreenDisplayModes.Refuse();
    const LogCatcher log;
    Rebuild();
    EXPECT_TRUE(State.DisplayModes.empty());
    EXPECT_EQ(State.Resolutions, BuiltIn(AspectWidescreen));
    EXPECT_EQ(State.ResolutionIndex, 3);
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0}));
    EXPECT_TRUE(log.Lines.empty());
}

TEST_F(DisplayLists, ComeFromTheWindowsDisplay) {
    Displays.Add(9, 800, 600).Modes = {Mode(1280, 720, 50.0F)};
    Displays.OfWindow = 9;
    Offer({Mode(1920, 1080, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes, (std::vector<DisplayMode>{{1280, 720, 50}}));
}

TEST_F(DisplayLists, ComeFromTheFirstDisplayWhereTheWindowsIsUnknown) {
    Displays.Add(9, 800, 600).Modes = {Mode(1280, 720, 50.0F)};
    Displays.OfWindow = 0;
    Displays.Primary = 9; // has no say in it
    Offer({Mode(1920, 1080, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.DisplayModes, (std::vector<DisplayMode>{{1920, 1080, 60}}));
}

TEST_F(DisplayLists, ComeFromTheFirstDisplayWithoutAWindow) {
    Displays.OfWindow = 9;
    Displays.Add(9, 800, 600).Modes = {Mode(1280, 720, 50.0F)};
    Offer({Mode(1920, 1080, 60.0F)});
    Watch.Forget();
    RebuildDisplayLists(State, nullptr);
    EXPECT_EQ(State.DisplayModes, (std::vector<DisplayMode>{{1920, 1080, 60}}));
    EXPECT_EQ(Watch.GetDisplayForWindow.Count(), 0);
}

TEST_F(DisplayLists, WithoutAnyDisplayAreTheBuiltInOnes) {
    Displays.OfWindow = 0;
    Displays.List.clear();
    Watch.Forget();
    Rebuild();
    EXPECT_TRUE(State.DisplayModes.empty());
    EXPECT_EQ(State.Resolutions, BuiltIn(AspectWidescreen));
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0}));
    EXPECT_EQ(Watch.GetFullscreenDisplayModes.Count(), 0);
    EXPECT_TRUE(Displays.Lent.empty());
}

TEST_F(DisplayLists, KeepTheChosenSizeWhereItIsOffered) {
    State.Resolutions = {{1280, 720}, {1920, 1080}};
    State.ResolutionIndex = 1;
    Offer({Mode(640, 360, 60.0F), Mode(1920, 1080, 60.0F), Mode(3840, 2160, 60.0F), Mode(800, 450, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.ResolutionIndex, 2);
    EXPECT_EQ(CurrentResolution(State), (Resolution{1920, 1080}));
}

TEST_F(DisplayLists, TakeTheFourthRowInWidescreenWhereTheChosenSizeIsGone) {
    State.Resolutions = {{1680, 1050}};
    State.ResolutionIndex = 0;
    Offer({Mode(640, 360, 60.0F), Mode(800, 450, 60.0F), Mode(960, 540, 60.0F), Mode(1366, 768, 60.0F),
        Mode(1920, 1080, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.ResolutionIndex, 3);
}

TEST_F(DisplayLists, TakeTheThirdRowInClassicWhereTheChosenSizeIsGone) {
    State.AspectMode = AspectClassic4x3;
    State.Resolutions = {{1680, 1050}};
    State.ResolutionIndex = 0;
    Offer({Mode(640, 480, 60.0F), Mode(800, 600, 60.0F), Mode(1024, 768, 60.0F), Mode(1600, 1200, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.ResolutionIndex, 2);
}

TEST_F(DisplayLists, TakeTheLastRowOfAShortList) {
    State.Resolutions = {{1680, 1050}};
    State.ResolutionIndex = 0;
    Offer({Mode(640, 360, 60.0F), Mode(800, 450, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.ResolutionIndex, 1);
}

TEST_F(DisplayLists, OfADesktopOfFiveToFourEndAtTheFallbackRow) {
    State.Resolutions = {{1280, 1024}}; // what a first launch takes from the desktop
    State.ResolutionIndex = 0;
    Offer({Mode(1280, 1024, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.ResolutionIndex, 3);
    EXPECT_EQ(CurrentResolution(State), (Resolution{1280, 720}));
}

TEST_F(DisplayLists, ListTheRatesOfTheSizeThatIsCurrentAfterwards) {
    State.Resolutions = {{1920, 1080}};
    State.ResolutionIndex = 0;
    Offer({Mode(3840, 2160, 30.0F), Mode(1920, 1080, 144.0F), Mode(1920, 1080, 60.0F)});
    Rebuild();
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60, 144}));
}

TEST_F(DisplayLists, FirstDisplayIsTheFirstOfTheList) {
    Displays.Add(9, 800, 600);
    EXPECT_EQ(FirstDisplay(), 7U);
    Displays.List.clear();
    EXPECT_EQ(FirstDisplay(), 0U);
    EXPECT_TRUE(Displays.Lent.empty());
}

} // namespace
