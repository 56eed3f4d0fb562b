#pragma once

#include "tests/support/watch/SdlWatch.hpp"

#include <cstdio>

/// The functions of the C library that are watched, in the form of WATCHED_SDL_FUNCTIONS.
#define WATCHED_FILE_FUNCTIONS(NOTED)                                                                        \
    NOTED(2, fopen, OpenFile)                                                                                \
    NOTED(1, ftell, TellPosition)

/// Watches the calls that the code under test makes for its files. Of those to fopen only the staging files'
/// are seen, as the test framework opens files as well.
class StoreWatch : public SdlWatch {
public:
    WATCHED_FILE_FUNCTIONS(NOTED_FIELD)
};
