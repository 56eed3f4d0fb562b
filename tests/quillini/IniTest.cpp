#include "tests/quillini/IniTest.hpp"

#include "tools/support/Files.hpp"

namespace {

std::string CommentSuffix(const std::optional<std::string> &Comment) {
    return Comment ? " ;" + *Comment : "";
}

std::string ShownValue(const quillINI::IniEntry &Entry) {
    const std::string quote = Entry.Quoted ? "\"" : "";
    return "=" + quote + Entry.Value + quote + CommentSuffix(Entry.Comment);
}

void ShowEntry(const quillINI::IniEntry &Entry, ShownLines &Lines) {
    switch (Entry.Kind) {
    case quillINI::IniEntryKind::EmptyLine:
        Lines.push_back("- " + Entry.Key + Entry.Value + CommentSuffix(Entry.Comment));
        break;
    case quillINI::IniEntryKind::Comment:
        Lines.push_back("# " + Entry.Key + (Entry.RawComment ? "!" : "") + ShownValue(Entry));
        break;
    case quillINI::IniEntryKind::Value:
        Lines.push_back(Entry.Key + ShownValue(Entry));
        break;
    case quillINI::IniEntryKind::Array:
        Lines.push_back(Entry.Key + "@" + std::to_string(Entry.NextIndex) + (Entry.Quoted ? "!quoted" : "") +
                        (Entry.WriteIndexes ? "!indexes" : "") + CommentSuffix(Entry.Comment));
        break;
    }
    for (const quillINI::IniEntry &element : Entry.Elements) {
        EXPECT_EQ(element.Kind, quillINI::IniEntryKind::Value);
        Lines.push_back(Entry.Key + "[" + element.Key + "]" + ShownValue(element));
    }
}

} // namespace

ScratchFile::ScratchFile(std::string_view Name)
    : File(Folder.Path() / std::filesystem::path(std::u8string(Name.begin(), Name.end()))) {}

std::string ScratchFile::Path() const {
    const std::u8string path = File.u8string();
    return {path.begin(), path.end()};
}

void ScratchFile::Fill(std::string_view Bytes) const {
    WriteBytes(File, Bytes);
}

std::string ScratchFile::Bytes() const {
    return ReadBytes(File);
}

OutputCatcher::OutputCatcher() {
    testing::internal::CaptureStdout();
}

OutputCatcher::~OutputCatcher() {
    if (Catching) {
        testing::internal::GetCapturedStdout();
    }
}

std::string OutputCatcher::Text() {
    Catching = false;
    return testing::internal::GetCapturedStdout();
}

ReadResult Read(std::string_view Bytes) {
    const ScratchFile file;
    file.Fill(Bytes);
    ReadResult result;
    OutputCatcher output;
    result.Success = quillINI::ReadIniFile(result.Document, file.Path());
    result.Output = output.Text();
    return result;
}

quillINI::IniDocument ReadQuietly(std::string_view Bytes) {
    ReadResult result = Read(Bytes);
    EXPECT_TRUE(result.Success);
    EXPECT_EQ(result.Output, "");
    return result.Document;
}

std::string Bytes(std::initializer_list<unsigned> Values) {
    std::string bytes;
    for (const unsigned value : Values) {
        bytes.push_back(static_cast<char>(static_cast<unsigned char>(value)));
    }
    return bytes;
}

std::string Written(const quillINI::IniDocument &Document, bool Spaced, quillINI::IniEncoding Encoding) {
    const ScratchFile file;
    OutputCatcher output;
    EXPECT_TRUE(quillINI::WriteIniFile(Document, file.Path(), Spaced, Encoding));
    EXPECT_EQ(output.Text(), "");
    return file.Bytes();
}

ShownLines Shown(const quillINI::IniSection &Section) {
    ShownLines lines{"[" + Section.Name + "]" + CommentSuffix(Section.Comment)};
    for (const quillINI::IniEntry &entry : Section.Entries) {
        ShowEntry(entry, lines);
    }
    return lines;
}

ShownLines Shown(const quillINI::IniDocument &Document) {
    ShownLines lines;
    for (const quillINI::IniSection &section : Document.Sections) {
        const ShownLines more = Shown(section);
        lines.insert(lines.end(), more.begin(), more.end());
    }
    return lines;
}

namespace quillINI {

void PrintTo(const IniEntry &Entry, std::ostream *Stream) {
    ShownLines lines;
    ShowEntry(Entry, lines);
    for (const std::string &line : lines) {
        *Stream << line << '\n';
    }
}

void PrintTo(const IniDocument &Document, std::ostream *Stream) {
    for (const std::string &line : Shown(Document)) {
        *Stream << line << '\n';
    }
}

} // namespace quillINI
