#include "options/GraphicsPage.hpp"

#include "options/Displays.hpp"
#include "state/Resolutions.hpp"
#include "tests/options/PresentationTest.hpp"
#include "tests/support/Keys.hpp"
#include "tests/support/SameState.hpp"
#include "tests/support/watch/FakeDisplays.hpp"

#include <algorithm>
#include <array>
#include <functional>

namespace {

// Rows of the page.
constexpr std::int32_t ResolutionRow = 0;
constexpr std::int32_t AspectRow = 1;
constexpr std::int32_t RateRow = 2;
constexpr std::int32_t ModeRow = 3;
constexpr std::int32_t VSyncRow = 4;
constexpr std::int32_t DefaultsRow = 5;
constexpr std::int32_t ApplyRow = 6;
constexpr std::int32_t RevertRow = 7;
constexpr std::int32_t BackRow = 8;

using Change = std::function<void(GameState &Expected)>;

const Change Nothing = [](GameState &) {};

/// What the display below offers, by shape.
const std::vector<Resolution> WideSizes{{640, 360}, {800, 450}, {1280, 720}, {1920, 1080}, {2560, 1080}};
const std::vector<Resolution> ClassicSizes{{640, 480}, {1024, 768}, {1600, 1200}};

/// The page on a display with some modes. It stands at 1920x1080 and 75 Hz in fullscreen, vertical sync off,
/// with its edit begun and nothing changed.
class GraphicsPage : public PresentationTest {
protected:
    GraphicsPage() {
        Displays.OfWindow = 7;
        Displays.Add(7, 1920, 1080).Modes = {Mode(2560, 1080, 60.0F), Mode(1920, 1080, 144.0F),
            Mode(1920, 1080, 75.0F), Mode(1920, 1080, 60.0F), Mode(1600, 1200, 85.0F),
            Mode(1600, 1200, 60.0F), Mode(1280, 720, 144.0F), Mode(1280, 720, 60.0F), Mode(1024, 768, 75.0F),
            Mode(800, 450, 60.0F), Mode(640, 480, 60.0F), Mode(640, 360, 0.0F)};
        State.Screen = ScreenOptions;
        State.OptionsPage = OptionsPageGraphics;
        State.Resolutions = {{1920, 1080}};
        State.ResolutionIndex = 0;
        State.RefreshRate = 75;
        State.Fullscreen = true;
        State.VSync = false;
        BeginGraphicsEdit(State, Window);
    }

    void Press(std::int32_t Scancode) {
        HandleGraphicsPageKey(State, Window, Renderer, Scancode);
    }

    void PressOn(std::int32_t Row, std::int32_t Scancode) {
        State.GraphicsSelection = Row;
        Press(Scancode);
    }

    void Adjust(std::int32_t Row, std::int32_t Direction) {
        State.GraphicsSelection = Row;
        AdjustGraphicsRow(State, Window, Direction);
    }

    /// Expects each of Keys on a row to do Effect and nothing else, and the window to be left alone.
    void ExpectKeys(std::int32_t Row, const Scancodes &Pressed, const Change &Effect) {
        State.GraphicsSelection = Row;
        for (const std::int32_t key : Pressed) {
            GameState state = State;
            GameState expected = State;
            Watch.Forget();
            HandleGraphicsPageKey(state, Window, Renderer, key);
            ExpectWindowUntouched();
            Effect(expected);
            EXPECT_TRUE(SameState(state, expected)) << "scancode " << key << " on row " << Row;
        }
    }

    void ExpectWindowUntouched() const {
        EXPECT_EQ(DisplayCalls(), CallNames{});
        EXPECT_EQ(LogicalWidth, 1280);
    }

    /// Another value in each of the five options.
    void ChangeEverything() {
        Adjust(AspectRow, 1);
        Adjust(ResolutionRow, 1);
        Adjust(ModeRow, 1);
        Adjust(VSyncRow, 1);
        ASSERT_EQ(State.RefreshRate, 0);
    }

