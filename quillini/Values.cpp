#include "quillini/Model.hpp"
#include "quillini/quillini.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quillINI {

namespace {

IniEntry &AppendValue(IniSection &Section, std::string_view Key) {
    IniEntry entry;
    entry.Kind = IniEntryKind::Value;
    entry.Key = Key;
    return Section.Entries.emplace_back(std::move(entry));
}

} // namespace

std::string GetIniValue(
    const IniDocument &Document, std::string_view Section, std::string_view Key, std::string_view Default) {
    const auto section = FindIniSection(Document, Section);
    if (section == Document.Sections.end()) {
        return std::string(Default);
    }
    const auto entry = FindIniEntry(*section, Key);
    return entry == section->Entries.end() ? std::string(Default) : entry->Value;
}

void SetIniValue(IniDocument &Document, std::string_view Section, std::string_view Key,
    std::string_view Value, bool Quoted) {
    // Copied first: they may be texts of a section that moves when another one is appended.
    const std::string key(Key);
    const std::string value(Value);
    AddIniValue(SectionToFill(Document, Section), key, value, Quoted);
}

void SetIniString(
    IniDocument &Document, std::string_view Section, std::string_view Key, std::string_view Value) {
    SetIniValue(Document, Section, Key, Value, true);
}

IniEntry &AddIniValue(IniSection &Section, std::string_view Key, std::string_view Value, bool Quoted) {
    return SetValue(Section, FindIniEntry(Section, Key), Key, Value, Quoted);
}

IniEntry &SetValue(
    IniSection &Section, EntryPlace Present, std::string_view Key, std::string_view Value, bool Quoted) {
    std::string value(Value); // may be a text of an entry that moves when another one is appended
    // A present entry keeps its kind: an array stays one, and so does a comment.
    IniEntry &entry = Present == Section.Entries.end() ? AppendValue(Section, Key) : *Present;
    entry.Value = std::move(value);
    entry.Quoted = Quoted;
    return entry;
}

std::optional<std::string> CommentOrNone(std::string_view Text) {
    return Text.empty() ? std::nullopt : std::optional<std::string>(Text);
}

void SetIniEntryComment(IniEntry &Entry, std::string_view Text) {
    Entry.Comment = CommentOrNone(Text);
}

void SetIniSectionComment(IniSection &Section, std::string_view Text) {
    Section.Comment = CommentOrNone(Text);
}

} // namespace quillINI
