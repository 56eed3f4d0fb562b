#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/PreparedRun.hpp"

namespace {

const Sight GameOverScreen = ScreenIs(SeenScreen::GameOver);

// A run that the next shot ends, and that a new one can be told from.
GameState LastMoments() {
    GameState run = QuietRun();
    run.Score = 4200;
    run.Bombs = 1;
    run.Player.Hp = 10;
    run.Player.Stocks = 0;
    ShootDownwards(run);
    return run;
}

} // namespace

TEST(GameOver, IsLeftToNewGameAndNoRunRemains) {
    for (const Key leaving : {Key::Escape, Key::Space}) {
        const PreparedHome home;
        PutRun(home, LastMoments());
        PlayedGame game({}, {}, &home);
        ASSERT_TRUE(game.WaitForPicture(GameOverScreen));
        EXPECT_TRUE(game.Ignores(Key::Down, GameOverScreen));
        ASSERT_TRUE(game.Tap(leaving, FiveRowMenu(0)));
        ASSERT_TRUE(game.StartRun());
        const Screenshot anew = game.Person().Look();
        EXPECT_EQ(HealthShown(anew), 110);
        EXPECT_EQ(BombsShown(anew), 3);
        EXPECT_TRUE(ScoreIsZero(anew));
    }
}
