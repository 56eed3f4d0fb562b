#pragma once

#include "audio/MusicRuntime.hpp"

#include <cstdint>

struct GameState;

/// The master volume times the music's volume, in percent, 0 to 100; 0 while music is switched off.
std::int32_t EffectiveMusicGain(const GameState &State);

/// The same for the sounds.
std::int32_t EffectiveSfxGain(const GameState &State);

/// A percentage as a track's gain, 0 to 1; one outside of 0 to 100 counts as the nearest in it.
float TrackGain(std::int32_t Percent);

/// Sets *Player.GainPercent on the player's track. False as MIX_SetTrackGain says; true if there is no track,
/// and only then GainPercent may be null.
bool ApplyMusicGain(const MusicPlayer &Player);

/// Sets a gain of 0 to 1 on every voice; a refusal of the mixer is logged.
void ApplySfxGain(const MusicRuntime &Runtime, float Gain);
