#pragma once

// The y, in logical pixels, at which things enter the road, and past which they leave it: what is exactly at
// its line stays.

inline constexpr float EnemySpawnY = -20.0F;
inline constexpr float ObstacleSpawnY = -24.0F;
inline constexpr float ItemSpawnY = -18.0F;

inline constexpr float BulletLeaveY = -20.0F;
inline constexpr float EnemyBulletLeaveY = 740.0F;
inline constexpr float ItemLeaveY = 744.0F;
inline constexpr float EnemyLeaveY = 745.0F;
inline constexpr float ObstacleLeaveY = 748.0F;
