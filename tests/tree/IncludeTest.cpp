#include "tests/tree/SourceTree.hpp"
#include "tools/support/Files.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>

// Which room may use which stands once, in the kestrel_room of its CMakeLists.txt. Here the rooms are held to
// it: each links only rooms that stand above it, includes only what it links, and links only what it
// includes.

namespace {

/// An include that names a folder, as in "sim" of "sim/Lanes.hpp".
struct Include {
    std::string Folder;
    std::string Place; ///< the file and the line, for a failure's words
};

Names NamesOf(const std::vector<Room> &Rooms) {
    Names names;
    std::ranges::transform(Rooms, std::back_inserter(names), &Room::Name);
    return names;
}

/// The rooms in the order of a table whose first cells name them.
Names RoomsOfTable(const std::string &Markdown) {
    return AllMatches(Markdown, R"(^\| `([^`/]+)/` \|)");
}

/// The folder that a line of code includes from; nothing for other lines and the standard library.
std::string FolderOfInclude(const std::string &Line) {
    static const std::regex pattern(R"(^\s*#\s*include\s*["<]([^"<>/]+)/)");
    std::smatch match;
    return std::regex_search(Line, match, pattern) ? match[1].str() : std::string();
}

std::vector<Include> IncludesOfRoom(const std::string &Name) {
    std::vector<Include> includes;
    for (const std::filesystem::path &source : SourcesOfRoom(Name)) {
        std::ifstream file(source);
        for (std::string line; std::getline(file, line);) {
            const std::string folder = FolderOfInclude(line);
            if (!folder.empty()) {
                includes.push_back({folder, source.filename().string() + ": " + line});
            }
        }
    }
    return includes;
}

bool Holds(const Names &List, const std::string &Entry) {
    return std::ranges::find(List, Entry) != List.end();
}

/// Every link to a room that does not stand above the one that links it.
Names LinksThatRunBack(const std::vector<Room> &Rooms) {
    const Names all = NamesOf(Rooms);
    Names above;
    Names wrong;
    for (const Room &room : Rooms) {
        for (const std::string &link : room.Links) {
            if (Holds(all, link) && !Holds(above, link)) {
                wrong.push_back(room.Name + " links " + link);
            }
        }
        above.push_back(room.Name);
    }
    return wrong;
}

/// Every include from a folder that the room does not link.
Names IncludesWithoutLink(const Room &Room, const std::vector<Include> &Includes) {
    Names wrong;
    for (const Include &include : Includes) {
        if (include.Folder != Room.Name && !Holds(Room.Links, include.Folder)) {
            wrong.push_back(include.Place);
        }
    }
    return wrong;
}

/// Every link that no include needs.
Names LinksWithoutInclude(const Room &Room, const std::vector<Include> &Includes) {
    Names unused;
    std::ranges::copy_if(Room.Links, std::back_inserter(unused), [&Includes](const std::string &Link) {
        return std::ranges::find(Includes, Link, &Include::Folder) == Includes.end();
    });
    return unused;
}

} // namespace

TEST(Rooms, EachIsTheLibraryOfItsOwnFolder) {
    for (const std::string &folder : FoldersOfTheBuild()) {
        for (const Room &room : DeclaredRooms(ReadBytes(Tree() / folder / "CMakeLists.txt"))) {
            EXPECT_EQ(room.Name, folder);
        }
    }
}

TEST(Rooms, StandInTheReadmeInTheOrderOfTheBuild) {
    EXPECT_EQ(RoomsOfTable(ReadBytes(Tree() / "README.md")), NamesOf(Rooms()));
    EXPECT_GE(Rooms().size(), 10U) << "the rooms were not found";
}

TEST(Rooms, LinkOnlyThoseAboveThem) {
    EXPECT_EQ(LinksThatRunBack(Rooms()), Names{});
}

TEST(Rooms, IncludeOnlyWhatTheyLink) {
    for (const Room &room : Rooms()) {
        const std::vector<Include> includes = IncludesOfRoom(room.Name);
        EXPECT_FALSE(includes.empty()) << "in " << room.Name;
        EXPECT_EQ(IncludesWithoutLink(room, includes), Names{}) << "in " << room.Name;
    }
}

TEST(Rooms, LinkOnlyWhatTheyInclude) {
    for (const Room &room : Rooms()) {
        EXPECT_EQ(LinksWithoutInclude(room, IncludesOfRoom(room.Name)), Names{}) << "in " << room.Name;
    }
}

TEST(Arrows, AreReadFromTheBuild) {
    const std::vector<Room> rooms = DeclaredRooms("# kestrel_room(ghost)\n"
                                                  "kestrel_room(sim state SDL3::SDL3) # not gfx\n"
                                                  "target_link_libraries(sim PRIVATE text)\n"
                                                  "kestrel_room(app\n    sim\n    SDL3_mixer::SDL3_mixer)\n");
    ASSERT_EQ(NamesOf(rooms), (Names{"sim", "app"}));
    EXPECT_EQ(rooms[0].Links, (Names{"state", "SDL3"}));
    EXPECT_EQ(rooms[1].Links, (Names{"sim", "SDL3_mixer"}));
    EXPECT_EQ(RoomsOfTable("| Folder | Holds |\n|---|---|\n| `sim/` | rules |\n| `Config.ini` | `gfx/` |\n"),
        Names{"sim"});
}

TEST(Arrows, AreReadFromIncludes) {
    EXPECT_EQ(FolderOfInclude("#include \"sim/Lanes.hpp\""), "sim");
    EXPECT_EQ(FolderOfInclude("#include <SDL3/SDL.h>"), "SDL3");
    EXPECT_EQ(FolderOfInclude("  # include \"../sim/Lanes.hpp\""), "..");
    EXPECT_EQ(FolderOfInclude("#include <vector>"), "");
    EXPECT_EQ(FolderOfInclude("// #include \"sim/Lanes.hpp\""), "");
}

TEST(Arrows, ThoseThatRunBackAreSeen) {
    EXPECT_EQ(
        LinksThatRunBack({{"state", {}}, {"sim", {"state", "SDL3"}}, {"gfx", {"sim", "state"}}}), Names{});
    EXPECT_EQ(LinksThatRunBack({{"state", {"gfx"}}, {"sim", {"state"}}, {"gfx", {"sim"}}}),
        Names{"state links gfx"});
    EXPECT_EQ(LinksThatRunBack({{"state", {}}, {"sim", {"sim"}}}), Names{"sim links sim"});
}

TEST(Arrows, ThoseOfOneSideOnlyAreSeen) {
    const Room room{"gfx", {"sim", "SDL3"}};
    const std::vector<Include> both{{"gfx", "own"}, {"sim", "Hud.cpp"}, {"SDL3", "Hud.hpp"}};
    EXPECT_EQ(IncludesWithoutLink(room, both), Names{});
    EXPECT_EQ(LinksWithoutInclude(room, both), Names{});
    const std::vector<Include> wrong{{"sim", "Hud.cpp"}, {"store", "Hud.hpp"}};
    EXPECT_EQ(IncludesWithoutLink(room, wrong), Names{"Hud.hpp"});
    EXPECT_EQ(LinksWithoutInclude(room, wrong), Names{"SDL3"});
}
