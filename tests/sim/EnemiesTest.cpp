#include "sim/Enemies.hpp"

#include "sim/Obstacles.hpp"
#include "sim/Step.hpp"
#include "tests/sim/Draws.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

#include <array>

// On the road of stage 1, at 120, an enemy drives 126 x 1/64 = 1.96875 a frame and an obstacle 1.9375.

namespace {

constexpr float EnemyMove = 1.96875F;
constexpr float ObstacleMove = 1.9375F;

bool Chases(Draws Of) {
    return Of.Unit() < 0.62F;
}

bool WandersRight(Draws Of) {
    const float r = Of.Unit();
    return r >= 0.62F && r < 0.87F && Of.Index(2) == 1;
}

bool WandersLeft(Draws Of) {
    const float r = Of.Unit();
    return r >= 0.62F && r < 0.87F && Of.Index(2) == 0;
}

bool Keeps(Draws Of) {
    return Of.Unit() >= 0.87F;
}

/// A quiet run with the player in lane 8 and the draws of a seed.
GameState RunWith(std::uint32_t Seed, std::int32_t PlayerLane = 8) {
    GameState state = QuietRun();
    state.PlayerLane = PlayerLane;
    state.Rng.seed(Seed);
    return state;
}

Enemy Deciding(Enemy Of) {
    Of.AiTimer = 0.0F;
    return Of;
}

Enemy Shooting(Enemy Of) {
    Of.FireCooldown = 0.0F;
    return Of;
}

/// The lane that a lone light enemy has after a decision.
std::int32_t LaneAfterDecision(std::uint32_t Seed, std::int32_t Lane, std::int32_t PlayerLane) {
    GameState state = RunWith(Seed, PlayerLane);
    state.Enemies.push_back(Deciding(EnemyInLane(Lane, 100.0F)));
    MoveEnemies(state, Frame);
    return state.Enemies[0].Lane;
}

/// The lane of a chasing enemy in lane 4 at y 100, with what else is on the road.
std::int32_t LaneAfterChase(const std::vector<Enemy> &Others, const std::vector<Obstacle> &Obstacles) {
    GameState state = RunWith(SeedWhere(Chases));
    state.Enemies.push_back(Deciding(EnemyInLane(4, 100.0F)));
    state.Enemies.insert(state.Enemies.end(), Others.begin(), Others.end());
    state.Obstacles = Obstacles;
    MoveEnemies(state, Frame);
    return state.Enemies[0].Lane;
}

/// The y of an enemy in lane 4 that starts at 100, with what else is on the road.
float HeightBehind(const std::vector<Enemy> &Others, const std::vector<Obstacle> &Obstacles) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Enemies.insert(state.Enemies.end(), Others.begin(), Others.end());
    state.Obstacles = Obstacles;
    MoveEnemies(state, Frame);
    return state.Enemies[0].Y;
}

/// How many shots an enemy with no reload left fires at exactly this y.
std::size_t ShotsAt(float Y) {
    GameState state = QuietRun();
    state.Enemies.push_back(Shooting(EnemyInLane(4, Y)));
    MoveEnemies(state, 0.0F);
    return state.EnemyBullets.size();
}

} // namespace

// Timers.

TEST(Enemies, TheirTimersFallAndStopAtZero) {
    GameState state = RunWith(7);
    Enemy enemy = EnemyInLane(4, -20.0F);
    enemy.HitFlash = 0.12F;
    enemy.AiTimer = 1.0F;
    enemy.FireCooldown = 0.125F;
    state.Enemies.push_back(enemy);
    MoveEnemies(state, 0.0625F);
    EXPECT_FLOAT_EQ(state.Enemies[0].HitFlash, 0.0575F);
    EXPECT_EQ(state.Enemies[0].AiTimer, 0.9375F);
    EXPECT_EQ(state.Enemies[0].FireCooldown, 0.0625F);
    MoveEnemies(state, 0.125F);
    EXPECT_EQ(state.Enemies[0].HitFlash, 0.0F);
    EXPECT_EQ(state.Enemies[0].FireCooldown, 0.0F);
    EXPECT_EQ(state.Rng, FreshRng(7));
}

