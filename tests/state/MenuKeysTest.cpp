#include "state/MenuKeys.hpp"

#include <gtest/gtest.h>

TEST(MoveSelection, GoesUpAndDownAndRoundTheEnds) {
    for (const std::int32_t up : {82, 26}) { // the arrow and W
        std::uint32_t row = 1;
        EXPECT_TRUE(MoveSelection(row, 3U, up));
        EXPECT_EQ(row, 0U);
        EXPECT_TRUE(MoveSelection(row, 3U, up));
        EXPECT_EQ(row, 2U);
    }
    for (const std::int32_t down : {81, 22}) { // the arrow and S
        std::int32_t row = 1;
        EXPECT_TRUE(MoveSelection(row, 3, down));
        EXPECT_EQ(row, 2);
        EXPECT_TRUE(MoveSelection(row, 3, down));
        EXPECT_EQ(row, 0);
    }
}

TEST(MoveSelection, LeavesTheRowToEveryOtherKey) {
    for (std::int32_t key = 0; key < 512; ++key) {
        std::int32_t row = 1;
        const bool moves = key == 82 || key == 26 || key == 81 || key == 22;
        EXPECT_EQ(MoveSelection(row, 3, key), moves) << key;
        EXPECT_EQ(row != 1, moves) << key;
    }
}
