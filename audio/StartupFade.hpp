#pragma once

#include "audio/MusicRuntime.hpp"

// The menu's music that begins with the program rises to its gain, from 28 percent of it, in FadeInMs.

/// Starts the fade, unless FadeInMs is 0. A refusal of the mixer is logged and ends it.
void BeginStartupFade(MusicRuntime &Runtime);

/// Gives the track, if it plays, the gain that a running fade has reached. A refusal is logged and ends it.
void UpdateStartupFade(MusicRuntime &Runtime);
