#pragma once

#include "audio/SfxRecipes.hpp"

#include <SDL3_mixer/SDL_mixer.h>

#include <vector>

/// The samples of a sound at a rate in Hz, interleaved for a number of channels: a sine with a short rise and
/// fall, so that it does not click. All in single precision. Rate times Duration is at least 1000.
std::vector<float> SfxSamples(const SfxRecipe &Recipe, int Rate, int Channels);

/// Makes a sound for the mixer at the mixer's own rate; where that cannot be, a plain sine of the mixer's.
/// Null after a log line if neither works.
MIX_Audio *SynthesiseSfx(MIX_Mixer *Mixer, const SfxRecipe &Recipe);
