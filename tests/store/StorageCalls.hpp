#pragma once

#include <SDL3/SDL.h>

#include <string>

/// While it lives, the calls that the code under test makes for its files can be made to fail, and title
/// storage and the program's folder are folders of the test. Only one lives at a time. Calls are noted by a
/// living SdlWatch as well, which can refuse them by name.
class StorageCalls {
public:
    StorageCalls();
    ~StorageCalls();
    StorageCalls(const StorageCalls &) = delete;
    StorageCalls &operator=(const StorageCalls &) = delete;

    /// For the watched calls themselves: counts one that can fail and tells whether this one is to.
    static bool Strikes(const char *Function);

    /// The living one, or null.
    static StorageCalls *Living();

    /// From now on the call of this number fails, counted from 1 and from now; for 0 none. A storage that is
    /// once not ready stays so, for else it would be waited for.
    void FailOnly(int Number);

    std::string FailedCall; ///< the name of the one that was made to fail; empty if it never came to that
    bool IsNeverReady = false;
    Uint64 ClockStep = 0; ///< milliseconds that each look at the clock adds to the time
    Uint64 AddedTime = 0;
    bool IsTellRefused = false;                ///< whether a file's size cannot be told
    SDL_PathType ToldType = SDL_PATHTYPE_NONE; ///< what a file of the storage is said to be, if not none
    std::string TitleFolder;                   ///< what title storage is opened on
    bool IsTitleAsked = false; ///< whether title storage was opened with a folder or properties of its own
    const char *BaseFolder = nullptr; ///< what the program's folder is said to be, if IsBaseGiven
    bool IsBaseGiven = false;
    const char *PrefFolder = nullptr; ///< what the preferences folder is said to be, if not null
    bool WasWritten = false;          ///< the result of the last write into storage

private:
    int FailingCall = 0;
    int Count = 0;
};
