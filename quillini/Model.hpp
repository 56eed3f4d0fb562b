#pragma once

#include "quillini/quillini.hpp"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The steps of the public operations. Those that take an EntryPlace begin when a name was looked up: the
// public operations walk a list for it, the reader has an index (NameIndex).

namespace quillINI {

/// An entry that was looked for, or the end of the list in which there is none.
using EntryPlace = std::vector<IniEntry>::iterator;

/// The section of that name, appended to the document if it is absent.
IniSection &SectionToFill(IniDocument &Document, std::string_view Name);

/// Appends a section of a name that no other one has.
IniSection &AppendSection(IniDocument &Document, std::string_view Name);

/// A comment line under the section's next reserved key, which counts as handed out then.
IniEntry NextComment(IniSection &Section, std::string_view Text);

/// A blank line by the same rules.
IniEntry NextEmptyLine(IniSection &Section);

/// AddIniValue, with the entry of the key at Present.
IniEntry &SetValue(
    IniSection &Section, EntryPlace Present, std::string_view Key, std::string_view Value, bool Quoted);

/// The text as a comment; an empty one is none.
std::optional<std::string> CommentOrNone(std::string_view Text);

/// The entry at Present, of whatever kind, or a new array of that key.
IniEntry &ArrayToFill(IniSection &Section, EntryPlace Present, std::string_view Key, bool HasIndex);

/// What the keys of an array's first elements are as numbers.
struct ElementNumbers {
    std::size_t Count = 0; ///< of the elements that were looked at
    std::int32_t Largest = std::numeric_limits<std::int32_t>::min();
};

/// The index of the next element that has none of its own, which is new; NextIndex becomes that. Looks at the
/// elements behind those of Known and adds them to it. Throws as AddIniArrayElement does.
std::string ChooseIndex(IniEntry &Array, ElementNumbers &Known);

/// Gives the element at Present a new value and comment, or appends it.
void SetElement(IniEntry &Array, EntryPlace Present, std::string_view Index, std::string_view Value,
    bool Quoted, std::optional<std::string> Comment);

} // namespace quillINI
