#include "state/LogicalScreen.hpp"
#include "state/Resolutions.hpp"
#include "tests/support/LogicalWidthScope.hpp"

#include <gtest/gtest.h>

namespace {

std::int32_t WidthFor(enum AspectMode AspectMode, std::int32_t Width, std::int32_t Height) {
    const LogicalWidthScope oldWidth(LogicalWidth);
    ComputeLogicalWidth(AspectMode, Width, Height);
    return LogicalWidth;
}

TEST(RatioMatches, TakesTheExactShape) {
    EXPECT_TRUE(RatioMatches(1920, 1080, 16, 9));
    EXPECT_TRUE(RatioMatches(1024, 768, 4, 3));
    EXPECT_FALSE(RatioMatches(1920, 1080, 4, 3));
    EXPECT_FALSE(RatioMatches(1920, 1080, 9, 16));
}

TEST(RatioMatches, TakesAboutHalfAPercentOff) {
    EXPECT_TRUE(RatioMatches(1366, 768, 16, 9));  // 12294 and 12288, tolerance 61
    EXPECT_FALSE(RatioMatches(1280, 1024, 4, 3)); // 3840 and 4096
}

TEST(RatioMatches, ToleratesOneBelow400) {
    EXPECT_TRUE(RatioMatches(399, 398, 1, 1));
    EXPECT_FALSE(RatioMatches(399, 397, 1, 1));
    EXPECT_TRUE(RatioMatches(7, 4, 16, 9));    // 63 and 64
    EXPECT_FALSE(RatioMatches(21, 12, 16, 9)); // 189 and 192
}

TEST(RatioMatches, ToleratesATwoHundredthFrom400) {
    EXPECT_TRUE(RatioMatches(400, 398, 1, 1));
    EXPECT_FALSE(RatioMatches(400, 397, 1, 1));
}

TEST(RatioMatches, TruncatesTheTwoHundredth) {
    EXPECT_TRUE(RatioMatches(599, 597, 1, 1));
    EXPECT_FALSE(RatioMatches(599, 596, 1, 1));
    EXPECT_TRUE(RatioMatches(600, 597, 1, 1));
}

TEST(RatioMatches, TakesTheToleranceFromTheLargerProduct) {
    EXPECT_TRUE(RatioMatches(398, 400, 1, 1));
    EXPECT_FALSE(RatioMatches(397, 400, 1, 1));
}

TEST(RatioMatches, IsFalseWithoutASize) {
    EXPECT_FALSE(RatioMatches(0, 0, 16, 9));
    EXPECT_FALSE(RatioMatches(0, 1, 16, 9));
    EXPECT_FALSE(RatioMatches(1, 0, 1, 1));
    EXPECT_FALSE(RatioMatches(-1920, -1080, 16, 9));
    EXPECT_FALSE(RatioMatches(-1, 1, 1, 1));
    EXPECT_FALSE(RatioMatches(1, -1, 1, 1));
}

TEST(IsUltrawide, TakesItsFourShapes) {
    EXPECT_TRUE(IsUltrawide(2560, 1080)); // 64:27
    EXPECT_TRUE(IsUltrawide(3440, 1440)); // 43:18
    EXPECT_TRUE(IsUltrawide(2520, 1080)); // 21:9
    EXPECT_TRUE(IsUltrawide(3840, 1600)); // 12:5
}

TEST(IsUltrawide, TakesNoOther) {
    EXPECT_FALSE(IsUltrawide(1920, 1080));
    EXPECT_FALSE(IsUltrawide(5120, 1440));
    EXPECT_FALSE(IsUltrawide(0, 0));
}

TEST(ResolutionAllowed, InClassicTakesFourToThreeOnly) {
    EXPECT_TRUE(ResolutionAllowed(AspectClassic4x3, 640, 480));
    EXPECT_TRUE(ResolutionAllowed(AspectClassic4x3, 1920, 1440));
    EXPECT_FALSE(ResolutionAllowed(AspectClassic4x3, 1920, 1080));
    EXPECT_FALSE(ResolutionAllowed(AspectClassic4x3, 1280, 1024));
}

TEST(ResolutionAllowed, InWidescreenTakesTheWideShapes) {
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 1920, 1080)); // 16:9
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 1366, 768));  // nearly 16:9
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 1920, 1200)); // 16:10
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 2160, 1440)); // 3:2
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 3440, 1440)); // ultrawide
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 5120, 1440)); // 32:9
}

TEST(ResolutionAllowed, InWidescreenLeavesTheOthersOut) {
    EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, 1024, 768));
    EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, 1280, 1024));
    EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, 1080, 1920));
    EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, 0, 0));
}

TEST(LogicalWidthOfAShape, FollowsTheWidescreenShape) {
    EXPECT_EQ(WidthFor(AspectWidescreen, 5120, 1440), 2560); // 32:9
    EXPECT_EQ(WidthFor(AspectWidescreen, 2560, 1080), 1728); // 64:27
    EXPECT_EQ(WidthFor(AspectWidescreen, 3440, 1440), 1728); // 43:18
    EXPECT_EQ(WidthFor(AspectWidescreen, 2520, 1080), 1728); // 21:9
    EXPECT_EQ(WidthFor(AspectWidescreen, 3840, 1600), 1728); // 12:5
    EXPECT_EQ(WidthFor(AspectWidescreen, 2160, 1440), 1080); // 3:2
    EXPECT_EQ(WidthFor(AspectWidescreen, 2560, 1600), 1152); // 16:10
    EXPECT_EQ(WidthFor(AspectWidescreen, 1920, 1080), 1280); // 16:9
    EXPECT_EQ(WidthFor(AspectWidescreen, 1366, 768), 1280);
}

TEST(LogicalWidthOfAShape, Is1280ForAnyOtherShape) {
    EXPECT_EQ(WidthFor(AspectWidescreen, 1024, 768), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, 1280, 1024), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, 1080, 1920), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, 0, 0), 1280);
}

TEST(LogicalWidthOfAShape, InClassicIs960WhateverTheScreen) {
    EXPECT_EQ(WidthFor(AspectClassic4x3, 1024, 768), 960);
    EXPECT_EQ(WidthFor(AspectClassic4x3, 3840, 2160), 960);
    EXPECT_EQ(WidthFor(AspectClassic4x3, 5120, 1440), 960);
    EXPECT_EQ(WidthFor(AspectClassic4x3, 0, 0), 960);
}

TEST(LogicalScreen, Is720High) {
    EXPECT_EQ(LogicalHeight, 720);
}

} // namespace
