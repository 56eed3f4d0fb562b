#include "state/Sounds.hpp"
#include "state/GameState.hpp"

#include <gtest/gtest.h>

#include <array>

TEST(Sounds, HaveTheNumbersOfTheirRecipes) {
    EXPECT_EQ(static_cast<int>(SfxId::UiMove), 0);
    EXPECT_EQ(static_cast<int>(SfxId::UiConfirm), 1);
    EXPECT_EQ(static_cast<int>(SfxId::UiBack), 2);
    EXPECT_EQ(static_cast<int>(SfxId::PlayerFire), 3);
    EXPECT_EQ(static_cast<int>(SfxId::PlayerBomb), 4);
    EXPECT_EQ(static_cast<int>(SfxId::PlayerHeal), 5);
    EXPECT_EQ(static_cast<int>(SfxId::PlayerHit), 6);
    EXPECT_EQ(static_cast<int>(SfxId::PlayerDeath), 7);
    EXPECT_EQ(static_cast<int>(SfxId::EnemyDown), 8);
    EXPECT_EQ(static_cast<int>(SfxId::ObstacleDown), 9);
    EXPECT_EQ(static_cast<int>(SfxId::Item), 10);
}

TEST(Sounds, QueueInTheOrderInWhichTheyAreAskedFor) {
    GameState state;
    PushSound(state, SfxId::PlayerHit);
    PushSound(state, SfxId::PlayerDeath);
    PushSound(state, SfxId::PlayerHit);
    ASSERT_EQ(state.PendingSounds.Count, 3U);
    EXPECT_EQ(state.PendingSounds.Ids[0], SfxId::PlayerHit);
    EXPECT_EQ(state.PendingSounds.Ids[1], SfxId::PlayerDeath);
    EXPECT_EQ(state.PendingSounds.Ids[2], SfxId::PlayerHit);
}

TEST(Sounds, The64thOfAFrameIsKeptAndThe65thIsDropped) {
    std::array<SfxId, 64> expected{};
    expected.fill(SfxId::PlayerFire);
    expected.back() = SfxId::EnemyDown;

    GameState state;
    for (const SfxId id : expected) {
        PushSound(state, id);
    }
    EXPECT_EQ(state.PendingSounds.Count, 64U);
    EXPECT_EQ(state.PendingSounds.Ids, expected);

    PushSound(state, SfxId::PlayerBomb);
    EXPECT_EQ(state.PendingSounds.Count, 64U);
    EXPECT_EQ(state.PendingSounds.Ids, expected);
}
