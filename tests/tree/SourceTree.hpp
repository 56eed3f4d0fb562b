#pragma once

#include <filesystem>
#include <string>
#include <vector>

using Names = std::vector<std::string>;

struct Room {
    std::string Name;
    Names Links; ///< as the folders that they let in: other rooms, "SDL3", "SDL3_mixer"
};

/// The folder that holds the rooms.
const std::filesystem::path &Tree();

/// What the first group of a pattern matches, from the beginning of a text to its end.
Names AllMatches(const std::string &Text, const std::string &Pattern);

/// The folders of the build, from top to bottom.
Names FoldersOfTheBuild();

/// The rooms that a CMakeLists.txt declares, comments left aside.
std::vector<Room> DeclaredRooms(const std::string &CMakeText);

/// All rooms, from top to bottom.
const std::vector<Room> &Rooms();

/// Every source and header of a room.
std::vector<std::filesystem::path> SourcesOfRoom(const std::string &Name);
