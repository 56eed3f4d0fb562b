#include "app/KeyHandler.hpp"
#include "app/OptionsKeys.hpp"
#include "options/AudioPage.hpp"
#include "options/ControlsPage.hpp"
#include "options/GraphicsPage.hpp"
#include "state/LogicalScreen.hpp"
#include "state/Resolutions.hpp"
#include "tests/app/OptionsPromises.hpp"
#include "tests/app/ProgramTest.hpp"
#include "tests/support/Keys.hpp"
#include "tests/support/SameState.hpp"
#include "tests/support/watch/FakeDisplays.hpp"
#include "text/Localization.hpp"

#include <algorithm>
#include <array>
#include <random>
#include <vector>

// What holds for the option pages whatever keys are pressed: random walks over them, always the same ones.

namespace {

constexpr std::array EditPages{OptionsPageControls, OptionsPageGraphics, OptionsPageAudio};

/// The record without what the open pages edit until it is applied: where they stand, what waits to be
/// applied, and the sounds. The Graphics page edits its options in place.
GameState AppliedOf(GameState State) {
    const GameState fresh;
    State.OptionsPage = fresh.OptionsPage;
    State.OptionsMainSelection = State.ControlsSelection = 0;
    State.GraphicsSelection = State.AudioSelection = 0;
    State.CaptureActive = false;
    State.CaptureKind = fresh.CaptureKind;
    State.CaptureKeyboardRow = State.CaptureGamepadRow = State.CaptureJoystickRow = 0;
    State.PendingKeyboard = State.PendingGamepad = State.PendingJoystick = {};
    State.PendingControlsDevice = fresh.PendingControlsDevice;
    State.GraphicsSnapshot = {};
    State.PendingMasterVolume = State.PendingMusicVolume = State.PendingSfxVolume = 0;
    State.PendingMusicEnabled = State.PendingSfxEnabled = false;
    State.PendingLanguage.clear();
    State.PendingControlsValid = State.GraphicsSnapshotValid = State.PendingAudioValid = false;
    State.PendingSounds = {};
    return State;
}

/// The same as it will be if the page that is open is applied.
GameState EditedOf(const GameState &State) {
    GameState edited = AppliedOf(State);
    if (State.OptionsPage == OptionsPageControls) {
        edited.KeyboardBindings = State.PendingKeyboard;
        edited.GamepadBindings = State.PendingGamepad;
        edited.JoystickBindings = State.PendingJoystick;
        edited.ControlsDevice = State.PendingControlsDevice;
    } else if (State.OptionsPage == OptionsPageAudio) {
        edited.MasterVolume = State.PendingMasterVolume;
        edited.MusicVolume = State.PendingMusicVolume;
        edited.SfxVolume = State.PendingSfxVolume;
        edited.MusicEnabled = State.PendingMusicEnabled;
        edited.SfxEnabled = State.PendingSfxEnabled;
        edited.Language = State.PendingLanguage;
    }
    return edited;
}

/// The same without what the Graphics page edits in place.
GameState WithoutGraphics(GameState State) {
    const GameState fresh;
    State.AspectMode = fresh.AspectMode;
    State.ResolutionIndex = fresh.ResolutionIndex;
    State.RefreshRate = fresh.RefreshRate;
    State.Fullscreen = fresh.Fullscreen;
    State.VSync = fresh.VSync;
    State.Resolutions.clear();
    State.RefreshRates.clear();
    return State;
}

std::int32_t &SelectionOf(GameState &State, enum OptionsPage Page) {
    switch (Page) {
    case OptionsPageControls:
        return State.ControlsSelection;
    case OptionsPageGraphics:
        return State.GraphicsSelection;
    case OptionsPageAudio:
        return State.AudioSelection;
    default:
        return State.OptionsMainSelection;
    }
}

// The last four rows of a page.

std::int32_t DefaultsRowOf(enum OptionsPage Page) {
    return Page == OptionsPageGraphics ? 5 : 6;
}

std::int32_t ApplyRowOf(enum OptionsPage Page) {
    return DefaultsRowOf(Page) + 1;
}

std::int32_t RevertRowOf(enum OptionsPage Page) {
    return DefaultsRowOf(Page) + 2;
}

std::int32_t BackRowOf(enum OptionsPage Page) {
    return DefaultsRowOf(Page) + 3;
}

bool Activates(std::int32_t Key) {
    return std::ranges::find(ActivateKeys, Key) != ActivateKeys.end();
}

/// A program whose options are open, on a display with modes of several shapes and rates.
class OptionsWalk : public RunningTest {
protected:
    OptionsWalk() : Random(20240607) {
        Displays.AddOnly(1920, 1080).Modes = {Mode(2560, 1080, 60.0F), Mode(1920, 1080, 144.0F),
            Mode(1920, 1080, 60.0F), Mode(1920, 1200, 75.0F), Mode(1600, 1200, 85.0F),
            Mode(1280, 720, 144.0F), Mode(1280, 720, 60.0F), Mode(1024, 768, 85.0F), Mode(1024, 768, 60.0F),
            Mode(640, 480, 60.0F), Mode(5120, 1440, 120.0F)};
    }

