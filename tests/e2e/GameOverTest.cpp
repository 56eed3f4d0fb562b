#include "tests/e2e/PlayedGame.hpp"

namespace {

const Sight GameOverScreen = ScreenIs(SeenScreen::GameOver);

} // namespace

// Two runs in a row, so that the second is seen to begin as fresh as the first.
TEST(GameOver, IsLeftToNewGameAndNoRunRemains) {
    PlayedGame game;
    for (const Key leaving : {Key::Escape, Key::Space}) {
        ASSERT_TRUE(game.RamUntil(GameOverScreen));
        EXPECT_TRUE(game.Ignores(Key::Down, GameOverScreen));
        ASSERT_TRUE(game.Tap(leaving, FiveRowMenu(0)));
        ASSERT_TRUE(game.StartNewRun());
        const Picture anew = game.Person().Screenshot();
        EXPECT_EQ(HealthShown(anew), 110);
        EXPECT_EQ(BombsShown(anew), 3);
        EXPECT_TRUE(ScoreIsZero(anew));
    }
}
