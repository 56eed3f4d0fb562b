#include "tests/app/ProgramTest.hpp"

#include "sim/NewRun.hpp"

ProgramTest::ProgramTest() {
    ChooseSoftwareDrivers();
    Program.Writers = CountingWriters();
}

ProgramTest::~ProgramTest() {
    Stop();
    SDL_Quit();
    SDL_ResetHints();
}

void ProgramTest::Start() {
    ASSERT_TRUE(StartUp(Program)) << SDL_GetError();
    Started = true;
}

void ProgramTest::Stop() {
    if (Started) {
        Program.Music.FadeOutMs = 0; // nobody listens
        ShutDown(Program);
        ChooseSoftwareDrivers(); // the end of SDL forgets what was chosen
    }
    Started = false;
}

void ProgramTest::LetTimePass(Uint64 Milliseconds) {
    State.ResetFrameClock = false;
    Program.LastFrameTicks = SDL_GetTicks() - Milliseconds; // ticks before the program began wrap around
}

void ProgramTest::ShowWithoutWaiting(enum Screen Screen) {
    State.Screen = Screen;
    EXPECT_TRUE(SDL_SetRenderVSync(Program.Renderer, 0)) << SDL_GetError();
    State.VSyncActive = true;
}

void RunningTest::SetUp() {
    Start();
    Written = {}; // without what the first launch writes
    State.SaveRequested = false;
}

void PlayingTest::SetUp() {
    RunningTest::SetUp();
    StartNewRun(State);
    ShowWithoutWaiting(ScreenPlaying);
}
