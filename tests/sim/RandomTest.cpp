#include "sim/Random.hpp"

#include "state/GameState.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>

// Seed 5489 is the generator's standard one. Its outputs begin
// 3499211612, 581869302, 3890346734, 3586334585, 545404204, 4161255391, 3922919429, 949333985, 2715962298,
// 1323567403, and the 10000th is 4123659995.

namespace {

GameState Seeded(std::uint32_t Seed) {
    GameState state;
    state.Rng.seed(Seed);
    return state;
}

/// The generator after a number of outputs from the standard seed.
std::mt19937 After(unsigned long long Outputs) {
    std::mt19937 generator(5489U);
    generator.discard(Outputs);
    return generator;
}

} // namespace

TEST(Rng, IsTheStandardMersenneTwister) {
    GameState state = Seeded(5489);
    EXPECT_EQ(state.Rng(), 3499211612U);
    EXPECT_EQ(state.Rng(), 581869302U);
    state.Rng.discard(9997);
    EXPECT_EQ(state.Rng(), 4123659995U);
}

TEST(RandomFloat, IsTheOutputInSinglePrecisionTimesTwoToTheMinus32) {
    GameState state = Seeded(5489);
    // Floats of this size are 256 apart: 3499211612 becomes 3499211520. 581869302 lies where they are 64
    // apart and becomes 581869312.
    EXPECT_EQ(RandomFloat(state, 0.0F, 1.0F), 3499211520.0F / 4294967296.0F);
    EXPECT_EQ(RandomFloat(state, 0.0F, 1.0F), 581869312.0F / 4294967296.0F);
    EXPECT_EQ(state.Rng, After(2));
}

TEST(RandomFloat, ScalesAndThenShifts) {
    GameState state = Seeded(5489);
    const float v = 3499211520.0F / 4294967296.0F;
    const float scaled = 3.5F * v; // from 1.5 to 5
    EXPECT_EQ(RandomFloat(state, 1.5F, 5.0F), scaled + 1.5F);
    EXPECT_FLOAT_EQ(scaled + 1.5F, 4.351533F); // 1.5 + 3.5 x 0.81472367
    EXPECT_EQ(state.Rng, After(1));
}

TEST(RandomFloat, TakesNegativeAndEmptyRanges) {
    GameState state = Seeded(5489);
    EXPECT_FLOAT_EQ(RandomFloat(state, -1.0F, 1.0F), 0.62944734F); // 2 x 0.81472367 - 1
    EXPECT_EQ(RandomFloat(state, 7.0F, 7.0F), 7.0F);
    EXPECT_EQ(state.Rng, After(2));
}

TEST(RandomFloat, StaysBelowItsEndWhereTheOutputRoundsUpToTheWholeRange) {
    // The first output of this seed is 4294967279, which as a float is 2^32.
    constexpr std::uint32_t seed = 14784396U;
    GameState state = Seeded(seed);
    ASSERT_EQ(std::mt19937(seed)(), 4294967279U);
    EXPECT_EQ(RandomFloat(state, 0.0F, 1.0F), 1.0F - 0x1p-24F);
    std::mt19937 expected(seed);
    expected.discard(1); // the draw is capped and not repeated
    EXPECT_EQ(state.Rng, expected);
}

TEST(RandomFloat, ReachesTheSameLargestValueWithoutTheCap) {
    // The first output of this seed is 4294967082, which as a float is 2^32 - 256.
    constexpr std::uint32_t seed = 62871387U;
    GameState state = Seeded(seed);
    ASSERT_EQ(std::mt19937(seed)(), 4294967082U);
    EXPECT_EQ(RandomFloat(state, 0.0F, 1.0F), 1.0F - 0x1p-24F);
}

TEST(RandomIndex, OfAPowerOfTwoIsTheTopOfTheOutput) {
    GameState state = Seeded(5489);
    EXPECT_EQ(RandomIndex(state, 256), 208U);    // 3499211612 / 2^24
    EXPECT_EQ(RandomIndex(state, 65536), 8878U); // 581869302 / 2^16
    EXPECT_EQ(state.Rng, After(2));
}

TEST(RandomIndex, MultipliesAndShifts) {
    GameState state = Seeded(5489);
    EXPECT_EQ(RandomIndex(state, 100), 81U); // 0.81472
    EXPECT_EQ(RandomIndex(state, 100), 13U); // 0.13548
    EXPECT_EQ(RandomIndex(state, 100), 90U); // 0.90579
    EXPECT_EQ(state.Rng, After(3));
}

TEST(RandomIndex, OfOneIsZeroAndStillTakesADraw) {
    GameState state = Seeded(5489);
    EXPECT_EQ(RandomIndex(state, 1), 0U);
    EXPECT_EQ(state.Rng, After(1));
}

TEST(RandomIndex, OfTheLargestCountIsOneLessThanTheOutput) {
    GameState state = Seeded(5489);
    EXPECT_EQ(RandomIndex(state, 4294967295U), 3499211611U); // u x 2^32 - u
    state.Rng = After(9999);
    EXPECT_EQ(RandomIndex(state, 4294967295U), 4123659994U);
}

