#pragma once

#include "audio/MusicRuntime.hpp"

// The first menu music of a run of the program rises to its gain.

/// Starts the fade, unless it has no length.
void BeginStartupFade(MusicRuntime &Runtime);

/// Brings a running fade on.
void UpdateStartupFade(MusicRuntime &Runtime);
