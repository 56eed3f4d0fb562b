#pragma once

#include <cstdint>

struct GameState;

inline constexpr float StageSeconds = 26.0F;

/// What a stage looks like.
enum StageTheme : std::int32_t {
    StageThemeEarth = 0,
    StageThemeWater = 1,
    StageThemeDirt = 2,
    StageThemeGrass = 3,
};

// Stages are numbered from 1; a number below 1 counts as the first stage. From stage 10 on the nine repeat.

/// The road speed that a stage eases towards, in logical pixels a second.
float TargetScrollSpeed(std::int32_t Stage);

/// Whether a stage crosses water.
bool IsWaterStage(std::int32_t Stage);

/// The scenery of a stage.
StageTheme StageThemeOf(std::int32_t Stage);

/// The stage at a time driven, in seconds; 1 or more.
std::int32_t StageAt(float GameTime);

/// Enters a stage: remembers the old one and its flow for the change of scenery, gives the spare lives of
/// every fifth stage, and draws a flow direction where water begins.
void StartStage(GameState &State, std::int32_t NewStage);
