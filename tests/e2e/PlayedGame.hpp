#pragma once

#include "tools/desktop/GameSession.hpp"
#include "tools/desktop/RoadSight.hpp"
#include "tools/desktop/WaitUntil.hpp"

#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <optional>

// The real program in a real window, with a run on the screen that a person can play.
class PlayedGame {
public:
    // Starts the program and waits until its car stands on the road. Throws std::runtime_error, with what the
    // program wrote, if that does not come.
    explicit PlayedGame(ScreenSize Screen = {}, const Environment &Settings = {});

    const DesktopWindow &Window() const;
    XClient &Person();
    ChildProcess &Program();
    // Asks the window to close and gives the program's result; nothing if it does not end.
    std::optional<int> Close();

    // Takes pictures until one satisfies Shows, and gives that one; nothing if none did in time.
    std::optional<Picture> WaitForPicture(const std::function<bool(const Picture &)> &Shows,
        std::chrono::milliseconds Deadline = PatientDeadline);
    // Whether each of the next Frames pictures in which the road has moved on satisfies Shows. Those in which
    // the car cannot be seen, because it blinks after a blow or a burst lies over it, do not count.
    testing::AssertionResult StaysFor(int Frames, const std::function<bool(const Picture &)> &Shows);

private:
    GameSession Session;
    DesktopWindow Opened;
};

// The program under test.
const char *GameProgram();

std::function<bool(const Picture &)> CarInLane(int Lane);
