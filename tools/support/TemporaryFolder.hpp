#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#ifdef _WIN32
#include <random>
#endif

// For every program beside the game: tools, tests, benchmarks and fuzz targets.

/// A new, empty folder of one's own, which goes with everything in it when this record goes.
class TemporaryFolder {
public:
    /// Throws std::runtime_error if the system gives no folder.
    TemporaryFolder() {
        const std::filesystem::path pattern =
            std::filesystem::temp_directory_path() / "kestrel-volley-XXXXXX";
        Folder = Make(pattern);
        if (Folder.empty()) {
            throw std::runtime_error("No temporary folder could be made as " + pattern.string());
        }
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
    /// The pattern with other letters for its last six; empty if there can be no such folder.
    static std::filesystem::path Make(const std::filesystem::path &Pattern) {
#ifdef _WIN32
        std::random_device draw;
        std::error_code failed;
        for (int attempt = 0; attempt < 100; ++attempt) {
            const std::string letters = std::to_string(100000 + draw() % 900000);
            std::filesystem::path folder = Pattern.parent_path() / ("kestrel-volley-" + letters);
            if (std::filesystem::create_directory(folder, failed)) {
                return folder;
            }
        }
        return {};
#else
        std::string name = Pattern.string();
        return mkdtemp(name.data()) == nullptr ? std::filesystem::path() : std::filesystem::path(name);
#endif
    }

    std::filesystem::path Folder;
};
