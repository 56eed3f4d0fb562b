#include "state/SaveRequest.hpp"
#include "state/GameState.hpp"

#include <gtest/gtest.h>

namespace {

struct Mark {
    float DelayBefore;
    float Asked;
    float DelayAfter;
};

class SaveMark : public ::testing::TestWithParam<Mark> {};

} // namespace

TEST_P(SaveMark, SetsTheDelay) {
    GameState state;
    state.SaveDelay = GetParam().DelayBefore;
    RequestSave(state, GetParam().Asked);
    EXPECT_TRUE(state.SaveRequested);
    EXPECT_EQ(state.SaveDelay, GetParam().DelayAfter);
}

INSTANTIATE_TEST_SUITE_P(SaveRequest, SaveMark,
    ::testing::Values(Mark{0.0F, 0.8F, 0.8F},            // none running: starts
        Mark{-0.5F, 0.8F, 0.8F}, Mark{0.5F, 0.8F, 0.5F}, // a running one is never pushed back
        Mark{0.8F, 0.5F, 0.5F},                          // but brought nearer
        Mark{0.8F, 0.8F, 0.8F}, Mark{0.5F, 0.0F, 0.0F},  // due at once
        Mark{0.5F, -1.0F, 0.0F}, Mark{0.0F, 0.0F, 0.0F}));

TEST(SaveRequest, KeepsAnArmedRequestArmed) {
    GameState state;
    state.SaveRequested = true;
    state.SaveDelay = 0.3F;
    RequestSave(state, 0.8F);
    EXPECT_TRUE(state.SaveRequested);
    EXPECT_EQ(state.SaveDelay, 0.3F);
}

TEST(SaveRequest, AZeroMarkIsOvertakenByThePositiveOneThatFollowsIt) {
    GameState state;
    RequestSave(state, 0.0F);
    RequestSave(state, 0.8F);
    EXPECT_TRUE(state.SaveRequested);
    EXPECT_EQ(state.SaveDelay, 0.8F);
}
