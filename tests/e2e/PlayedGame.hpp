#pragma once

#include "tests/e2e/OpenedGame.hpp"
#include "tools/desktop/RoadSight.hpp"

// The same with a run on the screen that a person can play.
class PlayedGame : public OpenedGame {
public:
    // Starts the program and the run of the main menu's first row: a new one, or the one that a prepared home
    // holds, whose car must drive in the middle lane. Waits until that car stands on the road. Throws
    // std::runtime_error, with what the program wrote, if that does not come.
    explicit PlayedGame(
        ScreenSize Screen = {}, const Environment &Settings = {}, const PreparedHome *Prepared = nullptr);

    // Starts the run of the main menu's first row, which is selected. False if no car comes to the middle
    // lane.
    bool StartRun();

    // Brings the car a lane nearer to that one; nothing happens if it is there or cannot be seen.
    void SteerTowards(const Screenshot &Seen, std::optional<int> Lane);

    // Drives into one enemy car after the other until a picture satisfies Shows. False if none did in six
    // minutes, which is many times as long as three lives last.
    bool RamUntil(const Sight &Shows);

    // Whether each of the next Frames pictures in which the road has moved on satisfies Shows. Those in which
    // the car cannot be seen, because it blinks after a blow or a burst lies over it, do not count.
    testing::AssertionResult StaysFor(int Frames, const Sight &Shows);
};

Sight CarInLane(int Lane);

// Tells from picture to picture how far the road has scrolled.
class ScrollMeter {
public:
    // The pixels that the road has scrolled since the first picture; whole dash periods that pass between two
    // pictures are missed.
    int Watch(const Screenshot &Seen);

private:
    std::optional<int> Phase;
    int Scrolled = 0;
};