    void SetUp() override {
        RunningTest::SetUp();
        ASSERT_EQ(State.Resolutions.size(), 5U);
        ASSERT_GE(Localization.Languages.size(), 2U);
        EnterOptions(State, ScreenPaused);
    }

    /// A key as HandleKey sees it. Who leaves the options is sent back at once.
    void Press(std::int32_t Key) {
        State.PendingSounds = {};
        DispatchKey(State, Program.Window, Program.Renderer, Key);
        if (State.Screen != ScreenOptions) {
            EnterOptions(State, ScreenPaused);
        }
    }

    void PressOn(std::int32_t Row, std::int32_t Key = EnterKey) {
        SelectionOf(State, State.OptionsPage) = Row;
        Press(Key);
    }

    std::int32_t DrawKey() {
        return WalkedKeys.at(Random() % WalkedKeys.size());
    }

    bool IsOnApply() {
        return State.OptionsPage != OptionsPageMain && !State.CaptureActive &&
               SelectionOf(State, State.OptionsPage) == ApplyRowOf(State.OptionsPage);
    }

    bool IsOnBack() {
        return !State.CaptureActive && SelectionOf(State, State.OptionsPage) == BackRowOf(State.OptionsPage);
    }

    /// Presses a drawn key, but never APPLY.
    void StepWithoutApply() {
        const std::int32_t key = DrawKey();
        Press(Activates(key) && IsOnApply() ? DownKey : key);
    }

    /// Presses a drawn key that neither applies nor leaves the page.
    void StepOnPage() {
        const std::int32_t key = DrawKey();
        const bool leaves = (key == EscapeKey && !State.CaptureActive) || (Activates(key) && IsOnBack());
        Press(leaves || (Activates(key) && IsOnApply()) ? DownKey : key);
    }

    /// Opens a page and changes it at random; no capture is left running.
    void EditAtRandom(enum OptionsPage Page, int Steps) {
        EnterOptions(State, ScreenPaused);
        PressOn(Page - 1);
        ASSERT_EQ(State.OptionsPage, Page);
        for (int i = 0; i < Steps; ++i) {
            StepOnPage();
        }
        if (State.CaptureActive) {
            Press(EscapeKey);
        }
        ASSERT_EQ(State.OptionsPage, Page);
    }

    void LeaveToTheMainPage() {
        for (int i = 0; i < 2 && State.OptionsPage != OptionsPageMain; ++i) {
            Press(EscapeKey); // the first one may end a capture
        }
        ASSERT_EQ(State.OptionsPage, OptionsPageMain);
    }

    bool IsDirty() const {
        return ControlsEditDirty(State) || GraphicsEditDirty(State) || AudioEditDirty(State);
    }

    /// The record without the sounds, and with the page's row at 0.
    GameState WithoutRow() const {
        GameState state = State;
        state.PendingSounds = {};
        SelectionOf(state, state.OptionsPage) = 0;
        return state;
    }

    std::size_t WindowCalls() const {
        return Watch
            .OrderOf({Watch.SetWindowFullscreenMode, Watch.SetWindowFullscreen, Watch.SetWindowSize,
                Watch.SetWindowPosition, Watch.SetRenderVSync, Watch.SetRenderLogicalPresentation})
            .size();
    }