// Decisions.

TEST(EnemyDecisions, BelowItsChanceAnEnemyHeadsForThePlayer) {
    const std::uint32_t seed = SeedWhere(Chases);
    EXPECT_EQ(LaneAfterDecision(seed, 4, 8), 5);
    EXPECT_EQ(LaneAfterDecision(seed, 4, 5), 5);
    EXPECT_EQ(LaneAfterDecision(seed, 4, 0), 3);
    EXPECT_EQ(LaneAfterDecision(seed, 4, 3), 3);
    EXPECT_EQ(LaneAfterDecision(seed, 4, 4), 4);
}

TEST(EnemyDecisions, AWanderingEnemyGoesEitherWayWhereverThePlayerIs) {
    for (const std::int32_t player : {0, 4, 8}) {
        EXPECT_EQ(LaneAfterDecision(SeedWhere(WandersRight), 4, player), 5);
        EXPECT_EQ(LaneAfterDecision(SeedWhere(WandersLeft), 4, player), 3);
    }
}

TEST(EnemyDecisions, OtherwiseItKeepsItsLane) {
    EXPECT_EQ(LaneAfterDecision(SeedWhere(Keeps), 4, 8), 4);
    EXPECT_EQ(LaneAfterDecision(SeedWhere(Keeps), 4, 0), 4);
}

TEST(EnemyDecisions, FollowTheirChancesSeedForSeed) {
    std::array<int, 3> seen{};
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        Draws draws(seed);
        const float r = draws.Unit();
        const std::int32_t step = r < 0.62F ? 1 : r < 0.87F ? (draws.Index(2) == 1 ? 1 : -1) : 0;
        ++seen[step < 0 ? 0 : step == 0 ? 1 : 2];
        ASSERT_EQ(LaneAfterDecision(seed, 4, 8), 4 + step) << "seed " << seed << ", r " << r;
    }
    for (const int count : seen) {
        EXPECT_GT(count, 0);
    }
}

TEST(EnemyDecisions, NobodyLeavesTheRoad) {
    EXPECT_EQ(LaneAfterDecision(SeedWhere(WandersLeft), 0, 8), 0);
    EXPECT_EQ(LaneAfterDecision(SeedWhere(WandersRight), 8, 0), 8);
}

TEST(EnemyDecisions, AChaseDrawsItsChanceAndThenTheNextThinkingTime) {
    const std::uint32_t seed = SeedWhere(Chases);
    GameState state = RunWith(seed);
    state.Enemies.push_back(Deciding(EnemyInLane(4, 100.0F)));
    Draws draws(seed);
    draws.Unit();
    const float think = draws.Unit() * 0.32F + 0.28F;
    MoveEnemies(state, Frame);
    EXPECT_FLOAT_EQ(state.Enemies[0].AiTimer, think);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(EnemyDecisions, AWandererDrawsItsSideBetween) {
    const std::uint32_t seed = SeedWhere(WandersLeft);
    GameState state = RunWith(seed);
    state.Enemies.push_back(Deciding(EnemyInLane(4, 100.0F)));
    Draws draws(seed);
    draws.Unit();
    draws.Index(2);
    const float think = draws.Unit() * 0.32F + 0.28F;
    MoveEnemies(state, Frame);
    EXPECT_FLOAT_EQ(state.Enemies[0].AiTimer, think);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(EnemyDecisions, AHeavyEnemyThinksSoonerUntilItIsDownToOnePoint) {
    const std::uint32_t seed = SeedWhere(Keeps);
    for (const std::int32_t hp : {3, 2, 1, 0}) {
        GameState state = RunWith(seed);
        state.Enemies.push_back(Deciding(HeavyInLane(4, 100.0F)));
        state.Enemies[0].Hp = hp;
        Draws draws(seed);
        draws.Unit();
        const float think = draws.Unit() * 0.32F + (hp > 1 ? 0.2F : 0.28F);
        MoveEnemies(state, Frame);
        EXPECT_FLOAT_EQ(state.Enemies[0].AiTimer, think) << "with " << hp << " points";
    }
}

TEST(EnemyDecisions, ATimerThatRunsOutInTheFrameDecidesInIt) {
    GameState state = RunWith(SeedWhere(Chases));
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Enemies[0].AiTimer = Frame;
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.Enemies[0].Lane, 5);
}

TEST(EnemyDecisions, TheJumpToTheOtherLaneIsInstant) {
    GameState state = RunWith(SeedWhere(Chases));
    state.Enemies.push_back(Deciding(EnemyInLane(4, 100.0F)));
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.Enemies[0].X, 673.0F);
}

