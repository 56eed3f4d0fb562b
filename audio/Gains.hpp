#pragma once

#include "audio/MusicRuntime.hpp"

#include <cstdint>

struct GameState;

// Gains in percent, 0 to 100, as the options have them: the master volume times a volume of its own.

/// 0 while music is switched off.
std::int32_t EffectiveMusicGain(const GameState &State);
/// 0 while effects are switched off.
std::int32_t EffectiveSfxGain(const GameState &State);

/// A percentage as a track's gain, 0 to 1.
float TrackGain(std::int32_t Percent);

/// Sets the player's gain on its track. False as MIX_SetTrackGain says; true if there is no track.
bool ApplyMusicGain(const MusicPlayer &Player);

/// Sets a gain of 0 to 1 on every voice; one that refuses is logged.
void ApplySfxGain(const MusicRuntime &Runtime, float Gain);
