#pragma once

#include "tests/e2e/OpenedGame.hpp"

#include <map>
#include <random>
#include <vector>

// Someone before the game who tries everything, and always does the same for the same number.
class RestlessPlayer {
public:
    RestlessPlayer(OpenedGame &Played, unsigned Number) : Game(Played), Random(Number) {}

    // Does something that the screen allows.
    void Act();

    // Whether each screen that a run leads to was met.
    bool HasMetAll();

    // How often each screen was met.
    std::map<SeenScreen, int> Visits;

private:
    int Draw(int Below);
    void Tap(const std::vector<Key> &Keys);

    // Goes down to a row, which QUIT is not, from the selected one: to the first, which goes on with the run,
    // until there was a game over, for a new run could last longer than the test.
    void ChooseFromMainMenu(const Screenshot &Seen);
    void ChooseFromPause(const Screenshot &Seen);
    // A moment at the wheel, into the traffic or just anywhere, with a finger on the trigger at times.
    void PlayOn(const Screenshot &Seen);
    // From the options' main page to another page, over its rows with changes, applied or not, and back to
    // where the options were opened. The language, the last row that is changed, goes once around.
    void ChangeOptions(const Screenshot &Seen);
    void AddGraphics(std::vector<Key> &Keys);
    void AddAudio(std::vector<Key> &Keys);

    OpenedGame &Game;
    std::mt19937 Random;
};