TEST(EnemyDecisions, AnEnemyCloserThanTheGapBlocksTheLane) {
    // 8 + 8 + 8, and exactly that far away is far enough.
    EXPECT_EQ(LaneAfterChase({EnemyInLane(5, 123.75F)}, {}), 4);
    EXPECT_EQ(LaneAfterChase({EnemyInLane(5, 124.0F)}, {}), 5);
    EXPECT_EQ(LaneAfterChase({EnemyInLane(5, 76.25F)}, {}), 4);
    EXPECT_EQ(LaneAfterChase({EnemyInLane(5, 76.0F)}, {}), 5);
    // 9.5 + 8 + 8.
    EXPECT_EQ(LaneAfterChase({HeavyInLane(5, 125.25F)}, {}), 4);
    EXPECT_EQ(LaneAfterChase({HeavyInLane(5, 125.5F)}, {}), 5);
}

TEST(EnemyDecisions, AnEnemyInAnyOtherLaneBlocksNothing) {
    EXPECT_EQ(LaneAfterChase({EnemyInLane(3, 100.0F), EnemyInLane(4, 90.0F), EnemyInLane(6, 100.0F)}, {}), 5);
}

TEST(EnemyDecisions, ABlockedEnemyStillSetsItsNextThinkingTime) {
    const std::uint32_t seed = SeedWhere(Chases);
    GameState state = RunWith(seed);
    state.Enemies.push_back(Deciding(EnemyInLane(4, 100.0F)));
    state.Enemies.push_back(EnemyInLane(5, 100.0F));
    Draws draws(seed);
    draws.Unit();
    const float think = draws.Unit() * 0.32F + 0.28F;
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.Enemies[0].Lane, 4);
    EXPECT_FLOAT_EQ(state.Enemies[0].AiTimer, think);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(EnemyDecisions, ALaneThatIsLeftInTheSameFrameStillCountsAsTaken) {
    const std::uint32_t seed = SeedWhere([](Draws Of) {
        const bool first = Of.Unit() < 0.62F;
        Of.Unit();
        return first && Of.Unit() < 0.62F;
    });
    GameState state = RunWith(seed);
    state.Enemies.push_back(Deciding(EnemyInLane(5, 100.0F)));
    state.Enemies.push_back(Deciding(EnemyInLane(4, 100.0F)));
    MoveEnemies(state, Frame);
    EXPECT_EQ(LanesOf(state.Enemies), (LaneList{6, 4}));
}

TEST(EnemyDecisions, ALaneThatIsEnteredInTheSameFrameStillCountsAsFree) {
    const std::uint32_t seed = SeedWhere([](Draws Of) {
        const bool first = Of.Unit() < 0.62F;
        Of.Unit();
        return first && Of.Unit() < 0.62F;
    });
    GameState state = RunWith(seed, 5);
    state.Enemies.push_back(Deciding(EnemyInLane(4, 100.0F)));
    state.Enemies.push_back(Deciding(EnemyInLane(6, 100.0F)));
    MoveEnemies(state, Frame);
    EXPECT_EQ(LanesOf(state.Enemies), (LaneList{5, 5}));
}

