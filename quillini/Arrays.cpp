#include "quillini/Text.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillINI {

namespace {

IniEntry &ArrayToFill(IniSection &Section, std::string_view Key, bool HasIndex) {
    const auto present = FindIniEntry(Section, Key);
    if (present != Section.Entries.end()) {
        return *present; // of whatever kind
    }
    IniEntry array;
    array.Kind = IniEntryKind::Array;
    array.Key = Key;
    // NOT-BUGS: An array is marked as quoted if its first element came with an index
    array.Quoted = HasIndex;
    return Section.Entries.emplace_back(std::move(array));
}

std::int32_t NextIndexOf(const std::vector<IniEntry> &Elements) {
    if (Elements.empty()) {
        return 0;
    }
    std::int32_t largest = std::numeric_limits<std::int32_t>::min();
    for (const IniEntry &element : Elements) {
        largest = std::max(largest, NumberFromText(element.Key));
    }
    if (largest == std::numeric_limits<std::int32_t>::max()) {
        throw std::out_of_range("No index is left behind the largest one!");
    }
    return largest + 1;
}

void ReplaceElement(IniEntry &Element, std::string Value, bool Quoted, std::optional<std::string> Comment) {
    Element.Value = std::move(Value);
    Element.Quoted = Quoted;
    Element.Comment = std::move(Comment);
}

void AppendElement(
    IniEntry &Array, std::string Index, std::string Value, bool Quoted, std::optional<std::string> Comment) {
    IniEntry element;
    element.Kind = IniEntryKind::Value;
    element.Key = std::move(Index);
    element.Value = std::move(Value);
    // NOT-BUGS: A new element of an array without a comment is never marked as quoted
    element.Quoted = Comment.has_value() && Quoted;
    element.Comment = std::move(Comment);
    Array.Elements.push_back(std::move(element));
}

template <class EntryType> auto ElementsEnd(EntryType &Entry) {
    if (Entry.Kind != IniEntryKind::Array) {
        throw std::runtime_error("Data is not of type array!");
    }
    return Entry.Elements.end();
}

} // namespace

void AddIniArrayElement(IniSection &Section, std::string_view Key, std::string_view Value, bool Quoted,
    bool HasComment, std::string_view Comment, std::string_view Index, bool HasIndex) {
    // Copied first: they may be texts of an entry that moves when another one is appended.
    std::string index(Index);
    std::string value(Value);
    auto comment = HasComment ? std::optional<std::string>(Comment) : std::nullopt;

    IniEntry &array = ArrayToFill(Section, Key, HasIndex);
    if (!HasIndex) {
        array.NextIndex = NextIndexOf(array.Elements);
        index = std::to_string(array.NextIndex);
    }
    const auto present = std::ranges::find(array.Elements, index, &IniEntry::Key);
    if (present != array.Elements.end()) {
        ReplaceElement(*present, std::move(value), Quoted, std::move(comment));
    } else {
        AppendElement(array, std::move(index), std::move(value), Quoted, std::move(comment));
    }
}

std::vector<IniEntry>::iterator IniArrayElementsEnd(IniEntry &Entry) {
    return ElementsEnd(Entry);
}

std::vector<IniEntry>::const_iterator IniArrayElementsEnd(const IniEntry &Entry) {
    return ElementsEnd(Entry);
}

} // namespace quillINI
