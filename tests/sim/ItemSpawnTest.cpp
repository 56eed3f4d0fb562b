#include "sim/ItemSpawn.hpp"

#include "sim/Items.hpp"
#include "tests/sim/Draws.hpp"
#include "tests/sim/Traffic.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

namespace {

/// What the player has, where the weights of the four types add up to, and what each type is diverted to.
struct Need {
    const char *Name;
    std::int32_t Hp;
    std::int32_t MaxHp;
    std::int32_t Kits;
    std::int32_t Bombs;
    float Invincibility;
    float DualWeapon;
    std::array<float, 4> UpTo;
    std::array<std::int32_t, 4> Gives;
};

constexpr std::array<Need, 9> Needs{{
    {"unhurt, empty pockets", 100, 100, 0, 0, 0.0F, 0.0F, {0.35F, 1.05F, 1.35F, 1.69F}, {0, 1, 2, 3}},
    {"half hurt, room for one", 50, 100, 2, 2, 0.0F, 0.0F, {0.825F, 1.525F, 1.825F, 2.165F}, {0, 1, 2, 3}},
    {"kits full", 100, 100, 3, 1, 0.0F, 0.0F, {0.03F, 0.73F, 1.03F, 1.37F}, {1, 1, 2, 3}},
    {"bombs full", 100, 100, 1, 3, 0.0F, 0.0F, {0.35F, 0.4F, 0.7F, 1.04F}, {0, 0, 2, 3}},
    {"nothing wanted", 100, 100, 3, 3, 1.0F, 1.0F, {0.03F, 0.08F, 0.16F, 0.24F}, {0, 1, 2, 3}},
    {"invincible", 100, 100, 0, 0, 0.5F, 0.0F, {0.35F, 1.05F, 1.13F, 1.47F}, {0, 1, 2, 3}},
    {"two weapons", 100, 100, 0, 0, 0.0F, 0.5F, {0.35F, 1.05F, 1.35F, 1.43F}, {0, 1, 2, 3}},
    {"nearly dead, pockets full", 0, 100, 3, 3, 0.0F, 0.0F, {0.98F, 1.03F, 1.33F, 1.67F}, {0, 1, 2, 3}},
    {"another most", 1, 40, 0, 0, 0.0F, 0.0F, {1.27625F, 1.97625F, 2.27625F, 2.61625F}, {0, 1, 2, 3}},
}};

GameState RunInNeed(const Need &Of) {
    GameState state = QuietRun();
    state.Player.Hp = Of.Hp;
    state.Player.MaxHp = Of.MaxHp;
    state.FirstAidKits = Of.Kits;
    state.Bombs = Of.Bombs;
    state.InvincibilityPowerTimer = Of.Invincibility;
    state.DualWeaponPowerTimer = Of.DualWeapon;
    return state;
}

std::size_t PlaceOf(const Need &Of, float R) {
    std::size_t place = 0;
    while (place < 3 && R >= Of.UpTo[place]) {
        ++place;
    }
    return place;
}

bool IsOnAnEdge(const Need &Of, float R) {
    return std::ranges::any_of(Of.UpTo, [R](float Edge) {
        return std::abs(R - Edge) < 0.00001F;
    });
}

constexpr Need NothingWanted = Needs[4];

/// The lane of the one item that falls at X on an empty road.
std::int32_t LaneOfItemAt(float X) {
    GameState state = QuietRun();
    SpawnItem(state, X, 300.0F);
    return state.Items.at(0).Lane;
}

/// The lanes that ten items take one after the other at the same point, each where the earlier ones leave
/// room.
LaneList LanesTakenAt(float X) {
    GameState state = QuietRun();
    for (int i = 0; i < 10; ++i) {
        SpawnItem(state, X, 300.0F);
    }
    return LanesOf(state.Items);
}

} // namespace

