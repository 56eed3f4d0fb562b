#pragma once

#include <cstdint>

// What a run starts with, what a player can hold, and where things enter and leave the road (y in logical
// pixels).

inline constexpr std::int32_t StartHp = 100;
inline constexpr std::int32_t StartStocks = 2;
inline constexpr std::int32_t MaxStocks = 5;
inline constexpr std::int32_t StartBombs = 3;
inline constexpr std::int32_t MaxBombs = 3;
inline constexpr std::int32_t StartFirstAidKits = 0;
inline constexpr std::int32_t MaxFirstAidKits = 3;
inline constexpr float MaxAmmo = 100.0F;

/// Road speed in the first stage, in logical pixels a second; the scale of all speeds is 1 there.
inline constexpr float FirstStageSpeed = 120.0F;

/// Until the first obstacle of a run, scaled by the road speed.
inline constexpr float FirstObstacleSeconds = 2.8F;
inline constexpr float FirstItemSeconds = 6.0F;

inline constexpr float PlayerY = 670.0F;
inline constexpr float PlayerRadius = 12.0F;

/// How long a thing that was shot flashes; it is drawn strongest at that much or more.
inline constexpr float HitFlashSeconds = 0.12F;

inline constexpr float EnemySpawnY = -20.0F;
inline constexpr float ObstacleSpawnY = -24.0F;
inline constexpr float ItemSpawnY = -18.0F;
// What is exactly at the line where it leaves stays.
inline constexpr float BulletLeaveY = -20.0F;
inline constexpr float EnemyBulletLeaveY = 740.0F;
inline constexpr float ItemLeaveY = 744.0F;
inline constexpr float EnemyLeaveY = 745.0F;
inline constexpr float ObstacleLeaveY = 748.0F;
