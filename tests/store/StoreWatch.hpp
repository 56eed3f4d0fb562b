#pragma once

#include "tests/support/watch/SdlWatch.hpp"

#include <cstdio>

/// The functions of the C library that are watched, in the form of WATCHED_SDL_FUNCTIONS.
#define WATCHED_FILE_FUNCTIONS(NOTED, STEERED)                                                               \
    NOTED(2, fopen, OpenFile)                                                                                \
    STEERED(4, fwrite, WriteToFile)                                                                          \
    STEERED(1, fclose, CloseFile)                                                                            \
    STEERED(3, fseek, SeekPosition)                                                                          \
    STEERED(1, ftell, TellPosition)

/// Watches the calls that the code under test makes for its files. The test framework opens files as well: of
/// the calls to fopen, fwrite and fclose only those for the save state's staging file are seen, and none to
/// fseek and ftell is noted.
class StoreWatch : public SdlWatch {
public:
// Some C libraries say that a pointer is not null, which is no part of a signature.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-attributes"
    WATCHED_FILE_FUNCTIONS(NOTED_FIELD, STEERED_FIELD)
#pragma GCC diagnostic pop
};
