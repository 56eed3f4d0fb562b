#include "sim/Step.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr Explosion BlastAtThePlayer{640.0F, 670.0F, 0.0F, 0.7F, 200.0F, {0xFF, 0xF5, 0xB4, 0xAF}};

/// One bomb, in a step of length 0.
GameState AfterBomb(GameState State) {
    SimulationStep(State, 0.0F, HeldBomb);
    return State;
}

} // namespace

TEST(Bomb, UsesUpOneBombAndStartsTheFlash) {
    const GameState state = AfterBomb(QuietRun());
    EXPECT_TRUE(state.SpecialActive);
    EXPECT_EQ(state.SpecialTimer, 0.65F);
    EXPECT_EQ(state.Bombs, 2);
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerBomb}));
}

TEST(Bomb, OnAnEmptyRoadIsOnlyABlastAtThePlayer) {
    const GameState state = AfterBomb(QuietRun());
    EXPECT_EQ(state.Explosions, (std::vector<Explosion>{BlastAtThePlayer}));
    EXPECT_EQ(state.Score, 0);
}

TEST(Bomb, TakesEnemiesThenObstaclesEachWithItsExplosion) {
    GameState state = QuietRun();
    state.Obstacles = {ObstacleAt(100.0F, 200.0F)};
    state.Enemies = {EnemyAt(300.0F, 400.0F), EnemyAt(500.0F, 50.0F)};
    state.Explosions = {{1.0F, 2.0F, 0.0F, 9.0F, 20.0F, {}}};
    state = AfterBomb(state);
    EXPECT_TRUE(state.Enemies.empty());
    EXPECT_TRUE(state.Obstacles.empty());
    EXPECT_EQ(state.Explosions, (std::vector<Explosion>{
                                    {1.0F, 2.0F, 0.0F, 9.0F, 20.0F, {}},
                                    {300.0F, 400.0F, 0.0F, 0.55F, 26.0F, {0xFF, 0xE6, 0x78, 0xEB}},
                                    {500.0F, 50.0F, 0.0F, 0.55F, 26.0F, {0xFF, 0xE6, 0x78, 0xEB}},
                                    {100.0F, 200.0F, 0.0F, 0.5F, 22.0F, {0xFF, 0xD2, 0x78, 0xEB}},
                                    BlastAtThePlayer,
                                }));
}

TEST(Bomb, PaysForEveryThingAndABonusForEach) {
    GameState state = QuietRun();
    state.Score = 1000;
    state.Enemies = {EnemyAt(300.0F, 400.0F, 200), EnemyAt(500.0F, 50.0F, 350)};
    state.Obstacles = {ObstacleAt(100.0F, 200.0F, 120)};
    EXPECT_EQ(AfterBomb(state).Score, 1000 + 200 + 350 + 120 + 3 * 25);
}

TEST(Bomb, ScalesEveryAwardByTheStage) {
    GameState state = QuietRunInStage(2);
    state.Enemies = {EnemyAt(300.0F, 400.0F, 200)};
    state.Obstacles = {ObstacleAt(100.0F, 200.0F, 120)};
    EXPECT_EQ(AfterBomb(state).Score, 212 + 127 + 2 * 26); // each is rounded by itself

    state = QuietRunInStage(26);
    state.Obstacles = {ObstacleAt(100.0F, 200.0F, 120), ObstacleAt(200.0F, 200.0F, 120)};
    EXPECT_EQ(AfterBomb(state).Score, 2 * 300 + 2 * 63);
}

TEST(Bomb, PaysTheBonusAlsoForWhatIsWorthNothing) {
    GameState state = QuietRun();
    state.Enemies = {EnemyAt(300.0F, 400.0F, 0), EnemyAt(500.0F, 50.0F, -10)};
    EXPECT_EQ(AfterBomb(state).Score, 50);
}

TEST(Bomb, DoesNotOverflowTheScore) {
    GameState state = QuietRun();
    state.Score = std::numeric_limits<std::int64_t>::max() - 100;
    state.Enemies = {EnemyAt(300.0F, 400.0F, 200)};
    EXPECT_EQ(AfterBomb(state).Score, std::numeric_limits<std::int64_t>::max());
}

TEST(Bomb, ClearsEnemyShotsForNothing) {
    GameState state = QuietRun();
    state.EnemyBullets = {{300.0F, 300.0F, 190.0F, 2.0F, 12}, {400.0F, 300.0F, 190.0F, 2.0F, 12}};
    state = AfterBomb(state);
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_EQ(state.Score, 0);
    EXPECT_EQ(state.Explosions.size(), 1U);
}

TEST(Bomb, LeavesItemsAndThePlayersShots) {
    GameState state = QuietRun();
    state.Items = {ItemAt(510.0F, 300.0F)};
    state.Bullets = {{300.0F, 300.0F, 430.0F, 2.0F}};
    state = AfterBomb(state);
    EXPECT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.Bullets.size(), 1U);
}

TEST(Bomb, BlastsWhereThePlayerIs) {
    GameState state = QuietRun();
    state.Player.X = 510.0F;
    state.Player.Y = 600.0F;
    state = AfterBomb(state);
    ASSERT_EQ(state.Explosions.size(), 1U);
    EXPECT_EQ(state.Explosions[0].X, 510.0F);
    EXPECT_EQ(state.Explosions[0].Y, 600.0F);
}

TEST(Bomb, NeedsTheButtonAndABomb) {
    GameState state = QuietRun();
    SimulationStep(state, 0.0F, HeldNothing);
    EXPECT_EQ(state.Bombs, 3);
    EXPECT_FALSE(state.SpecialActive);

    state.Bombs = 0;
    state.Enemies = {EnemyAt(510.0F, 400.0F)};
    SimulationStep(state, 0.0F, HeldBomb);
    EXPECT_EQ(state.Bombs, 0);
    EXPECT_FALSE(state.SpecialActive);
    EXPECT_EQ(state.Enemies.size(), 1U);
    EXPECT_TRUE(SoundsOf(state).empty());
}

TEST(Bomb, IsIgnoredWhileTheLastOneFlashes) {
    GameState state = QuietRun();
    state.SpecialActive = true;
    state.SpecialTimer = 0.5F;
    state.Enemies = {EnemyAt(510.0F, 400.0F)};
    SimulationStep(state, 0.125F, HeldBomb);
    EXPECT_EQ(state.Bombs, 3);
    EXPECT_EQ(state.SpecialTimer, 0.375F);
    EXPECT_EQ(state.Enemies.size(), 1U);
    EXPECT_TRUE(state.Explosions.empty());
    EXPECT_TRUE(SoundsOf(state).empty());
}

TEST(Bomb, AHeldButtonThrowsOneEvery650MillisecondsUntilNoneIsLeft) {
    GameState state = QuietRun();
    std::vector<int> framesOfThrows;
    for (int frame = 1; frame <= 40; ++frame) { // 0.65 is eleven frames of 0.0625
        const std::int32_t before = state.Bombs;
        SimulationStep(state, 0.0625F, HeldBomb);
        if (state.Bombs < before) {
            framesOfThrows.push_back(frame);
        }
    }
    EXPECT_EQ(framesOfThrows, (std::vector<int>{1, 12, 23}));
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerBomb, SfxId::PlayerBomb, SfxId::PlayerBomb}));
    EXPECT_EQ(state.Bombs, 0);
    EXPECT_FALSE(state.SpecialActive);
}
