#pragma once

#include "tests/e2e/OpenedGame.hpp"
#include "tools/desktop/RoadSight.hpp"

// The same with a run on the screen that a person can play.
class PlayedGame : public OpenedGame {
public:
    // Starts the program and a new run, which a prepared home may not hold already, and waits until its car
    // stands on the road. Throws std::runtime_error, with what the program wrote, if that does not come.
    explicit PlayedGame(
        ScreenSize Screen = {}, const Environment &Settings = {}, const PreparedHome *Prepared = nullptr);

    // Starts a new run from its row of the main menu, which is selected. False if its car does not come.
    bool StartNewRun();

    // Brings the car one lane nearer to that one; nothing happens if it is there or cannot be seen.
    void SteerTowards(const Picture &Seen, std::optional<int> Lane);

    // Drives into one enemy car after the other until a picture satisfies Shows. False if none did in three
    // minutes, which is several times as long as three lives last.
    bool RamUntil(const Sight &Shows);

    // Whether each of the next Frames pictures in which the road has moved on satisfies Shows. Those in which
    // the car cannot be seen, because it blinks after a blow or a burst lies over it, do not count.
    testing::AssertionResult StaysFor(int Frames, const Sight &Shows);
};

Sight CarInLane(int Lane);