TEST(ItemSpawn, TheTypeIsDrawnByNeed) {
    for (const Need &need : Needs) {
        SCOPED_TRACE(need.Name);
        std::array<int, 4> seen{};
        for (std::uint32_t seed = 1; seed <= 400; ++seed) {
            GameState state = RunInNeed(need);
            state.Rng.seed(seed);
            const float r = Draws(seed).Unit() * need.UpTo[3];
            if (IsOnAnEdge(need, r)) {
                continue;
            }
            SpawnItem(state, 640.0F, 300.0F);
            ASSERT_EQ(state.Items.size(), 1U);
            const std::size_t place = PlaceOf(need, r);
            ++seen[place];
            ASSERT_EQ(state.Items[0].Type, need.Gives[place]) << "seed " << seed << ", r " << r;
        }
        for (const int count : seen) {
            EXPECT_GT(count, 0);
        }
    }
}

TEST(ItemSpawn, WithNothingWantedThereIsStillAnItem) {
    for (std::uint32_t seed = 1; seed <= 50; ++seed) {
        GameState state = RunInNeed(NothingWanted);
        state.Rng.seed(seed);
        SpawnItem(state, -1.0F, -1.0F);
        EXPECT_EQ(state.Items.size(), 1U);
    }
}

TEST(ItemSpawn, AKitDrawnWithBothPocketsFullStaysAKitAndPaysWhenPickedUp) {
    GameState state = RunInNeed(NothingWanted);
    state.Rng.seed(SeedWhere([](Draws Of) {
        return Of.Unit() * 0.24F < 0.029F;
    }));
    SpawnItem(state, state.Player.X, state.Player.Y);
    ASSERT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.Items[0].Type, 0);
    PickUpItems(state);
    EXPECT_TRUE(state.Items.empty());
    EXPECT_EQ(state.Score, 300);
    EXPECT_EQ(state.FirstAidKits, 3);
}

TEST(ItemSpawn, TheTimerFallsFasterOnAFasterRoad) {
    GameState state = QuietRun();
    state.ItemSpawnTimer = 1.0F;
    state.CurrentScrollSpeed = 150.0F;
    state.Rng.seed(3);
    SpawnTimedItem(state, 0.5F);
    EXPECT_EQ(state.ItemSpawnTimer, 0.375F);
    EXPECT_TRUE(state.Items.empty());
    EXPECT_EQ(state.Rng, FreshRng(3));
}

