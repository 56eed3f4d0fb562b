#pragma once

#include <string>
#include <string_view>

namespace quillINI {

/// What stands behind the separator of a line.
struct ScannedValue {
    std::string Value;
    /// A part of the scanned text; empty without a comment.
    std::string_view Comment;
    bool Quoted = false;
};

/// Scans Rest, the text behind a separator, up to its first line feed; it ends in one. Syntax errors are
/// appended to Error, and the result means nothing then.
ScannedValue ScanValue(std::string_view Rest, std::string &Error);

} // namespace quillINI
