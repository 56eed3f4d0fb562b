#pragma once

#include "tests/support/TemporaryHome.hpp"
#include "tests/support/watch/SdlWatch.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// While it lives, a watch answers that the program finds its data in this folder, by title storage and by
/// path. The user's files are in a new folder as well.
class ProgramFolder {
    TemporaryHome Home; // the folder lies in it
    SdlWatch &Watch;

public:
    /// A new folder with nothing in it, which goes at the end.
    explicit ProgramFolder(SdlWatch &Answering);

    /// A folder that there is, as SHIPPED_DATA, where the files lie that ship with the game.
    ProgramFolder(SdlWatch &Answering, const std::filesystem::path &Existing);

    ~ProgramFolder();
    ProgramFolder(const ProgramFolder &) = delete;
    ProgramFolder &operator=(const ProgramFolder &) = delete;

    /// Writes a file, in place of an older one. Only into a folder of its own.
    void Write(const std::string &Name, std::string_view Bytes) const;

    /// Deletes a file. Throws std::runtime_error if there is none.
    void Remove(const std::string &Name) const;

    /// The files that were read out of title storage, in that order, since the watch last forgot its calls.
    std::vector<std::string> FilesRead() const;

    const std::string Path; ///< ends in a separator

private:
    void SetAnswers() const;
};