    FakeDisplays Displays{Watch};
    std::mt19937 Random;
};

TEST_F(OptionsWalk, LeavingWithoutApplyChangesNoAppliedValue) {
    const GameState applied = AppliedOf(State);
    const std::int32_t width = LogicalWidth;
    Watch.Forget();
    int edits = 0;
    for (int walk = 0; walk < 150; ++walk) {
        for (int i = 0; i < 80; ++i) {
            StepWithoutApply();
            ASSERT_TRUE(SameState(WithoutGraphics(AppliedOf(State)), WithoutGraphics(applied))) << walk;
            edits += IsDirty() ? 1 : 0;
        }
        LeaveToTheMainPage();
        ASSERT_TRUE(SameState(AppliedOf(State), applied)) << walk;
    }
    EXPECT_FALSE(State.OptionsDirty);
    EXPECT_EQ(WindowCalls(), 0U);
    EXPECT_EQ(LogicalWidth, width);
    EXPECT_GT(edits, 1000); // the walks do change things
}

TEST_F(OptionsWalk, RevertAfterApplyChangesNothing) {
    for (int walk = 0; walk < 120; ++walk) {
        const enum OptionsPage page = EditPages.at(Random() % EditPages.size());
        EditAtRandom(page, 40);
        PressOn(ApplyRowOf(page));
        const GameState applied = WithoutRow();
        PressOn(RevertRowOf(page));
        ASSERT_TRUE(SameState(WithoutRow(), applied)) << walk << " page " << page;
    }
}

TEST_F(OptionsWalk, DefaultSettingsAloneChangeNothingThatIsApplied) {
    for (int walk = 0; walk < 120; ++walk) {
        const enum OptionsPage page = EditPages.at(Random() % EditPages.size());
        const GameState applied = AppliedOf(State);
        const std::int32_t width = LogicalWidth;
        Watch.Forget();
        EditAtRandom(page, 20);
        PressOn(DefaultsRowOf(page));
        ASSERT_TRUE(SameState(WithoutGraphics(AppliedOf(State)), WithoutGraphics(applied))) << walk;
        ASSERT_EQ(WindowCalls(), 0U) << walk;
        ASSERT_EQ(LogicalWidth, width) << walk;
        PressOn(BackRowOf(page));
        ASSERT_EQ(State.OptionsPage, OptionsPageMain) << walk;
        ASSERT_TRUE(SameState(AppliedOf(State), applied)) << walk;
        ASSERT_FALSE(State.OptionsDirty) << walk;
        // Other options for the next walk.
        EditAtRandom(page, 20);
        PressOn(ApplyRowOf(page));
        State.OptionsDirty = false;
        LeaveToTheMainPage();
    }
}

TEST_F(OptionsWalk, ApplyMarksTheOptionsExactlyIfSomethingDiffers) {
    int changed = 0;
    int unchanged = 0;
    State.ResetFrameClock = false; // set by the start-up
    for (int walk = 0; walk < 200; ++walk) {
        const enum OptionsPage page = EditPages.at(Random() % EditPages.size());
        const GameState before = AppliedOf(State);
        EditAtRandom(page, static_cast<int>(Random() % 16));
        GameState edited = EditedOf(State);
        const bool differs = !(edited == before);
        ASSERT_EQ(IsDirty(), differs) << walk << " page " << page;
        const std::int32_t widthBefore = LogicalWidth;
        Watch.Forget();
        PressOn(ApplyRowOf(page));
        ASSERT_EQ(State.OptionsDirty, differs) << walk << " page " << page;
        edited.OptionsDirty = differs;
        if (differs && page == OptionsPageGraphics) {
            edited.ResetFrameClock = true;
            edited.VSyncActive = edited.VSync;
            edited.Player.X += static_cast<float>(LogicalWidth - widthBefore) / 2.0F; // stays in its lane
        }
        ASSERT_TRUE(SameState(AppliedOf(State), edited)) << walk << " page " << page;
        ASSERT_EQ(WindowCalls() > 0, differs && page == OptionsPageGraphics) << walk;
        ASSERT_FALSE(IsDirty()) << walk << " page " << page;
        State.OptionsDirty = edited.OptionsDirty = false;
        State.ResetFrameClock = edited.ResetFrameClock = false;
        (differs ? changed : unchanged) += 1;
        LeaveToTheMainPage();
        ASSERT_TRUE(SameState(AppliedOf(State), edited)) << walk << " page " << page;
    }
    EXPECT_GT(changed, 30);
    EXPECT_GT(unchanged, 30);
}

TEST_F(OptionsWalk, RevertLeavesNothingToApply) {
    for (int walk = 0; walk < 120; ++walk) {
        const enum OptionsPage page = EditPages.at(Random() % EditPages.size());
        const GameState applied = AppliedOf(State);
        EditAtRandom(page, 30);
        PressOn(RevertRowOf(page));
        ASSERT_FALSE(IsDirty()) << walk << " page " << page;
        ASSERT_TRUE(SameState(EditedOf(State), applied)) << walk << " page " << page;
        PressOn(ApplyRowOf(page));
        ASSERT_FALSE(State.OptionsDirty) << walk << " page " << page;
    }
}

TEST_F(OptionsWalk, EveryKeyKeepsThePromises) {
    for (int step = 0; step < 6000; ++step) {
        Press(DrawKey());
        ASSERT_EQ(BrokenOption(State), "") << "step " << step;
    }
}

TEST_F(OptionsWalk, TheLogicalScreenIsTheOneOfTheLastApply) {
    const std::array widths{960, 1152, 1280, 1728, 2560};
    std::vector<std::int32_t> seen;
    for (int walk = 0; walk < 80; ++walk) {
        EditAtRandom(OptionsPageGraphics, 25);
        PressOn(ApplyRowOf(OptionsPageGraphics));
        const Resolution size = CurrentResolution(State);
        std::int32_t expected = 1280;
        if (State.AspectMode == AspectClassic4x3) {
            expected = 960;
        } else if (size == Resolution{2560, 1080}) {
            expected = 1728;
        } else if (size == Resolution{5120, 1440}) {
            expected = 2560;
        } else if (size == Resolution{1920, 1200}) {
            expected = 1152;
        }
        ASSERT_EQ(LogicalWidth, expected) << walk;
        seen.push_back(LogicalWidth);
    }
    for (const std::int32_t width : widths) {
        EXPECT_TRUE(std::ranges::find(seen, width) != seen.end()) << width;
    }
}

} // namespace
