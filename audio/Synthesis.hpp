#pragma once

#include "audio/MusicRuntime.hpp"
#include "audio/SfxRecipes.hpp"

#include <SDL3_mixer/SDL_mixer.h>

#include <vector>

/// The samples of a sound at a rate in Hz, from -1 to 1, interleaved for one or more channels: a sine with a
/// short rise and fall, so that it does not click. Computed in single precision. Rate times the recipe's
/// duration is at least 1000, which gives one frame.
std::vector<float> SfxSamples(const SfxRecipe &Recipe, int Rate, int Channels);

/// Makes a sound at the mixer's own rate; where that cannot be, the mixer's own sine without rise and fall.
/// The caller owns it and destroys it before the mixer. Null after a log line if neither works.
MIX_Audio *SynthesiseSfx(MIX_Mixer *Mixer, const SfxRecipe &Recipe);

/// Makes all sounds on the runtime's mixer. The entries that it fills are null before.
void CreateSfxAudio(MusicRuntime &Runtime);

/// Destroys the sounds; their entries become null.
void DestroySfxAudio(MusicRuntime &Runtime);
