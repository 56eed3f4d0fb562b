#include "sim/Random.hpp"

#include "state/GameState.hpp"

#include <algorithm>
#include <utility>

namespace {

std::uint32_t Draw(GameState &State) {
    return static_cast<std::uint32_t>(State.Rng());
}

} // namespace

float RandomFloat(GameState &State, float A, float B) {
    // The conversion rounds the largest 128 outputs up to 2^32, which would make v 1 and the result B.
    constexpr float largestBelowOne = 0x1.fffffep-1F;
    const float v = std::min(static_cast<float>(Draw(State)) * 0x1p-32F, largestBelowOne);
    return (B - A) * v + A;
}

// Lemire's multiply and shift with rejection: the result is the high half of an output times N. 2^32 modulo N
// results would have one output more than the others; an output whose product has a low half below that
// number is drawn again, which leaves each result the same number of outputs. The first comparison only
// spares the division: that number is below N.
std::uint32_t RandomIndex(GameState &State, std::uint32_t N) {
    std::uint64_t product = std::uint64_t{Draw(State)} * N;
    if (static_cast<std::uint32_t>(product) < N) {
        const std::uint32_t threshold = (0U - N) % N; // 2^32 modulo N, for 0U - N wraps to 2^32 - N
        while (static_cast<std::uint32_t>(product) < threshold) {
            product = std::uint64_t{Draw(State)} * N;
        }
    }
    return static_cast<std::uint32_t>(product >> 32U);
}

LaneOrder ShuffledLanes(GameState &State) {
    LaneOrder lanes = LanesFromLeft;
    static_assert(LaneCount % 2 == 1, "lanes are swapped in pairs, but for the first");
    for (std::uint32_t i = 1; i < LaneCount; i += 2) {
        // One draw serves two swaps: its quotient picks among the first i + 1, its remainder among i + 2.
        const std::uint32_t b = i + 2;
        const std::uint32_t x = RandomIndex(State, (i + 1) * b);
        std::swap(lanes[i], lanes[x / b]);
        std::swap(lanes[i + 1], lanes[x % b]);
    }
    return lanes;
}

std::int32_t RandomFlowDirection(GameState &State) {
    return RandomIndex(State, 2) == 0 ? -1 : 1;
}
