#include "state/Resolutions.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "tests/support/LogicalWidthScope.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <utility>
#include <vector>

namespace {

struct WideRow {
    Resolution Size;
    std::int32_t LogicalWidth;
};

constexpr std::array<WideRow, 21> WideRows{{
    {{640, 360}, 1280}, {{800, 450}, 1280}, {{960, 540}, 1280}, {{1280, 720}, 1280},
    {{1280, 800}, 1152}, // 16:10
    {{1366, 768}, 1280}, // close enough to 16:9
    {{1440, 900}, 1152}, {{1600, 900}, 1280}, {{1680, 1050}, 1152}, {{1920, 1080}, 1280},
    {{1920, 1200}, 1152}, {{2160, 1440}, 1080}, // 3:2
    {{2560, 1080}, 1728},                       // 64:27
    {{2560, 1440}, 1280}, {{2560, 1600}, 1152}, {{2880, 1800}, 1152}, {{3000, 2000}, 1080},
    {{3440, 1440}, 1728},                       // 43:18
    {{3840, 1600}, 1728},                       // 12:5
    {{3840, 2160}, 1280}, {{5120, 1440}, 2560}, // 32:9
}};

constexpr std::array<Resolution, 7> ClassicRows{{
    {640, 480},
    {800, 600},
    {960, 720},
    {1024, 768},
    {1280, 960},
    {1600, 1200},
    {1920, 1440},
}};

std::int32_t WidthFor(enum AspectMode AspectMode, std::int32_t Width, std::int32_t Height) {
    const LogicalWidthScope scope(1);
    ComputeLogicalWidth(AspectMode, Width, Height);
    return LogicalWidth;
}

GameState StateWith(std::vector<Resolution> Resolutions, std::int32_t Index) {
    GameState state;
    state.Resolutions = std::move(Resolutions);
    state.ResolutionIndex = Index;
    return state;
}

} // namespace

TEST(RatioMatches, TakesTheExactShape) {
    EXPECT_TRUE(RatioMatches(1920, 1080, 16, 9));
    EXPECT_TRUE(RatioMatches(1024, 768, 4, 3));
    EXPECT_FALSE(RatioMatches(1920, 1080, 4, 3));
    EXPECT_FALSE(RatioMatches(1920, 1080, 9, 16));
}

TEST(RatioMatches, NeedsASizeAboveZero) {
    constexpr std::array sizes{Resolution{0, 0}, Resolution{0, 1}, Resolution{1, 0}, Resolution{0, 9},
        Resolution{16, 0}, Resolution{-16, -9}, Resolution{-1, 720}, Resolution{1280, -1},
        Resolution{-1920, -1080}, Resolution{-1, 1}, Resolution{1, -1}};
    for (const Resolution &size : sizes) {
        EXPECT_FALSE(RatioMatches(size.Width, size.Height, 16, 9)) << size.Width << "x" << size.Height;
        EXPECT_FALSE(RatioMatches(size.Width, size.Height, 1, 1)) << size.Width << "x" << size.Height;
    }
}

TEST(RatioMatches, ToleratesADifferenceOfOneWhereTheProductsAreBelow400) {
    EXPECT_TRUE(RatioMatches(3, 2, 4, 3));     // 9 and 8
    EXPECT_FALSE(RatioMatches(2, 2, 4, 3));    // 6 and 8
    EXPECT_FALSE(RatioMatches(130, 98, 4, 3)); // 390 and 392
    EXPECT_TRUE(RatioMatches(399, 398, 1, 1));
    EXPECT_FALSE(RatioMatches(399, 397, 1, 1));
    EXPECT_TRUE(RatioMatches(7, 4, 16, 9));    // 63 and 64
    EXPECT_FALSE(RatioMatches(21, 12, 16, 9)); // 189 and 192
}

