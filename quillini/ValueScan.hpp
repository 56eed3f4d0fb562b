#pragma once

#include <string>
#include <string_view>

namespace quillINI {

/// What stands behind the separator of a line.
struct ScannedValue {
    std::string Value;
    std::string_view Comment; ///< a part of the scanned text
    bool Quoted = false;
};

/// Scans the text behind a separator up to its first line feed; it ends in one. Syntax errors are appended to
/// Error.
ScannedValue ScanValue(std::string_view Rest, std::string &Error);

} // namespace quillINI
