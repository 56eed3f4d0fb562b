#pragma once

#include "sim/StepInput.hpp"

#include <cstdint>

// The replay: a fixed seed, step length and list of inputs, from which every machine plays the same run.

inline constexpr std::uint32_t ReplaySeed = 20260101;
inline constexpr float ReplayStepSeconds = 1.0F / 120.0F;
inline constexpr int ReplaySteps = 24000;

/// What is held in a step, from 0 on: it changes every 8 steps, a direction being the most frequent.
inline StepInput ReplayInputAt(int Step) {
    const std::uint32_t mixed = (static_cast<std::uint32_t>(Step / 8) * 2654435761U) >> 16U;
    return {mixed % 5 == 0, mixed % 5 == 1, mixed % 3 != 0, mixed % 97 == 0};
}
