#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

// Which room may include which. An arrow that is not here is a mistake in the code, or a change of the house
// that belongs into this table in the same commit.

namespace {

struct Room {
    std::string_view Name;
    std::vector<std::string_view> MayInclude; ///< other rooms, and "SDL3" and "SDL3_mixer"
};

const std::array<Room, 10> &Rooms() {
    static const std::array<Room, 10> rooms{{
        {"quillini", {}},
        {"state", {}},
        {"sim", {"state"}},
        {"store", {"state", "sim", "quillini", "SDL3"}},
        {"text", {"state", "store", "quillini", "SDL3"}},
        {"input", {"state", "text", "sim", "SDL3"}},
        {"options", {"state", "sim", "text", "SDL3"}},
        {"audio", {"state", "sim", "store", "quillini", "SDL3", "SDL3_mixer"}},
        {"gfx", {"state", "sim", "text", "input", "SDL3"}},
        {"app", {"quillini", "state", "sim", "store", "text", "input", "options", "audio", "gfx", "SDL3"}},
    }};
    return rooms;
}

/// The folder that an include names, as in "sim" of "sim/Lanes.hpp"; nothing for the standard library.
std::string FolderOfInclude(const std::string &Line) {
    static const std::regex pattern(R"(^\s*#\s*include\s*["<]([^"<>/]+)/)");
    std::smatch match;
    return std::regex_search(Line, match, pattern) ? match[1].str() : std::string();
}

bool Allows(const Room &Room, const std::string &Folder) {
    return Folder == Room.Name || std::ranges::find(Room.MayInclude, Folder) != Room.MayInclude.end();
}

bool IsSource(const std::filesystem::path &File) {
    return File.extension() == ".cpp" || File.extension() == ".hpp";
}

/// Every include of a room that the table does not allow, as "file: line".
std::vector<std::string> WrongIncludes(const Room &Room, int &FilesRead) {
    std::vector<std::string> wrong;
    const std::filesystem::path folder = std::filesystem::path(SOURCE_TREE) / Room.Name;
    if (!std::filesystem::exists(folder)) {
        return wrong;
    }
    for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!IsSource(entry.path())) {
            continue;
        }
        ++FilesRead;
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            const std::string included = FolderOfInclude(line);
            if (!included.empty() && !Allows(Room, included)) {
                wrong.push_back(entry.path().filename().string() + ": " + line);
            }
        }
    }
    return wrong;
}

} // namespace

TEST(Includes, OnlyArrowsOfTheTableAreDrawn) {
    int filesRead = 0;
    for (const Room &room : Rooms()) {
        EXPECT_EQ(WrongIncludes(room, filesRead), std::vector<std::string>{}) << "in " << room.Name;
    }
    EXPECT_GT(filesRead, 50) << "the rooms were not found";
}

TEST(Includes, NoTwoRoomsMayIncludeEachOther) {
    for (const Room &room : Rooms()) {
        for (const Room &other : Rooms()) {
            const bool both = room.Name != other.Name && Allows(room, std::string(other.Name)) &&
                              Allows(other, std::string(room.Name));
            EXPECT_FALSE(both) << room.Name << " and " << other.Name;
        }
    }
}

TEST(Includes, AForbiddenArrowIsSeen) {
    const Room &state = Rooms()[1];
    EXPECT_FALSE(Allows(state, FolderOfInclude("#include \"sim/Lanes.hpp\"")));
    EXPECT_FALSE(Allows(state, FolderOfInclude("#include <SDL3/SDL.h>")));
    EXPECT_TRUE(Allows(state, FolderOfInclude("#include \"state/Screen.hpp\"")));
    EXPECT_EQ(FolderOfInclude("#include <vector>"), "");
}