TEST(EnemyDecisions, AnObstacleThatWillStandBesideTheEnemyObstructsTheLane) {
    // The circle of 8 and half the height of 7 touch at 15. What counts is where the obstacle will be.
    EXPECT_EQ(LaneAfterChase({}, {ObstacleInLane(5, 85.0F - ObstacleMove)}), 4);
    EXPECT_EQ(LaneAfterChase({}, {ObstacleInLane(5, 84.9375F - ObstacleMove)}), 5);
    EXPECT_EQ(LaneAfterChase({}, {ObstacleInLane(5, 115.0F - ObstacleMove)}), 4);
    EXPECT_EQ(LaneAfterChase({}, {ObstacleInLane(5, 115.0F)}), 5) << "it touches now, and rolls on";
}

TEST(EnemyDecisions, AFastObstaclesPlaceIsForetoldByItsOwnSpeed) {
    Obstacle fast = ObstacleInLane(5, 83.0F);
    fast.Speed = 128.0F; // 2 in a frame
    EXPECT_EQ(LaneAfterChase({}, {fast}), 4);
    fast.Speed = 124.0F;
    EXPECT_EQ(LaneAfterChase({}, {fast}), 5);
}

TEST(EnemyDecisions, AWideObstacleInTheLaneBeyondObstructsToo) {
    Obstacle barrier = ObstacleInLane(6, 98.0F);
    barrier.Width = 54.0F; // its edge at 678, the circle's at 681
    EXPECT_EQ(LaneAfterChase({}, {barrier}), 4);
    barrier.Width = 46.0F; // its edge at 682
    EXPECT_EQ(LaneAfterChase({}, {barrier}), 5);
}

TEST(EnemyDecisions, AnyOneOfManyObstaclesObstructs) {
    EXPECT_EQ(
        LaneAfterChase({}, {ObstacleInLane(5, 300.0F), ObstacleInLane(5, 98.0F), ObstacleInLane(5, 0.0F)}),
        4);
}

// Driving.

TEST(EnemyDrive, AnEnemyIsALittleFasterThanTheRoad) {
    EXPECT_EQ(HeightBehind({}, {}), 100.0F + EnemyMove);
}

TEST(EnemyDrive, AFastEnemyDrivesItsOwnSpeedByTheRoadsScale) {
    GameState state = QuietRun();
    state.CurrentScrollSpeed = 180.0F;
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Enemies.push_back(EnemyInLane(6, 100.0F));
    state.Enemies[0].Speed = 140.0F; // 210 on this road
    state.Enemies[1].Speed = 120.0F; // 180, slower than the road with its lead
    MoveEnemies(state, 0.5F);
    EXPECT_EQ(HeightsOf(state.Enemies), (Heights{205.0F, 193.0F}));
}

TEST(EnemyDrive, XFollowsTheLane) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(2, 100.0F));
    state.Enemies[0].X = 3.0F;
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.Enemies[0].X, 575.0F);
}

TEST(EnemyDrive, AnEnemyHaltsBehindAnObstacle) {
    // The obstacle will be at 115.5: 7 and 8 before that is 100.5.
    EXPECT_EQ(HeightBehind({}, {ObstacleInLane(4, 115.5F - ObstacleMove)}), 100.5F);
}

TEST(EnemyDrive, OfTwoObstaclesTheNearerOneHolds) {
    EXPECT_EQ(HeightBehind(
                  {}, {ObstacleInLane(4, 116.0F - ObstacleMove), ObstacleInLane(4, 115.5F - ObstacleMove)}),
        100.5F);
    EXPECT_EQ(HeightBehind(
                  {}, {ObstacleInLane(4, 115.5F - ObstacleMove), ObstacleInLane(4, 116.0F - ObstacleMove)}),
        100.5F);
}

TEST(EnemyDrive, AnObstacleThatIsNotReachedInTheFrameDoesNotHold) {
    EXPECT_EQ(HeightBehind({}, {ObstacleInLane(4, 117.0F - ObstacleMove)}), 100.0F + EnemyMove);
}

TEST(EnemyDrive, AnObstacleInTheLaneBesideDoesNotHold) {
    EXPECT_EQ(HeightBehind({}, {ObstacleInLane(5, 110.0F)}), 100.0F + EnemyMove);
}