    FakeDisplays Displays{Watch};
};

TEST_F(GraphicsPage, BeginsWithASnapshotOfWhatIsInForce) {
    EXPECT_EQ(State.GraphicsSnapshot.Width, 1920);
    EXPECT_EQ(State.GraphicsSnapshot.Height, 1080);
    EXPECT_EQ(State.GraphicsSnapshot.AspectMode, AspectWidescreen);
    EXPECT_EQ(State.GraphicsSnapshot.RefreshRate, 75);
    EXPECT_TRUE(State.GraphicsSnapshot.Fullscreen);
    EXPECT_FALSE(State.GraphicsSnapshot.VSync);
    EXPECT_TRUE(State.GraphicsSnapshotValid);
}

TEST_F(GraphicsPage, BeginsWithTheListsOfTheDisplay) {
    EXPECT_EQ(State.DisplayModes.size(), 12U);
    EXPECT_EQ(State.Resolutions, WideSizes);
    EXPECT_EQ(State.ResolutionIndex, 3);
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60, 75, 144}));
    EXPECT_EQ(State.RefreshRate, 75);
    EXPECT_FALSE(GraphicsEditDirty(State));
}

TEST_F(GraphicsPage, TakesASnapshotOfEachOtherValue) {
    ChangeEverything();
    const Resolution size = CurrentResolution(State);
    BeginGraphicsEdit(State, Window);
    EXPECT_EQ(State.GraphicsSnapshot.Width, size.Width);
    EXPECT_EQ(State.GraphicsSnapshot.Height, size.Height);
    EXPECT_EQ(State.GraphicsSnapshot.AspectMode, AspectClassic4x3);
    EXPECT_EQ(State.GraphicsSnapshot.RefreshRate, 0);
    EXPECT_FALSE(State.GraphicsSnapshot.Fullscreen);
    EXPECT_TRUE(State.GraphicsSnapshot.VSync);
    EXPECT_FALSE(GraphicsEditDirty(State));
}

TEST_F(GraphicsPage, KeepsASizeThatIsGoneInItsSnapshot) {
    State.Resolutions = {{3440, 1440}};
    State.ResolutionIndex = 0;
    BeginGraphicsEdit(State, Window);
    EXPECT_EQ(State.GraphicsSnapshot.Width, 3440);
    EXPECT_EQ(State.GraphicsSnapshot.Height, 1440);
    EXPECT_EQ(State.ResolutionIndex, 3); // where the rebuilt list fell back to
    EXPECT_TRUE(GraphicsEditDirty(State));
}

TEST_F(GraphicsPage, KeepsARateThatIsGoneInItsSnapshot) {
    State.RefreshRate = 240;
    BeginGraphicsEdit(State, Window);
    EXPECT_EQ(State.GraphicsSnapshot.RefreshRate, 240);
    EXPECT_EQ(State.RefreshRate, 0);
    EXPECT_TRUE(GraphicsEditDirty(State));
}

TEST_F(GraphicsPage, IsDirtyByEachOfItsOptions) {
    constexpr auto changes = std::to_array<void (*)(GameState &)>({
        [](GameState &Changed) {
            Changed.ResolutionIndex = 2;
        },
        [](GameState &Changed) {
            Changed.AspectMode = AspectClassic4x3;
        },
        [](GameState &Changed) {
            Changed.RefreshRate = 60;
        },
        [](GameState &Changed) {
            Changed.Fullscreen = false;
        },
        [](GameState &Changed) {
            Changed.VSync = true;
        },
        [](GameState &Changed) {
            Changed.GraphicsSnapshot.Width = 1921;
        },
        [](GameState &Changed) {
            Changed.GraphicsSnapshot.Height = 1079;
        },
    });
    for (std::size_t i = 0; i < changes.size(); ++i) {
        GameState changed = State;
        changes.at(i)(changed);
        EXPECT_TRUE(GraphicsEditDirty(changed)) << i;
        changed.GraphicsSnapshotValid = false;
        EXPECT_FALSE(GraphicsEditDirty(changed)) << i;
    }
}

