#include "tests/audio/MixerWatch.hpp"

#define MIXER_STAND_IN(Count, Function, Field) STAND_IN_##Count(MixerWatch, Function, Field)

WATCHED_MIXER_FUNCTIONS(MIXER_STAND_IN)