TEST(RatioMatches, ToleratesAHalfPercentFrom400On) {
    EXPECT_TRUE(RatioMatches(134, 100, 4, 3)); // 402 and 400; 402 / 200 is 2
    EXPECT_TRUE(RatioMatches(400, 199, 2, 1)); // 400 and 398, where 400 / 200 is 2
    EXPECT_TRUE(RatioMatches(400, 398, 1, 1));
    EXPECT_FALSE(RatioMatches(400, 397, 1, 1));
    EXPECT_FALSE(RatioMatches(398, 198, 2, 1));   // 398 and 396: tolerance 1
    EXPECT_TRUE(RatioMatches(1286, 720, 16, 9));  // 11574 and 11520: 54 of 57
    EXPECT_FALSE(RatioMatches(1287, 720, 16, 9)); // 11583 and 11520: 63 of 57
    EXPECT_TRUE(RatioMatches(1274, 720, 16, 9));  // 11466 and 11520: 54 of 57
    EXPECT_FALSE(RatioMatches(1273, 720, 16, 9)); // 11457 and 11520: 63 of 57
    EXPECT_FALSE(RatioMatches(1280, 1024, 4, 3)); // 3840 and 4096
}

TEST(RatioMatches, TruncatesTheHalfPercent) {
    EXPECT_TRUE(RatioMatches(599, 597, 1, 1));
    EXPECT_FALSE(RatioMatches(599, 596, 1, 1));
    EXPECT_TRUE(RatioMatches(600, 597, 1, 1));
}

TEST(RatioMatches, TakesTheToleranceFromTheLargerProduct) {
    EXPECT_TRUE(RatioMatches(398, 400, 1, 1));
    EXPECT_FALSE(RatioMatches(397, 400, 1, 1));
}

TEST(RatioMatches, Takes1366By768For16To9) {
    EXPECT_TRUE(RatioMatches(1366, 768, 16, 9)); // 12294 and 12288
    EXPECT_FALSE(RatioMatches(1366, 768, 16, 10));
}

TEST(IsUltrawide, KnowsItsFourShapes) {
    EXPECT_TRUE(IsUltrawide(2560, 1080)); // 64:27
    EXPECT_TRUE(IsUltrawide(3440, 1440)); // 43:18
    EXPECT_TRUE(IsUltrawide(1680, 720));  // 21:9
    EXPECT_TRUE(IsUltrawide(2520, 1080)); // 21:9
    EXPECT_TRUE(IsUltrawide(3840, 1600)); // 12:5
}

TEST(IsUltrawide, LeavesTheOtherShapesAlone) {
    EXPECT_FALSE(IsUltrawide(1920, 1080));
    EXPECT_FALSE(IsUltrawide(1920, 1200));
    EXPECT_FALSE(IsUltrawide(5120, 1440));
    EXPECT_FALSE(IsUltrawide(2350, 1000)); // between 21:9 and 64:27, and near enough to neither
    EXPECT_FALSE(IsUltrawide(0, 0));
}

TEST(ResolutionAllowed, WidescreenTakesAllItsShapes) {
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 1920, 1080));
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 1366, 768));
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 1920, 1200));
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 2160, 1440));
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 2560, 1080));
    EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, 5120, 1440));
    EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, 1600, 1200));
    EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, 1080, 1920));
    EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, 0, 0));
}

TEST(ResolutionAllowed, ClassicTakes4To3Only) {
    EXPECT_TRUE(ResolutionAllowed(AspectClassic4x3, 1600, 1200));
    EXPECT_FALSE(ResolutionAllowed(AspectClassic4x3, 1920, 1080));
    EXPECT_FALSE(ResolutionAllowed(AspectClassic4x3, 2160, 1440));
    EXPECT_FALSE(ResolutionAllowed(AspectClassic4x3, 0, 0));
}

TEST(ResolutionAllowed, NeitherModeTakes5To4) {
    EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, 1280, 1024));
    EXPECT_FALSE(ResolutionAllowed(AspectClassic4x3, 1280, 1024));
}

TEST(BuiltInResolutions, WidescreenHasItsTwentyOneRows) {
    const std::span<const Resolution> rows = BuiltInResolutions(AspectWidescreen);
    ASSERT_EQ(rows.size(), WideRows.size());
    for (std::size_t i = 0; i < WideRows.size(); ++i) {
        EXPECT_EQ(rows[i].Width, WideRows[i].Size.Width) << "row " << i;
        EXPECT_EQ(rows[i].Height, WideRows[i].Size.Height) << "row " << i;
    }
}

TEST(BuiltInResolutions, ClassicHasItsSevenRows) {
    const std::span<const Resolution> rows = BuiltInResolutions(AspectClassic4x3);
    ASSERT_EQ(rows.size(), ClassicRows.size());
    for (std::size_t i = 0; i < ClassicRows.size(); ++i) {
        EXPECT_EQ(rows[i].Width, ClassicRows[i].Width) << "row " << i;
        EXPECT_EQ(rows[i].Height, ClassicRows[i].Height) << "row " << i;
    }
}

