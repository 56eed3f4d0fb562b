#pragma once

#include "tools/support/TemporaryFolder.hpp"

#include <filesystem>
#include <optional>
#include <string>

// A home folder for the game that outlives sessions, so that one may find what was put there for it, or what
// an earlier one has left. It goes with everything in it when this record goes.
class PreparedHome {
public:
    // Puts a file with just that text into the game's own folder, where its options and its saved run lie.
    // Throws std::runtime_error if that fails.
    void Put(const std::string &Name, const std::string &Text) const;
    // The text of a file of that folder; nothing if there is no such file.
    std::optional<std::string> Read(const std::string &Name) const;

    const std::filesystem::path &Path() const;

private:
    std::filesystem::path FileOf(const std::string &Name) const;

    TemporaryFolder Folder;
};

// The folder in a home where programs keep their data, as the environment of a session names it.
inline constexpr const char *DataFolder = ".local-share";
