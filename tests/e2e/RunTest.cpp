#include "tests/e2e/PlayedGame.hpp"

#include "tools/desktop/WaitUntil.hpp"

// A run as a person plays it, and what the HUD tells of it.

namespace {

// For what takes a while, and much longer on a slow machine.
constexpr std::chrono::minutes Patience{4};

} // namespace

TEST(Run, TheHudStartsFull) {
    PlayedGame game;
    const Screenshot seen = game.Person().Look();
    EXPECT_EQ(HealthShown(seen), 110);
    EXPECT_EQ(AmmoShown(seen), 110);
    EXPECT_EQ(BombsShown(seen), 3);
    EXPECT_TRUE(ScoreIsZero(seen));
    EXPECT_TRUE(ScoreEqualsHighScore(seen));
}

TEST(Run, FiringEmptiesTheAmmoBarAndARestRefillsIt) {
    PlayedGame game;
    game.Person().PressKey(Key::LeftControl);
    // 33 salvos at most; a frame a salvo or more, so the bar goes down by 3.3 at a time.
    EXPECT_TRUE(game.WaitForPicture(
        [](const Screenshot &Seen) {
            return AmmoShown(Seen) <= 4;
        },
        Patience));
    game.Person().ReleaseKey(Key::LeftControl);
    EXPECT_TRUE(game.WaitForPicture(
        [](const Screenshot &Seen) {
            return AmmoShown(Seen) >= 60;
        },
        Patience));
}

TEST(Run, ABombGoesFromThePanel) {
    PlayedGame game;
    EXPECT_TRUE(game.Tap(Key::X, [](const Screenshot &Seen) {
        return BombsShown(Seen) == 2;
    }));
    EXPECT_TRUE(game.WaitForPicture([](const Screenshot &Seen) {
        return !SeesBlast(Seen);
    }));
    EXPECT_EQ(BombsShown(game.Person().Look()), 2);
}

// A car that stands still and shoots for a while scores; one that then drives into the traffic loses its
// three lives in about half a minute of play.
TEST(Run, PlayedToItsDeathTheHudTellsAllOfIt) {
    PlayedGame game;
    game.Person().PressKey(Key::LeftControl);
    EXPECT_TRUE(game.WaitForPicture(
        [](const Screenshot &Seen) {
            return !ScoreIsZero(Seen) && ScoreEqualsHighScore(Seen);
        },
        Patience));
    game.Person().ReleaseKey(Key::LeftControl);
    EXPECT_TRUE(game.RamUntil([](const Screenshot &Seen) {
        return HealthShown(Seen) < 110;
    }));
    ASSERT_TRUE(game.RamUntil([](const Screenshot &Seen) {
        return HealthShown(Seen) == 0;
    }));
    // The death animation runs out, the car is gone and the road stands still.
    const std::optional<Screenshot> over = game.WaitForPicture(ScreenIs(SeenScreen::GameOver));
    ASSERT_TRUE(over);
    EXPECT_FALSE(FindCar(*over));
    EXPECT_EQ(HealthShown(*over), 0);
    EXPECT_FALSE(ScoreIsZero(*over));
    EXPECT_TRUE(game.KeepsFor(std::chrono::milliseconds{1000}, [&over](const Screenshot &Seen) {
        return Seen.Pixels == over->Pixels;
    })) << "something still moves";
    ASSERT_TRUE(game.Tap(Key::Return, FiveRowMenu(0)));
    EXPECT_EQ(game.Close(), std::optional(0));
}
