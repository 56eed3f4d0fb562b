#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillINI {

/// A text and where each of its lines ends: right behind its last line feed.
struct CutText {
    std::string Text;
    std::vector<std::size_t> LineEnds;
};

/// UTF-8 text cut into lines that each end in a line feed, with its unicode escapes resolved wherever they
/// stand. A line also holds the line feeds that came from an escape or behind a backslash. Throws
/// std::runtime_error for an invalid escape.
CutText CutLines(std::string_view Text);

} // namespace quillINI
