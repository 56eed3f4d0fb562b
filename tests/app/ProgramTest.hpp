#pragma once

#include "app/Frame.hpp"
#include "app/Program.hpp"
#include "app/ShutDown.hpp"
#include "app/StartUp.hpp"
#include "tests/app/CountingWriters.hpp"
#include "tests/support/LogicalWidthScope.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tests/support/watch/SdlWatch.hpp"

/// The title of the game's window.
inline constexpr const char *WindowTitle = "Kestrel Volley v0.1.0";

/// A test with the whole program, on drivers that need no hardware, with counting writers and its calls into
/// SDL watched. What a test has started is shut down at its end.
class ProgramTest : public ::testing::Test {
protected:
    ProgramTest();
    ~ProgramTest() override;

    /// Starts the program; the test fails if that fails.
    void Start();

    /// Shuts the program down now.
    void Stop();

    /// Makes the next frame believe that the last one was Milliseconds ago. A long time gives a step of
    /// exactly 0.033 seconds.
    void LetTimePass(Uint64 Milliseconds);

    /// Shows a screen, with vertical sync off in the renderer so that presents do not wait. The frame cap
    /// is off as well.
    void ShowWithoutWaiting(enum Screen Screen);

    TemporaryHome Home;
    LogicalWidthScope ScreenWidth{1280};
    SdlWatch Watch;
    struct Program Program;
    GameState &State = Program.State;

private:
    bool Started = false;
};

/// A test whose program has been started. It stands on the main menu.
class RunningTest : public ProgramTest {
protected:
    void SetUp() override;
};

/// A test whose program plays a new run, without waiting.
class PlayingTest : public RunningTest {
protected:
    void SetUp() override;
};