TEST(BuiltInResolutions, WidescreenRowsAreOfferedInWidescreenOnly) {
    for (const WideRow &row : WideRows) {
        EXPECT_TRUE(ResolutionAllowed(AspectWidescreen, row.Size.Width, row.Size.Height)) << row.Size.Width;
        EXPECT_FALSE(ResolutionAllowed(AspectClassic4x3, row.Size.Width, row.Size.Height)) << row.Size.Width;
    }
}

TEST(BuiltInResolutions, ClassicRowsAreOfferedInClassicOnly) {
    for (const Resolution &row : ClassicRows) {
        EXPECT_TRUE(ResolutionAllowed(AspectClassic4x3, row.Width, row.Height)) << row.Width;
        EXPECT_FALSE(ResolutionAllowed(AspectWidescreen, row.Width, row.Height)) << row.Width;
    }
}

TEST(BuiltInResolutions, TheFallbackRowsOfBothModesAre720High) {
    EXPECT_EQ(BuiltInResolutions(AspectClassic4x3)[2].Height, 720);
    EXPECT_EQ(BuiltInResolutions(AspectWidescreen)[3].Height, 720);
}

TEST(ComputeLogicalWidth, FollowsTheShapeOfEveryWidescreenRow) {
    for (const WideRow &row : WideRows) {
        EXPECT_EQ(WidthFor(AspectWidescreen, row.Size.Width, row.Size.Height), row.LogicalWidth)
            << row.Size.Width << "x" << row.Size.Height;
    }
}

TEST(ComputeLogicalWidth, Is960InClassicWhateverTheScreen) {
    for (const Resolution &row : ClassicRows) {
        EXPECT_EQ(WidthFor(AspectClassic4x3, row.Width, row.Height), 960) << row.Width;
    }
    EXPECT_EQ(WidthFor(AspectClassic4x3, 5120, 1440), 960);
    EXPECT_EQ(WidthFor(AspectClassic4x3, 1920, 1080), 960);
    EXPECT_EQ(WidthFor(AspectClassic4x3, 3840, 2160), 960);
    EXPECT_EQ(WidthFor(AspectClassic4x3, 0, 0), 960);
}

TEST(ComputeLogicalWidth, Is1280ForShapesThatItDoesNotKnow) {
    EXPECT_EQ(WidthFor(AspectWidescreen, 1280, 1024), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, 640, 480), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, 1024, 768), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, 1080, 1920), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, 720, 1280), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, 0, 0), 1280);
    EXPECT_EQ(WidthFor(AspectWidescreen, -1920, -1080), 1280);
}

TEST(ComputeLogicalWidth, KnowsEveryUltrawideShape) {
    EXPECT_EQ(WidthFor(AspectWidescreen, 1680, 720), 1728); // 21:9, which no built-in row has
    EXPECT_EQ(WidthFor(AspectWidescreen, 2520, 1080), 1728);
    EXPECT_EQ(WidthFor(AspectWidescreen, 3840, 1080), 2560);
}

TEST(LogicalScreen, Is720High) {
    EXPECT_EQ(LogicalHeight, 720);
}

TEST(Resolution, OrdersByWidthAndThenByHeight) {
    EXPECT_LT((Resolution{1280, 960}), (Resolution{1366, 768}));
    EXPECT_LT((Resolution{1280, 720}), (Resolution{1280, 800}));
    EXPECT_EQ((Resolution{1280, 720}), (Resolution{1280, 720}));
}

TEST(CurrentResolution, ReadsTheListOfTheDisplay) {
    const GameState state = StateWith({{1280, 720}, {1920, 1080}, {2560, 1440}}, 1);
    EXPECT_EQ(CurrentResolution(state), (Resolution{1920, 1080}));
}

TEST(CurrentResolution, FallsBackToTheTableOfTheAspectMode) {
    GameState state = StateWith({}, 3);
    EXPECT_EQ(CurrentResolution(state), (Resolution{1280, 720}));
    state.AspectMode = AspectClassic4x3;
    EXPECT_EQ(CurrentResolution(state), (Resolution{1024, 768}));
}

