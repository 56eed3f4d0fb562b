#pragma once

#include "quillini/quillini.hpp"

#include <string>
#include <string_view>

namespace quillINI {

/// What the lines of a file share while they are read.
struct ReadState {
    IniDocument &Document;
    /// The name of the current section, which may not exist yet.
    std::string Section;
    /// The words of all syntax errors of a line, empty without one; reading stops behind that line.
    std::string Error;
    /// Whether a key of the document may begin like a reserved one. While none does, a comment or blank line
    /// need not be compared with all entries before it, which would take minutes for a file of nothing but
    /// line ends.
    bool HasLookalikes = false;
};

/// The text of a comment without one leading blank and without the line feed at its end. Rest is what stands
/// behind the comment character.
std::string_view CommentText(std::string_view Rest);

/// Reads the line of a section tag from behind its "[" on; it ends in a line feed.
void ReadSectionTag(ReadState &State, std::string_view Rest);

/// Reads a line of key and value; it ends in a line feed.
void ReadKeyLine(ReadState &State, std::string_view Line);

} // namespace quillINI
