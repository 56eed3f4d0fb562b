#pragma once

#include "tests/support/TemporaryHome.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// While it lives, this is the folder that the program finds its data in, by title storage and by path. Only
/// one lives at a time. The user's files are in a new folder as well.
class ProgramFolder {
    TemporaryHome Home; // the folder lies in it

public:
    /// A new folder with nothing in it, which goes at the end.
    ProgramFolder();

    /// A folder that there is, as SHIPPED_DATA, where the files lie that ship with the game.
    explicit ProgramFolder(const std::filesystem::path &Existing);

    ~ProgramFolder();
    ProgramFolder(const ProgramFolder &) = delete;
    ProgramFolder &operator=(const ProgramFolder &) = delete;

    /// Writes a file, in place of an older one. Only into a folder of its own.
    void Write(const std::string &Name, std::string_view Bytes) const;

    /// Deletes a file.
    void Remove(const std::string &Name) const;

    std::string Path; ///< ends in a separator

    std::vector<std::string> FilesRead; ///< out of title storage, in that order
};
