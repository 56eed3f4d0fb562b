#pragma once

#include "tests/music/Piece.hpp"
#include "tests/music/Score.hpp"

#include <map>
#include <set>
#include <string>

/// The folder of the files that ship.
std::filesystem::path MusicFolder();

/// The names, without the ending, of a folder's files of one kind.
std::set<std::string> NamesIn(const std::filesystem::path &Folder, const std::string &Ending);

/// All files that ship, decoded once, by their names without the ending.
const std::map<std::string, Piece> &Shipped();

/// A mode of the game has two files, which are heard in turn: the second is named as the first with a B.
struct Mode {
    Piece First;
    Piece Second;
    Score Written;
};

/// The six modes by the names of their first files. Every one has its score; a file that is missing is empty.
const std::map<std::string, Mode> &Modes();

/// Both files of a mode, one behind the other.
Piece InTurn(const Mode &Mode);

/// Prints one figure of a piece beside its name.
void Show(const std::string &Name, const std::string &What, double Figure, const std::string &Dimension);
