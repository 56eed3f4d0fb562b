#include "tests/support/watch/SdlWatch.hpp"

#define SDL_STAND_IN(Count, Function, Field) STAND_IN_##Count(SdlWatch, Function, Field)

WATCHED_SDL_FUNCTIONS(SDL_STAND_IN, SDL_STAND_IN)
