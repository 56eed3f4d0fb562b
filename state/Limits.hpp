#pragma once

#include <cstdint>

// What a run starts with, what a player can hold, and where things enter and leave the road (y in logical
// pixels).

constexpr std::int32_t StartHp = 100;
constexpr std::int32_t StartStocks = 2;
constexpr std::int32_t MaxStocks = 5;
constexpr std::int32_t StartBombs = 3;
constexpr std::int32_t MaxBombs = 3;
constexpr std::int32_t StartFirstAidKits = 0;
constexpr std::int32_t MaxFirstAidKits = 3;
constexpr float MaxAmmo = 100.0F;

constexpr float FirstObstacleSeconds = 2.8F; ///< until the first one of a run, scaled by the road speed
constexpr float FirstItemSeconds = 6.0F;

constexpr float PlayerY = 670.0F;
constexpr float PlayerRadius = 12.0F;

constexpr float HitFlashSeconds = 0.12F; ///< of a thing that was shot; drawn strongest at that much or more

constexpr float EnemySpawnY = -20.0F;
constexpr float ObstacleSpawnY = -24.0F;
constexpr float ItemSpawnY = -18.0F;
constexpr float BulletLeaveY = -20.0F; ///< what is exactly at its line stays
constexpr float EnemyBulletLeaveY = 740.0F;
constexpr float ItemLeaveY = 744.0F;
constexpr float EnemyLeaveY = 745.0F;
constexpr float ObstacleLeaveY = 748.0F;
