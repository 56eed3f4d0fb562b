#pragma once

#include <cstdint>

// The lanes of the road, what a run starts with, and the most that a player can hold.

/// Lanes are numbered 0 to 8 from the left. The player starts in the middle one, also after a lost life.
inline constexpr std::int32_t LaneCount = 9;
inline constexpr std::int32_t MiddleLane = LaneCount / 2;

/// Where the player's car is and how large its circle, in logical pixels.
inline constexpr float PlayerY = 670.0F;
inline constexpr float PlayerRadius = 12.0F;

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

/// Until the first obstacle and the first item of a run, in seconds scaled by the road speed.
inline constexpr float FirstObstacleSeconds = 2.8F;
inline constexpr float FirstItemSeconds = 6.0F;