TEST_F(GraphicsPage, RevertsEverythingTogether) {
    const GameState before = State;
    ChangeEverything();
    ASSERT_TRUE(GraphicsEditDirty(State));
    State.GraphicsSelection = before.GraphicsSelection;
    RevertGraphicsEdit(State, Window);
    EXPECT_TRUE(SameState(State, before));
    EXPECT_FALSE(GraphicsEditDirty(State));
}

TEST_F(GraphicsPage, RevertsNothingWithoutASnapshot) {
    ChangeEverything();
    State.GraphicsSnapshotValid = false;
    const GameState before = State;
    RevertGraphicsEdit(State, Window);
    EXPECT_TRUE(SameState(State, before));
}

TEST_F(GraphicsPage, StepsThroughTheResolutionsRoundBothEnds) {
    for (const int expected : {4, 0, 1, 2, 3, 4, 0}) {
        Adjust(ResolutionRow, 1);
        EXPECT_EQ(State.ResolutionIndex, expected);
    }
    for (const int expected : {4, 3, 2, 1, 0, 4}) {
        Adjust(ResolutionRow, -1);
        EXPECT_EQ(State.ResolutionIndex, expected);
    }
}

TEST_F(GraphicsPage, ListsTheRatesOfEachResolution) {
    Adjust(ResolutionRow, 1);
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60}));
    EXPECT_EQ(State.RefreshRate, 0); // there is no 75 here
    Adjust(ResolutionRow, 1);
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0})); // the display does not tell
    Adjust(ResolutionRow, -1);
    Adjust(ResolutionRow, -1);
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60, 75, 144}));
    EXPECT_EQ(State.RefreshRate, 0); // what was lost stays lost
}

TEST_F(GraphicsPage, KeepsARateThatTheNextResolutionHas) {
    Adjust(RateRow, 1);
    ASSERT_EQ(State.RefreshRate, 144);
    Adjust(ResolutionRow, -1);
    EXPECT_EQ(State.RefreshRate, 144);
}

TEST_F(GraphicsPage, StepsFromWithinTheList) {
    struct Case {
        std::int32_t Index;
        std::int32_t Direction;
        std::int32_t Next;
    };
    for (const Case &step : {Case{-7, -1, 4}, Case{-7, 1, 1}, Case{99, 1, 0}, Case{99, -1, 3}}) {
        State.ResolutionIndex = step.Index;
        Adjust(ResolutionRow, step.Direction);
        EXPECT_EQ(State.ResolutionIndex, step.Next) << step.Index;
    }
}

TEST_F(GraphicsPage, StepsThroughTheBuiltInTableWhileThereIsNoList) {
    State.Resolutions.clear();
    State.ResolutionIndex = 20;
    Adjust(ResolutionRow, 1);
    EXPECT_EQ(State.ResolutionIndex, 0);
    Adjust(ResolutionRow, -1);
    EXPECT_EQ(State.ResolutionIndex, 20);
    State.AspectMode = AspectClassic4x3;
    State.ResolutionIndex = 6;
    Adjust(ResolutionRow, 1);
    EXPECT_EQ(State.ResolutionIndex, 0);
}

TEST_F(GraphicsPage, TheAspectModeBringsItsOwnResolutions) {
    for (const std::int32_t direction : {1, -1}) {
        Adjust(AspectRow, direction);
        EXPECT_EQ(State.AspectMode, AspectClassic4x3);
        EXPECT_EQ(State.Resolutions, ClassicSizes);
        EXPECT_EQ(State.ResolutionIndex, 2); // 1920x1080 is none of them
        EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60, 85}));
        Adjust(AspectRow, direction);
        EXPECT_EQ(State.AspectMode, AspectWidescreen);
        EXPECT_EQ(State.Resolutions, WideSizes);
        EXPECT_EQ(State.ResolutionIndex, 3);
    }
}

