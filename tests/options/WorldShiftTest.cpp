#include "tests/options/PresentationTest.hpp"

namespace {

class WorldShift : public PresentationTest {
protected:
    WorldShift() {
        State.PlayerLane = 4;
        State.Player.X = 640.0F;
        State.Player.Y = 670.0F;
        State.Bullets = {{608.0F, 100.0F, 430.0F, 2.0F}, {640.5F, 200.0F, 430.0F, 2.0F}};
        State.EnemyBullets = {{770.0F, 300.0F, 200.0F, 3.0F, 10}};
        State.Explosions.resize(1);
        State.Explosions[0].X = 510.25F;
        State.Explosions[0].Y = 50.0F;
        State.Enemies.resize(1);
        State.Enemies[0].Lane = 0;
        State.Enemies[0].X = 510.0F;
        State.Enemies[0].Y = 77.0F;
        State.Obstacles.resize(1);
        State.Obstacles[0].Lane = 8;
        State.Obstacles[0].X = 770.0F;
        State.Items.resize(1);
        State.Items[0].Lane = 1;
        State.Items[0].X = 543.0F;
    }

    void ApplyClassic() {
        State.AspectMode = AspectClassic4x3;
        Choose(1024, 768);
        Apply();
    }
};

TEST_F(WorldShift, KeepsEverythingOnItsLaneWhenTheScreenGetsNarrower) {
    ApplyClassic(); // 960 wide: the road's left edge is at 320
    ASSERT_EQ(LogicalWidth, 960);
    EXPECT_FLOAT_EQ(State.Player.X, 480.0F);
    EXPECT_FLOAT_EQ(State.Enemies[0].X, 350.0F);
    EXPECT_FLOAT_EQ(State.Obstacles[0].X, 610.0F);
    EXPECT_FLOAT_EQ(State.Items[0].X, 383.0F); // 382.5 rounded
    EXPECT_EQ(State.PlayerLane, 4);
    EXPECT_EQ(State.Enemies[0].Lane, 0);
    EXPECT_EQ(State.Obstacles[0].Lane, 8);
    EXPECT_EQ(State.Items[0].Lane, 1);
}

TEST_F(WorldShift, KeepsShotsAndBurstsOnTheirPlaceOnTheRoad) {
    ApplyClassic(); // half of 960 less half of 1280
    EXPECT_FLOAT_EQ(State.Bullets[0].X, 448.0F);
    EXPECT_FLOAT_EQ(State.Bullets[1].X, 480.5F);
    EXPECT_FLOAT_EQ(State.EnemyBullets[0].X, 610.0F);
    EXPECT_FLOAT_EQ(State.Explosions[0].X, 350.25F);
}

TEST_F(WorldShift, MovesToTheRightWhenTheScreenGetsWider) {
    Choose(5120, 1440); // 2560 wide: everything moves by 640
    Apply();
    ASSERT_EQ(LogicalWidth, 2560);
    EXPECT_FLOAT_EQ(State.Player.X, 1280.0F);
    EXPECT_FLOAT_EQ(State.Bullets[0].X, 1248.0F);
    EXPECT_FLOAT_EQ(State.EnemyBullets[0].X, 1410.0F);
    EXPECT_FLOAT_EQ(State.Explosions[0].X, 1150.25F);
    EXPECT_FLOAT_EQ(State.Enemies[0].X, 1150.0F);
}

TEST_F(WorldShift, LeavesHeightsAlone) {
    ApplyClassic();
    EXPECT_FLOAT_EQ(State.Player.Y, 670.0F);
    EXPECT_FLOAT_EQ(State.Bullets[0].Y, 100.0F);
    EXPECT_FLOAT_EQ(State.EnemyBullets[0].Y, 300.0F);
    EXPECT_FLOAT_EQ(State.Explosions[0].Y, 50.0F);
    EXPECT_FLOAT_EQ(State.Enemies[0].Y, 77.0F);
}

TEST_F(WorldShift, BackAndForthBringsEverythingBack) {
    ApplyClassic();
    State.AspectMode = AspectWidescreen;
    Choose(1920, 1080);
    Apply();
    ASSERT_EQ(LogicalWidth, 1280);
    EXPECT_FLOAT_EQ(State.Player.X, 640.0F);
    EXPECT_FLOAT_EQ(State.Bullets[1].X, 640.5F);
    EXPECT_FLOAT_EQ(State.Items[0].X, 543.0F); // 542.5 rounded
    EXPECT_FLOAT_EQ(State.Explosions[0].X, 510.25F);
}

TEST_F(WorldShift, DoesNotHappenWhileTheWidthStays) {
    State.Player.X = 633.0F; // off its lane: a snap would show
    State.Enemies[0].X = 501.0F;
    Choose(1920, 1080);
    Apply();
    ASSERT_EQ(LogicalWidth, 1280);
    EXPECT_FLOAT_EQ(State.Player.X, 633.0F);
    EXPECT_FLOAT_EQ(State.Enemies[0].X, 501.0F);
    EXPECT_FLOAT_EQ(State.Bullets[0].X, 608.0F);
    EXPECT_FLOAT_EQ(State.Explosions[0].X, 510.25F);
}

TEST_F(WorldShift, DoesNotHappenWithoutAnOldWidth) {
    LogicalWidth = 0;
    State.Player.X = 633.0F;
    ApplyClassic();
    ASSERT_EQ(LogicalWidth, 960);
    EXPECT_FLOAT_EQ(State.Player.X, 633.0F);
    EXPECT_FLOAT_EQ(State.Bullets[0].X, 608.0F);
}

} // namespace
