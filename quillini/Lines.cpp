#include "quillini/Model.hpp"
#include "quillini/quillini.hpp"

#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillINI {

namespace {

constexpr std::string_view CommentKey = "QI_C_";
constexpr std::string_view EmptyLineKey = "QI_EL_";

std::vector<IniEntry>::iterator ReferenceEntry(IniSection &Section, std::string_view ReferenceKey) {
    const auto reference = ReferenceKey.empty() ? Section.Entries.end() : FindIniEntry(Section, ReferenceKey);
    if (reference == Section.Entries.end()) {
        throw std::runtime_error('"' + std::string(ReferenceKey) + "\" could not be found!");
    }
    return reference;
}

std::vector<IniEntry>::iterator PlaceOf(
    IniSection &Section, IniInsertPosition Position, std::string_view ReferenceKey) {
    switch (Position) {
    case IniInsertPosition::Front:
        return Section.Entries.begin();
    case IniInsertPosition::BeforeKey:
        return ReferenceEntry(Section, ReferenceKey);
    case IniInsertPosition::AfterKey:
        return std::next(ReferenceEntry(Section, ReferenceKey));
    case IniInsertPosition::Back:
    default:
        return Section.Entries.end();
    }
}

IniEntry CommentLine(std::string_view Key, std::string_view Text) {
    IniEntry comment;
    comment.Kind = IniEntryKind::Comment;
    comment.Key = Key;
    comment.Value = Text;
    return comment;
}

IniEntry EmptyLine(std::string_view Key) {
    IniEntry emptyLine;
    emptyLine.Kind = IniEntryKind::EmptyLine;
    emptyLine.Key = Key;
    return emptyLine;
}

// NOT-BUGS: A key that looks like a reserved one swallows a comment or a blank line
bool IsTaken(const IniSection &Section, std::string_view Key) {
    return FindIniEntry(Section, Key) != Section.Entries.end();
}

void InsertLine(
    IniSection &Section, IniEntry Line, IniInsertPosition Position, std::string_view ReferenceKey) {
    if (!IsTaken(Section, Line.Key)) {
        Section.Entries.insert(PlaceOf(Section, Position, ReferenceKey), std::move(Line));
    }
}

} // namespace

void AddIniComment(IniSection &Section, std::string_view Key, std::string_view Text,
    IniInsertPosition Position, std::string_view ReferenceKey, bool RawComment) {
    IniEntry comment = CommentLine(Key, Text);
    comment.RawComment = RawComment;
    InsertLine(Section, std::move(comment), Position, ReferenceKey);
}

void AddIniEmptyLine(
    IniSection &Section, std::string_view Key, IniInsertPosition Position, std::string_view ReferenceKey) {
    InsertLine(Section, EmptyLine(Key), Position, ReferenceKey);
}

IniEntry NextComment(IniSection &Section, std::string_view Text) {
    ++Section.CommentCount;
    return CommentLine(std::string(CommentKey) + std::to_string(Section.CommentCount), Text);
}

IniEntry NextEmptyLine(IniSection &Section) {
    ++Section.EmptyLineCount;
    return EmptyLine(std::string(EmptyLineKey) + std::to_string(Section.EmptyLineCount));
}

void AppendIniEmptyLine(IniDocument &Document, std::string_view SectionName) {
    const auto section = FindIniSection(Document, SectionName.empty() ? IniGlobalSection : SectionName);
    if (section != Document.Sections.end()) {
        InsertLine(*section, NextEmptyLine(*section), IniInsertPosition::Back, {});
    }
}

} // namespace quillINI
