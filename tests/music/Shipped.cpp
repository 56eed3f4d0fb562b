#include "tests/music/Shipped.hpp"

#include <gtest/gtest.h>

#include <iomanip>
#include <iostream>

namespace {

namespace fs = std::filesystem;

Piece FindShipped(const std::string &Name) {
    const auto found = Shipped().find(Name);
    return found == Shipped().end() ? Piece{} : found->second;
}

} // namespace

fs::path MusicFolder() {
    return fs::path(SOURCE_TREE) / "Music";
}

std::set<std::string> NamesIn(const fs::path &Folder, const std::string &Ending) {
    std::set<std::string> names;
    for (const auto &entry : fs::directory_iterator(Folder)) {
        if (entry.path().extension() == Ending) {
            names.insert(entry.path().stem().string());
        }
    }
    return names;
}

const std::map<std::string, Piece> &Shipped() {
    static const std::map<std::string, Piece> pieces = [] {
        std::map<std::string, Piece> decoded;
        for (const std::string &name : NamesIn(MusicFolder(), ".ogg")) {
            const std::optional<Piece> piece = DecodePiece(MusicFolder() / (name + ".ogg"));
            EXPECT_TRUE(piece) << name << " cannot be decoded";
            decoded[name] = piece.value_or(Piece{});
        }
        return decoded;
    }();
    return pieces;
}

const std::map<std::string, Mode> &Modes() {
    static const std::map<std::string, Mode> modes = [] {
        std::map<std::string, Mode> found;
        for (const char *name :
            {"MenuCredits", "Gameplay", "Water", "GameOver", "Invincibility", "DualWeapon"}) {
            const fs::path score = fs::path(SOURCE_TREE) / "tools" / "music" / (std::string(name) + ".csd");
            found[name] = {FindShipped(name), FindShipped(std::string(name) + "B"), ReadScore(score)};
        }
        return found;
    }();
    return modes;
}

Piece InTurn(const Mode &Mode) {
    Piece both = Mode.First;
    both.Samples.insert(both.Samples.end(), Mode.Second.Samples.begin(), Mode.Second.Samples.end());
    return both;
}

void Show(const std::string &Name, const std::string &What, double Figure, const std::string &Dimension) {
    std::cout << "  " << std::left << std::setw(30) << Name << What << ' ' << Figure << ' ' << Dimension
              << '\n';
}
