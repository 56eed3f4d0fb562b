#include "sim/Items.hpp"

#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

// The player stands in lane 4 at (640, 670) with a circle of 12, an item's circle is 10.

namespace {

/// The run after an item of a type was picked up.
GameState PickedUp(GameState Run, std::int32_t Type) {
    Run.Items.push_back(ItemInLane(4, 670.0F, Type));
    PickUpItems(Run);
    EXPECT_TRUE(Run.Items.empty());
    return Run;
}

} // namespace

TEST(ItemMove, ALittleFasterThanTheRoad) {
    GameState state = QuietRun();
    state.Items.push_back(ItemInLane(4, 100.0F));
    MoveItems(state, 0.5F);
    EXPECT_EQ(state.Items[0].Y, 161.0F);
}

TEST(ItemMove, AFastOneRollsItsOwnSpeedByTheRoadsScale) {
    GameState state = QuietRun();
    state.CurrentScrollSpeed = 150.0F;
    state.Items.push_back(ItemInLane(4, 100.0F));
    state.Items[0].Speed = 132.0F; // 165 on this road
    MoveItems(state, 0.5F);
    EXPECT_EQ(state.Items[0].Y, 182.5F);
}

TEST(ItemMove, XFollowsTheLane) {
    GameState state = QuietRun();
    state.Items.push_back(ItemInLane(3, 100.0F));
    state.Items[0].X = 3.0F;
    MoveItems(state, Frame);
    EXPECT_EQ(state.Items[0].X, 608.0F);
}

TEST(ItemPickUp, ATouchIsEnough) {
    GameState state = QuietRun();
    state.Items.push_back(ItemInLane(4, 648.0F));
    PickUpItems(state);
    EXPECT_TRUE(state.Items.empty());
    EXPECT_EQ(state.FirstAidKits, 1);
    EXPECT_EQ(SoundsOf(state), Sounds{SfxId::Item});
    EXPECT_TRUE(state.Explosions.empty());
}

TEST(ItemPickUp, JustOutOfReachItStays) {
    GameState state = QuietRun();
    state.Items.push_back(ItemInLane(4, 647.9375F));
    PickUpItems(state);
    EXPECT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.FirstAidKits, 0);
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}

TEST(ItemPickUp, AKitIsPocketedAndHealsNothing) {
    GameState state = QuietRun();
    state.Player.Hp = 40;
    state.FirstAidKits = 2;
    state = PickedUp(state, 0);
    EXPECT_EQ(state.FirstAidKits, 3);
    EXPECT_EQ(state.Player.Hp, 40);
    EXPECT_EQ(state.Score, 0);
}

TEST(ItemPickUp, ABombIsPocketed) {
    GameState state = QuietRun();
    state.Bombs = 2;
    state = PickedUp(state, 1);
    EXPECT_EQ(state.Bombs, 3);
    EXPECT_EQ(state.FirstAidKits, 0);
    EXPECT_EQ(state.Score, 0);
}

TEST(ItemPickUp, AFullPocketPaysByTheStageInstead) {
    for (const std::int32_t type : {0, 1}) {
        for (const std::int32_t stage : {1, 2}) {
            GameState state = QuietRunInStage(stage);
            state.FirstAidKits = 3;
            state.Bombs = 3;
            state = PickedUp(state, type);
            EXPECT_EQ(state.Score, stage == 1 ? 300 : 318);
            EXPECT_EQ(state.FirstAidKits, 3);
            EXPECT_EQ(state.Bombs, 3);
            EXPECT_EQ(SoundsOf(state), Sounds{SfxId::Item});
        }
    }
}

TEST(ItemPickUp, InvincibilityStartsAnewAndDoesNotAddUp) {
    GameState state = QuietRun();
    EXPECT_EQ(PickedUp(state, 2).InvincibilityPowerTimer, 6.0F);
    state.InvincibilityPowerTimer = 4.0F;
    EXPECT_EQ(PickedUp(state, 2).InvincibilityPowerTimer, 6.0F);
    state.InvincibilityPowerTimer = 7.5F;
    EXPECT_EQ(PickedUp(state, 2).InvincibilityPowerTimer, 7.5F);
    EXPECT_EQ(PickedUp(state, 2).DualWeaponPowerTimer, 0.0F);
    EXPECT_EQ(PickedUp(state, 2).InvulnerabilityTimer, 0.0F);
}

TEST(ItemPickUp, TheDualWeaponStartsAnewAndDoesNotAddUp) {
    GameState state = QuietRun();
    EXPECT_EQ(PickedUp(state, 3).DualWeaponPowerTimer, 8.0F);
    state.DualWeaponPowerTimer = 4.0F;
    EXPECT_EQ(PickedUp(state, 3).DualWeaponPowerTimer, 8.0F);
    state.DualWeaponPowerTimer = 9.5F;
    EXPECT_EQ(PickedUp(state, 3).DualWeaponPowerTimer, 9.5F);
    EXPECT_EQ(PickedUp(state, 3).InvincibilityPowerTimer, 0.0F);
}

TEST(ItemPickUp, ADyingPlayerStillPicksUp) {
    GameState state = QuietRun();
    state.PlayerDying = true;
    EXPECT_EQ(PickedUp(state, 0).FirstAidKits, 1);
}

TEST(ItemPickUp, OneThatPassesTheBottomLeavesUnused) {
    GameState state = QuietRun();
    state.Items = {ItemInLane(0, 744.0625F), ItemInLane(0, 745.0F), ItemInLane(0, 744.0F),
        ItemInLane(4, 670.0F), ItemInLane(4, 675.0F), ItemInLane(0, 30.0F)};
    PickUpItems(state);
    EXPECT_EQ(HeightsOf(state.Items), (Heights{744.0F, 30.0F}));
    EXPECT_EQ(state.FirstAidKits, 2);
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::Item, SfxId::Item}));
}

TEST(ItemPickUp, TheFirstOfTheListFillsThePocketAndTheNextOnePays) {
    GameState state = QuietRun();
    state.FirstAidKits = 2;
    state.Items = {ItemInLane(4, 670.0F), ItemInLane(4, 672.0F)};
    PickUpItems(state);
    EXPECT_EQ(state.FirstAidKits, 3);
    EXPECT_EQ(state.Score, 300);
}
