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
    constexpr float largestBelowOne = 0x1.fffffep-1F;
    // The conversion rounds the largest 128 outputs up to 2^32, which would make the end of the range part of
    // it.
    const float v = std::min(static_cast<float>(Draw(State)) * 0x1p-32F, largestBelowOne);
    return (B - A) * v + A;
}

std::uint32_t RandomIndex(GameState &State, std::uint32_t N) {
    std::uint64_t product = std::uint64_t{Draw(State)} * N;
    if (static_cast<std::uint32_t>(product) < N) {
        const std::uint32_t threshold = (0U - N) % N; // (2^32 - N) modulo N
        while (static_cast<std::uint32_t>(product) < threshold) {
            product = std::uint64_t{Draw(State)} * N;
        }
    }
    return static_cast<std::uint32_t>(product >> 32U);
}

std::array<std::int32_t, LaneCount> ShuffledLanes(GameState &State) {
    std::array<std::int32_t, LaneCount> lanes{0, 1, 2, 3, 4, 5, 6, 7, 8};
    for (std::uint32_t i = 1; i <= 7; i += 2) {
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
