#include "input/Polling.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

using KeyArray = std::array<bool, 512>;

TEST(ReadKey, GivesTheEntryOfTheScancode) {
    KeyArray keys{};
    keys[80] = true;
    EXPECT_TRUE(ReadKey(keys.data(), 80));
    EXPECT_FALSE(ReadKey(keys.data(), 79));
    EXPECT_FALSE(ReadKey(keys.data(), 81));
}

TEST(ReadKey, ReadsTheFirstAndTheLastScancode) {
    KeyArray keys{};
    keys[1] = true;
    keys[511] = true;
    EXPECT_TRUE(ReadKey(keys.data(), 1));
    EXPECT_TRUE(ReadKey(keys.data(), 511));
}

TEST(ReadKey, TakesScancodeZeroAsUnboundEvenIfItsEntryIsSet) {
    KeyArray keys{};
    keys.fill(true);
    EXPECT_FALSE(ReadKey(keys.data(), 0));
}

TEST(ReadKey, IsFalseOutsideTheArray) {
    KeyArray keys{};
    keys.fill(true);
    EXPECT_FALSE(ReadKey(keys.data(), 512));
    EXPECT_FALSE(ReadKey(keys.data(), -1));
    EXPECT_FALSE(ReadKey(keys.data(), std::numeric_limits<std::int32_t>::min()));
    EXPECT_FALSE(ReadKey(keys.data(), std::numeric_limits<std::int32_t>::max()));
}

TEST(ReadKey, IsFalseWithoutAnArray) {
    EXPECT_FALSE(ReadKey(nullptr, 80));
}

} // namespace
