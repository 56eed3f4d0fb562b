#pragma once

#include "tests/support/EnvironmentScope.hpp"
#include "tools/support/TemporaryFolder.hpp"

#include <filesystem>
#include <string>
#include <string_view>

/// A new folder in which SDL keeps the user's files while this lives, so that a person's own are neither read
/// nor written (RoamingFolder.cpp has SDL find it on Windows, too). It goes with everything in it, and what
/// was told of a home before is told again.
class TemporaryHome {
public:
    /// Where a file of the game lies in it, by a name in UTF-8.
    std::filesystem::path FilePath(std::string_view Name) const {
        return Folder.Path() / "Orrin" / "KestrelVolley" / std::u8string(Name.begin(), Name.end());
    }

private:
    TemporaryFolder Folder;
    EnvironmentScope DataHome{"XDG_DATA_HOME", Folder.Path().string()};
};
