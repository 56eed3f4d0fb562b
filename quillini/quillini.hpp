#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <locale>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// INI files that keep what a person wrote: the order of sections and entries, comments, blank lines, quotes.
///
/// A line is blank, a comment behind ";" or "#", the tag of a section, "[Name]", or a key, "=" or ":", and a
/// value. "key[] = v" appends to the array key, "key[3] = v" sets its element 3. A value without quotes holds
/// no blanks, brackets or comment characters; between "..." or '...' all stands as it is, but a backslash
/// before that quote or another backslash, which is taken away. A comment may follow a tag or a value. "\x"
/// and four hexadecimal digits are a UTF-16 unit, unless the backslash belongs to one before it.
///
/// Text in memory is meant as UTF-8, and so are paths: reading takes other bytes as they are, writing refuses
/// those that have not the form of UTF-8 (EscapeIniText). Lookups compare exact bytes and walk the lists from
/// the front: documents are small. Only ReadIniFile has an index of names while it reads, so that its time
/// grows with the length of a file alone. References and iterators into a list live until a section or an
/// entry is added to it.
namespace quillINI {

/// The section of everything that stands before the first section tag.
inline constexpr std::string_view IniGlobalSection = "QI_Global";

enum class IniEntryKind : std::uint8_t {
    EmptyLine = 0,
    Comment = 1,
    Value = 2,
    Array = 3,
};

/// One line of a section, or an array with all its elements.
struct IniEntry {
    IniEntryKind Kind = IniEntryKind::EmptyLine;
    /// Of a comment or blank line what it is found by and never written, a reserved key if it was read; of an
    /// array's element its index as text.
    std::string Key;
    /// A value without its quotes and escapes, or the text of a comment, which a reader takes as it stands;
    /// empty for a blank line or an array.
    std::string Value;
    /// Behind the value, on its line.
    std::optional<std::string> Comment;
    /// The value is written in quotes.
    bool Quoted = false;
    /// Of a comment: quotes and backslashes are written without a backslash before them.
    bool RawComment = false;
    /// Of an array: the last index that was chosen for an element without one, not the one to come.
    std::int32_t NextIndex = 0;
    /// Of an array: the writer spells the indexes out. For the caller to set; reading leaves it false.
    bool WriteIndexes = false;
    /// Of an array: each of kind Value, with a key of its own.
    std::vector<IniEntry> Elements;

    bool operator==(const IniEntry &) const = default;
};

/// A section; its keys are unique.
struct IniSection {
    std::string Name;
    /// Behind the section tag.
    std::optional<std::string> Comment;
    std::vector<IniEntry> Entries;
    /// The reserved keys that were handed out: "QI_C_1" and up to comments, "QI_EL_1" and up to blank lines.
    std::int32_t CommentCount = 0;
    std::int32_t EmptyLineCount = 0;

    bool operator==(const IniSection &) const = default;
};

/// A whole file; its section names are unique.
struct IniDocument {
    /// Nothing but the global section, empty.
    IniDocument();

    /// Only the writer goes by this and the three characters; a reader takes every line end, ; and #, both
    /// quotes, = and :.
    std::string LineEnd = "\r\n";
    char CommentChar = ';';
    char StringChar = '"';
    char KeyValueSeparator = '=';
    /// Without effect: reading and writing know no locale.
    std::locale Locale = std::locale::classic();
    std::vector<IniSection> Sections;

