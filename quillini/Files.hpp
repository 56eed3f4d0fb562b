#pragma once

#include <fstream>
#include <string_view>

namespace quillINI {

/// The file of a UTF-8 path for binary reading; not open if it could not be. A folder is no file.
std::ifstream OpenToRead(std::string_view Path);

/// The file of a UTF-8 path for binary writing, which empties it; not open if it could not be.
std::ofstream OpenToWrite(std::string_view Path);

} // namespace quillINI
