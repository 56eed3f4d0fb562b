#pragma once

#include <cstdint>

struct GameState;

/// The points that a base value pays in a stage: 6% more for each stage after the first, at most two and a
/// half times, rounded. 0 for a base value of 0 or less, otherwise at least 1. A stage below 1 counts as the
/// first.
std::int64_t ScoreForStage(std::int32_t BasePoints, std::int32_t Stage);

/// Adds what a base value pays in the run's present stage to its score, which stops at the largest number
/// that it can hold.
void AddScore(GameState &State, std::int32_t BasePoints);
