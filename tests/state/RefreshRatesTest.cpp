#include "state/RefreshRates.hpp"

#include "state/GameState.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Rates = std::vector<std::int32_t>;

class RefreshRates : public ::testing::Test {
protected:
    RefreshRates() {
        State.Fullscreen = true;
        State.Resolutions = {{1280, 720}, {1920, 1080}};
        State.ResolutionIndex = 1;
        State.DisplayModes = {{1920, 1080, 144}, {1280, 720, 75}, {1920, 1080, 60}, {1920, 1080, 120}};
    }

    std::int32_t RateAfterChoosing(std::int32_t Rate) {
        State.RefreshRate = Rate;
        RebuildRefreshRates(State);
        return State.RefreshRate;
    }

    GameState State;
};

TEST_F(RefreshRates, AreAutomaticAndThoseOfTheCurrentSizeInAscendingOrder) {
    RebuildRefreshRates(State);
    EXPECT_EQ(State.RefreshRates, (Rates{0, 60, 120, 144}));
}

TEST_F(RefreshRates, FollowTheChosenSize) {
    State.ResolutionIndex = 0;
    RebuildRefreshRates(State);
    EXPECT_EQ(State.RefreshRates, (Rates{0, 75}));
}

TEST_F(RefreshRates, NeedWidthAndHeightToMatch) {
    State.DisplayModes = {{1920, 1200, 60}, {1600, 1080, 75}, {1920, 1080, 50}};
    RebuildRefreshRates(State);
    EXPECT_EQ(State.RefreshRates, (Rates{0, 50}));
}

TEST_F(RefreshRates, LeaveUntoldOnesOut) {
    State.DisplayModes = {{1920, 1080, 0}, {1920, 1080, -1}, {1920, 1080, 60}};
    RebuildRefreshRates(State);
    EXPECT_EQ(State.RefreshRates, (Rates{0, 60}));
}

TEST_F(RefreshRates, HoldEachOnce) {
    State.DisplayModes = {{1920, 1080, 60}, {1920, 1080, 144}, {1920, 1080, 60}};
    RebuildRefreshRates(State);
    EXPECT_EQ(State.RefreshRates, (Rates{0, 60, 144}));
}

TEST_F(RefreshRates, AreAutomaticAloneInAWindow) {
    State.Fullscreen = false;
    State.RefreshRates = {0, 60, 144};
    EXPECT_EQ(RateAfterChoosing(144), 0);
    EXPECT_EQ(State.RefreshRates, (Rates{0}));
}

TEST_F(RefreshRates, AreAutomaticAloneWithoutModes) {
    State.DisplayModes.clear();
    EXPECT_EQ(RateAfterChoosing(60), 0);
    EXPECT_EQ(State.RefreshRates, (Rates{0}));
}

TEST_F(RefreshRates, KeepAChosenRateThatIsOffered) {
    EXPECT_EQ(RateAfterChoosing(144), 144);
    EXPECT_EQ(RateAfterChoosing(60), 60);
    EXPECT_EQ(RateAfterChoosing(0), 0);
}

TEST_F(RefreshRates, MakeARateThatIsNotOfferedAutomatic) {
    EXPECT_EQ(RateAfterChoosing(75), 0);
    EXPECT_EQ(RateAfterChoosing(1000), 0);
}

TEST_F(RefreshRates, TakeANegativeRateAsAutomatic) {
    EXPECT_EQ(RateAfterChoosing(-1), 0);
    EXPECT_EQ(RateAfterChoosing(std::numeric_limits<std::int32_t>::min()), 0);
}

TEST_F(RefreshRates, FollowTheBuiltInSizeWhileNoneIsListed) {
    State.Resolutions.clear();
    State.ResolutionIndex = 3; // 1280x720
    RebuildRefreshRates(State);
    EXPECT_EQ(State.RefreshRates, (Rates{0, 75}));
}

} // namespace
