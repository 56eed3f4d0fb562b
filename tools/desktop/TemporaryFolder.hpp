#pragma once

#include <filesystem>

// A new, empty folder of one's own, which goes with everything in it when this record goes.
class TemporaryFolder {
public:
    // Throws std::runtime_error if the system gives no folder.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::filesystem::path &Path() const;

private:
    std::filesystem::path Folder;
};
