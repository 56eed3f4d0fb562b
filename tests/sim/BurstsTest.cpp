#include "sim/Bursts.hpp"

#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

struct Row {
    Burst Occasion;
    float Life;
    float MaxRadius;
    struct Color Color;
};

constexpr std::array<Row, 15> Rows{{
    {Burst::BombedEnemy, 0.55F, 26.0F, {0xFF, 0xE6, 0x78, 0xEB}},
    {Burst::BombedObstacle, 0.5F, 22.0F, {0xFF, 0xD2, 0x78, 0xEB}},
    {Burst::BombBlast, 0.7F, 200.0F, {0xFF, 0xF5, 0xB4, 0xAF}},
    {Burst::FirstAid, 0.35F, 22.0F, {0x6E, 0xF5, 0x96, 0xDC}},
    {Burst::ShotOnObstacle, 0.2F, 10.0F, {0xE6, 0xDC, 0xAA, 0xDC}},
    {Burst::DestroyedObstacle, 0.45F, 20.0F, {0xD7, 0xAA, 0x6E, 0xE1}},
    {Burst::ShotOnEnemy, 0.2F, 12.0F, {0xFA, 0xF0, 0xB4, 0xDC}},
    {Burst::DestroyedEnemy, 0.45F, 24.0F, {0xFF, 0xC8, 0x64, 0xE6}},
    {Burst::Ram, 0.35F, 21.0F, {0xFF, 0xC8, 0x78, 0xDC}},
    {Burst::EnemyShot, 0.22F, 12.0F, {0xFF, 0xA5, 0x5F, 0xD7}},
    {Burst::ObstacleCrash, 0.4F, 20.0F, {0xE6, 0xBE, 0x78, 0xDC}},
    {Burst::PlayerDamage, 0.5F, 22.0F, {0xFF, 0xAA, 0x6E, 0xE6}},
    {Burst::Respawn, 0.8F, 35.0F, {0xFF, 0xE6, 0x78, 0xE6}},
    {Burst::DyingPlayerFirst, 0.65F, 64.0F, {0xFF, 0xB9, 0x5F, 0xE6}},
    {Burst::DyingPlayerSecond, 0.85F, 44.0F, {0xFF, 0xE6, 0x8C, 0xD2}},
}};

} // namespace

TEST(Bursts, EveryOccasionHasItsOwnLook) {
    for (const Row &row : Rows) {
        GameState state = QuietRun();
        AddBurst(state, row.Occasion, 12.5F, 34.5F);
        EXPECT_EQ(state.Explosions,
            (std::vector<Explosion>{NewBurst(12.5F, 34.5F, row.Life, row.MaxRadius, row.Color)}))
            << "occasion " << static_cast<int>(row.Occasion);
    }
}

TEST(Bursts, LineUpInTheOrderOfTheirBirth) {
    GameState state = QuietRun();
    for (const Row &row : Rows) {
        AddBurst(state, row.Occasion, 0.0F, 0.0F);
    }
    ASSERT_EQ(state.Explosions.size(), Rows.size());
    for (std::size_t i = 0; i < Rows.size(); ++i) {
        EXPECT_EQ(state.Explosions[i].MaxRadius, Rows[i].MaxRadius);
    }
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}
