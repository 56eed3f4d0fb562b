#pragma once

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <array>
#include <filesystem>

// What can stand in the place of a file and is none. Whoever opens a pipe waits for somebody at its other
// end.

/// A kind of what is no file, and how it is made.
struct SpecialFile {
    const char *Kind;
    void (*Make)(const std::filesystem::path &Path);
    bool CanBeRemoved = true; ///< by std::remove
};

// Windows has folders only: its pipes and devices lie in no folder, and MinGW's C++ library makes no links.
#ifdef _WIN32
inline constexpr bool LinksCanBeMade = false;
inline constexpr bool FoldersCanBeRemoved = false; ///< by std::remove
#else
inline constexpr bool LinksCanBeMade = true;
inline constexpr bool FoldersCanBeRemoved = true;

inline void MakePipe(const std::filesystem::path &Path) {
    std::filesystem::create_directories(Path.parent_path());
    EXPECT_EQ(mkfifo(Path.c_str(), 0600), 0);
}
#endif

inline constexpr std::array SpecialFiles{
    SpecialFile{"folder",
        [](const std::filesystem::path &Path) {
            std::filesystem::create_directory(Path);
        },
        FoldersCanBeRemoved},
    SpecialFile{"folder with something in it",
        [](const std::filesystem::path &Path) {
            std::filesystem::create_directories(Path / "kept");
        },
        false},
#ifndef _WIN32
    SpecialFile{"pipe", MakePipe},
    SpecialFile{"socket",
        [](const std::filesystem::path &Path) {
            EXPECT_EQ(mknod(Path.c_str(), S_IFSOCK | 0600, 0), 0);
        }},
    SpecialFile{"device that never ends",
        [](const std::filesystem::path &Path) {
            std::filesystem::create_symlink("/dev/zero", Path);
        }},
    SpecialFile{"device that is full",
        [](const std::filesystem::path &Path) {
            std::filesystem::create_symlink("/dev/full", Path);
        }},
    SpecialFile{"link to a pipe",
        [](const std::filesystem::path &Path) {
            const std::filesystem::path pipe = Path.parent_path() / "Pipe";
            if (!std::filesystem::exists(pipe)) {
                MakePipe(pipe);
            }
            std::filesystem::create_symlink(pipe, Path);
        }},
#endif
};

/// Whether there is still what was made there, and no file.
inline bool IsSpecialFile(const std::filesystem::path &Path) {
    return std::filesystem::exists(Path) && !std::filesystem::is_regular_file(Path);
}

/// Expects that what was made there is gone, if it can be removed, and clears the place.
inline void ExpectRemoved(const SpecialFile &Special, const std::filesystem::path &Path) {
    EXPECT_EQ(IsSpecialFile(Path), !Special.CanBeRemoved);
    std::filesystem::remove_all(Path);
}

/// Ends the test program if it lives longer than a minute: what waits for the other end of a pipe would do so
/// for ever. On Windows there is nothing to wait for.
class TimeLimit {
public:
    TimeLimit() {
        Ring(60);
    }
    ~TimeLimit() {
        Ring(0);
    }
    TimeLimit(const TimeLimit &) = delete;
    TimeLimit &operator=(const TimeLimit &) = delete;

private:
    /// In so many seconds; with 0 never.
    static void Ring([[maybe_unused]] unsigned Seconds) {
#ifndef _WIN32
        alarm(Seconds);
#endif
    }
};
