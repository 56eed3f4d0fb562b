#include "tests/tree/SourceTree.hpp"

#include "tools/support/Files.hpp"

#include <algorithm>
#include <iterator>
#include <regex>
#include <sstream>

namespace {

bool IsSource(const std::filesystem::path &File) {
    return File.extension() == ".cpp" || File.extension() == ".hpp";
}

} // namespace

const std::filesystem::path &Tree() {
    static const std::filesystem::path tree(SOURCE_TREE);
    return tree;
}

Names AllMatches(const std::string &Text, const std::string &Pattern) {
    const std::regex pattern(Pattern, std::regex::ECMAScript | std::regex::multiline);
    Names found;
    for (std::sregex_iterator match(Text.begin(), Text.end(), pattern), end; match != end; ++match) {
        found.push_back((*match)[1].str());
    }
    return found;
}

Names FoldersOfTheBuild() {
    return AllMatches(ReadBytes(Tree() / "CMakeLists.txt"), R"(^\s*add_subdirectory\(([^)\s]+)\))");
}

std::vector<Room> DeclaredRooms(const std::string &CMakeText) {
    const std::string code = std::regex_replace(CMakeText, std::regex("#[^\n]*"), "");
    std::vector<Room> rooms;
    for (const std::string &arguments : AllMatches(code, R"(\bkestrel_room\s*\(([^)]*)\))")) {
        std::istringstream words(arguments);
        Room room;
        words >> room.Name;
        for (std::string link; words >> link;) {
            room.Links.push_back(link.substr(0, link.find("::")));
        }
        rooms.push_back(room);
    }
    return rooms;
}

const std::vector<Room> &Rooms() {
    static const std::vector<Room> rooms = [] {
        std::vector<Room> found;
        for (const std::string &folder : FoldersOfTheBuild()) {
            std::ranges::copy(
                DeclaredRooms(ReadBytes(Tree() / folder / "CMakeLists.txt")), std::back_inserter(found));
        }
        return found;
    }();
    return rooms;
}

std::vector<std::filesystem::path> SourcesOfRoom(const std::string &Name) {
    std::vector<std::filesystem::path> sources;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(Tree() / Name)) {
        if (IsSource(entry.path())) {
            sources.push_back(entry.path());
        }
    }
    return sources;
}