TEST(CurrentResolution, ClampsTheIndexForTheLookUpOnly) {
    GameState state = StateWith({{1920, 1080}, {2560, 1440}}, 2);
    EXPECT_EQ(CurrentResolution(state), (Resolution{2560, 1440}));
    EXPECT_EQ(state.ResolutionIndex, 2);
    state.ResolutionIndex = -5;
    EXPECT_EQ(CurrentResolution(state), (Resolution{1920, 1080}));
    EXPECT_EQ(state.ResolutionIndex, -5);
    state.ResolutionIndex = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(CurrentResolution(state), (Resolution{2560, 1440}));
    EXPECT_EQ(state.ResolutionIndex, std::numeric_limits<std::int32_t>::max());

    state.Resolutions.clear();
    state.ResolutionIndex = 21;
    EXPECT_EQ(CurrentResolution(state), (Resolution{5120, 1440}));
    EXPECT_EQ(state.ResolutionIndex, 21);
    state.AspectMode = AspectClassic4x3;
    EXPECT_EQ(CurrentResolution(state), (Resolution{1920, 1440}));
    state.ResolutionIndex = -1;
    EXPECT_EQ(CurrentResolution(state), (Resolution{640, 480}));
}

TEST(FindResolutionIndex, FindsAnExactPairInTheDisplaysList) {
    const GameState state = StateWith({{1280, 720}, {1280, 800}, {1920, 1080}}, 0);
    EXPECT_EQ(FindResolutionIndex(state, 1280, 720, 2), 0);
    EXPECT_EQ(FindResolutionIndex(state, 1280, 800, 2), 1);
    EXPECT_EQ(FindResolutionIndex(state, 1920, 1080, 0), 2);
}

TEST(FindResolutionIndex, FindsAnExactPairInTheBuiltInTableWhileTheListIsEmpty) {
    GameState state;
    EXPECT_EQ(FindResolutionIndex(state, 1280, 720, 0), 3);
    EXPECT_EQ(FindResolutionIndex(state, 1920, 1080, 0), 9);
    EXPECT_EQ(FindResolutionIndex(state, 5120, 1440, 0), 20);
    EXPECT_EQ(FindResolutionIndex(state, 1024, 768, 30), 20); // which the other table has
    state.AspectMode = AspectClassic4x3;
    EXPECT_EQ(FindResolutionIndex(state, 960, 720, 0), 2);
    EXPECT_EQ(FindResolutionIndex(state, 1024, 768, 0), 3);
    EXPECT_EQ(FindResolutionIndex(state, 1920, 1080, 30), 6);
}

TEST(FindResolutionIndex, NeedsBothNumbersToMatch) {
    const GameState state = StateWith({{1280, 720}, {1920, 1080}}, 0);
    EXPECT_EQ(FindResolutionIndex(state, 1920, 1081, 0), 0);
    EXPECT_EQ(FindResolutionIndex(state, 1921, 1080, 0), 0);
    EXPECT_EQ(FindResolutionIndex(state, 1280, 1080, 1), 1);
}

TEST(FindResolutionIndex, DoesNotLookForSizesOfZeroOrLess) {
    const GameState state = StateWith({{1280, 720}, {0, 720}, {1280, 0}, {-1, -1}}, 0);
    EXPECT_EQ(FindResolutionIndex(state, 0, 720, 3), 3);
    EXPECT_EQ(FindResolutionIndex(state, 1280, 0, 3), 3);
    EXPECT_EQ(FindResolutionIndex(state, -1, -1, 2), 2);
}

TEST(FindResolutionIndex, ClampsTheFallback) {
    GameState state = StateWith({{1280, 720}, {1920, 1080}}, 0);
    EXPECT_EQ(FindResolutionIndex(state, 1, 1, -3), 0);
    EXPECT_EQ(FindResolutionIndex(state, 1, 1, 1), 1);
    EXPECT_EQ(FindResolutionIndex(state, 1, 1, 2), 1);
    EXPECT_EQ(FindResolutionIndex(state, 1, 1, 9), 1);
    EXPECT_EQ(FindResolutionIndex(state, 1, 1, std::numeric_limits<std::int32_t>::max()), 1);
    state.Resolutions.clear();
    EXPECT_EQ(FindResolutionIndex(state, 1, 1, 99), 20);
    state.AspectMode = AspectClassic4x3;
    EXPECT_EQ(FindResolutionIndex(state, 1, 1, 99), 6);
}
