#include "sim/Geometry.hpp"

#include <gtest/gtest.h>

TEST(CirclesTouch, CountsATouch) {
    EXPECT_TRUE(CirclesTouch(0.0F, 0.0F, 3.0F, 8.0F, 0.0F, 5.0F));
    EXPECT_FALSE(CirclesTouch(0.0F, 0.0F, 3.0F, 8.125F, 0.0F, 5.0F));
    EXPECT_TRUE(CirclesTouch(0.0F, 0.0F, 3.0F, 0.0F, -8.0F, 5.0F));
    EXPECT_FALSE(CirclesTouch(0.0F, 0.0F, 3.0F, 0.0F, -8.125F, 5.0F));
}

TEST(CirclesTouch, MeasuresSlantwise) {
    EXPECT_TRUE(CirclesTouch(100.0F, 100.0F, 4.0F, 106.0F, 108.0F, 6.0F)); // 6 and 8 make 10
    EXPECT_FALSE(CirclesTouch(100.0F, 100.0F, 4.0F, 107.0F, 108.0F, 6.0F));
}

TEST(CirclesTouch, KnowsOverlapAndInclusion) {
    EXPECT_TRUE(CirclesTouch(0.0F, 0.0F, 8.0F, 1.0F, 1.0F, 2.0F));
    EXPECT_TRUE(CirclesTouch(5.0F, 5.0F, 0.0F, 5.0F, 5.0F, 0.0F));
    EXPECT_FALSE(CirclesTouch(5.0F, 5.0F, 0.0F, 5.0F, 6.0F, 0.0F));
}

// A barrier at (100, 100): x from 80 to 120, y from 93 to 107.

TEST(CircleHitsRect, CountsATouchOfEverySide) {
    EXPECT_TRUE(CircleHitsRect(75.0F, 100.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_FALSE(CircleHitsRect(74.875F, 100.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_TRUE(CircleHitsRect(125.0F, 100.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_FALSE(CircleHitsRect(125.125F, 100.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_TRUE(CircleHitsRect(100.0F, 88.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_FALSE(CircleHitsRect(100.0F, 87.875F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_TRUE(CircleHitsRect(100.0F, 112.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_FALSE(CircleHitsRect(100.0F, 112.125F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
}

TEST(CircleHitsRect, GoesRoundTheCorners) {
    EXPECT_TRUE(CircleHitsRect(123.0F, 111.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F)); // 3 and 4 make 5
    EXPECT_FALSE(CircleHitsRect(124.0F, 111.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_TRUE(CircleHitsRect(77.0F, 89.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_FALSE(CircleHitsRect(77.0F, 88.0F, 5.0F, 100.0F, 100.0F, 40.0F, 14.0F));
}

TEST(CircleHitsRect, KnowsInclusionAndPoints) {
    EXPECT_TRUE(CircleHitsRect(100.0F, 100.0F, 1.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_TRUE(CircleHitsRect(119.0F, 106.0F, 0.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_TRUE(CircleHitsRect(120.0F, 107.0F, 0.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_FALSE(CircleHitsRect(120.125F, 107.0F, 0.0F, 100.0F, 100.0F, 40.0F, 14.0F));
    EXPECT_TRUE(CircleHitsRect(0.0F, 5.0F, 5.0F, 0.0F, 0.0F, 0.0F, 0.0F));
}
