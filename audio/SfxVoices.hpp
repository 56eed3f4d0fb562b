#pragma once

#include "audio/MusicRuntime.hpp"

struct GameState;

/// Adds twelve voices to the pool. A voice that cannot be had is logged and left out.
void CreateSfxTracks(MusicRuntime &Runtime);

/// Destroys the voices and empties the pool.
void DestroySfxTracks(MusicRuntime &Runtime);

/// Plays the sounds of State.PendingSounds, each on a voice of its own, and empties that queue even where
/// nothing can play. With every voice busy the one whose turn it is, round and round, is cut off. A sound
/// that the mixer refuses is logged and lost.
void PlayQueuedSfx(GameState &State, MusicRuntime &Runtime);
