#include "state/Numbers.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr float Infinity = std::numeric_limits<float>::infinity();
constexpr float NotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr std::int32_t Largest = 2147483647;
constexpr std::int32_t Smallest = -2147483647 - 1;

} // namespace

TEST(TruncateToInt, CutsTowardsZero) {
    EXPECT_EQ(TruncateToInt(0.0F), 0);
    EXPECT_EQ(TruncateToInt(0.99F), 0);
    EXPECT_EQ(TruncateToInt(-0.99F), 0);
    EXPECT_EQ(TruncateToInt(2.75F), 2);
    EXPECT_EQ(TruncateToInt(-2.75F), -2);
}

TEST(TruncateToInt, KeepsTheLastWholeNumbersThatFit) {
    EXPECT_EQ(TruncateToInt(2147483520.0F), 2147483520); // the largest float below 2^31
    EXPECT_EQ(TruncateToInt(-2147483520.0F), -2147483520);
    EXPECT_EQ(TruncateToInt(-2147483648.0F), Smallest);
}

TEST(TruncateToInt, BringsWhatIsTooLargeToTheNearestEnd) {
    EXPECT_EQ(TruncateToInt(2147483648.0F), Largest);
    EXPECT_EQ(TruncateToInt(1e30F), Largest);
    EXPECT_EQ(TruncateToInt(Infinity), Largest);
    EXPECT_EQ(TruncateToInt(-1e30F), Smallest);
    EXPECT_EQ(TruncateToInt(-Infinity), Smallest);
}

TEST(TruncateToInt, MakesNoNumberToZero) {
    EXPECT_EQ(TruncateToInt(NotANumber), 0);
}

TEST(RoundToInt, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(RoundToInt(0.5F), 1);
    EXPECT_EQ(RoundToInt(-0.5F), -1);
    EXPECT_EQ(RoundToInt(1.5F), 2);
    EXPECT_EQ(RoundToInt(2.5F), 3); // not 2, the even neighbour
    EXPECT_EQ(RoundToInt(-2.5F), -3);
}

TEST(RoundToInt, RoundsWhatIsJustBelowAHalfToZero) {
    EXPECT_EQ(RoundToInt(0.49999997F), 0); // the largest float below a half
    EXPECT_EQ(RoundToInt(-0.49999997F), 0);
    EXPECT_EQ(RoundToInt(8388607.0F), 8388607); // and a half more has no float
}

TEST(RoundToInt, RoundsEverythingElseToTheNearest) {
    EXPECT_EQ(RoundToInt(2.25F), 2);
    EXPECT_EQ(RoundToInt(2.75F), 3);
    EXPECT_EQ(RoundToInt(-2.25F), -2);
    EXPECT_EQ(RoundToInt(-2.75F), -3);
    EXPECT_EQ(RoundToInt(0.49999997F), 0); // the largest float below a half: adding 0.5 would make 1 of it
}

TEST(RoundToInt, HasNoOverflow) {
    EXPECT_EQ(RoundToInt(2147483648.0F), Largest);
    EXPECT_EQ(RoundToInt(Infinity), Largest);
    EXPECT_EQ(RoundToInt(-1e30F), Smallest);
    EXPECT_EQ(RoundToInt(-Infinity), Smallest);
    EXPECT_EQ(RoundToInt(NotANumber), 0);
}

TEST(FloorModulo, CountsUpFromZeroInEachSize) {
    EXPECT_EQ(FloorModulo(0.0F, 32), 0);
    EXPECT_EQ(FloorModulo(31.9F, 32), 31);
    EXPECT_EQ(FloorModulo(32.0F, 32), 0);
    EXPECT_EQ(FloorModulo(-0.1F, 32), 31);
    EXPECT_EQ(FloorModulo(-32.0F, 32), 0);
    EXPECT_EQ(FloorModulo(-33.0F, 32), 31);
}

TEST(FloorModulo, OfAValueBeyondAllWholeNumbersIsExact) {
    EXPECT_EQ(FloorModulo(1e30F, 1), 0);
    EXPECT_EQ(FloorModulo(4294967296.0F, 7), 4); // 2^32 = 2^30 * 4, and 2^3 leaves 1
    EXPECT_EQ(FloorModulo(NotANumber, 32), 0);
    EXPECT_EQ(FloorModulo(Infinity, 32), 0);
}