TEST_F(GraphicsPage, StepsThroughTheRatesRoundBothEnds) {
    for (const int expected : {144, 0, 60, 75, 144}) {
        Adjust(RateRow, 1);
        EXPECT_EQ(State.RefreshRate, expected);
    }
    for (const int expected : {75, 60, 0, 144}) {
        Adjust(RateRow, -1);
        EXPECT_EQ(State.RefreshRate, expected);
    }
    EXPECT_EQ(State.ResolutionIndex, 3);
}

TEST_F(GraphicsPage, StepsFromAutoWhereTheRateIsNotListed) {
    State.RefreshRate = 50;
    Adjust(RateRow, 1);
    EXPECT_EQ(State.RefreshRate, 60);
    State.RefreshRate = 50;
    Adjust(RateRow, -1);
    EXPECT_EQ(State.RefreshRate, 144);
}

TEST_F(GraphicsPage, HasNoRateWithoutAList) {
    for (const std::int32_t direction : {1, -1}) {
        State.RefreshRates.clear();
        State.RefreshRate = 75;
        Adjust(RateRow, direction);
        EXPECT_EQ(State.RefreshRate, 0);
    }
}

TEST_F(GraphicsPage, InAWindowThereIsNoRateToChoose) {
    for (const std::int32_t direction : {1, -1}) {
        Adjust(ModeRow, direction);
        EXPECT_FALSE(State.Fullscreen);
        EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0}));
        EXPECT_EQ(State.RefreshRate, 0);
        Adjust(RateRow, direction);
        EXPECT_EQ(State.RefreshRate, 0);
        Adjust(ModeRow, direction);
        EXPECT_TRUE(State.Fullscreen);
        EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 60, 75, 144}));
    }
}

TEST_F(GraphicsPage, TheDisplayModeRebuildsTheListsFromTheDisplay) {
    Displays.List.front().Modes = {Mode(1920, 1080, 50.0F)};
    Adjust(ModeRow, 1);
    EXPECT_EQ(State.Resolutions, (std::vector<Resolution>{{1920, 1080}}));
    Adjust(ModeRow, 1);
    EXPECT_EQ(State.RefreshRates, (std::vector<std::int32_t>{0, 50}));
}

TEST_F(GraphicsPage, VerticalSyncFlipsAlone) {
    for (const bool expected : {true, false, true}) {
        GameState flipped = State;
        flipped.VSync = expected;
        flipped.GraphicsSelection = VSyncRow;
        Adjust(VSyncRow, expected ? 1 : -1);
        EXPECT_TRUE(SameState(State, flipped));
    }
}

TEST_F(GraphicsPage, TheOtherRowsAreNotAdjusted) {
    for (std::int32_t row = DefaultsRow; row <= BackRow; ++row) {
        for (const std::int32_t direction : {1, -1}) {
            State.GraphicsSelection = row;
            const GameState before = State;
            Adjust(row, direction);
            EXPECT_TRUE(SameState(State, before)) << row;
        }
    }
}

TEST_F(GraphicsPage, UpGoesThroughTheNineRowsAndWraps) {
    constexpr std::array next{8, 0, 1, 2, 3, 4, 5, 6, 7};
    for (std::size_t row = 0; row < next.size(); ++row) {
        ExpectKeys(static_cast<std::int32_t>(row), UpKeys, [&](GameState &Expected) {
            Expected.GraphicsSelection = next.at(row);
        });
    }
}

TEST_F(GraphicsPage, DownGoesThroughTheNineRowsAndWraps) {
    constexpr std::array next{1, 2, 3, 4, 5, 6, 7, 8, 0};
    for (std::size_t row = 0; row < next.size(); ++row) {
        ExpectKeys(static_cast<std::int32_t>(row), DownKeys, [&](GameState &Expected) {
            Expected.GraphicsSelection = next.at(row);
        });
    }
}

