#include "state/Numbers.hpp"

#include <cmath>
#include <limits>

std::int32_t TruncateToInt(float Value) {
    constexpr float limit = 2147483648.0F;
    if (std::isnan(Value)) {
        return 0;
    }
    if (Value >= limit) {
        return std::numeric_limits<std::int32_t>::max();
    }
    if (Value <= -limit) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(Value);
}

std::int32_t RoundToInt(float Value) {
    return TruncateToInt(RoundToWhole(Value));
}

std::int32_t FloorModulo(float Value, std::int32_t Size) {
    const std::int32_t remainder = TruncateToInt(std::fmod(std::floor(Value), static_cast<float>(Size)));
    return remainder < 0 ? remainder + Size : remainder;
}
