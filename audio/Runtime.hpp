#pragma once

#include "audio/MusicRuntime.hpp"

struct GameState;

/// Opens the mixer, synthesises the sounds and loads the music. False after a log line if there is no audio;
/// then everything is taken down again, and the game runs silent. A missing sound, voice or piece of music is
/// logged and done without.
bool InitMusicRuntime(const GameState &State, MusicRuntime &Runtime);

/// Takes down whatever there is, after fading the music out if FadeOut is set. That waits, at most a quarter
/// of a second longer than the fade.
void ShutdownMusicRuntime(MusicRuntime &Runtime, bool FadeOut);
