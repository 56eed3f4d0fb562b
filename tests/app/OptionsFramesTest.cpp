#include "state/LogicalScreen.hpp"
#include "tests/app/ProgramTest.hpp"
#include "tests/app/PushEvents.hpp"
#include "tests/support/SameState.hpp"
#include "tests/support/watch/FakeDisplays.hpp"
#include "text/Localization.hpp"

namespace {

/// The option pages in whole frames, by keys, in a game that is paused. The display offers 16:9 and 4:3.
class OptionsFrames : public PlayingTest {
protected:
    OptionsFrames() {
        Displays.AddOnly(1280, 720).Modes = {
            Mode(1280, 720, 60.0F), Mode(1920, 1080, 60.0F), Mode(1024, 768, 60.0F)};
    }

    void SetUp() override {
        PlayingTest::SetUp();
        ForgetEvents();
        State.SaveRequested = false;
        Frame({SDL_SCANCODE_ESCAPE, SDL_SCANCODE_DOWN, SDL_SCANCODE_RETURN}); // pause, OPTIONS
        ASSERT_EQ(State.Screen, ScreenOptions);
        State.VSyncActive = true; // no waiting
    }

    /// One frame with these presses in it.
    void Frame(std::initializer_list<SDL_Scancode> Keys) {
        PushKeys(Keys);
        RunFrame(Program);
    }

    /// Opens a page from the main page.
    void Open(enum OptionsPage Page) {
        State.OptionsMainSelection = Page - 1;
        Frame({SDL_SCANCODE_RETURN});
        ASSERT_EQ(State.OptionsPage, Page);
    }

    /// Presses a key on a row of the page that is open, and expects so many writes of the options file.
    void ExpectWrites(std::int32_t GameState::*Selection, std::int32_t Row, int Writes) {
        State.*Selection = Row;
        const int before = Written.OptionsWrites;
        Frame({SDL_SCANCODE_RETURN});
        EXPECT_EQ(Written.OptionsWrites - before, Writes);
        EXPECT_FALSE(State.OptionsDirty);
        Frame({});
        EXPECT_EQ(Written.OptionsWrites - before, Writes);
    }

    static std::string Shown(const char *Key) {
        const auto found = Localization.Texts.find(Key);
        return found == Localization.Texts.end() ? std::string() : found->second;
    }

