#include "tests/e2e/PlayedGame.hpp"

namespace {

using std::chrono::milliseconds;

enum Row { Resume, Options, Help, MainMenu };

// Whether the road, and all else on the screen, stands still for a good second.
testing::AssertionResult StandsStill(OpenedGame &Game) {
    const Picture first = Game.Person().Screenshot();
    return Game.KeepsFor(milliseconds{1200}, [&first](const Picture &Seen) {
        return Seen.Pixels == first.Pixels;
    });
}

// A run in which the car has left the middle, a bomb is gone and the score is above 0; nothing if it does not
// get there. The pause menu lies over it.
std::optional<Picture> PauseARunUnderWay(PlayedGame &Game) {
    constexpr std::chrono::minutes patience{2};
    Game.Person().PressKey(Key::LeftControl);
    const bool scored = Game.WaitForPicture(
                                [](const Picture &Seen) {
                                    return !ScoreIsZero(Seen);
                                },
                                patience)
                            .has_value();
    Game.Person().ReleaseKey(Key::LeftControl);
    // Held, since a life that is lost puts the car back into the middle.
    Game.Person().PressKey(Key::Right);
    const bool moved = Game.WaitForPicture(CarInLane(8)).has_value();
    const bool thrown = Game.TapUntil(Key::X,
                                [](const Picture &Seen) {
                                    return BombsShown(Seen) == 2;
                                })
                            .has_value();
    // Past the blast, the car's blinking and whatever the bomb has left of the traffic.
    const bool calm = Game.WaitForPicture([](const Picture &Seen) {
                              return !SeesBlast(Seen) && CarInLane(8)(Seen) && FindShots(Seen).empty();
                          })
                          .has_value();
    Game.Person().ReleaseKey(Key::Right);
    return scored && moved && thrown && calm ? Game.Tap(Key::Escape, PauseMenu(Resume)) : std::nullopt;
}

} // namespace

TEST(Pause, EscapeFreezesTheRunUnderTheMenu) {
    PlayedGame game;
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    EXPECT_TRUE(FindDashPhase(game.Person().Screenshot())) << "the road cannot be seen around the panel";
    EXPECT_TRUE(StandsStill(game));
    EXPECT_EQ(game.Close(), std::optional(0));
}

// The game polls held keys for driving; a frozen run must not see them, and the menu knows neither of these.
TEST(Pause, KeysOfPlayDoNothing) {
    PlayedGame game;
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    game.Person().PressKey(Key::Left);
    game.Person().PressKey(Key::LeftControl);
    game.Person().PressKey(Key::X);
    EXPECT_TRUE(StandsStill(game));
}

TEST(Pause, ResumeAndEscapeGoOn) {
    PlayedGame game;
    for (const Key key : {Key::Escape, Key::Return, Key::Space, Key::KeypadEnter}) {
        ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
        ASSERT_TRUE(game.Tap(key, ScreenIs(SeenScreen::Playing)));
        EXPECT_TRUE(game.StaysFor(10, CarInLane(4))) << "the road does not scroll on";
    }
}

TEST(Pause, RowsGoRoundBothEnds) {
    PlayedGame game;
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    for (const int row : {MainMenu, Help, Options, Resume}) {
        ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(row))) << row;
    }
    for (const int row : {Options, Help, MainMenu, Resume}) {
        ASSERT_TRUE(game.Tap(Key::S, PauseMenu(row))) << row;
    }
}

TEST(Pause, BeginsOnResumeEachTime) {
    PlayedGame game;
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    ASSERT_TRUE(game.Tap(Key::Down, PauseMenu(Options)));
    ASSERT_TRUE(game.Tap(Key::Escape, ScreenIs(SeenScreen::Playing)));
    EXPECT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
}

TEST(Pause, MainMenuOffersToContinueTheRunWhereItStood) {
    PlayedGame game;
    const std::optional<Picture> left = PauseARunUnderWay(game);
    ASSERT_TRUE(left);
    ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(MainMenu)));
    ASSERT_TRUE(game.Tap(Key::Return, SixRowMenu(0)));

    ASSERT_TRUE(game.Tap(Key::Return, CarInLane(8)));
    const std::optional<Picture> continued = game.Tap(Key::Escape, PauseMenu(Resume));
    ASSERT_TRUE(continued);
    EXPECT_EQ(BombsShown(*continued), 2);
    EXPECT_TRUE(ScoreEquals(*continued, *left));
}

TEST(Pause, NewGameBeginsAnewThoughThereIsARun) {
    PlayedGame game;
    ASSERT_TRUE(game.TapUntil(Key::X, [](const Picture &Seen) {
        return BombsShown(Seen) == 2;
    }));
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(MainMenu)));
    ASSERT_TRUE(game.Tap(Key::Return, SixRowMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Down, SixRowMenu(1)));
    EXPECT_TRUE(game.Tap(Key::Return, [](const Picture &Seen) {
        return CarInLane(4)(Seen) && BombsShown(Seen) == 3 && ScoreIsZero(Seen);
    }));
}

TEST(Pause, TheMenuOfSixRowsGoesRoundBothEnds) {
    PlayedGame game;
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(MainMenu)));
    ASSERT_TRUE(game.Tap(Key::Space, SixRowMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Up, SixRowMenu(5)));
    EXPECT_TRUE(game.Tap(Key::Down, SixRowMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Up, SixRowMenu(5)));
    game.Person().PressKey(Key::Return);
    EXPECT_EQ(game.Program().WaitForExit(PatientDeadline), std::optional(0));
}