TEST(RandomIndex, DrawsAgainBelowTheThreshold) {
    // With n = 2^31 + 1 the product is u x 2^31 + u: for an even u its low half is u itself and its high half
    // u / 2. The threshold is 2^31 - 1.
    GameState state = Seeded(5489);
    EXPECT_EQ(RandomIndex(state, 2147483649U), 1749605806U); // 3499211612 is above n
    EXPECT_EQ(state.Rng, After(1));
    EXPECT_EQ(RandomIndex(state, 2147483649U), 1945173367U); // 581869302 is rejected, 3890346734 is not
    EXPECT_EQ(state.Rng, After(3));
}

TEST(RandomIndex, KeepsALowHalfBetweenTheThresholdAndTheCount) {
    // With n = 3 x 2^30 the low half is (3u modulo 4) x 2^30 and the threshold is 2^30.
    GameState state = Seeded(5489);
    // 3499211612 is 0 modulo 4: rejected. 581869302 is 2 modulo 4, low half 2^31: kept.
    EXPECT_EQ(RandomIndex(state, 3221225472U), 436401976U);
    EXPECT_EQ(state.Rng, After(2));
    // 4161255391 is 3 modulo 4: its low half is the threshold itself, which is kept.
    state.Rng = After(5);
    EXPECT_EQ(RandomIndex(state, 3221225472U), 3120941543U);
    EXPECT_EQ(state.Rng, After(6));
}

TEST(RandomIndex, DrawsAgainAsOftenAsItMust) {
    // Straight from the definition, with a division where the game shifts.
    constexpr std::uint64_t n = 2863311531U; // about two thirds of 2^32: one output in three is rejected
    constexpr std::uint64_t twoTo32 = 4294967296U;
    GameState state = Seeded(20);
    std::mt19937 generator(20U);
    int rejected = 0;
    for (int i = 0; i < 1000; ++i) {
        std::uint64_t product = std::uint64_t{generator()} * n;
        while (product % twoTo32 < (twoTo32 - n) % n) {
            ++rejected;
            product = std::uint64_t{generator()} * n;
        }
        ASSERT_EQ(RandomIndex(state, static_cast<std::uint32_t>(n)), product / twoTo32) << "draw " << i;
    }
    EXPECT_GT(rejected, 300);
    EXPECT_EQ(state.Rng, generator);
}

TEST(RandomFlowDirection, FollowsTheTopBitOfTheOutput) {
    GameState state = Seeded(5489);
    const std::array<std::int32_t, 10> expected{1, -1, 1, 1, -1, 1, 1, -1, 1, -1};
    for (const std::int32_t direction : expected) {
        EXPECT_EQ(RandomFlowDirection(state), direction);
    }
    EXPECT_EQ(state.Rng, After(10));
}

TEST(ShuffledLanes, MakesTwoSwapsFromEachOfFourDraws) {
    GameState state = Seeded(5489);
    // 0.81472 of 6 is 4:   quotient 1, remainder 1 of 3:  0 2 1 3 4 5 6 7 8
    // 0.13548 of 20 is 2:  quotient 0, remainder 2 of 5:  3 2 4 0 1 5 6 7 8
    // 0.90579 of 42 is 38: quotient 5, remainder 3 of 7:  3 2 4 6 1 5 0 7 8
    // 0.83501 of 72 is 60: quotient 6, remainder 6 of 9:  3 2 4 6 1 5 8 0 7
    EXPECT_EQ(ShuffledLanes(state), (std::array<std::int32_t, 9>{3, 2, 4, 6, 1, 5, 8, 0, 7}));
    EXPECT_EQ(state.Rng, After(4));
}

TEST(ShuffledLanes, AlwaysHoldsEveryLaneOnce) {
    GameState state = Seeded(7);
    std::array<std::int32_t, 9> all{};
    std::iota(all.begin(), all.end(), 0);
    for (int i = 0; i < 1000; ++i) {
        std::array<std::int32_t, 9> lanes = ShuffledLanes(state);
        std::sort(lanes.begin(), lanes.end());
        ASSERT_EQ(lanes, all) << "shuffle " << i;
    }
}

TEST(ShuffledLanes, PutsEveryLaneInEveryPlaceAboutEquallyOften) {
    GameState state = Seeded(11);
    std::array<int, 81> counts{}; // by place and lane
    for (int i = 0; i < 9000; ++i) {
        const std::array<std::int32_t, 9> lanes = ShuffledLanes(state);
        for (std::size_t place = 0; place < lanes.size(); ++place) {
            ++counts[place * 9 + static_cast<std::size_t>(lanes[place])];
        }
    }
    const auto [least, most] = std::ranges::minmax(counts);
    EXPECT_GT(least, 850); // 1000 expected, five standard deviations are 149
    EXPECT_LT(most, 1150);
}
