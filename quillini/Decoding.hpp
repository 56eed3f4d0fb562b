#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillINI {

/// The whole file in UTF-8, without its byte order mark. Nothing, and a message on standard output, if it
/// cannot be opened, is empty or has under 6 bytes. Throws std::range_error for invalid UTF-16 or UTF-32.
std::optional<std::string> ReadDecodedFile(std::string_view Path);

} // namespace quillINI
