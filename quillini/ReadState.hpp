#pragma once

#include "quillini/quillini.hpp"

#include <string>
#include <string_view>

namespace quillINI {

/// What the lines of a file share while they are read.
struct ReadState {
    IniDocument &Document;
    std::string Section; ///< the current one, which may not exist yet
    std::string Error;   ///< words of the syntax errors; reading stops behind their line
    /// Whether a key could look like a reserved one. While none does, a comment or blank line need not be
    /// compared with all entries before it, which would take minutes for a file of nothing but line ends.
    bool HasLookalikes = false;
};

/// The text of a comment whose comment character was taken: less one leading blank, and the last line feed.
std::string_view CommentText(std::string_view Rest);

/// Reads the line of a section tag from behind its "[" on; it ends in a line feed.
void ReadSectionTag(ReadState &State, std::string_view Rest);

/// Reads a line of key and value; it ends in a line feed.
void ReadKeyLine(ReadState &State, std::string_view Line);

} // namespace quillINI
