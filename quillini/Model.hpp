#pragma once

#include "quillini/quillini.hpp"

#include <string_view>

namespace quillINI {

/// The section of that name, appended to the document if it is absent. Lives until the next section is added.
IniSection &SectionToFill(IniDocument &Document, std::string_view Name);

/// What every reserved key begins with.
inline constexpr std::string_view ReservedPrefix = "QI_";

/// Appends a comment line under the section's next reserved key; with MayClash not if an entry has that key.
void AppendComment(IniSection &Section, std::string_view Text, bool MayClash);

/// Appends a blank line under the section's next reserved key; with MayClash not if an entry has that key.
void AppendEmptyLine(IniSection &Section, bool MayClash);

} // namespace quillINI
