#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

// For every program beside the game: tools, tests, benchmarks and fuzz targets.

/// A new, empty folder of one's own, which goes with everything in it when this record goes.
class TemporaryFolder {
public:
    /// Throws std::runtime_error if the system gives no folder.
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "kestrel-volley-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("No temporary folder could be made as " + pattern);
        }
        Folder = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(Folder, ignored);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::filesystem::path &Path() const {
        return Folder;
    }

private:
    std::filesystem::path Folder;
};
