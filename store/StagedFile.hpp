#pragma once

#include "store/Paths.hpp"
#include "store/Storage.hpp"

#include <cstdio>
#include <string>

/// Calls Use(path) with the path of a plain file in the preferences folder, and then removes the file. Use
/// writes it before it is read, so what a crash has left there is never read. False if there is no such
/// folder, otherwise what Use gives. If Use throws, the file stays.
template <typename Step> bool UseStagingFile(const char *StagingName, Step Use) {
    const std::string staging = PrefFilePath(StagingName);
    if (staging.empty()) {
        return false;
    }
    const bool done = Use(staging);
    // In UTF-8, which on Windows packaging/windows/kestrel-volley.manifest makes the C library's code page.
    std::remove(staging.c_str());
    return done;
}

/// A file of the user's storage and the name of the staging file through which it is read and written.
struct StagedFile {
    const char *Name;
    const char *StagingName;
};

/// Has WritePlainFile(path) write the staging file and hands that to the user's storage. False if any of it
/// fails.
template <typename WriteStep> bool WriteStagedFile(const StagedFile &File, WriteStep WritePlainFile) {
    return UseStagingFile(File.StagingName, [&](const std::string &Path) {
        return WritePlainFile(Path) && WriteUserStorageFile(File.Name, Path);
    });
}

/// Copies the file out of the user's storage and has ReadPlainFile(path) read the copy. False if there is
/// none, or if the reading gives false.
template <typename ReadStep> bool ReadStagedFile(const StagedFile &File, ReadStep ReadPlainFile) {
    return UseStagingFile(File.StagingName, [&](const std::string &Path) {
        return CopyUserStorageFile(File.Name, Path) && ReadPlainFile(Path);
    });
}
