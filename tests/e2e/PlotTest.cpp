#include "tests/e2e/Plot.hpp"

#include <gtest/gtest.h>

// What the plots of the long tests show.

namespace {

bool Holds(const std::string &Text, const std::string &Part) {
    return Text.find(Part) != std::string::npos;
}

} // namespace

TEST(Plot, ScalesEachPanelFromNothingToItsLargestValue) {
    const std::string plot = DrawPlot({0.0, 15.0, 60.0},
        {{"memory", {{80.0, 40.0, 20.0}}}, {"frames", {{4.0, 2.0, 0.0}, {8.0, 8.0, 6.0}}}});
    // 800 by 100 pixels each, from 40 on, and the second one 140 below the first.
    EXPECT_TRUE(Holds(plot, "memory, up to 80<")) << plot;
    EXPECT_TRUE(Holds(plot, "points=\"40,40 240,90 840,115 \"")) << plot;
    EXPECT_TRUE(Holds(plot, "frames, up to 8<")) << plot;
    EXPECT_TRUE(Holds(plot, "points=\"40,230 240,255 840,280 \"")) << plot;
    EXPECT_TRUE(Holds(plot, "points=\"40,180 240,180 840,205 \"")) << plot;
    EXPECT_TRUE(Holds(plot, "0 to 60 seconds")) << plot;
}

TEST(Plot, OfNothingButZerosLiesOnTheGround) {
    const std::string plot = DrawPlot({0.0, 1.0}, {{"log lines", {{0.0, 0.0}}}});
    EXPECT_TRUE(Holds(plot, "points=\"40,140 840,140 \"")) << plot;
}
