#include "input/Presses.hpp"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <vector>

namespace {

constexpr std::int32_t Negative = 80;
constexpr std::int32_t Positive = 79;

/// A pair of latches, and what comes of it.
struct LatchRow {
    bool NegativeBefore;
    bool PositiveBefore;
    std::int32_t Key;
    bool NegativeAfter;
    bool PositiveAfter;
};

void ExpectRows(const std::vector<Sint16> &Values, const std::array<LatchRow, 4> &Rows) {
    for (const Sint16 value : Values) {
        for (const LatchRow &row : Rows) {
            bool negative = row.NegativeBefore;
            bool positive = row.PositiveBefore;
            SCOPED_TRACE(
                testing::Message() << "value " << value << ", latches " << negative << " and " << positive);
            EXPECT_EQ(AxisToMenuKey(value, negative, positive, Negative, Positive), row.Key);
            EXPECT_EQ(negative, row.NegativeAfter);
            EXPECT_EQ(positive, row.PositiveAfter);
        }
    }
}

TEST(AxisToMenuKey, PressesTheNegativeKeyOnceAtMinus19000AndBelow) {
    ExpectRows({-19000, -19001, -25000, -32767, -32768},
        {{{false, false, Negative, true, false}, {false, true, Negative, true, false},
            {true, false, 0, true, false}, {true, true, 0, true, true}}});
}

TEST(AxisToMenuKey, PressesThePositiveKeyOnceAt19000AndAbove) {
    ExpectRows({19000, 19001, 25000, 32766, 32767},
        {{{false, false, Positive, false, true}, {true, false, Positive, false, true},
            {false, true, 0, false, true}, {true, true, 0, true, true}}});
}

TEST(AxisToMenuKey, HoldsTheLatchesBetweenReleaseAndPress) {
    ExpectRows({-18999, -15000, -11000, -9001, 9001, 11000, 15000, 18999},
        {{{false, false, 0, false, false}, {false, true, 0, false, true}, {true, false, 0, true, false},
            {true, true, 0, true, true}}});
}

TEST(AxisToMenuKey, LetsBothLatchesGoAt9000AndNearer) {
    ExpectRows({-9000, -8999, -1, 0, 1, 8999, 9000},
        {{{false, false, 0, false, false}, {false, true, 0, false, false}, {true, false, 0, false, false},
            {true, true, 0, false, false}}});
}

TEST(AxisToMenuKey, GivesOnePressForEachExcursion) {
    bool up = false;
    bool down = false;
    std::vector<std::int32_t> keys;
    for (const Sint16 value :
        std::initializer_list<Sint16>{5000, 18999, 19000, 32767, 18999, 9001, 32767, 9000, 18999, 19000, 0}) {
        keys.push_back(AxisToMenuKey(value, up, down, 82, 81));
    }
    EXPECT_EQ(keys, (std::vector<std::int32_t>{0, 0, 81, 0, 0, 0, 0, 0, 0, 81, 0}));
}

TEST(AxisToMenuKey, PressesAnewInTheOtherDirectionWithoutPassingTheCentre) {
    bool left = false;
    bool right = false;
    std::vector<std::int32_t> keys;
    for (const Sint16 value : std::initializer_list<Sint16>{-32768, 32767, -32768, -19000, 19000}) {
        keys.push_back(AxisToMenuKey(value, left, right, Negative, Positive));
    }
    EXPECT_EQ(keys, (std::vector<std::int32_t>{80, 79, 80, 0, 79}));
}

} // namespace
