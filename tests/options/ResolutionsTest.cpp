#include "state/Resolutions.hpp"

#include "state/GameState.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

std::vector<Resolution> ListOf(std::span<const Resolution> Table) {
    return {Table.begin(), Table.end()};
}

TEST(BuiltInResolutions, HaveSevenRowsForFourToThree) {
    EXPECT_EQ(ListOf(BuiltInResolutions(AspectClassic4x3)),
        (std::vector<Resolution>{
            {640, 480}, {800, 600}, {960, 720}, {1024, 768}, {1280, 960}, {1600, 1200}, {1920, 1440}}));
}

TEST(BuiltInResolutions, HaveTwentyOneRowsForWidescreen) {
    EXPECT_EQ(ListOf(BuiltInResolutions(AspectWidescreen)),
        (std::vector<Resolution>{{640, 360}, {800, 450}, {960, 540}, {1280, 720}, {1280, 800}, {1366, 768},
            {1440, 900}, {1600, 900}, {1680, 1050}, {1920, 1080}, {1920, 1200}, {2160, 1440}, {2560, 1080},
            {2560, 1440}, {2560, 1600}, {2880, 1800}, {3000, 2000}, {3440, 1440}, {3840, 1600}, {3840, 2160},
            {5120, 1440}}));
}

TEST(CurrentResolution, IsTheEntryAtTheIndex) {
    GameState state;
    state.Resolutions = {{100, 50}, {200, 100}, {300, 150}};
    state.ResolutionIndex = 1;
    EXPECT_EQ(CurrentResolution(state), (Resolution{200, 100}));
}

TEST(CurrentResolution, ComesFromTheBuiltInTableWhileTheListIsEmpty) {
    GameState state;
    EXPECT_EQ(CurrentResolution(state), (Resolution{1280, 720})); // index 3, as the game starts
    state.AspectMode = AspectClassic4x3;
    EXPECT_EQ(CurrentResolution(state), (Resolution{1024, 768}));
}

TEST(CurrentResolution, ClampsTheIndexWithoutChangingIt) {
    GameState state;
    state.Resolutions = {{100, 50}, {200, 100}};
    state.ResolutionIndex = -7;
    EXPECT_EQ(CurrentResolution(state), (Resolution{100, 50}));
    EXPECT_EQ(state.ResolutionIndex, -7);
    state.ResolutionIndex = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(CurrentResolution(state), (Resolution{200, 100}));
    EXPECT_EQ(state.ResolutionIndex, std::numeric_limits<std::int32_t>::max());
}

TEST(CurrentResolution, ClampsToTheBuiltInTableToo) {
    GameState state;
    state.ResolutionIndex = 21;
    EXPECT_EQ(CurrentResolution(state), (Resolution{5120, 1440}));
    state.AspectMode = AspectClassic4x3;
    EXPECT_EQ(CurrentResolution(state), (Resolution{1920, 1440}));
    state.ResolutionIndex = -1;
    EXPECT_EQ(CurrentResolution(state), (Resolution{640, 480}));
}

class FindResolution : public ::testing::Test {
protected:
    FindResolution() {
        State.Resolutions = {{100, 50}, {200, 100}, {200, 150}, {300, 150}};
    }

    GameState State;
};

TEST_F(FindResolution, GivesThePlaceOfTheExactPair) {
    EXPECT_EQ(FindResolutionIndex(State, 100, 50, 3), 0);
    EXPECT_EQ(FindResolutionIndex(State, 200, 150, 0), 2);
}

TEST_F(FindResolution, FallsBackUnlessBothNumbersMatch) {
    EXPECT_EQ(FindResolutionIndex(State, 200, 50, 3), 3);
    EXPECT_EQ(FindResolutionIndex(State, 201, 100, 1), 1);
}

TEST_F(FindResolution, ClampsTheFallback) {
    EXPECT_EQ(FindResolutionIndex(State, 1, 1, -5), 0);
    EXPECT_EQ(FindResolutionIndex(State, 1, 1, 4), 3);
    EXPECT_EQ(FindResolutionIndex(State, 1, 1, std::numeric_limits<std::int32_t>::max()), 3);
}

TEST_F(FindResolution, DoesNotLookForASizeOfZeroOrLess) {
    State.Resolutions = {{100, 50}, {0, 100}, {100, 0}, {-1, -1}};
    EXPECT_EQ(FindResolutionIndex(State, 0, 100, 0), 0);
    EXPECT_EQ(FindResolutionIndex(State, 100, 0, 0), 0);
    EXPECT_EQ(FindResolutionIndex(State, -1, -1, 0), 0);
}

TEST_F(FindResolution, LooksInTheBuiltInTableWhileTheListIsEmpty) {
    State.Resolutions.clear();
    EXPECT_EQ(FindResolutionIndex(State, 1920, 1080, 0), 9);
    EXPECT_EQ(FindResolutionIndex(State, 1024, 768, 30), 20);
    State.AspectMode = AspectClassic4x3;
    EXPECT_EQ(FindResolutionIndex(State, 1024, 768, 0), 3);
    EXPECT_EQ(FindResolutionIndex(State, 1920, 1080, 30), 6);
}

} // namespace
