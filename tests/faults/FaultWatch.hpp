#pragma once

#include "tests/audio/MixerWatch.hpp"

#include <cstdio>
#include <fstream>
#include <functional>
#include <span>
#include <string_view>

// How the linker knows the functions by which a file stream of the C++ library says whether it is open; which
// of them a build calls depends on what it compiles in place. They are here for their signatures alone.
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" bool _ZNSt14basic_ifstreamIcSt11char_traitsIcEE7is_openEv(std::ifstream *);
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" bool _ZNSt14basic_ofstreamIcSt11char_traitsIcEE7is_openEv(std::ofstream *);
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" std::filebuf *_ZNSt13basic_filebufIcSt11char_traitsIcEE4openEPKcSt13_Ios_Openmode(
    std::filebuf *, const char *, std::ios::openmode);

/// The functions of the C library and of file streams that are watched, in the form of WATCHED_SDL_FUNCTIONS.
#define WATCHED_LIBRARY_FUNCTIONS(STEERED)                                                                   \
    STEERED(2, fopen, OpenFile)                                                                              \
    STEERED(1, fclose, CloseFile)                                                                            \
    STEERED(4, fwrite, WriteFile)                                                                            \
    STEERED(3, fseek, SeekFile)                                                                              \
    STEERED(1, ftell, TellFile)                                                                              \
    STEERED(1, getc, ReadByte)                                                                               \
    STEERED(1, remove, RemoveFile)                                                                           \
    STEERED(1, _ZNSt14basic_ifstreamIcSt11char_traitsIcEE7is_openEv, IsOpenToRead)                           \
    STEERED(1, _ZNSt14basic_ofstreamIcSt11char_traitsIcEE7is_openEv, IsOpenToWrite)                          \
    STEERED(3, _ZNSt13basic_filebufIcSt11char_traitsIcEE4openEPKcSt13_Ios_Openmode, OpenStream)

/// Watches every call of the game that can fail, and knows how each fails.
class FaultWatch : public MixerWatch {
public:
    FaultWatch();

    WATCHED_LIBRARY_FUNCTIONS(STEERED_FIELD)
};

/// One field of the watch, whatever its signature.
struct WatchedEntry {
    std::string_view Name;

    /// Has Act run at the beginning of each call.
    void (*OnCall)(FaultWatch &Watch, const std::function<void()> &Act);

    /// Whether the function has a result, so that it can fail.
    bool CanFail;

    /// Lets calls fail, as SteeredCall::Refuse does. Nothing for a function that cannot.
    void (*Refuse)(FaultWatch &Watch, int Times, int After);
};

/// All fields of the watch.
std::span<const WatchedEntry> WatchedEntries();

/// The entry of a function. Throws std::logic_error if it is not watched.
const WatchedEntry &EntryOf(std::string_view Function);