    bool operator==(const IniDocument &) const = default;
};

/// Where a comment or blank line goes; the last two are relative to the entry of a reference key.
enum class IniInsertPosition : std::uint8_t {
    Front = 0,
    Back = 1,
    BeforeKey = 2,
    AfterKey = 3,
};

/// What a file is written in.
enum class IniEncoding : std::uint8_t {
    /// The only one without a byte order mark.
    Utf8 = 0,
    Utf8Bom = 1,
    Utf16Le = 2,
    Utf16Be = 3,
    Utf32Le = 4,
    Utf32Be = 5,
};

/// The first section of that name, or the end of the sections.
std::vector<IniSection>::iterator FindIniSection(IniDocument &Document, std::string_view Name);
std::vector<IniSection>::const_iterator FindIniSection(const IniDocument &Document, std::string_view Name);

/// Whether there is a section of that name.
bool HasIniSection(const IniDocument &Document, std::string_view Name);

/// Throws std::out_of_range if Index is negative or not below the number of sections.
IniSection &IniSectionAt(IniDocument &Document, std::ptrdiff_t Index);
const IniSection &IniSectionAt(const IniDocument &Document, std::ptrdiff_t Index);

/// The first entry of that key, or the end of the entries.
std::vector<IniEntry>::iterator FindIniEntry(IniSection &Section, std::string_view Key);
std::vector<IniEntry>::const_iterator FindIniEntry(const IniSection &Section, std::string_view Key);

/// The value, or Default if the section or the key is absent. An array has an empty one.
std::string GetIniValue(
    const IniDocument &Document, std::string_view Section, std::string_view Key, std::string_view Default);

/// Sets a value; an absent section or key is appended, a present key keeps its kind, place and comment.
void SetIniValue(IniDocument &Document, std::string_view Section, std::string_view Key,
    std::string_view Value, bool Quoted);

/// Sets a value that is written in quotes.
void SetIniString(
    IniDocument &Document, std::string_view Section, std::string_view Key, std::string_view Value);

/// Sets a value within a section and gives its entry.
IniEntry &AddIniValue(IniSection &Section, std::string_view Key, std::string_view Value, bool Quoted);

/// Sets the comment behind a value; an empty text takes it away.
void SetIniEntryComment(IniEntry &Entry, std::string_view Text);

/// Sets the comment behind a section tag; an empty text takes it away.
void SetIniSectionComment(IniSection &Section, std::string_view Text);

/// Sets the element Index of the array Key, or appends it; an absent array is appended first, and an entry of
/// another kind keeps it, so that the writer passes over its elements. Without HasIndex the index is the
/// largest one plus 1, or 0; this throws std::invalid_argument if an element's key is no number,
/// std::out_of_range if one or the new index leaves 32 bits. Without HasComment an element has none.
void AddIniArrayElement(IniSection &Section, std::string_view Key, std::string_view Value, bool Quoted,
    bool HasComment, std::string_view Comment, std::string_view Index, bool HasIndex);

/// The end of an array's elements. Throws std::runtime_error if the entry is no array.
std::vector<IniEntry>::iterator IniArrayElementsEnd(IniEntry &Entry);
std::vector<IniEntry>::const_iterator IniArrayElementsEnd(const IniEntry &Entry);

/// Inserts a comment line; nothing happens if an entry has the key already. Throws std::runtime_error if
/// Position is BeforeKey or AfterKey and there is no entry under ReferenceKey, or that is empty.
void AddIniComment(IniSection &Section, std::string_view Key, std::string_view Text,
    IniInsertPosition Position = IniInsertPosition::Back, std::string_view ReferenceKey = {},
    bool RawComment = false);

/// Inserts a blank line, by the rules of AddIniComment.
void AddIniEmptyLine(IniSection &Section, std::string_view Key,
    IniInsertPosition Position = IniInsertPosition::Back, std::string_view ReferenceKey = {});

/// Appends a blank line under the section's next reserved key; an empty name means the global section.
/// Nothing happens if there is no such section.
void AppendIniEmptyLine(IniDocument &Document, std::string_view SectionName);

/// The non-empty pieces between any characters of Delimiters, or the whole text if there is none.
std::vector<std::string> SplitAny(std::string_view Text, std::string_view Delimiters);

/// Adds a file to a document; messages go to standard output. False, with the document as it was, if there is
/// no regular file that can be opened, or it has under 6 bytes. A syntax error ends the reading and still
/// gives true. Throws std::range_error for invalid UTF-16 or UTF-32, std::runtime_error for an invalid
/// unicode escape, and what AddIniArrayElement throws.
bool ReadIniFile(IniDocument &Document, std::string_view Path);

/// Writes a document over a file; Spaced puts blanks around separators and before comments, and blank lines
/// between sections. False, after a message on standard output, if it cannot be opened or is no regular file;
/// later failures of the disk are not seen. Throws what EscapeIniText and WriteIniEncoded throw, with part of
/// the file written.
bool WriteIniFile(const IniDocument &Document, std::string_view Path, bool Spaced, IniEncoding Encoding);

/// Writes UTF-8 text in an encoding, without a byte order mark; nothing for a value that is no encoding.
/// Throws std::range_error if the text is invalid and has to be converted.
void WriteIniEncoded(std::string_view Text, std::ostream &File, IniEncoding Encoding);

/// The text in pure ASCII, with quotes, backslashes, the codes below 0x1F and all beyond ASCII as escapes.
/// Throws std::runtime_error if it is not UTF-8.
std::string EscapeIniText(std::string_view Text);

} // namespace quillINI
