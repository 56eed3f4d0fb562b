#pragma once

#include "audio/MusicRuntime.hpp"

struct GameState;

/// Opens the mixer, synthesises the sounds and loads the music. False after a log line if there is no audio;
/// then everything is taken down again, and the calls of a frame play nothing. A missing sound, voice or
/// piece of music is logged and done without. Runtime is new or was shut down.
bool InitMusicRuntime(const GameState &State, MusicRuntime &Runtime);

/// Takes down whatever there is; a second call does nothing. With FadeOut it first fades playing music out,
/// and waits for that, at most FadeOutMs and a quarter of a second.
void ShutdownMusicRuntime(MusicRuntime &Runtime, bool FadeOut);
