#pragma once

#include "store/Paths.hpp"
#include "store/Storage.hpp"

#include <cstdio>
#include <string>

/// A file of the user's storage and the name of the plain file through which it is read and written. The
/// plain file lives for one operation; one that a crash has left behind is overwritten and never read.
struct StagedFile {
    const char *Name;
    const char *StagingName;
};

/// Has WritePlainFile(path) write the plain file and hands that to the user's storage. False if any of it
/// fails.
template <typename WriteStep> bool WriteStagedFile(const StagedFile &File, WriteStep WritePlainFile) {
    const std::string staging = PrefFilePath(File.StagingName);
    if (staging.empty()) {
        return false;
    }
    const bool written = WritePlainFile(staging) && WriteUserStorageFile(File.Name, staging);
    std::remove(staging.c_str());
    return written;
}

/// Copies the file out of the user's storage and has ReadPlainFile(path) read it. False if there is none, or
/// if the reading gives false.
template <typename ReadStep> bool ReadStagedFile(const StagedFile &File, ReadStep ReadPlainFile) {
    const std::string staging = PrefFilePath(File.StagingName);
    const bool copied = !staging.empty() && CopyUserStorageFile(File.Name, staging);
    const bool read = copied && ReadPlainFile(staging);
    std::remove(staging.c_str());
    return read;
}
