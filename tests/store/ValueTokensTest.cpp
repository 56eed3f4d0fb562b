#include "store/ValueStream.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <optional>

namespace {

using namespace std::string_view_literals;

template <typename Value> ValueToken Token(ValueTag Tag, Value Held) {
    ValueToken token;
    token.Tag = Tag;
    token.Value = Held;
    return token;
}
ValueToken Bool(bool Value) {
    return Token(ValueTag::Bool, Value);
}
ValueToken Int32(std::int32_t Value) {
    return Token(ValueTag::Int32, Value);
}
ValueToken UInt32(std::uint32_t Value) {
    return Token(ValueTag::UInt32, Value);
}
ValueToken Int64(std::int64_t Value) {
    return Token(ValueTag::Int64, Value);
}
ValueToken UInt64(std::uint64_t Value) {
    return Token(ValueTag::UInt64, Value);
}
ValueToken Double(double Value) {
    return Token(ValueTag::Double, Value);
}
ValueToken Text(std::string_view Value) {
    return Token(ValueTag::String, Value);
}
ValueToken Bare(ValueTag Tag) {
    ValueToken token;
    token.Tag = Tag;
    return token;
}

constexpr std::int32_t Least32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Most32 = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t Least64 = std::numeric_limits<std::int64_t>::min();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

/// What no conversion to a number takes.
const ValueToken NoNumbers[] = {Text(""), Text("1"), Bare(ValueTag::None), Bare(ValueTag::End),
    Bare(ValueTag::ArrayBegin), Bare(ValueTag::ObjectBegin)};

template <typename Value> struct Row {
    ValueToken From;
    std::optional<Value> Expected; ///< nothing where it is refused
};

/// Runs a table, with a target that must stay where the token is refused.
template <typename Value, std::size_t Count>
void ExpectConversions(
    bool (*Convert)(const ValueToken &, Value &), const Row<Value> (&Rows)[Count], Value Before) {
    for (std::size_t i = 0; i < Count; ++i) {
        Value out = Before;
        EXPECT_EQ(Convert(Rows[i].From, out), Rows[i].Expected.has_value()) << "row " << i;
        EXPECT_EQ(out, Rows[i].Expected.value_or(Before)) << "row " << i;
    }
    for (const ValueToken &token : NoNumbers) {
        Value out = Before;
        EXPECT_FALSE(Convert(token, out)) << static_cast<int>(token.Tag);
        EXPECT_EQ(out, Before) << static_cast<int>(token.Tag);
    }
}

TEST(TokenConversion, ToInt32CutsWholeNumbersAndRoundsDoubles) {
    const Row<std::int32_t> rows[] = {{Int32(0), 0}, {Int32(-5), -5}, {Int32(Least32), Least32},
        {Int32(Most32), Most32}, {UInt32(5), 5}, {UInt32(0x80000000), Least32}, {UInt32(0xFFFFFFFF), -1},
        {Int64(5), 5}, {Int64(-5), -5}, {Int64(0x100000002), 2}, {Int64(0x80000000), Least32},
        {Int64(-0x100000001), -1}, {Int64(Least64), 0}, {UInt64(5), 5}, {UInt64(0xFFFFFFFFFFFFFFFF), -1},
        {UInt64(0x1234567800000003), 3}, {Double(0.0), 0}, {Double(2.0), 2}, {Double(2.4), 2},
        {Double(2.5), 3}, {Double(-2.5), -3}, {Double(3.5), 4}, {Double(-3.5), -4}, {Double(0.5), 1},
        {Double(-0.5), -1}, {Double(0.49999999999999994), 0}, {Double(-2.4), -2},
        {Double(2147483647.0), Most32}, {Double(-2147483648.0), Least32}, {Double(NotANumber), {}},
        {Double(Infinity), {}}, {Double(-Infinity), {}}, {Bool(true), {}}, {Bool(false), {}}};
    ExpectConversions<std::int32_t>(TokenToInt32, rows, 77);
}

TEST(TokenConversion, ToInt32KeepsADoubleBeyond32BitsFromDoingHarm) {
    for (const double large : {2147483647.5, 1e10, 1e300, -2147483648.5, -1e10, -1e300}) {
        std::int32_t out = 77;
        TokenToInt32(Double(large), out);
        EXPECT_TRUE(out == 77 || (out < 0) == (large < 0.0)) << large;
    }
}

TEST(TokenConversion, ToInt64TakesWholeNumbersAlone) {
    const Row<std::int64_t> rows[] = {{Int64(5), 5}, {Int64(-5), -5}, {Int64(Least64), Least64},
        {UInt64(5), 5}, {UInt64(0xFFFFFFFFFFFFFFFF), -1}, {UInt64(0x8000000000000000), Least64},
        {Int32(5), 5}, {Int32(-5), -5}, {Int32(Least32), Least32}, {UInt32(5), 5},
        {UInt32(0xFFFFFFFF), 4294967295}, {Double(5.0), {}}, {Double(NotANumber), {}}, {Bool(true), {}},
        {Bool(false), {}}};
    ExpectConversions<std::int64_t>(TokenToInt64, rows, 77);
}

TEST(TokenConversion, ToBoolTakesABoolAndNumbersThatAreNotZero) {
    const Row<bool> rows[] = {{Bool(true), true}, {Bool(false), false}, {Int32(0), false}, {Int32(1), true},
        {Int32(-7), true}, {UInt32(0), false}, {UInt32(0x80000000), true}, {Int64(0), false},
        {Int64(3), true}, {Int64(0x100000000), false}, {UInt64(0), false}, {UInt64(9), true},
        {UInt64(0xFFFFFFFF00000000), false}, {Double(0.0), false}, {Double(0.4), false},
        {Double(-0.4), false}, {Double(0.5), true}, {Double(-0.5), true}, {Double(12.0), true},
        {Double(NotANumber), {}}, {Double(Infinity), {}}};
    ExpectConversions<bool>(TokenToBool, rows, true);
    ExpectConversions<bool>(TokenToBool, rows, false);
}

TEST(TokenConversion, ToFloatNarrowsDoublesAndTakesWholeNumbersOf32Bits) {
    const Row<float> rows[] = {{Double(0.0), 0.0F}, {Double(2.5), 2.5F}, {Double(-2.5), -2.5F},
        {Double(0.1), 0.1F}, {Double(16777217.0), 16777216.0F}, {Double(1e-60), 0.0F},
        {Double(static_cast<double>(std::numeric_limits<float>::max())), std::numeric_limits<float>::max()},
        {Int32(7), 7.0F}, {Int32(-7), -7.0F}, {Int32(16777217), 16777216.0F}, {UInt32(7), 7.0F},
        {UInt32(0xFFFFFFFF), -1.0F}, {Int64(7), 7.0F}, {Int64(0x100000007), 7.0F}, {UInt64(7), 7.0F},
        {UInt64(0xFFFFFFFFFFFFFFFF), -1.0F}, {Bool(true), {}}, {Bool(false), {}}};
    ExpectConversions<float>(TokenToFloat, rows, 77.0F);
}

TEST(TokenConversion, ToFloatKeepsTheSignOfZero) {
    float out = 77.0F;
    EXPECT_TRUE(TokenToFloat(Double(-0.0), out));
    EXPECT_EQ(std::bit_cast<std::uint32_t>(out), 0x80000000U);
}

TEST(TokenConversion, ToFloatGivesEveryFloatBack) {
    for (std::uint64_t bits = 0; bits <= 0xFFFFFFFF; bits += 65521) {
        const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
        if (!std::isnan(number)) {
            float out = 77.0F;
            EXPECT_TRUE(TokenToFloat(Double(static_cast<double>(number)), out));
            EXPECT_EQ(std::bit_cast<std::uint32_t>(out), bits);
        }
    }
}

TEST(TokenConversion, ToKeyTakesTextAlone) {
    for (const std::string_view text : {""sv, "Hp"sv, "a\0b"sv}) {
        std::string_view out = "before";
        EXPECT_TRUE(TokenToKey(Text(text), out));
        EXPECT_EQ(out, text);
    }
    for (const ValueToken &token :
        {Bool(true), Int32(1), UInt32(1), Int64(1), UInt64(1), Double(1.0), Bare(ValueTag::None),
            Bare(ValueTag::End), Bare(ValueTag::ArrayBegin), Bare(ValueTag::ObjectBegin)}) {
        std::string_view out = "before";
        EXPECT_FALSE(TokenToKey(token, out));
        EXPECT_EQ(out, "before");
    }
}

} // namespace
