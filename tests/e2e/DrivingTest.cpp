#include "tests/e2e/PlayedGame.hpp"

#include <algorithm>
#include <chrono>
#include <functional>
#include <iterator>
#include <vector>

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// One picture of a drive: the lane on whose centre the car stands, -1 for none, and the pixels that the road
// has scrolled since the first picture. Stage 1 scrolls 120 of them a second.
struct Sighting {
    int Lane = 0;
    int Scrolled = 0;
};

std::vector<Sighting> WatchUntilLane(PlayedGame &Game, int Lane) {
    std::vector<Sighting> sightings;
    ScrollMeter meter;
    Game.WaitForPicture([&](const Screenshot &Seen) {
        sightings.push_back({FindCarLane(Seen).value_or(-1), meter.Watch(Seen)});
        return sightings.back().Lane == Lane;
    });
    return sightings;
}

// The lanes of a drive, each named once for each stay.
std::vector<int> LanesOf(const std::vector<Sighting> &Drive) {
    std::vector<int> lanes;
    std::transform(Drive.begin(), Drive.end(), std::back_inserter(lanes), [](const Sighting &Seen) {
        return Seen.Lane;
    });
    lanes.erase(std::unique(lanes.begin(), lanes.end()), lanes.end());
    return lanes;
}

// Taps the key until the car leaves that lane. The game looks at held keys once a frame, so a tap that falls
// between two frames of a slow machine is lost.
bool TapUntilMoved(PlayedGame &Game, Key Tapped, int From) {
    // Well below the 90 milliseconds after which a held key moves the car again.
    constexpr milliseconds held{25};
    for (int attempt = 0; attempt < 20; ++attempt) {
        Game.Person().TapKey(Tapped, held);
        if (!Game.StaysFor(10, CarInLane(From))) {
            return true;
        }
    }
    return false;
}

} // namespace

TEST(Driving, TapMovesTheCarOneLane) {
    PlayedGame game;
    ASSERT_TRUE(TapUntilMoved(game, Key::Right, 4));
    EXPECT_TRUE(game.StaysFor(15, CarInLane(5)));
    ASSERT_TRUE(TapUntilMoved(game, Key::Left, 5));
    EXPECT_TRUE(game.StaysFor(15, CarInLane(4)));
}

TEST(Driving, HeldLeftLeadsOverLaneCentresOnlyAndStopsAtTheEdge) {
    PlayedGame game;
    game.Person().PressKey(Key::Left);
    const std::vector<int> lanes = LanesOf(WatchUntilLane(game, 0));
    ASSERT_EQ(lanes.back(), 0);
    EXPECT_TRUE(std::is_sorted(lanes.begin(), lanes.end(), std::greater<>())) << "the car swerved";
    EXPECT_EQ(std::count(lanes.begin(), lanes.end(), -1), 0) << "the car was seen between two lanes";
    EXPECT_TRUE(game.StaysFor(30, CarInLane(0)));
}

TEST(Driving, HeldRightStopsAtTheOtherEdge) {
    PlayedGame game;
    game.Person().PressKey(Key::Right);
    ASSERT_EQ(WatchUntilLane(game, 8).back().Lane, 8);
    EXPECT_TRUE(game.StaysFor(30, CarInLane(8)));
}

// Four moves with 0.09 seconds between each two, so 0.27 at least. Frames round each pause up, by 0.033 at
// most: 0.369 seconds, in which the road scrolls 44.3 pixels. A keyboard's own repeat begins after half a
// second.
TEST(Driving, HeldKeyRepeatsAtTheGamesOwnPace) {
    constexpr milliseconds shortest{270};
    constexpr int longestScroll = 44 + 4;

    PlayedGame game;
    const steady_clock::time_point start = steady_clock::now();
    game.Person().PressKey(Key::Left);
    const std::vector<Sighting> drive = WatchUntilLane(game, 0);
    const steady_clock::duration passed = steady_clock::now() - start;
    ASSERT_EQ(drive.back().Lane, 0);
    ASSERT_GE(drive.size(), 2U);
    EXPECT_GE(passed, shortest);

    const auto firstMoved = std::find_if(drive.begin(), drive.end(), [](const Sighting &Seen) {
        return Seen.Lane != 4;
    });
    const auto lastMoving = drive.end() - 2;
    EXPECT_LE(lastMoving->Scrolled - firstMoved->Scrolled, longestScroll);
}

// At each edge, so that neither key may outweigh the other.
TEST(Driving, LeftAndRightTogetherHoldTheLane) {
    PlayedGame game;
    game.Person().PressKey(Key::Left);
    ASSERT_TRUE(game.WaitForPicture(CarInLane(0)));
    game.Person().PressKey(Key::Right);
    EXPECT_TRUE(game.StaysFor(30, CarInLane(0)));
    game.Person().ReleaseKey(Key::Left);
    ASSERT_TRUE(game.WaitForPicture(CarInLane(8)));
    game.Person().PressKey(Key::Left);
    EXPECT_TRUE(game.StaysFor(30, CarInLane(8)));
}

// Between two pictures the road moves by a few pixels. Now and then more than half a period may pass unseen,
// which looks like a move the other way.
TEST(Driving, RoadScrollsTowardsTheCar) {
    constexpr int steps = 12;
    PlayedGame game;
    std::optional<int> phase;
    int forward = -1;
    for (int step = 0; step <= steps; ++step) {
        const std::optional<Screenshot> next = game.WaitForPicture([&phase](const Screenshot &Seen) {
            const std::optional<int> now = FindDashPhase(Seen);
            return now && now != phase;
        });
        ASSERT_TRUE(next) << "the road stood still after step " << step;
        const int now = *FindDashPhase(*next);
        forward += (now - phase.value_or(now) + DashPeriod) % DashPeriod < DashPeriod / 2 ? 1 : 0;
        phase = now;
    }
    EXPECT_GE(forward, steps * 3 / 4);
}
