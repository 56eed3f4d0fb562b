#include "quillini/Escapes.hpp"
#include "quillini/Files.hpp"
#include "quillini/quillini.hpp"

#include <array>
#include <cstddef>
#include <fstream>
#include <ios>
#include <iostream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace quillINI {

namespace {

using namespace std::string_view_literals;

// By IniEncoding.
constexpr std::array ByteOrderMarks{
    ""sv,
    "\xEF\xBB\xBF"sv,
    "\xFF\xFE"sv,
    "\xFE\xFF"sv,
    "\xFF\xFE\0\0"sv,
    "\0\0\xFE\xFF"sv,
};

std::string_view ByteOrderMarkOf(IniEncoding Encoding) {
    const auto index = static_cast<std::size_t>(Encoding);
    return index < ByteOrderMarks.size() ? ByteOrderMarks[index] : ""sv;
}

/// A file being written.
struct IniWriter {
    const IniDocument &Document;
    std::ostream &File;
    bool Spaced;
    IniEncoding Encoding;
};

void Write(const IniWriter &Writer, std::string_view Text) {
    WriteIniEncoded(Text, Writer.File, Writer.Encoding);
}

bool HoldsMoreThanMark(const IniWriter &Writer) {
    return Writer.File.tellp() > static_cast<std::streamoff>(ByteOrderMarkOf(Writer.Encoding).size());
}

/// Whether a section has no header in the file.
/// NOT-BUGS: A section named `qi_global` is written without its header
bool IsGlobal(const IniSection &Section) {
    return Section.Name == IniGlobalSection || Section.Name == "qi_global";
}

std::string TrailingComment(const IniWriter &Writer, const std::optional<std::string> &Comment) {
    if (!Comment) {
        return {};
    }
    const std::string blank = Writer.Spaced ? " " : "";
    return blank + Writer.Document.CommentChar + ' ' + EscapeIniText(*Comment);
}

std::string Separator(const IniWriter &Writer) {
    const std::string blank = Writer.Spaced ? " " : "";
    return blank + Writer.Document.KeyValueSeparator + blank;
}

/// Separator, value and comment of a value or an element.
std::string ValueText(const IniWriter &Writer, const IniEntry &Entry) {
    const std::string quote(Entry.Quoted ? 1 : 0, Writer.Document.StringChar);
    return Separator(Writer) + quote + EscapeIniText(Entry.Value) + quote +
           TrailingComment(Writer, Entry.Comment);
}

std::string CommentLine(const IniWriter &Writer, const IniEntry &Entry) {
    const std::string text = EscapeIniText(Entry.Value);
    const std::string shown = Entry.RawComment ? RestoreQuotesAndBackslashes(text) : text;
    return std::string(1, Writer.Document.CommentChar) + ' ' + shown;
}

// NOT-BUGS: The elements of an array at the very start of a file share one line
void WriteArray(const IniWriter &Writer, const IniEntry &Array, const std::string &Prefix) {
    for (const IniEntry &element : Array.Elements) {
        std::string line = Prefix + EscapeIniText(Array.Key) + '[';
        line += Array.WriteIndexes ? EscapeIniText(element.Key) : "";
        line += ']';
        line += ValueText(Writer, element);
        Write(Writer, line);
    }
}

void WriteEntry(const IniWriter &Writer, const IniEntry &Entry, const std::string &Prefix) {
    switch (Entry.Kind) {
    case IniEntryKind::EmptyLine:
        Write(Writer, Prefix);
        break;
    case IniEntryKind::Comment:
        Write(Writer, Prefix + CommentLine(Writer, Entry));
        break;
    case IniEntryKind::Value:
        Write(Writer, Prefix + EscapeIniText(Entry.Key) + ValueText(Writer, Entry));
        break;
    case IniEntryKind::Array:
        WriteArray(Writer, Entry, Prefix);
        break;
    }
}

/// Whether a spaced file has a blank line behind this last entry of a section.
bool IsFollowedByBlankLine(const IniEntry &Last) {
    switch (Last.Kind) {
    case IniEntryKind::EmptyLine:
        return false;
    case IniEntryKind::Array:
        return !Last.Elements.empty();
    default:
        return true;
    }
}

void WriteEntries(const IniWriter &Writer, const IniSection &Section, bool HasHeader) {
    for (const IniEntry &entry : Section.Entries) {
        const bool standsFirst = !HasHeader && &entry == &Section.Entries.front();
        WriteEntry(Writer, entry, standsFirst ? "" : Writer.Document.LineEnd);
    }
    if (Writer.Spaced && !Section.Entries.empty() && IsFollowedByBlankLine(Section.Entries.back())) {
        Write(Writer, Writer.Document.LineEnd);
    }
}

void WriteHeader(const IniWriter &Writer, const IniSection &Section) {
    const std::string prefix = HoldsMoreThanMark(Writer) ? Writer.Document.LineEnd : "";
    const std::string suffix = Writer.Spaced && Section.Entries.empty() ? Writer.Document.LineEnd : "";
    Write(Writer,
        prefix + '[' + EscapeIniText(Section.Name) + ']' + TrailingComment(Writer, Section.Comment) + suffix);
}

void WriteSection(const IniWriter &Writer, const IniSection &Section) {
    const bool hasHeader = !IsGlobal(Section);
    if (hasHeader) {
        WriteHeader(Writer, Section);
    }
    WriteEntries(Writer, Section, hasHeader);
}

} // namespace

bool WriteIniFile(const IniDocument &Document, std::string_view Path, bool Spaced, IniEncoding Encoding) {
    std::ofstream file = OpenToWrite(Path);
    if (!file.is_open()) {
        std::cout << "Unable to write INI file: " << Path << '\n';
        return false;
    }
    file << ByteOrderMarkOf(Encoding);
    const IniWriter writer{Document, file, Spaced, Encoding};
    for (const IniSection &section : Document.Sections) {
        WriteSection(writer, section);
    }
    return true;
}

} // namespace quillINI