TEST_F(GraphicsPage, LeftAndRightChangeTheFiveOptions) {
    ExpectKeys(ResolutionRow, RightKeys, [](GameState &Expected) {
        Expected.ResolutionIndex = 4;
        Expected.RefreshRate = 0;
        Expected.RefreshRates = {0, 60};
    });
    ExpectKeys(ResolutionRow, LeftKeys, [](GameState &Expected) {
        Expected.ResolutionIndex = 2;
        Expected.RefreshRate = 0;
        Expected.RefreshRates = {0, 60, 144};
    });
    const Change toClassic = [](GameState &Expected) {
        Expected.AspectMode = AspectClassic4x3;
        Expected.Resolutions = ClassicSizes;
        Expected.ResolutionIndex = 2;
        Expected.RefreshRate = 0;
        Expected.RefreshRates = {0, 60, 85};
    };
    ExpectKeys(AspectRow, RightKeys, toClassic);
    ExpectKeys(AspectRow, LeftKeys, toClassic);
    ExpectKeys(RateRow, RightKeys, [](GameState &Expected) {
        Expected.RefreshRate = 144;
    });
    ExpectKeys(RateRow, LeftKeys, [](GameState &Expected) {
        Expected.RefreshRate = 60;
    });
    const Change toWindowed = [](GameState &Expected) {
        Expected.Fullscreen = false;
        Expected.RefreshRate = 0;
        Expected.RefreshRates = {0};
    };
    ExpectKeys(ModeRow, RightKeys, toWindowed);
    ExpectKeys(ModeRow, LeftKeys, toWindowed);
    const Change toSynced = [](GameState &Expected) {
        Expected.VSync = true;
    };
    ExpectKeys(VSyncRow, RightKeys, toSynced);
    ExpectKeys(VSyncRow, LeftKeys, toSynced);
}

TEST_F(GraphicsPage, LeftAndRightDoNothingOnTheOtherRows) {
    for (std::int32_t row = DefaultsRow; row <= BackRow; ++row) {
        ExpectKeys(row, LeftKeys, Nothing);
        ExpectKeys(row, RightKeys, Nothing);
    }
}

TEST_F(GraphicsPage, ActivatingResolutionAspectModeOrRateDoesNothing) {
    for (const std::int32_t row : {ResolutionRow, AspectRow, RateRow}) {
        ExpectKeys(row, ActivateKeys, Nothing);
    }
}

TEST_F(GraphicsPage, ActivatingASwitchTogglesIt) {
    ExpectKeys(ModeRow, ActivateKeys, [](GameState &Expected) {
        Expected.Fullscreen = false;
        Expected.RefreshRate = 0;
        Expected.RefreshRates = {0};
    });
    ExpectKeys(VSyncRow, ActivateKeys, [](GameState &Expected) {
        Expected.VSync = true;
    });
}

TEST_F(GraphicsPage, NoOtherKeyDoesAnything) {
    for (std::int32_t row = 0; row < 9; ++row) {
        for (std::int32_t key = 1; key < 512; ++key) {
            if (!IsMenuKey(key)) {
                ExpectKeys(row, {key}, Nothing);
            }
        }
    }
}

TEST_F(GraphicsPage, BeginsItsEditWithAKeyIfItIsNotInOne) {
    State.GraphicsSnapshotValid = false;
    State.GraphicsSnapshot = {};
    PressOn(VSyncRow, EnterKey);
    EXPECT_TRUE(State.GraphicsSnapshotValid);
    EXPECT_EQ(State.GraphicsSnapshot.Width, 1920);
    EXPECT_FALSE(State.GraphicsSnapshot.VSync); // taken before the key acts
    EXPECT_TRUE(State.VSync);
}

