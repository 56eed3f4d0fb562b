#pragma once

#include <string>
#include <string_view>

namespace quillINI {

/// Escaped text with its quotes and backslashes as they were; all other escapes stay.
std::string RestoreQuotesAndBackslashes(std::string_view Escaped);

} // namespace quillINI
