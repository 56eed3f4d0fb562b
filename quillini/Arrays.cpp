#include "quillini/Model.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace quillINI {

namespace {

/// The number of an element's key, an optional "-" and digits. Throws as AddIniArrayElement does.
std::int32_t NumberOfKey(std::string_view Key) {
    std::int32_t number = 0;
    const char *const end = Key.data() + Key.size();
    const auto read = std::from_chars(Key.data(), end, number);
    if (read.ec == std::errc::invalid_argument || read.ptr != end) {
        throw std::invalid_argument("An array's key is not a number!");
    }
    if (read.ec == std::errc::result_out_of_range) {
        throw std::out_of_range("An array's key is out of range!");
    }
    return number;
}

std::int32_t NextIndexOf(const std::vector<IniEntry> &Elements, ElementNumbers &Known) {
    if (Elements.empty()) {
        return 0;
    }
    for (; Known.Count < Elements.size(); ++Known.Count) {
        Known.Largest = std::max(Known.Largest, NumberOfKey(Elements[Known.Count].Key));
    }
    if (Known.Largest == std::numeric_limits<std::int32_t>::max()) {
        throw std::out_of_range("No index is left behind the largest one!");
    }
    return Known.Largest + 1;
}

void ReplaceElement(
    IniEntry &Element, std::string_view Value, bool Quoted, std::optional<std::string> Comment) {
    Element.Value = Value;
    Element.Quoted = Quoted;
    Element.Comment = std::move(Comment);
}

void AppendElement(IniEntry &Array, std::string_view Index, std::string_view Value, bool Quoted,
    std::optional<std::string> Comment) {
    IniEntry element;
    element.Kind = IniEntryKind::Value;
    element.Key = Index;
    element.Value = Value;
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
    const std::string value(Value);
    auto comment = HasComment ? std::optional<std::string>(Comment) : std::nullopt;

    IniEntry &array = ArrayToFill(Section, FindIniEntry(Section, Key), Key, HasIndex);
    if (!HasIndex) {
        ElementNumbers none;
        index = ChooseIndex(array, none);
    }
    const auto present = std::ranges::find(array.Elements, index, &IniEntry::Key);
    SetElement(array, present, index, value, Quoted, std::move(comment));
}

IniEntry &ArrayToFill(IniSection &Section, EntryPlace Present, std::string_view Key, bool HasIndex) {
    if (Present != Section.Entries.end()) {
        return *Present;
    }
    IniEntry array;
    array.Kind = IniEntryKind::Array;
    array.Key = Key;
    // NOT-BUGS: An array is marked as quoted if its first element came with an index
    array.Quoted = HasIndex;
    return Section.Entries.emplace_back(std::move(array));
}

std::string ChooseIndex(IniEntry &Array, ElementNumbers &Known) {
    Array.NextIndex = NextIndexOf(Array.Elements, Known);
    return std::to_string(Array.NextIndex);
}

void SetElement(IniEntry &Array, EntryPlace Present, std::string_view Index, std::string_view Value,
    bool Quoted, std::optional<std::string> Comment) {
    if (Present != Array.Elements.end()) {
        ReplaceElement(*Present, Value, Quoted, std::move(Comment));
    } else {
        AppendElement(Array, Index, Value, Quoted, std::move(Comment));
    }
}

std::vector<IniEntry>::iterator IniArrayElementsEnd(IniEntry &Entry) {
    return ElementsEnd(Entry);
}

std::vector<IniEntry>::const_iterator IniArrayElementsEnd(const IniEntry &Entry) {
    return ElementsEnd(Entry);
}

} // namespace quillINI