TEST(ItemSpawn, ATimedItemDrawsItsTypeThenItsLanesThenTheInterval) {
    GameState state = QuietRunInStage(10);
    state.Bombs = 0;
    state.ItemSpawnTimer = Frame;
    state.Rng.seed(37);
    Draws draws(37);
    const float r = draws.Unit() * 1.69F;
    const std::int32_t lane = draws.Lanes()[0];
    const float interval = draws.Between(9.0F, 14.0F);
    SpawnTimedItem(state, Frame);
    ASSERT_EQ(state.Items.size(), 1U);
    const Item &item = state.Items[0];
    EXPECT_EQ(item.Type, static_cast<std::int32_t>(PlaceOf(Needs[0], r)));
    EXPECT_EQ(item.Lane, lane);
    EXPECT_EQ(item.X, LaneCenterX(lane));
    EXPECT_EQ(item.Y, -18.0F);
    EXPECT_EQ(item.Radius, 10.0F);
    EXPECT_EQ(item.Speed, 132.0F);
    EXPECT_FLOAT_EQ(state.ItemSpawnTimer, interval) << "whatever the stage";
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(ItemSpawn, AnItemAtAPointDrawsItsTypeOnly) {
    GameState state = QuietRun();
    state.Rng.seed(41);
    SpawnItem(state, 640.0F, 300.0F);
    Draws draws(41);
    draws.Unit();
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(ItemSpawn, AnItemAtAPointFallsFromThereInTheNearestLane) {
    GameState state = QuietRun();
    SpawnItem(state, 650.0F, 300.0F);
    ASSERT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.Items[0].Lane, 4);
    EXPECT_EQ(state.Items[0].X, 640.0F);
    EXPECT_EQ(state.Items[0].Y, 300.0F);
    EXPECT_EQ(state.Items[0].Speed, 87.0F);
    EXPECT_EQ(state.Items[0].Radius, 10.0F);
}

TEST(ItemSpawn, BetweenTwoLanesTheLowerOneIsNearer) {
    EXPECT_EQ(LaneOfItemAt(624.0F), 3); // halfway from 608 to 640
    EXPECT_EQ(LaneOfItemAt(624.25F), 4);
    EXPECT_EQ(LaneOfItemAt(656.5F), 4); // halfway from 640 to 673
    EXPECT_EQ(LaneOfItemAt(656.75F), 5);
}

TEST(ItemSpawn, APointBesideTheRoadBelongsToItsOutermostLane) {
    EXPECT_EQ(LaneOfItemAt(0.0F), 0);
    EXPECT_EQ(LaneOfItemAt(1200.0F), 8);
}

TEST(ItemSpawn, LanesAreTriedOutwardLeftBeforeRight) {
    EXPECT_EQ(LanesTakenAt(640.0F), (LaneList{4, 3, 5, 2, 6, 1, 7, 0, 8}));
    EXPECT_EQ(LanesTakenAt(575.0F), (LaneList{2, 1, 3, 0, 4, 5, 6, 7, 8}));
    EXPECT_EQ(LanesTakenAt(738.0F), (LaneList{7, 6, 8, 5, 4, 3, 2, 1, 0}));
    EXPECT_EQ(LanesTakenAt(510.0F), (LaneList{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(LanesTakenAt(770.0F), (LaneList{8, 7, 6, 5, 4, 3, 2, 1, 0}));
}

TEST(ItemSpawn, ANegativeXMeansARandomLane) {
    GameState state = QuietRun();
    state.Rng.seed(43);
    Draws draws(43);
    draws.Unit();
    const std::int32_t lane = draws.Lanes()[0];
    SpawnItem(state, -0.5F, 300.0F);
    ASSERT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.Items[0].Lane, lane);
    EXPECT_EQ(state.Items[0].Y, 300.0F);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}

TEST(ItemSpawn, AboveTheTopEdgeItIsPlacedOnTheSpawnLine) {
    for (const float y : {-0.5F, -1.0F, -20.0F}) {
        GameState state = QuietRun();
        SpawnItem(state, 640.0F, y);
        ASSERT_EQ(state.Items.size(), 1U);
        EXPECT_EQ(state.Items[0].Y, -18.0F);
    }
    GameState state = QuietRun();
    SpawnItem(state, 640.0F, 0.0F);
    ASSERT_EQ(state.Items.size(), 1U);
    EXPECT_EQ(state.Items[0].Y, 0.0F);
}

TEST(ItemSpawn, AnEnemyWithinTheMarginsSendsItOneLaneFurther) {
    GameState touching = QuietRun();
    touching.Enemies.push_back(EnemyInLane(4, 326.0F)); // 8 + 4 and 10 + 4 away
    SpawnItem(touching, 640.0F, 300.0F);
    EXPECT_EQ(LanesOf(touching.Items), LaneList{3});

    GameState clear = QuietRun();
    clear.Enemies.push_back(EnemyInLane(4, 326.25F));
    SpawnItem(clear, 640.0F, 300.0F);
    EXPECT_EQ(LanesOf(clear.Items), LaneList{4});
}

TEST(ItemSpawn, WithAllNineLanesBlockedThereIsNoItemAndTheTimerIsRearmed) {
    GameState state = QuietRun();
    for (std::int32_t lane = 0; lane < 9; ++lane) {
        state.Obstacles.push_back(ObstacleInLane(lane, -18.0F));
    }
    state.ItemSpawnTimer = 0.0F;
    state.Rng.seed(47);
    Draws draws(47);
    draws.Unit();
    draws.Lanes();
    const float interval = draws.Between(9.0F, 14.0F);
    SpawnTimedItem(state, Frame);
    EXPECT_TRUE(state.Items.empty());
    EXPECT_FLOAT_EQ(state.ItemSpawnTimer, interval);
    EXPECT_TRUE(draws.IsAt(state.Rng));
}