TEST_F(GraphicsPage, DefaultSettingsChangeTheOptionsButNotTheWindow) {
    const Change toDefaults = [](GameState &Expected) {
        Expected.AspectMode = AspectWidescreen;
        Expected.Resolutions = WideSizes;
        Expected.ResolutionIndex = 2; // 1280x720
        Expected.RefreshRate = 0;
        Expected.RefreshRates = {0, 60, 144};
        Expected.Fullscreen = true;
        Expected.VSync = true;
    };
    ExpectKeys(DefaultsRow, ActivateKeys, toDefaults);
    Adjust(ModeRow, 1);
    ExpectKeys(DefaultsRow, ActivateKeys, toDefaults);
}

TEST_F(GraphicsPage, DefaultSettingsTakeTheFourthRowWhereTheirSizeIsNotOffered) {
    Displays.List.front().Modes = {Mode(640, 360, 60.0F), Mode(800, 450, 60.0F), Mode(1600, 900, 60.0F),
        Mode(1920, 1080, 60.0F), Mode(2560, 1440, 60.0F)};
    BeginGraphicsEdit(State, Window);
    PressOn(DefaultsRow, EnterKey);
    EXPECT_EQ(CurrentResolution(State), (Resolution{1920, 1080}));
}

TEST_F(GraphicsPage, DefaultSettingsLookTheirSizeUpInTheOldList) {
    // Out of the three sizes of 4:3 the last one is chosen; as widescreen has none like it, it falls back to
    // the fourth of its own, which is not 1280x720.
    Adjust(AspectRow, 1);
    PressOn(DefaultsRow, EnterKey);
    EXPECT_EQ(State.AspectMode, AspectWidescreen);
    EXPECT_EQ(State.Resolutions, WideSizes);
    EXPECT_EQ(State.ResolutionIndex, 3);
    EXPECT_EQ(CurrentResolution(State), (Resolution{1920, 1080}));
}

TEST_F(GraphicsPage, DefaultSettingsFromTheBuiltIn4x3TableAre1280x720) {
    Displays.List.front().Modes.clear();
    State.AspectMode = AspectClassic4x3;
    BeginGraphicsEdit(State, Window);
    ASSERT_EQ(State.Resolutions.size(), 7U);
    PressOn(DefaultsRow, EnterKey);
    EXPECT_EQ(State.Resolutions.size(), 21U);
    EXPECT_EQ(CurrentResolution(State), (Resolution{1280, 720}));
}

TEST_F(GraphicsPage, DefaultSettingsThenBackRestoreTheSnapshot) {
    const GameState before = State;
    Watch.Forget();
    PressOn(DefaultsRow, EnterKey);
    ASSERT_TRUE(GraphicsEditDirty(State));
    PressOn(BackRow, EnterKey);
    ExpectWindowUntouched();
    GameState expected = before;
    expected.GraphicsSelection = BackRow;
    expected.OptionsPage = OptionsPageMain;
    expected.GraphicsSnapshotValid = false;
    EXPECT_TRUE(SameState(State, expected));
}

TEST_F(GraphicsPage, ApplyBringsTheWindowInLineAndMarksTheOptions) {
    for (const std::int32_t key : ActivateKeys) {
        State.OptionsDirty = false;
        State.ResetFrameClock = false;
        Adjust(ModeRow, 1);
        const bool fullscreen = State.Fullscreen;
        Watch.Forget();
        PressOn(ApplyRow, key);
        EXPECT_EQ(IsFullscreen(), fullscreen) << key;
        EXPECT_EQ(Watch.SetRenderLogicalPresentation.Count(), 1) << key;
        EXPECT_TRUE(State.OptionsDirty) << key;
        EXPECT_TRUE(State.ResetFrameClock) << key;
        EXPECT_EQ(State.GraphicsSnapshot.Fullscreen, fullscreen) << key; // the new snapshot
        EXPECT_TRUE(State.GraphicsSnapshotValid) << key;
        EXPECT_FALSE(GraphicsEditDirty(State)) << key;
        EXPECT_EQ(State.OptionsPage, OptionsPageGraphics) << key;
    }
}

