#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillINI {

/// UTF-8 text cut into lines that each end in a line feed, with its unicode escapes resolved wherever they
/// stand. Throws std::runtime_error for an invalid escape.
std::vector<std::string> CutLines(std::string_view Text);

} // namespace quillINI
