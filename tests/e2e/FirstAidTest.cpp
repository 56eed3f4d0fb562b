#include "tests/e2e/PlayedGame.hpp"

#include <chrono>

namespace {

using std::chrono::steady_clock;

// Drives into the lane of each first aid kit that comes down the road, shooting, until one is picked up. A
// run that ends before is followed by another. False if no kit was had in time.
bool CatchKit(PlayedGame &Game) {
    const steady_clock::time_point deadline = steady_clock::now() + std::chrono::minutes{5};
    Game.Person().PressKey(Key::LeftControl);
    while (steady_clock::now() < deadline && Game.Program().IsRunning()) {
        const Picture seen = Game.Person().Screenshot();
        if (KitsShown(seen) > 0) {
            Game.Person().ReleaseKey(Key::LeftControl);
            return true;
        }
        if (FindScreen(seen) == SeenScreen::GameOver &&
            !(Game.Tap(Key::Return, FiveRowMenu(0)) && Game.StartNewRun())) {
            return false;
        }
        Game.SteerTowards(seen, FindKitLane(seen));
    }
    return false;
}

// Health so low that a kit is worth more than any one shot that may hit in the same moment.
bool IsBadlyHurt(const Picture &Seen) {
    return FindCar(Seen) && HealthShown(Seen) > 15 && HealthShown(Seen) <= 66;
}

} // namespace

TEST(FirstAid, TheSpaceBarSpendsAKitAndHeals) {
    constexpr std::chrono::minutes patience{2};
    PlayedGame game;
    ASSERT_TRUE(CatchKit(game)) << "no first aid kit came";
    // A blow in the same moment may cost a life, and with full health no kit is spent: then once more.
    std::optional<Picture> hurt;
    std::optional<Picture> healed;
    for (int attempt = 0; attempt < 3 && !healed; ++attempt) {
        hurt = game.WaitForPicture(IsBadlyHurt, patience);
        ASSERT_TRUE(hurt);
        const int kits = KitsShown(*hurt);
        ASSERT_GE(kits, 1);
        game.Person().TapKey(Key::Space, std::chrono::milliseconds{50});
        healed = game.WaitForPicture(
            [kits](const Picture &Seen) {
                return KitsShown(Seen) == kits - 1;
            },
            std::chrono::seconds{5});
    }
    ASSERT_TRUE(healed);
    EXPECT_GT(HealthShown(*healed), HealthShown(*hurt));
}
