#pragma once

#include "tests/support/watch/SdlWatch.hpp"

#include <cstdio>

/// The functions of the C library that are watched, in the form of WATCHED_SDL_FUNCTIONS.
#define WATCHED_FILE_FUNCTIONS(NOTED, STEERED)                                                               \
    NOTED(2, fopen, OpenFile)                                                                                \
    STEERED(1, ftell, TellPosition)

/// Watches the calls that the code under test makes for its files. The test framework opens files as well: of
/// the calls to fopen only those for staging files are seen, and none to ftell is noted.
class StoreWatch : public SdlWatch {
public:
    WATCHED_FILE_FUNCTIONS(NOTED_FIELD, STEERED_FIELD)
};
