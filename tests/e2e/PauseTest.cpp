#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/PreparedRun.hpp"

namespace {

using std::chrono::milliseconds;

enum Row { Resume, Options, Help, MainMenu };

// Whether the road, and all else on the screen, stands still for a good second.
testing::AssertionResult StandsStill(OpenedGame &Game) {
    const Screenshot first = Game.Person().Look();
    return Game.KeepsFor(milliseconds{1200}, [&first](const Screenshot &Seen) {
        return Seen.Pixels == first.Pixels;
    });
}

// The pause menu over a run in which the car has left the middle, a bomb is gone and the score is above 0;
// nothing if it does not get there.
std::optional<Screenshot> PauseARunUnderWay(PlayedGame &Game) {
    Game.Person().PressKey(Key::Right);
    const bool moved = Game.WaitForPicture(CarInLane(8)).has_value();
    Game.Person().ReleaseKey(Key::Right);
    const bool thrown = Game.Tap(Key::X,
                                [](const Screenshot &Seen) {
                                    return BombsShown(Seen) == 2;
                                })
                            .has_value();
    const bool calm = Game.WaitForPicture([](const Screenshot &Seen) {
                              return !SeesBlast(Seen) && CarInLane(8)(Seen) && !ScoreIsZero(Seen);
                          })
                          .has_value();
    return moved && thrown && calm ? Game.Tap(Key::Escape, PauseMenu(Resume)) : std::nullopt;
}

} // namespace

TEST(Pause, EscapeFreezesTheRunUnderTheMenu) {
    PlayedGame game;
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    EXPECT_TRUE(FindDashPhase(game.Person().Look())) << "the road cannot be seen around the panel";
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

TEST(Pause, RowsGoRoundBothEndsAndItBeginsOnResumeEachTime) {
    PlayedGame game;
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    for (const int row : {MainMenu, Help, Options, Resume}) {
        ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(row))) << row;
    }
    for (const int row : {Options, Help, MainMenu, Resume}) {
        ASSERT_TRUE(game.Tap(Key::S, PauseMenu(row))) << row;
    }
    ASSERT_TRUE(game.Tap(Key::Down, PauseMenu(Options)));
    ASSERT_TRUE(game.Tap(Key::Escape, ScreenIs(SeenScreen::Playing)));
    EXPECT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
}

TEST(Pause, MainMenuOffersToContinueTheRunWhereItStood) {
    const PreparedHome home;
    GameState run = QuietRun();
    run.Score = 4200;
    PutRun(home, run);
    PlayedGame game({}, {}, &home);
    const std::optional<Screenshot> left = PauseARunUnderWay(game);
    ASSERT_TRUE(left);
    ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(MainMenu)));
    ASSERT_TRUE(game.Tap(Key::Return, SixRowMenu(0)));

    ASSERT_TRUE(game.Tap(Key::Return, CarInLane(8)));
    const std::optional<Screenshot> continued = game.Tap(Key::Escape, PauseMenu(Resume));
    ASSERT_TRUE(continued);
    EXPECT_EQ(BombsShown(*continued), 2);
    EXPECT_TRUE(ScoreEquals(*continued, *left));
}

TEST(Pause, NewGameBeginsAnewThoughThereIsARun) {
    PlayedGame game;
    ASSERT_TRUE(game.Tap(Key::X, [](const Screenshot &Seen) {
        return BombsShown(Seen) == 2;
    }));
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(Resume)));
    ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(MainMenu)));
    ASSERT_TRUE(game.Tap(Key::Return, SixRowMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Down, SixRowMenu(1)));
    EXPECT_TRUE(game.Tap(Key::Return, [](const Screenshot &Seen) {
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
