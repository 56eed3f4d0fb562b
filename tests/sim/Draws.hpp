#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <utility>

/// The draws of a run, worked out a second time from a copy of its generator. A test takes from it what the
/// game is expected to take, in that order, and compares values and, with IsAt, how many were taken.
class Draws {
public:
    explicit Draws(std::uint32_t Seed) : Engine(Seed) {}

    /// In [0, 1).
    float Unit() {
        const float v = static_cast<float>(Next()) / 4294967296.0F;
        return v < 1.0F ? v : 0.99999994F;
    }

    float Between(float A, float B) {
        return A + (B - A) * Unit();
    }

    /// 0 to N - 1.
    std::uint32_t Index(std::uint32_t N) {
        const std::uint64_t outputs = 4294967296U;
        std::uint64_t product = Next() * N;
        while (product % outputs < outputs % N) {
            product = Next() * N;
        }
        return static_cast<std::uint32_t>(product / outputs);
    }

    std::array<std::int32_t, 9> Lanes() {
        std::array<std::int32_t, 9> lanes{0, 1, 2, 3, 4, 5, 6, 7, 8};
        const std::uint32_t first = Index(2 * 3);
        std::swap(lanes[1], lanes[first / 3]);
        std::swap(lanes[2], lanes[first % 3]);
        const std::uint32_t second = Index(4 * 5);
        std::swap(lanes[3], lanes[second / 5]);
        std::swap(lanes[4], lanes[second % 5]);
        const std::uint32_t third = Index(6 * 7);
        std::swap(lanes[5], lanes[third / 7]);
        std::swap(lanes[6], lanes[third % 7]);
        const std::uint32_t fourth = Index(8 * 9);
        std::swap(lanes[7], lanes[fourth / 9]);
        std::swap(lanes[8], lanes[fourth % 9]);
        return lanes;
    }

    /// Whether a generator has given as many numbers as were taken here.
    [[nodiscard]] bool IsAt(const std::mt19937 &Rng) const {
        return Engine == Rng;
    }

private:
    std::uint64_t Next() {
        return Engine();
    }

    std::mt19937 Engine;
};

/// The first seed whose draws are as wished; Wish takes them by value.
template <typename Wish> std::uint32_t SeedWhere(Wish Wished) {
    std::uint32_t seed = 1;
    while (!Wished(Draws(seed))) {
        ++seed;
    }
    return seed;
}
