#include "tests/e2e/PlayedGame.hpp"

namespace {

using std::chrono::milliseconds;

enum Row { NewGame, Options, Help, Credits, Quit };

} // namespace

// The game itself waits for that menu: five rows, and the first is selected.
TEST(MainMenu, ComesFirstAndStays) {
    OpenedGame game({}, DrawnAsForPlayers());
    EXPECT_TRUE(game.KeepsFor(milliseconds{1000}, FiveRowMenu(NewGame)));
    EXPECT_EQ(game.Close(), std::optional(0));
}

TEST(MainMenu, RowsGoRoundBothEndsByArrowsAndLetters) {
    OpenedGame game;
    for (const int row : {Options, Help, Credits, Quit, NewGame}) {
        ASSERT_TRUE(game.Tap(Key::Down, FiveRowMenu(row))) << row;
    }
    for (const int row : {Quit, Credits, Help, Options, NewGame}) {
        ASSERT_TRUE(game.Tap(Key::Up, FiveRowMenu(row))) << row;
    }
    ASSERT_TRUE(game.Tap(Key::S, FiveRowMenu(Options)));
    ASSERT_TRUE(game.Tap(Key::W, FiveRowMenu(NewGame)));
    ASSERT_TRUE(game.Tap(Key::W, FiveRowMenu(Quit)));
    ASSERT_TRUE(game.Tap(Key::S, FiveRowMenu(NewGame)));
}

TEST(MainMenu, KeysThatMeanNothingHereDoNothing) {
    OpenedGame game;
    ASSERT_TRUE(game.Tap(Key::Down, FiveRowMenu(Options)));
    for (const Key key : {Key::Left, Key::Right, Key::A, Key::D, Key::X, Key::LeftControl}) {
        game.Person().TapKey(key, milliseconds{50});
    }
    EXPECT_TRUE(game.KeepsFor(milliseconds{500}, FiveRowMenu(Options)));
}

// The keyboard repeats a held key after two thirds of a second, many times a second.
TEST(MainMenu, AHeldKeyActsOnce) {
    OpenedGame game;
    ASSERT_TRUE(game.Person().KeysRepeat());
    game.Person().PressKey(Key::Down);
    ASSERT_TRUE(game.WaitForPicture(FiveRowMenu(Options)));
    EXPECT_TRUE(game.KeepsFor(milliseconds{1500}, FiveRowMenu(Options)));
    game.Person().ReleaseKey(Key::Down);
    EXPECT_TRUE(game.Tap(Key::Down, FiveRowMenu(Help)));
}

// The first time without a run, then below the row that would continue it.
TEST(MainMenu, NewGamePlaysEachTime) {
    OpenedGame game;
    ASSERT_TRUE(game.Tap(Key::Return, CarInLane(4)));
    for (const Key key : {Key::Space, Key::KeypadEnter}) {
        EXPECT_TRUE(game.WaitForPicture(ScreenIs(SeenScreen::Playing)));
        EXPECT_TRUE(game.Tap(Key::Left, CarInLane(0)));
        ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(0)));
        ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(3)));
        ASSERT_TRUE(game.Tap(Key::Return, SixRowMenu(0)));
        ASSERT_TRUE(game.Tap(Key::Down, SixRowMenu(1)));
        ASSERT_TRUE(game.Tap(key, CarInLane(4)));
    }
    EXPECT_TRUE(game.Tap(Key::Left, CarInLane(0)));
}

TEST(MainMenu, QuitEndsTheGameWithResultZero) {
    for (const Key key : {Key::Return, Key::Space}) {
        OpenedGame game;
        ASSERT_TRUE(game.Tap(Key::Up, FiveRowMenu(Quit)));
        game.Person().PressKey(key);
        EXPECT_EQ(game.Program().WaitForExit(PatientDeadline), std::optional(0));
    }
}

TEST(MainMenu, EscapeEndsTheGameWithResultZeroOnAnyRow) {
    OpenedGame game;
    ASSERT_TRUE(game.Tap(Key::Down, FiveRowMenu(Options)));
    game.Person().PressKey(Key::Escape);
    EXPECT_EQ(game.Program().WaitForExit(PatientDeadline), std::optional(0));
}
