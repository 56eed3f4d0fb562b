#pragma once

#include <cstdint>

// What depends on the stage number, 1 or more. Speeds are logical pixels a second at a road speed scale of 1.

/// What the time between two enemies is multiplied with: 1 in stage 1, down to 0.45 from stage 14 on.
float EnemyIntervalFactor(std::int32_t Stage);

/// What the time between two obstacles is multiplied with: 3.04 in stage 1, down to 1.45 from stage 11 on.
float ObstacleIntervalFactor(std::int32_t Stage);

/// What an enemy's reload time is multiplied with: 1 in stage 1, down to 0.88 from stage 6 on.
float ReloadFactor(std::int32_t Stage);

float LightEnemySpeed(std::int32_t Stage);
float HeavyEnemySpeed(std::int32_t Stage);
float ObstacleSpeed(std::int32_t Stage);
float ItemSpeed(std::int32_t Stage);

/// A shot's own speed, whatever the road's.
float EnemyShotSpeed(std::int32_t Stage);
