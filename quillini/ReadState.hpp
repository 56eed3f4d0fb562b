#pragma once

#include "quillini/Model.hpp"
#include "quillini/NameIndex.hpp"
#include "quillini/quillini.hpp"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillINI {

/// What the reader keeps beside an array's elements.
struct ElementIndex {
    NameIndex Keys;
    ElementNumbers Numbers;
};

/// What the lines of a file share while they are read.
struct ReadState {
    IniDocument &Document;
    /// The name of the current section, which may not exist yet.
    std::string Section;
    /// The words of all syntax errors of a line, empty without one; reading stops behind that line.
    std::string Error;

    // Beside the lists of the document, so that no line is compared with all before it: a file of ten
    // megabytes would take minutes.
    NameIndex Sections;
    std::vector<NameIndex> Entries; ///< by the place of their section
    /// By the places of their section and of their array in it.
    std::map<std::pair<std::size_t, std::size_t>, ElementIndex> Elements;
};

/// The section that is being filled.
struct CurrentSection {
    IniSection &Section;
    NameIndex &Keys;
    std::size_t Place; ///< in the document
};

/// The current section, appended to the document if it is absent.
CurrentSection SectionToFill(ReadState &State);

/// The entry of that key in the section, or the end: then the caller has to append one of that key.
EntryPlace FindOrAwaitEntry(const CurrentSection &Current, std::string_view Key);

// Blank lines and comments are read in Reader.cpp, the other two kinds in SectionTag.cpp and KeyLine.cpp.

/// Reads the line of a section tag from behind its "[" on; it ends in a line feed.
void ReadSectionTag(ReadState &State, std::string_view Rest);

/// Reads a line of key and value; it ends in a line feed.
void ReadKeyLine(ReadState &State, std::string_view Line);

} // namespace quillINI
