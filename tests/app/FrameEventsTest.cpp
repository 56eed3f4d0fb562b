#include "app/Events.hpp"
#include "tests/app/ProgramTest.hpp"

namespace {

class FrameEvents : public RunningTest {
protected:
    void SetUp() override {
        RunningTest::SetUp();
        SDL_PumpEvents();
        SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
        ShowWithoutWaiting(ScreenPlaying);
    }

    void Push(Uint32 Type) {
        SDL_Event event{};
        event.type = Type;
        Push(event);
    }

    void Push(SDL_Event &Event) {
        ASSERT_TRUE(SDL_PushEvent(&Event)) << SDL_GetError();
    }

    void PushKey(SDL_Scancode Scancode, bool Repeat) {
        SDL_Event event{};
        event.type = SDL_EVENT_KEY_DOWN;
        event.key.scancode = Scancode;
        event.key.down = true;
        event.key.repeat = Repeat;
        Push(event);
    }
};

TEST_F(FrameEvents, AQuitRequestFinishesTheFrame) {
    State.SaveDelay = 0.01F; // due within this frame's step
    LetTimePass(1000);
    const float timeBefore = State.GameTime;
    Push(SDL_EVENT_QUIT);
    const SdlWatch watch;
    RunFrame(Program);
    EXPECT_FALSE(State.Running);
    EXPECT_FLOAT_EQ(State.GameTime, timeBefore + 0.033F); // simulated once
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_EQ(watch.Count("SDL_RenderPresent"), 1);
}

TEST_F(FrameEvents, AQuitRequestStopsTheDraining) {
    PushKey(SDL_SCANCODE_A, false);
    Push(SDL_EVENT_QUIT);
    PushKey(SDL_SCANCODE_B, false);
    Push(SDL_EVENT_USER);
    DrainEvents(Program);
    EXPECT_FALSE(State.Running);
    SDL_Event event;
    ASSERT_TRUE(SDL_PollEvent(&event));
    EXPECT_EQ(event.type, static_cast<Uint32>(SDL_EVENT_KEY_DOWN));
    EXPECT_EQ(event.key.scancode, SDL_SCANCODE_B);
    EXPECT_TRUE(SDL_HasEvent(SDL_EVENT_USER));
}

TEST_F(FrameEvents, WithoutAQuitRequestTheQueueIsReadToItsEnd) {
    for (int i = 0; i < 50; ++i) {
        Push(SDL_EVENT_USER);
        PushKey(SDL_SCANCODE_A, i % 2 == 0);
    }
    RunFrame(Program);
    EXPECT_TRUE(State.Running);
    EXPECT_FALSE(SDL_HasEvents(SDL_EVENT_USER, SDL_EVENT_USER));
    EXPECT_FALSE(SDL_HasEvent(SDL_EVENT_KEY_DOWN));
}

TEST_F(FrameEvents, KeyRepeatsAreIgnored) {
    for (const SDL_Scancode scancode : {SDL_SCANCODE_ESCAPE, SDL_SCANCODE_SPACE, SDL_SCANCODE_RETURN}) {
        PushKey(scancode, true);
    }
    State.FirstAidKits = 2;
    State.Player.Hp = 40;
    RunFrame(Program);
    EXPECT_TRUE(State.Running);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(State.FirstAidKits, 2);
    EXPECT_EQ(State.Player.Hp, 40);
}

TEST_F(FrameEvents, WindowFocusMouseAndKeyReleaseEventsAreIgnored) {
    for (const SDL_EventType type :
        {SDL_EVENT_WINDOW_FOCUS_LOST, SDL_EVENT_WINDOW_MINIMIZED, SDL_EVENT_WINDOW_CLOSE_REQUESTED,
            SDL_EVENT_WINDOW_RESIZED, SDL_EVENT_KEY_UP, SDL_EVENT_MOUSE_BUTTON_DOWN, SDL_EVENT_MOUSE_MOTION,
            SDL_EVENT_DISPLAY_ADDED, SDL_EVENT_TEXT_INPUT}) {
        Push(type);
    }
    LetTimePass(1000);
    const float timeBefore = State.GameTime;
    RunFrame(Program);
    EXPECT_TRUE(State.Running);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_FLOAT_EQ(State.GameTime, timeBefore + 0.033F); // the game is not paused
}

} // namespace
