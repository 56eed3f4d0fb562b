#include "sim/Difficulty.hpp"

#include <algorithm>

namespace {

float StagesSinceFirst(std::int32_t Stage) {
    return static_cast<float>(Stage - 1);
}

} // namespace

float EnemyIntervalFactor(std::int32_t Stage) {
    return std::max(0.45F, 1.0F - StagesSinceFirst(Stage) * 0.045F);
}

float ObstacleIntervalFactor(std::int32_t Stage) {
    return std::max(1.45F, 3.2F - static_cast<float>(Stage) * 0.16F);
}

float ReloadFactor(std::int32_t Stage) {
    return std::clamp(1.0F - StagesSinceFirst(Stage) * 0.025F, 0.88F, 1.0F);
}

float LightEnemySpeed(std::int32_t Stage) {
    return 130.0F + 6.0F * StagesSinceFirst(Stage);
}

float HeavyEnemySpeed(std::int32_t Stage) {
    return 95.0F + 5.0F * StagesSinceFirst(Stage);
}

float ObstacleSpeed(std::int32_t Stage) {
    return 92.0F + 3.0F * static_cast<float>(Stage);
}

float ItemSpeed(std::int32_t Stage) {
    return 82.0F + 5.0F * static_cast<float>(Stage);
}

float EnemyShotSpeed(std::int32_t Stage) {
    return static_cast<float>(Stage) * 6.0F + 170.0F;
}
