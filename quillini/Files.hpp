#pragma once

#include <fstream>
#include <string_view>

namespace quillINI {

/// The file of a UTF-8 path, open for binary reading; not open if that failed or it is no regular file.
std::ifstream OpenToRead(std::string_view Path);

/// The file of a UTF-8 path, emptied and open for binary writing; not open if that failed or there is
/// something that is no regular file.
std::ofstream OpenToWrite(std::string_view Path);

} // namespace quillINI
