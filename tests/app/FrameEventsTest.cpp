#include "app/Events.hpp"
#include "tests/app/ProgramTest.hpp"
#include "tests/app/PushEvents.hpp"
#include "tests/support/SameState.hpp"
#include "tests/support/Screens.hpp"

namespace {

class FrameEvents : public PlayingTest {
protected:
    void SetUp() override {
        PlayingTest::SetUp();
        ForgetEvents();
    }
};

TEST_F(FrameEvents, AQuitRequestFinishesTheFrame) {
    State.SaveDelay = 0.01F; // due within this frame's step
    LetTimePass(1000);
    const float timeBefore = State.GameTime;
    PushEvent(SDL_EVENT_QUIT);
    Watch.Forget();
    RunFrame(Program);
    EXPECT_FALSE(State.Running);
    EXPECT_FLOAT_EQ(State.GameTime, timeBefore + 0.033F); // simulated once
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_EQ(Watch.RenderPresent.Count(), 1);
}

TEST_F(FrameEvents, AQuitRequestStopsTheDraining) {
    PushKey(SDL_SCANCODE_A);
    PushEvent(SDL_EVENT_QUIT);
    PushKey(SDL_SCANCODE_ESCAPE);
    PushEvent(SDL_EVENT_USER);
    DrainEvents(Program);
    EXPECT_FALSE(State.Running);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    SDL_Event event;
    ASSERT_TRUE(SDL_PollEvent(&event));
    EXPECT_EQ(event.type, static_cast<Uint32>(SDL_EVENT_KEY_DOWN));
    EXPECT_EQ(event.key.scancode, SDL_SCANCODE_ESCAPE);
    EXPECT_TRUE(SDL_HasEvent(SDL_EVENT_USER));
}

TEST_F(FrameEvents, AKeyAheadOfAQuitRequestActs) {
    PushKey(SDL_SCANCODE_ESCAPE);
    PushEvent(SDL_EVENT_QUIT);
    DrainEvents(Program);
    EXPECT_FALSE(State.Running);
    EXPECT_EQ(State.Screen, ScreenPaused);
}

TEST_F(FrameEvents, WithoutAQuitRequestTheQueueIsReadToItsEnd) {
    for (int i = 0; i < 50; ++i) {
        PushEvent(SDL_EVENT_USER);
        PushKey(SDL_SCANCODE_A, i % 2 == 0);
    }
    RunFrame(Program);
    EXPECT_TRUE(State.Running);
    EXPECT_FALSE(SDL_HasEvents(SDL_EVENT_USER, SDL_EVENT_USER));
    EXPECT_FALSE(SDL_HasEvent(SDL_EVENT_KEY_DOWN));
}

TEST_F(FrameEvents, LeavingFromTheMainMenuLetsTheQueueBeReadToItsEnd) {
    for (const SDL_Scancode leave : {SDL_SCANCODE_ESCAPE, SDL_SCANCODE_RETURN}) {
        State.Running = true;
        State.Screen = ScreenMainMenu;
        State.MainMenuSelection = 5; // QUIT
        PushKey(leave);
        PushKey(SDL_SCANCODE_UP);
        DrainEvents(Program);
        EXPECT_FALSE(State.Running) << leave;
        EXPECT_EQ(State.MainMenuSelection, 4U) << leave;
        EXPECT_FALSE(SDL_HasEvent(SDL_EVENT_KEY_DOWN)) << leave;
    }
}

TEST_F(FrameEvents, LeavingFromTheMainMenuFinishesTheFrame) {
    ShowWithoutWaiting(ScreenMainMenu);
    State.SaveDelay = 0.0F;
    PushKey(SDL_SCANCODE_ESCAPE);
    Watch.Forget();
    RunFrame(Program);
    EXPECT_FALSE(State.Running);
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_EQ(Watch.RenderPresent.Count(), 1);
}

TEST_F(FrameEvents, KeyRepeatsAreIgnoredInPlay) {
    State.FirstAidKits = 2;
    State.Player.Hp = 40;
    const GameState before = State;
    for (const SDL_Scancode scancode : {SDL_SCANCODE_ESCAPE, SDL_SCANCODE_SPACE, SDL_SCANCODE_RETURN}) {
        PushKey(scancode, true);
    }
    DrainEvents(Program);
    EXPECT_TRUE(SameState(State, before));
}

TEST_F(FrameEvents, KeyRepeatsAreIgnoredOnEveryOtherScreen) {
    for (const enum Screen screen : OtherScreens) {
        State.Screen = screen;
        const GameState before = State;
        for (int scancode = 1; scancode < 512; ++scancode) {
            PushKey(static_cast<SDL_Scancode>(scancode), true);
        }
        DrainEvents(Program);
        EXPECT_TRUE(SameState(State, before));
    }
}

TEST_F(FrameEvents, AHeldKeyGivesOneAction) {
    State.Screen = ScreenMainMenu;
    PushKey(SDL_SCANCODE_DOWN);
    for (int i = 0; i < 20; ++i) {
        PushKey(SDL_SCANCODE_DOWN, true);
    }
    DrainEvents(Program);
    EXPECT_EQ(State.MainMenuSelection, 1U);
    EXPECT_EQ(State.PendingSounds.Count, 1U);
    PushKey(SDL_SCANCODE_DOWN); // let go and pressed again
    DrainEvents(Program);
    EXPECT_EQ(State.MainMenuSelection, 2U);
}

TEST_F(FrameEvents, WindowFocusMouseAndKeyReleaseEventsAreIgnored) {
    for (const SDL_EventType type :
        {SDL_EVENT_WINDOW_FOCUS_LOST, SDL_EVENT_WINDOW_MINIMIZED, SDL_EVENT_WINDOW_CLOSE_REQUESTED,
            SDL_EVENT_WINDOW_RESIZED, SDL_EVENT_KEY_UP, SDL_EVENT_MOUSE_BUTTON_DOWN, SDL_EVENT_MOUSE_MOTION,
            SDL_EVENT_DISPLAY_ADDED, SDL_EVENT_TEXT_INPUT}) {
        PushEvent(type);
    }
    LetTimePass(1000);
    const float timeBefore = State.GameTime;
    RunFrame(Program);
    EXPECT_TRUE(State.Running);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_FLOAT_EQ(State.GameTime, timeBefore + 0.033F); // the game is not paused
}

TEST_F(FrameEvents, TheReleaseOfAKeyIsNoPress) {
    for (const enum Screen screen : {ScreenMainMenu, ScreenPlaying, ScreenPaused, ScreenHelp}) {
        State.Screen = screen;
        const GameState before = State;
        for (const SDL_Scancode scancode :
            {SDL_SCANCODE_ESCAPE, SDL_SCANCODE_RETURN, SDL_SCANCODE_SPACE, SDL_SCANCODE_DOWN}) {
            SDL_Event event{};
            event.type = SDL_EVENT_KEY_UP;
            event.key.scancode = scancode;
            PushEvent(event);
        }
        DrainEvents(Program);
        EXPECT_TRUE(SameState(State, before));
    }
}

TEST_F(FrameEvents, KeysOutOfRangeAreDropped) {
    State.Screen = ScreenMainMenu;
    State.MainMenuSelection = 99; // the very first key would put this right
    const GameState before = State;
    for (const int scancode : {0, 512, 513, 1023}) { // as many as the type can hold
        PushKey(static_cast<SDL_Scancode>(scancode));
    }
    DrainEvents(Program);
    EXPECT_TRUE(SameState(State, before));
}

} // namespace
