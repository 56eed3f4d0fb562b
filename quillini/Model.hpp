#pragma once

#include "quillini/quillini.hpp"

#include <string_view>

namespace quillINI {

/// The section of that name, appended to the document if it is absent.
IniSection &SectionToFill(IniDocument &Document, std::string_view Name);

/// What every reserved key begins with.
inline constexpr std::string_view ReservedPrefix = "QI_";

/// Appends a comment line under the section's next reserved key. If an entry has that key already, nothing
/// happens but that the key counts as handed out; without KeyMayBeTaken this is not looked at.
void AppendComment(IniSection &Section, std::string_view Text, bool KeyMayBeTaken);

/// Appends a blank line by the same rules.
void AppendEmptyLine(IniSection &Section, bool KeyMayBeTaken);

} // namespace quillINI