TEST(EnemyDrive, AnEnemyNeverBacksUpFromAnObstacle) {
    EXPECT_EQ(HeightBehind({}, {ObstacleInLane(4, 110.0F - ObstacleMove)}), 100.0F);
    EXPECT_EQ(HeightBehind({}, {ObstacleInLane(4, 98.0F - ObstacleMove)}), 100.0F);
}

TEST(EnemyDrive, AnObstacleThatIsPassedDoesNotHoldBack) {
    // Its lower edge will be at 92, where the circle of 8 begins.
    EXPECT_EQ(HeightBehind({}, {ObstacleInLane(4, 85.0F - ObstacleMove)}), 100.0F + EnemyMove);
    EXPECT_EQ(HeightBehind({}, {ObstacleInLane(4, 80.0F)}), 100.0F + EnemyMove);
}

TEST(EnemyDrive, AnEnemyThatCannotChangeLanesStaysBehindItsObstacleToTheEndOfTheRoad) {
    GameState state = RunWith(61);
    state.Player.X = 770.0F;
    for (const std::int32_t lane : {0, 1, 2}) {
        state.Enemies.push_back(EnemyInLane(lane, 80.0F));
        state.Obstacles.push_back(ObstacleInLane(lane, 100.0F));
    }
    state.Enemies[1].AiTimer = 0.0F; // it would leave, but for the others beside it
    int frames = 0;
    while (state.Obstacles.size() == 3U) {
        SimulationStep(state, Frame, HeldNothing);
        ASSERT_EQ(LanesOf(state.Enemies), (LaneList{0, 1, 2}));
        for (std::size_t i = 0; i < state.Obstacles.size(); ++i) {
            ASSERT_LE(state.Enemies[i].Y, state.Obstacles[i].Y - 14.999F);
        }
        ++frames;
        ASSERT_LT(frames, 1000);
    }
    EXPECT_GT(frames, 300);
}

TEST(EnemyDrive, EnemiesOfALaneKeepTheirGapToWhereTheOneAheadStood) {
    // 8 + 8 + 8 behind 125, whichever of the two is earlier in the list.
    EXPECT_EQ(HeightBehind({EnemyInLane(4, 125.0F)}, {}), 101.0F);
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 125.0F));
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    MoveEnemies(state, Frame);
    EXPECT_EQ(HeightsOf(state.Enemies), (Heights{125.0F + EnemyMove, 101.0F}));
}

TEST(EnemyDrive, TheGapIsBetweenTheCircles) {
    EXPECT_EQ(HeightBehind({HeavyInLane(4, 126.0F)}, {}), 100.5F); // 9.5 + 8 + 8
}

TEST(EnemyDrive, OfManyEnemiesAheadTheNearestHolds) {
    EXPECT_EQ(
        HeightBehind({EnemyInLane(4, 300.0F), EnemyInLane(4, 125.0F), EnemyInLane(4, 125.5F)}, {}), 101.0F);
}

TEST(EnemyDrive, AnEnemyBehindBesideOrInAnotherLaneDoesNotHold) {
    EXPECT_EQ(HeightBehind({EnemyInLane(4, 99.0F)}, {}), 100.0F + EnemyMove);
    EXPECT_EQ(HeightBehind({EnemyInLane(4, 100.0F)}, {}), 100.0F + EnemyMove);
    EXPECT_EQ(HeightBehind({EnemyInLane(5, 110.0F), EnemyInLane(3, 110.0F)}, {}), 100.0F + EnemyMove);
}

TEST(EnemyDrive, AnEnemyNeverBacksUpFromAnEnemy) {
    EXPECT_EQ(HeightBehind({EnemyInLane(4, 110.0F)}, {}), 100.0F);
}

TEST(EnemyDrive, AfterAJumpTheNewLanesTrafficHolds) {
    GameState state = RunWith(SeedWhere(Chases));
    state.Enemies.push_back(Deciding(EnemyInLane(4, 100.0F)));
    state.Enemies.push_back(EnemyInLane(5, 124.5F)); // far enough to let it in
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.Enemies[0].Lane, 5);
    EXPECT_EQ(state.Enemies[0].Y, 100.5F);
}