    FakeDisplays Displays{Watch};
};

TEST_F(OptionsFrames, ApplyOfTheControlsIsWrittenWithinItsFrameAndOnlyIfSomethingChanged) {
    Open(OptionsPageControls);
    ExpectWrites(&GameState::ControlsSelection, 7, 0);
    State.ControlsSelection = 0;
    Frame({SDL_SCANCODE_RIGHT});
    EXPECT_EQ(Written.OptionsWrites, 0);
    ExpectWrites(&GameState::ControlsSelection, 7, 1);
    EXPECT_EQ(State.ControlsDevice, ControlsDeviceGamepad);
    ExpectWrites(&GameState::ControlsSelection, 7, 0);
}

TEST_F(OptionsFrames, ApplyOfTheGraphicsIsWrittenWithinItsFrameAndOnlyIfSomethingChanged) {
    Open(OptionsPageGraphics);
    Watch.Forget();
    ExpectWrites(&GameState::GraphicsSelection, 6, 0);
    EXPECT_EQ(Watch.SetRenderVSync.Count(), 0);
    EXPECT_EQ(Watch.SetRenderLogicalPresentation.Count(), 0);
    State.GraphicsSelection = 1;
    Frame({SDL_SCANCODE_RIGHT});
    EXPECT_EQ(Written.OptionsWrites, 0);
    EXPECT_EQ(Watch.SetRenderLogicalPresentation.Count(), 0);
    EXPECT_EQ(LogicalWidth, 1280);
    ExpectWrites(&GameState::GraphicsSelection, 6, 1);
    EXPECT_EQ(LogicalWidth, 960);
    ExpectWrites(&GameState::GraphicsSelection, 6, 0);
}

TEST_F(OptionsFrames, ApplyOfTheAudioIsWrittenWithinItsFrameAndOnlyIfSomethingChanged) {
    Open(OptionsPageAudio);
    ExpectWrites(&GameState::AudioSelection, 7, 0);
    State.AudioSelection = 0;
    Frame({SDL_SCANCODE_LEFT});
    EXPECT_EQ(Written.OptionsWrites, 0);
    ExpectWrites(&GameState::AudioSelection, 7, 1);
    EXPECT_EQ(State.MasterVolume, 95);
    ExpectWrites(&GameState::AudioSelection, 7, 0);
}

TEST_F(OptionsFrames, AnEditThatIsLeftIsNotWritten) {
    Open(OptionsPageControls);
    State.ControlsSelection = 6;
    Frame({SDL_SCANCODE_RETURN, SDL_SCANCODE_ESCAPE});
    Open(OptionsPageGraphics);
    State.GraphicsSelection = 4;
    Frame({SDL_SCANCODE_RETURN, SDL_SCANCODE_ESCAPE});
    Open(OptionsPageAudio);
    State.AudioSelection = 1;
    Frame({SDL_SCANCODE_RIGHT, SDL_SCANCODE_ESCAPE, SDL_SCANCODE_ESCAPE});
    EXPECT_EQ(State.Screen, ScreenPaused);
    EXPECT_EQ(Written.OptionsWrites, 0);
}

TEST_F(OptionsFrames, AVolumeIsHeardOnlyAfterApply) {
    Open(OptionsPageAudio);
    State.AudioSelection = 1;
    Frame({SDL_SCANCODE_RIGHT, SDL_SCANCODE_RIGHT});
    EXPECT_EQ(State.MusicVolume, 50);
    EXPECT_EQ(State.PendingMusicVolume, 60);
    State.AudioSelection = 7;
    Frame({SDL_SCANCODE_RETURN});
    EXPECT_EQ(State.MusicVolume, 60);
}

TEST_F(OptionsFrames, ALanguageFromThePauseMenuIsSpokenAtOnceAfterApply) {
    GameState expected = State;
    Open(OptionsPageAudio);
    ASSERT_EQ(Shown("Common.Back"), "BACK");
    State.AudioSelection = 5;
    for (int i = 0; i < 10 && State.PendingLanguage != "de"; ++i) {
        Frame({SDL_SCANCODE_RIGHT});
    }
    ASSERT_EQ(State.PendingLanguage, "de");
    EXPECT_EQ(Shown("Common.Back"), "BACK"); // not seen before APPLY
    State.AudioSelection = 7;
    Frame({SDL_SCANCODE_RETURN});
    EXPECT_EQ(Shown("Common.Back"), "ZUR\xC3\x9C"
                                    "CK");
    EXPECT_EQ(State.Language, "de");
    EXPECT_EQ(Localization.CurrentLanguage, "de");
    EXPECT_EQ(Written.OptionsWrites, 1);
    Frame({SDL_SCANCODE_ESCAPE, SDL_SCANCODE_ESCAPE});
    EXPECT_EQ(State.Screen, ScreenPaused);
    expected.Screen = ScreenPaused;
    expected.Language = expected.PendingLanguage = "de";
    expected.OptionsMainSelection = 2;
    expected.AudioSelection = 7;
    EXPECT_EQ(State.PendingSounds.Count, 0U);
    expected.PendingSounds = State.PendingSounds; // what is left of those that were played
    EXPECT_TRUE(SameState(State, expected));
}

TEST_F(OptionsFrames, AShapeAppliedInAPauseKeepsTheRunOnTheRoad) {
    State.Bullets = {{640.0F, 100.0F, 430.0F, 2.0F}};
    const float x = State.Player.X;
    Open(OptionsPageGraphics);
    State.GraphicsSelection = 1;
    Frame({SDL_SCANCODE_RIGHT});
    EXPECT_FLOAT_EQ(State.Player.X, x); // nothing moves before APPLY
    State.GraphicsSelection = 6;
    Frame({SDL_SCANCODE_RETURN});
    EXPECT_FLOAT_EQ(State.Player.X, x - 160.0F);
    EXPECT_FLOAT_EQ(State.Bullets[0].X, 480.0F);
}

TEST_F(OptionsFrames, ThePagesKeepTheirRowsBetweenVisits) {
    Open(OptionsPageControls);
    Frame({SDL_SCANCODE_UP, SDL_SCANCODE_UP, SDL_SCANCODE_ESCAPE});
    Open(OptionsPageGraphics);
    Frame({SDL_SCANCODE_UP, SDL_SCANCODE_ESCAPE});
    Open(OptionsPageAudio);
    Frame({SDL_SCANCODE_DOWN, SDL_SCANCODE_ESCAPE, SDL_SCANCODE_ESCAPE});
    Frame({SDL_SCANCODE_RETURN}); // OPTIONS again
    ASSERT_EQ(State.Screen, ScreenOptions);
    EXPECT_EQ(State.ControlsSelection, 8);
    EXPECT_EQ(State.GraphicsSelection, 8);
    EXPECT_EQ(State.AudioSelection, 1);
}

} // namespace
