#include "sim/Score.hpp"

#include "state/GameState.hpp"
#include "state/Numbers.hpp"

#include <algorithm>
#include <limits>

std::int64_t ScoreForStage(std::int32_t BasePoints, std::int32_t Stage) {
    if (BasePoints <= 0) {
        return 0;
    }
    const float multiplier = std::min(1.0F + static_cast<float>(std::max(Stage, 1) - 1) * 0.06F, 2.5F);
    const float rounded = RoundToWhole(static_cast<float>(BasePoints) * multiplier);
    return static_cast<std::int64_t>(std::max(rounded, 1.0F));
}

void AddScore(GameState &State, std::int32_t BasePoints) {
    const std::int64_t room = std::numeric_limits<std::int64_t>::max() - State.Score;
    State.Score += std::min(ScoreForStage(BasePoints, State.Stage), room);
}