TEST(EnemyDrive, AnEnemyThatLeavesTheLaneInTheFrameStillHoldsInIt) {
    GameState state = RunWith(SeedWhere(Chases));
    state.Enemies.push_back(Deciding(EnemyInLane(4, 125.0F)));
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.Enemies[0].Lane, 5);
    EXPECT_EQ(state.Enemies[1].Y, 101.0F);
}

// Shooting.

TEST(EnemyFire, AnEnemyShootsOnlyInsideItsBand) {
    EXPECT_EQ(ShotsAt(13.0F), 0U);
    EXPECT_EQ(ShotsAt(14.0F), 0U);
    EXPECT_EQ(ShotsAt(14.0001F), 1U);
    EXPECT_EQ(ShotsAt(300.0F), 1U);
    EXPECT_EQ(ShotsAt(649.9375F), 1U);
    EXPECT_EQ(ShotsAt(650.0F), 0U);
    EXPECT_EQ(ShotsAt(651.0F), 0U);
}

TEST(EnemyFire, OneThatHasWaitedAboveTheBandFiresOnItsFirstFrameInside) {
    GameState state = QuietRun();
    state.Enemies.push_back(Shooting(EnemyInLane(4, 10.5F)));
    MoveEnemies(state, Frame); // 12.46875
    EXPECT_TRUE(state.EnemyBullets.empty());
    EXPECT_EQ(state.Enemies[0].FireCooldown, 0.0F);
    MoveEnemies(state, Frame); // 14.4375
    ASSERT_EQ(state.EnemyBullets.size(), 1U);
    EXPECT_EQ(state.EnemyBullets[0].Y, 25.4375F) << "from where it has driven to";
}

TEST(EnemyFire, OneThatDrivesOutOfTheBandInTheFrameDoesNotFire) {
    GameState state = QuietRun();
    state.Enemies.push_back(Shooting(EnemyInLane(4, 649.0F)));
    MoveEnemies(state, Frame);
    EXPECT_TRUE(state.EnemyBullets.empty());
}

TEST(EnemyFire, OneThatIsStillReloadingDoesNotFire) {
    GameState state = QuietRun();
    state.Enemies.push_back(EnemyInLane(4, 100.0F));
    state.Enemies[0].FireCooldown = 2.0F * Frame;
    MoveEnemies(state, Frame);
    EXPECT_TRUE(state.EnemyBullets.empty());
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.EnemyBullets.size(), 1U);
}

TEST(EnemyFire, ALightEnemyFiresOneShotOfTen) {
    GameState state = QuietRunInStage(3);
    state.Enemies.push_back(Shooting(EnemyInLane(2, 100.0F)));
    MoveEnemies(state, 0.0F);
    EXPECT_EQ(state.EnemyBullets, (std::vector<EnemyBullet>{{575.0F, 111.0F, 188.0F, 2.0F, 10}}));
    EXPECT_EQ(state.PendingSounds.Count, 0U);
}

TEST(EnemyFire, AHeavyEnemyFiresTwoShotsOfTwelveLeftFirst) {
    GameState state = QuietRunInStage(10);
    state.Enemies.push_back(Shooting(HeavyInLane(2, 100.0F)));
    MoveEnemies(state, 0.0F);
    EXPECT_EQ(state.EnemyBullets,
        (std::vector<EnemyBullet>{{571.0F, 111.0F, 230.0F, 2.2F, 12}, {579.0F, 111.0F, 230.0F, 2.2F, 12}}));
}

