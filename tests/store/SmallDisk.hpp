#pragma once

#include <filesystem>

/// A file system of a few pages in memory over a folder, for as long as it lives and for this process alone.
/// Only a privileged user of Linux can have one.
class SmallDisk {
public:
    SmallDisk(std::filesystem::path Folder, int Kilobytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    /// Takes up all of the room but this much.
    void FillUpTo(int KilobytesLeft) const;

    void MakeReadOnly() const;

    bool IsThere = false;

private:
    std::filesystem::path Place;
};
