#include "quillini/Decoding.hpp"
#include "quillini/LineCutter.hpp"
#include "quillini/Model.hpp"
#include "quillini/ReadState.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillINI {

namespace {

void PrintSyntaxError(std::string_view Error) {
    std::cout << "Error while reading INI file: " << Error << '\n' << std::flush;
}

std::string_view WithoutLeadingSpace(std::string_view Line) {
    Line.remove_prefix(std::min(Line.find_first_not_of(" \t\r\n"), Line.size()));
    return Line;
}

bool HasEntries(const IniDocument &Document) {
    return std::ranges::any_of(Document.Sections, [](const IniSection &Section) {
        return !Section.Entries.empty();
    });
}

void ReadLine(ReadState &State, std::string_view Line) {
    const std::string_view text = WithoutLeadingSpace(Line);
    if (text.empty()) {
        AppendEmptyLine(SectionToFill(State.Document, State.Section), State.HasLookalikes);
    } else if (text.front() == ';' || text.front() == '#') {
        AppendComment(
            SectionToFill(State.Document, State.Section), CommentText(text.substr(1)), State.HasLookalikes);
    } else if (text.front() == '[') {
        ReadSectionTag(State, text.substr(1));
    } else {
        ReadKeyLine(State, text);
    }
}

// NOT-BUGS: A syntax error in an INI file ends the reading and is a success
void ReadLines(ReadState &State, const std::vector<std::string> &Lines) {
    for (const std::string &line : Lines) {
        if (!State.Error.empty()) {
            PrintSyntaxError(State.Error);
            return;
        }
        ReadLine(State, line);
    }
    if (!State.Error.empty()) {
        PrintSyntaxError(State.Error);
    }
    SectionToFill(State.Document, State.Section); // a last tag with nothing behind it makes a section, too
}

} // namespace

std::string_view CommentText(std::string_view Rest) {
    if (Rest.starts_with(' ')) {
        Rest.remove_prefix(1);
    }
    if (Rest.ends_with('\n')) {
        Rest.remove_suffix(1);
    }
    return Rest;
}

bool ReadIniFile(IniDocument &Document, std::string_view Path) {
    const std::optional<std::string> text = ReadDecodedFile(Path);
    if (!text) {
        return false;
    }
    ReadState state{.Document = Document,
        .Section = std::string(IniGlobalSection),
        .Error = {},
        .HasLookalikes = HasEntries(Document)}; // those may have any keys
    ReadLines(state, CutLines(*text));
    return true;
}

} // namespace quillINI
