#pragma once

#include <filesystem>

/// A new folder in which SDL keeps the user's files while this lives, so that a person's own are neither read
/// nor written. It goes with everything in it.
class TemporaryHome {
public:
    TemporaryHome();
    ~TemporaryHome();
    TemporaryHome(const TemporaryHome &) = delete;
    TemporaryHome &operator=(const TemporaryHome &) = delete;

    /// Where a file of the game lies in it.
    std::filesystem::path FilePath(const char *Name) const;

private:
    std::filesystem::path Folder;
};
