#include "sim/Explosions.hpp"

#include "sim/Step.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

struct Row {
    ExplosionLook Look;
    float Life;
    float MaxRadius;
    struct Color Color;
};

constexpr std::array<Row, 15> Rows{{
    {BombedEnemyLook, 0.55F, 26.0F, {0xFF, 0xE6, 0x78, 0xEB}},
    {BombedObstacleLook, 0.5F, 22.0F, {0xFF, 0xD2, 0x78, 0xEB}},
    {BombBlastLook, 0.7F, 200.0F, {0xFF, 0xF5, 0xB4, 0xAF}},
    {FirstAidLook, 0.35F, 22.0F, {0x6E, 0xF5, 0x96, 0xDC}},
    {ShotOnObstacleLook, 0.2F, 10.0F, {0xE6, 0xDC, 0xAA, 0xDC}},
    {DestroyedObstacleLook, 0.45F, 20.0F, {0xD7, 0xAA, 0x6E, 0xE1}},
    {ShotOnEnemyLook, 0.2F, 12.0F, {0xFA, 0xF0, 0xB4, 0xDC}},
    {DestroyedEnemyLook, 0.45F, 24.0F, {0xFF, 0xC8, 0x64, 0xE6}},
    {RamLook, 0.35F, 21.0F, {0xFF, 0xC8, 0x78, 0xDC}},
    {ShotOnPlayerLook, 0.22F, 12.0F, {0xFF, 0xA5, 0x5F, 0xD7}},
    {ObstacleCrashLook, 0.4F, 20.0F, {0xE6, 0xBE, 0x78, 0xDC}},
    {PlayerDamageLook, 0.5F, 22.0F, {0xFF, 0xAA, 0x6E, 0xE6}},
    {RespawnLook, 0.8F, 35.0F, {0xFF, 0xE6, 0x78, 0xE6}},
    {DyingPlayerFirstLook, 0.65F, 64.0F, {0xFF, 0xB9, 0x5F, 0xE6}},
    {DyingPlayerSecondLook, 0.85F, 44.0F, {0xFF, 0xE6, 0x8C, 0xD2}},
}};

} // namespace

TEST(AddExplosion, AppendsAnExplosionOfAgeZero) {
    GameState state = QuietRun();
    AddExplosion(state, 1.0F, 2.0F, 0.5F, 20.0F, {1, 2, 3, 4});
    AddExplosion(state, 5.0F, 6.0F, 0.25F, 30.0F, {5, 6, 7, 8});
    ASSERT_EQ(state.Explosions.size(), 2U);
    EXPECT_EQ(state.Explosions[0], (Explosion{1.0F, 2.0F, 0.0F, 0.5F, 20.0F, {1, 2, 3, 4}}));
    EXPECT_EQ(state.Explosions[1], (Explosion{5.0F, 6.0F, 0.0F, 0.25F, 30.0F, {5, 6, 7, 8}}));
}

TEST(Explosions, AgeWithEveryStepAndStayWhereTheyAre) {
    GameState state = QuietRun();
    state.Explosions = {{10.0F, 20.0F, 0.125F, 0.5F, 26.0F, {}}};
    SimulationStep(state, 0.0625F, HeldNothing);
    ASSERT_EQ(state.Explosions.size(), 1U);
    EXPECT_EQ(state.Explosions[0], (Explosion{10.0F, 20.0F, 0.1875F, 0.5F, 26.0F, {}}));
}

TEST(Explosions, GoWhenTheirAgeReachesTheirLife) {
    GameState state = QuietRun();
    state.Explosions = {{1.0F, 0.0F, 0.25F, 0.5F, 26.0F, {}}, {2.0F, 0.0F, 0.0F, 0.25F, 26.0F, {}},
        {3.0F, 0.0F, 0.0F, 0.5F, 26.0F, {}}, {4.0F, 0.0F, 1.0F, 0.5F, 26.0F, {}},
        {5.0F, 0.0F, 0.125F, 0.5F, 26.0F, {}}};
    SimulationStep(state, 0.25F, HeldNothing); // the first two are exactly at their end
    ASSERT_EQ(state.Explosions.size(), 2U);
    EXPECT_EQ(state.Explosions[0].X, 3.0F);
    EXPECT_EQ(state.Explosions[1].X, 5.0F);
}

TEST(Explosions, WithoutALifeGoAtOnce) {
    GameState state = QuietRun();
    state.Explosions = {{1.0F, 0.0F, 0.0F, 0.0F, 26.0F, {}}};
    SimulationStep(state, 0.0F, HeldNothing);
    EXPECT_TRUE(state.Explosions.empty());
}

TEST(ExplosionLooks, EveryOccasionHasItsOwn) {
    for (const Row &row : Rows) {
        GameState state = QuietRun();
        AddExplosion(state, 12.5F, 34.5F, row.Look);
        EXPECT_EQ(state.Explosions,
            (std::vector<Explosion>{NewExplosion(12.5F, 34.5F, row.Life, row.MaxRadius, row.Color)}))
            << "row " << &row - Rows.data();
    }
}

TEST(ExplosionLooks, LineUpInTheOrderOfTheirBirth) {
    GameState state = QuietRun();
    for (const Row &row : Rows) {
        AddExplosion(state, 0.0F, 0.0F, row.Look);
    }
    ASSERT_EQ(state.Explosions.size(), Rows.size());
    for (std::size_t i = 0; i < Rows.size(); ++i) {
        EXPECT_EQ(state.Explosions[i].MaxRadius, Rows[i].MaxRadius);
    }
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}
