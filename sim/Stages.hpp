#pragma once

#include <cstdint>

struct GameState;

inline constexpr float StageSeconds = 26.0F;

/// The road speed that a stage eases towards, in logical pixels a second. The table repeats from stage 10 on.
float TargetScrollSpeed(std::int32_t Stage);

/// Whether a stage crosses water.
bool IsWaterStage(std::int32_t Stage);

/// The scenery of a stage: 0 earth, 1 water, 2 dirt, 3 grass.
std::int32_t StageThemeOf(std::int32_t Stage);

/// The stage at a time driven, in seconds; 1 or more.
std::int32_t StageAt(float GameTime);

/// Enters a stage: remembers the old one for the scenery's seam, pays the spare lives of every fifth stage
/// and lets the water flow.
void StartStage(GameState &State, std::int32_t NewStage);
