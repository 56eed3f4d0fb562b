#pragma once

#include <SDL3/SDL.h>

struct Program;

/// The longest step that the simulation ever sees, in seconds: a slower machine plays in slow motion.
inline constexpr float MaxDeltaSeconds = 0.033F;

/// The least time between the tops of two frames without active vertical sync.
inline constexpr Uint64 MinFrameMilliseconds = 8;

/// The credits' speed in logical pixels a second.
inline constexpr float CreditsScrollSpeed = 42.0F;

/// The seconds between two ticks in milliseconds, at most MaxDeltaSeconds.
float DeltaSecondsBetween(Uint64 LastFrameTicks, Uint64 Now);

/// Runs one frame: events, saving, simulation, drawing, and the pause that keeps the pace.
void RunFrame(Program &Program);
