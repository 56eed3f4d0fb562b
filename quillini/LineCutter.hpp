#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillINI {

/// UTF-8 text cut into lines that each end in a line feed, with its unicode escapes resolved wherever they
/// stand. A line also holds the line feeds that came from an escape or behind a backslash. Throws
/// std::runtime_error for an invalid escape.
std::vector<std::string> CutLines(std::string_view Text);

} // namespace quillINI
