#pragma once

#include "audio/MusicRuntime.hpp"

#include <cstdint>
#include <string_view>

struct GameState;

// Moves the music track to the pattern that the game wants to hear: at the end of the playing pattern's loop,
// and at once for a few changes of screen. There is no crossfade.

/// Looks at the game once a frame, on every screen: follows its volumes, then the music that it wants. A
/// failure is logged and tried again. Does nothing before InitMusicRuntime.
void UpdateMusicRuntime(const GameState &State, MusicRuntime &Runtime);

/// Starts a pattern as an endless loop that rises from silence in FadeInMs; 0 starts it at its gain, as the
/// game always does: the menu's rise at the start of the program is StartupFade's. False without a pattern or
/// a track, and if the mixer refuses; then Player stays as it was, its track may not.
bool PlayMusicPattern(MusicPlayer &Player, const MusicPattern *Pattern, std::int32_t FadeInMs);

/// Asks UpdateMusicRuntime for a pattern at the next opportunity. Throws std::runtime_error, whose message is
/// to be logged, if there is none of that name; then nothing is asked for.
void RequestMusicPattern(MusicPlayer &Player, std::string_view Name);
