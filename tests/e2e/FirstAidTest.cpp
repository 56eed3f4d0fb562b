#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/PreparedRun.hpp"

namespace {

constexpr int KitLane = 6;

// Half of the health is gone, and a first aid kit comes down the road, two lanes from the car.
GameState HurtRun() {
    GameState run = QuietRun();
    run.Player.Hp = 50;
    run.Items.push_back({.Y = 100.0F, .Lane = KitLane, .Type = 0});
    return run;
}

} // namespace

TEST(FirstAid, AKitIsPickedUpAndTheSpaceBarSpendsItAndHeals) {
    const PreparedHome home;
    PutRun(home, HurtRun());
    PlayedGame game({}, {}, &home);
    ASSERT_EQ(KitsShown(game.Person().Look()), 0);
    ASSERT_TRUE(game.WaitForPicture([&game](const Screenshot &Seen) {
        game.SteerTowards(Seen, FindKitLane(Seen));
        return KitsShown(Seen) == 1;
    })) << "no first aid kit was had";
    EXPECT_TRUE(CarInLane(KitLane)(game.Person().Look()));
    const int hurt = HealthShown(game.Person().Look());
    const std::optional<Screenshot> healed = game.Tap(Key::Space, [](const Screenshot &Seen) {
        return KitsShown(Seen) == 0;
    });
    ASSERT_TRUE(healed);
    EXPECT_GT(HealthShown(*healed), hurt);
}