TEST(EnemyFire, AHeavyEnemyWithOnePointLeftFiresAndReloadsLikeALightOne) {
    GameState state = RunWith(67);
    state.Enemies.push_back(Shooting(HeavyInLane(2, 100.0F)));
    state.Enemies[0].Hp = 1;
    Draws draws(67);
    const float reload = draws.Unit() * 0.55F + 1.18F;
    MoveEnemies(state, 0.0F);
    EXPECT_EQ(state.EnemyBullets, (std::vector<EnemyBullet>{{575.0F, 111.0F, 176.0F, 2.0F, 10}}));
    EXPECT_FLOAT_EQ(state.Enemies[0].FireCooldown, reload);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(EnemyFire, TheReloadIsDrawnByKindAndStage) {
    struct Case {
        std::int32_t Stage;
        std::int32_t Hp;
        float Base;
        float Factor;
    };
    constexpr std::array<Case, 4> cases{
        {{1, 1, 1.18F, 1.0F}, {1, 2, 0.9F, 1.0F}, {3, 1, 1.18F, 0.95F}, {10, 2, 0.9F, 0.88F}}};
    for (const Case &row : cases) {
        GameState state = QuietRunInStage(row.Stage);
        state.Rng.seed(71);
        state.Enemies.push_back(Shooting(EnemyInLane(4, 100.0F)));
        state.Enemies[0].Hp = row.Hp;
        Draws draws(71);
        const float reload = (draws.Unit() * 0.55F + row.Base) * row.Factor;
        MoveEnemies(state, 0.0F);
        EXPECT_FLOAT_EQ(state.Enemies[0].FireCooldown, reload) << "stage " << row.Stage;
        EXPECT_TRUE(draws.IsAt(state.Rng));
    }
}

TEST(EnemyFire, AnEnemyShootsFromTheLaneThatItHasJumpedTo) {
    GameState state = RunWith(SeedWhere(Chases));
    state.Enemies.push_back(Shooting(Deciding(EnemyInLane(4, 100.0F))));
    MoveEnemies(state, 0.0F);
    ASSERT_EQ(state.EnemyBullets.size(), 1U);
    EXPECT_EQ(state.EnemyBullets[0].X, 673.0F);
}

TEST(Enemies, EachThinksThenShootsBeforeTheNextOneDraws) {
    const std::uint32_t seed = SeedWhere([](Draws Of) {
        const float r = Of.Unit();
        return r >= 0.62F && r < 0.87F;
    });
    GameState state = RunWith(seed);
    state.Enemies.push_back(Shooting(Deciding(EnemyInLane(1, 100.0F))));
    state.Enemies.push_back(Shooting(Deciding(HeavyInLane(7, 100.0F))));
    Draws draws(seed);
    draws.Unit();
    const std::int32_t side = draws.Index(2) == 1 ? 1 : -1;
    const float firstThink = draws.Unit() * 0.32F + 0.28F;
    const float firstReload = draws.Unit() * 0.55F + 1.18F;
    const float secondChance = draws.Unit();
    if (secondChance >= 0.62F && secondChance < 0.87F) {
        draws.Index(2);
    }
    const float secondThink = draws.Unit() * 0.32F + 0.2F;
    const float secondReload = draws.Unit() * 0.55F + 0.9F;
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.Enemies[0].Lane, 1 + side);
    EXPECT_FLOAT_EQ(state.Enemies[0].AiTimer, firstThink);
    EXPECT_FLOAT_EQ(state.Enemies[0].FireCooldown, firstReload);
    EXPECT_FLOAT_EQ(state.Enemies[1].AiTimer, secondThink);
    EXPECT_FLOAT_EQ(state.Enemies[1].FireCooldown, secondReload);
    EXPECT_TRUE(draws.IsAt(state.Rng));
    EXPECT_EQ(state.EnemyBullets.size(), 3U);
}

TEST(Enemies, ACrowdKeepsItsGapsToo) {
    // More than a road holds: a queue of 300 in one lane, each exactly its gap behind the next.
    GameState state = QuietRun();
    for (int i = 0; i < 300; ++i) {
        state.Enemies.push_back(EnemyInLane(4, -24.0F * static_cast<float>(i)));
    }
    MoveEnemies(state, Frame);
    EXPECT_EQ(state.Enemies[0].Y, EnemyMove);
    for (int i = 1; i < 300; ++i) {
        ASSERT_EQ(state.Enemies[static_cast<std::size_t>(i)].Y, -24.0F * static_cast<float>(i));
    }
}
