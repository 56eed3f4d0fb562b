#include "tests/e2e/PlayedGame.hpp"

#include <algorithm>

// Help, credits and options, and the ways there and back.

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

const Sight HelpPage = ScreenIs(SeenScreen::Help);
const Sight CreditsPage = ScreenIs(SeenScreen::Credits);

// Goes down the main menu to that row.
void SelectRow(OpenedGame &Game, int Row) {
    for (int row = 1; row <= Row; ++row) {
        ASSERT_TRUE(Game.Tap(Key::Down, FiveRowMenu(row))) << row;
    }
}

void OpenFromMainMenu(OpenedGame &Game, int Row, Key Activating, const Sight &Page) {
    ASSERT_NO_FATAL_FAILURE(SelectRow(Game, Row));
    ASSERT_TRUE(Game.Tap(Activating, Page));
}

void OpenFromPause(PlayedGame &Game, int Row, const Sight &Page) {
    ASSERT_TRUE(Game.Tap(Key::Escape, PauseMenu(0)));
    for (int row = 1; row <= Row; ++row) {
        ASSERT_TRUE(Game.Tap(Key::Down, PauseMenu(row))) << row;
    }
    ASSERT_TRUE(Game.Tap(Key::Return, Page));
}

} // namespace

TEST(HelpPage, LeadsBackToItsRowOfTheMainMenu) {
    OpenedGame game;
    ASSERT_NO_FATAL_FAILURE(OpenFromMainMenu(game, 2, Key::Return, HelpPage));
    for (const Key key : {Key::Escape, Key::Return, Key::KeypadEnter}) {
        ASSERT_TRUE(game.Tap(key, FiveRowMenu(2)));
        ASSERT_TRUE(game.Tap(Key::Space, HelpPage));
    }
}

TEST(HelpPage, IsNotLeftByTheSpaceBar) {
    OpenedGame game;
    ASSERT_NO_FATAL_FAILURE(OpenFromMainMenu(game, 2, Key::Space, HelpPage));
    EXPECT_TRUE(game.Ignores(Key::Space, HelpPage));
    // Had it been left unseen, this would open it once more.
    EXPECT_TRUE(game.Tap(Key::Return, FiveRowMenu(2)));
}

TEST(HelpPage, LeadsBackToThePauseAndTheRunGoesOn) {
    PlayedGame game;
    ASSERT_NO_FATAL_FAILURE(OpenFromPause(game, 2, HelpPage));
    ASSERT_TRUE(game.Tap(Key::Return, PauseMenu(2)));
    ASSERT_TRUE(game.Tap(Key::Return, HelpPage));
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(2)));
    ASSERT_TRUE(game.Tap(Key::Escape, ScreenIs(SeenScreen::Playing)));
    EXPECT_TRUE(game.StaysFor(10, CarInLane(4)));
}

TEST(OptionsPage, RowsGoRoundBothEnds) {
    OpenedGame game;
    ASSERT_NO_FATAL_FAILURE(OpenFromMainMenu(game, 1, Key::Return, OptionsMenu(0)));
    for (const int row : {3, 2, 1, 0}) {
        ASSERT_TRUE(game.Tap(Key::W, OptionsMenu(row))) << row;
    }
    for (const int row : {1, 2, 3, 0}) {
        ASSERT_TRUE(game.Tap(Key::Down, OptionsMenu(row))) << row;
    }
}

TEST(OptionsPage, BackAndEscapeLeadToTheMainMenuAndTheRowIsKept) {
    OpenedGame game;
    ASSERT_NO_FATAL_FAILURE(OpenFromMainMenu(game, 1, Key::Return, OptionsMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Up, OptionsMenu(3)));
    ASSERT_TRUE(game.Tap(Key::Space, FiveRowMenu(1)));
    ASSERT_TRUE(game.Tap(Key::Space, OptionsMenu(3)));
    EXPECT_TRUE(game.Tap(Key::Escape, FiveRowMenu(1)));
}

TEST(OptionsPage, BackAndEscapeLeadToThePauseItWasOpenedFrom) {
    PlayedGame game;
    ASSERT_NO_FATAL_FAILURE(OpenFromPause(game, 1, OptionsMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(1)));
    ASSERT_TRUE(game.Tap(Key::Return, OptionsMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Up, OptionsMenu(3)));
    EXPECT_TRUE(game.Tap(Key::Return, PauseMenu(1)));
}

TEST(CreditsPage, IsLeftByEscapeAndReturnButNotByTheSpaceBar) {
    OpenedGame game;
    ASSERT_NO_FATAL_FAILURE(SelectRow(game, 3));
    for (const Key leaving : {Key::Escape, Key::Return, Key::KeypadEnter}) {
        ASSERT_TRUE(game.Tap(Key::Space, CreditsPage));
        EXPECT_TRUE(game.Ignores(Key::Space, CreditsPage));
        ASSERT_TRUE(game.Tap(leaving, FiveRowMenu(3)));
    }
}

TEST(CreditsPage, BeginsFromBelowEachTime) {
    OpenedGame game;
    ASSERT_NO_FATAL_FAILURE(OpenFromMainMenu(game, 3, Key::Return, CreditsPage));
    ASSERT_TRUE(game.WaitForPicture([](const Screenshot &Seen) {
        const std::optional<Area> text = FindCreditsText(Seen);
        return text && text->Top < 600;
    }));
    ASSERT_TRUE(game.Tap(Key::Return, FiveRowMenu(3)));
    const steady_clock::time_point start = steady_clock::now();
    ASSERT_TRUE(game.Tap(Key::Return, CreditsPage));
    const std::optional<Screenshot> again = game.WaitForPicture([](const Screenshot &Seen) {
        return FindCreditsText(Seen).has_value();
    });
    ASSERT_TRUE(again);
    // From 720 at 42 pixels a second, and a frame before the press is seen.
    const std::chrono::duration<float> passed = steady_clock::now() - start;
    EXPECT_GT(static_cast<float>(FindCreditsText(*again)->Top), 717.0F - 42.0F * passed.count());
}

// They scroll 1090 pixels at 42 a second, which is 25.95 seconds; a slow machine takes longer, never less.
// The block of text is 298 high and leaves the screen at the top.
TEST(CreditsPage, ScrollsToItsEndAndReturnsToTheMainMenu) {
    OpenedGame game;
    ASSERT_NO_FATAL_FAILURE(SelectRow(game, 3));
    const steady_clock::time_point start = steady_clock::now();
    ASSERT_TRUE(game.Tap(Key::Return, CreditsPage));
    int highest = 720;
    const std::optional<Screenshot> ended = game.WaitForPicture(
        [&highest](const Screenshot &Seen) {
            if (const std::optional<Area> text = FindCreditsText(Seen)) {
                highest = std::min(highest, text->Bottom);
            }
            return FiveRowMenu(3)(Seen);
        },
        std::chrono::minutes{5}, milliseconds{50});
    ASSERT_TRUE(ended);
    EXPECT_GT(steady_clock::now() - start, milliseconds{25900});
    EXPECT_LT(highest, 60) << "the last line was not seen to leave";
}
