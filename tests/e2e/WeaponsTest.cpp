#include "tests/e2e/PlayedGame.hpp"

#include <algorithm>
#include <vector>

namespace {

bool SeesShot(const Screenshot &Seen) {
    return !FindShots(Seen).empty();
}

// Holds Ctrl until a shot is seen: the shots that fly then, each as the area of its pixels, topmost first.
std::vector<Area> FireUntilSeen(PlayedGame &Game) {
    Game.Person().PressKey(Key::LeftControl);
    const std::optional<Screenshot> seen = Game.WaitForPicture(SeesShot);
    Game.Person().ReleaseKey(Key::LeftControl);
    return seen ? FindShots(*seen) : std::vector<Area>{};
}

// A shot is 3 wide and 6 high, from one pixel left of its place. It starts 14 above the car's middle at 670
// and reaches one pixel below its place.
void ExpectShotAt(int X, const Area &Shot) {
    EXPECT_EQ(Shot.Left, X - 1);
    EXPECT_EQ(Shot.Right, X + 2);
    EXPECT_EQ(Shot.Bottom - Shot.Top, 6);
    EXPECT_LE(Shot.Bottom, 670 - 14 + 1);
}

} // namespace

TEST(Weapons, ControlFiresAShotAheadOfTheCarInItsLane) {
    PlayedGame game;
    game.Person().PressKey(Key::Left);
    ASSERT_TRUE(game.WaitForPicture(CarInLane(0)));
    const std::vector<Area> shots = FireUntilSeen(game);
    ASSERT_FALSE(shots.empty());
    for (const Area &shot : shots) {
        ExpectShotAt(510, shot);
    }
}

TEST(Weapons, ShotsFlyUpAndLeaveTheScreen) {
    PlayedGame game;
    const std::vector<Area> shots = FireUntilSeen(game);
    ASSERT_FALSE(shots.empty());
    const int start = shots.front().Top;
    EXPECT_TRUE(game.WaitForPicture([start](const Screenshot &Seen) {
        const std::vector<Area> now = FindShots(Seen);
        return !now.empty() && now.front().Top < start - 60;
    }));
    EXPECT_TRUE(game.WaitForPicture([](const Screenshot &Seen) {
        return !SeesShot(Seen);
    }));
}

TEST(Weapons, HeldControlGoesOnFiring) {
    PlayedGame game;
    game.Person().PressKey(Key::LeftControl);
    EXPECT_TRUE(game.WaitForPicture([](const Screenshot &Seen) {
        return FindShots(Seen).size() >= 5;
    }));
}

TEST(Weapons, ShotsKeepTheirLaneWhenTheCarLeavesIt) {
    PlayedGame game;
    game.Person().PressKey(Key::LeftControl);
    ASSERT_TRUE(game.WaitForPicture(SeesShot));
    game.Person().ReleaseKey(Key::LeftControl);
    game.Person().PressKey(Key::Left);
    EXPECT_TRUE(game.WaitForPicture([](const Screenshot &Seen) {
        const std::vector<Area> shots = FindShots(Seen);
        return !CarInLane(4)(Seen) && FindCarLane(Seen) && !shots.empty() && shots.front().Left >= 638 &&
               shots.front().Left <= 640;
    }));
}

TEST(Weapons, BombLightsTheRoadAroundTheCarAndFades) {
    PlayedGame game;
    ASSERT_TRUE(game.StaysFor(10, [](const Screenshot &Seen) {
        return !SeesBlast(Seen);
    }));
    game.Person().PressKey(Key::X);
    EXPECT_TRUE(game.WaitForPicture(SeesBlast));
    game.Person().ReleaseKey(Key::X);
    EXPECT_TRUE(game.WaitForPicture([](const Screenshot &Seen) {
        return !SeesBlast(Seen) && FindCar(Seen);
    }));
    EXPECT_EQ(game.Close(), std::optional(0));
}
