#include "quillini/Decoding.hpp"
#include "quillini/LineCutter.hpp"
#include "quillini/Model.hpp"
#include "quillini/ReadState.hpp"
#include "quillini/Text.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

// Reading takes three passes over the whole text: Decoding makes it UTF-8, LineCutter resolves unicode
// escapes and cuts it into lines, and here each line goes to where its kind is read: SectionTag, or KeyLine,
// whose value ValueScan takes. NameIndex is there for speed alone: it finds what the functions of
// quillini.hpp find by walking a list.

namespace quillINI {

namespace {

void PrintSyntaxError(std::string_view Error) {
    std::cout << "Error while reading INI file: " << Error << '\n' << std::flush;
}

std::string_view WithoutLeadingSpace(std::string_view Line) {
    Line.remove_prefix(std::min(Line.find_first_not_of(" \t\r\n"), Line.size()));
    return Line;
}

// NOT-BUGS: A key that looks like a reserved one swallows a comment or a blank line
void AppendLine(const CurrentSection &Current, IniEntry Line) {
    if (FindOrAwaitEntry(Current, Line.Key) == Current.Section.Entries.end()) {
        Current.Section.Entries.push_back(std::move(Line));
    }
}

void ReadLine(ReadState &State, std::string_view Line) {
    const std::string_view text = WithoutLeadingSpace(Line);
    if (text.empty()) {
        const CurrentSection current = SectionToFill(State);
        AppendLine(current, NextEmptyLine(current.Section));
    } else if (text.front() == ';' || text.front() == '#') {
        const CurrentSection current = SectionToFill(State);
        AppendLine(current, NextComment(current.Section, CommentText(text.substr(1))));
    } else if (text.front() == '[') {
        ReadSectionTag(State, text.substr(1));
    } else {
        ReadKeyLine(State, text);
    }
}

// NOT-BUGS: A syntax error in an INI file ends the reading and is a success
void ReadLines(ReadState &State, const CutText &Cut) {
    std::size_t begin = 0;
    for (const std::size_t end : Cut.LineEnds) {
        ReadLine(State, std::string_view(Cut.Text).substr(begin, end - begin));
        begin = end;
        if (!State.Error.empty()) {
            PrintSyntaxError(State.Error);
            if (end != Cut.LineEnds.back()) { // lines are left unread
                return;
            }
        }
    }
    // NOT-BUGS: A section without a line is forgotten if another one follows it
    SectionToFill(State);
}

} // namespace

bool ReadIniFile(IniDocument &Document, std::string_view Path) {
    std::optional<std::string> text = ReadDecodedFile(Path);
    if (!text) {
        return false;
    }
    const CutText cut = CutLines(*text);
    text.reset(); // so that a large file is not in memory twice while its lines are read
    ReadState state{.Document = Document,
        .Section = std::string(IniGlobalSection),
        .Error = {},
        .Sections = {},
        .Entries = {},
        .Elements = {}};
    ReadLines(state, cut);
    return true;
}

} // namespace quillINI
