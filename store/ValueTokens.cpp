#include "store/ValueStream.hpp"

#include "state/Numbers.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// The nearest whole number, half away from zero; INT32_MIN or INT32_MAX for one beyond them.
std::int32_t RoundToInt32(double Value) {
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(RoundToWhole(Value), lowest, highest));
}

/// The nearest float, but an infinity for all beyond FLT_MAX, where C++ leaves the conversion undefined.
float NarrowToFloat(double Value) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    if (std::abs(Value) > static_cast<double>(std::numeric_limits<float>::max())) {
        return Value < 0.0 ? -infinity : infinity;
    }
    return static_cast<float>(Value);
}

/// A token's value if it has that type, otherwise null.
template <typename Type> const Type *ValueOf(const ValueToken &Token) {
    return std::get_if<Type>(&Token.Value);
}

} // namespace

bool TokenToKey(const ValueToken &Token, std::string_view &Out) {
    if (const auto *text = ValueOf<std::string_view>(Token)) {
        Out = *text;
        return true;
    }
    return false;
}

bool TokenToInt32(const ValueToken &Token, std::int32_t &Out) {
    if (const auto *number = ValueOf<double>(Token)) {
        if (!std::isfinite(*number)) {
            return false;
        }
        Out = RoundToInt32(*number);
        return true;
    }
    std::int64_t whole = 0;
    if (!TokenToInt64(Token, whole)) {
        return false;
    }
    Out = static_cast<std::int32_t>(static_cast<std::uint32_t>(whole));
    return true;
}

bool TokenToBool(const ValueToken &Token, bool &Out) {
    if (const auto *flag = ValueOf<bool>(Token)) {
        Out = *flag;
        return true;
    }
    std::int32_t number = 0;
    if (!TokenToInt32(Token, number)) {
        return false;
    }
    Out = number != 0;
    return true;
}

bool TokenToInt64(const ValueToken &Token, std::int64_t &Out) {
    if (const auto *number = ValueOf<std::int64_t>(Token)) {
        Out = *number;
    } else if (const auto *large = ValueOf<std::uint64_t>(Token)) {
        Out = static_cast<std::int64_t>(*large);
    } else if (const auto *small = ValueOf<std::int32_t>(Token)) {
        Out = *small;
    } else if (const auto *positive = ValueOf<std::uint32_t>(Token)) {
        Out = *positive;
    } else {
        return false;
    }
    return true;
}

bool TokenToFloat(const ValueToken &Token, float &Out) {
    if (const auto *number = ValueOf<double>(Token)) {
        Out = NarrowToFloat(*number);
        return true;
    }
    std::int32_t whole = 0;
    if (!TokenToInt32(Token, whole)) {
        return false;
    }
    Out = static_cast<float>(whole);
    return true;
}
