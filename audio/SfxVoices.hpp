#pragma once

#include "audio/MusicRuntime.hpp"

struct GameState;

/// Fills the pool of voices, at most twelve. A voice that cannot be had is logged and left out.
void CreateSfxTracks(MusicRuntime &Runtime);

/// Destroys the voices and the sounds.
void DestroySfxTracks(MusicRuntime &Runtime);
void DestroySfxAudio(MusicRuntime &Runtime);

/// Plays the sounds that this frame asked for, each on a voice of its own, and empties the queue even where
/// nothing can play. With every voice busy the oldest in round-robin order is cut off.
void PlayQueuedSfx(GameState &State, MusicRuntime &Runtime);
