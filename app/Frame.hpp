#pragma once

#include <SDL3/SDL.h>

struct Program;

/// The longest step that the simulation ever sees, in seconds.
/// NOT-BUGS: A slow machine plays in slow motion
inline constexpr float MaxDeltaSeconds = 0.033F;

/// The least time between the beginnings of two frames without active vertical sync.
inline constexpr Uint64 MinFrameMilliseconds = 8;

/// The credits' speed in logical pixels a second.
inline constexpr float CreditsScrollSpeed = 42.0F;

/// The seconds between two ticks in milliseconds, the earlier one first; at most MaxDeltaSeconds.
float DeltaSecondsBetween(Uint64 LastFrameTicks, Uint64 Now);

/// Runs one frame: events, the options file, simulation, the save state, music and sounds, drawing, and the
/// pause that keeps the pace. Whether another one follows stands in Running.
void RunFrame(Program &Game);