TEST_F(GraphicsPage, ApplyShapesTheLogicalScreen) {
    Adjust(AspectRow, 1);
    ASSERT_EQ(LogicalWidth, 1280);
    PressOn(ApplyRow, EnterKey);
    EXPECT_EQ(LogicalWidth, 960);
    EXPECT_EQ(State.GraphicsSnapshot.Width, 1600);
    EXPECT_EQ(State.GraphicsSnapshot.Height, 1200);
    EXPECT_EQ(State.GraphicsSnapshot.AspectMode, AspectClassic4x3);
}

TEST_F(GraphicsPage, ApplyOfARateAloneMarksTheOptions) {
    Adjust(RateRow, 1);
    PressOn(ApplyRow, EnterKey);
    EXPECT_TRUE(State.OptionsDirty);
    EXPECT_EQ(State.RefreshRate, 144);
    EXPECT_EQ(State.GraphicsSnapshot.RefreshRate, 144);
}

TEST_F(GraphicsPage, ApplyWithNothingChangedLeavesWindowAndMarkAlone) {
    ExpectKeys(ApplyRow, ActivateKeys, Nothing);
    State.OptionsDirty = true; // a write that failed stays due
    ExpectKeys(ApplyRow, ActivateKeys, Nothing);
}

TEST_F(GraphicsPage, ApplyWithFailingStepsMarksTheOptionsAllTheSame) {
    Adjust(ModeRow, 1);
    Watch.SetWindowSize.Refuse();
    const LogCatcher log;
    PressOn(ApplyRow, EnterKey);
    EXPECT_EQ(
        log.Lines, (std::vector<std::string>{"SDL_SetWindowSize(1920, 1080) failed: refused for the test"}));
    EXPECT_FALSE(State.Fullscreen);
    EXPECT_TRUE(State.OptionsDirty);
}

TEST_F(GraphicsPage, RevertBringsTheSnapshotBackAndStaysInEdit) {
    const GameState before = State;
    for (const std::int32_t key : ActivateKeys) {
        ChangeEverything();
        PressOn(RevertRow, key);
        GameState expected = before;
        expected.GraphicsSelection = RevertRow;
        EXPECT_TRUE(SameState(State, expected)) << key;
    }
}

TEST_F(GraphicsPage, BackAndEscapeRestoreTheListOfTheOldAspect) {
    const GameState before = State;
    for (const std::int32_t key : {EnterKey, SpaceBar, KeypadEnterKey, EscapeKey}) {
        State.OptionsPage = OptionsPageGraphics;
        BeginGraphicsEdit(State, Window);
        Adjust(AspectRow, 1);
        ASSERT_EQ(State.Resolutions, ClassicSizes);
        PressOn(BackRow, key);
        GameState expected = before;
        expected.GraphicsSelection = BackRow;
        expected.OptionsPage = OptionsPageMain;
        expected.GraphicsSnapshotValid = false;
        EXPECT_TRUE(SameState(State, expected)) << key;
    }
}

TEST_F(GraphicsPage, EscapeLeavesFromEveryRow) {
    for (std::int32_t row = 0; row < 9; ++row) {
        ExpectKeys(row, {EscapeKey}, [](GameState &Expected) {
            Expected.OptionsPage = OptionsPageMain;
            Expected.GraphicsSnapshotValid = false;
        });
    }
}

TEST_F(GraphicsPage, WorksWithoutAWindow) {
    ChangeEverything();
    State.GraphicsSelection = ApplyRow;
    Watch.Forget();
    HandleGraphicsPageKey(State, nullptr, nullptr, EnterKey);
    ExpectWindowUntouched();
    EXPECT_TRUE(State.OptionsDirty);
    EXPECT_FALSE(GraphicsEditDirty(State));
}

} // namespace
