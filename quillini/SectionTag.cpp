#include "quillini/ReadState.hpp"
#include "quillini/Text.hpp"
#include "quillini/quillini.hpp"

#include <cstddef>
#include <string_view>

namespace quillINI {

namespace {

constexpr std::string_view CommentInTag = "Found comment tag within section tag!\n";
constexpr std::string_view TagInTag = "New section started within section tag!\n";
constexpr std::string_view TagNotClosed = "Section end tag was not found!\n";

} // namespace

void ReadSectionTag(ReadState &State, std::string_view Rest) {
    State.Section.clear();
    bool closed = false;
    // Notes an error, if there is one, and another if the tag is still open.
    const auto noteErrors = [&State, &closed](std::string_view Error = {}) {
        State.Error += Error;
        State.Error += closed ? "" : TagNotClosed;
    };
    for (std::size_t i = 0; i < Rest.size(); ++i) {
        switch (Rest[i]) {
        case '\n':
            noteErrors();
            return;
        case ' ': // a section's name holds no blanks
            break;
        case ']':
            closed = true;
            break;
        case ';':
        case '#':
            if (closed) {
                SetIniSectionComment(SectionToFill(State).Section, CommentText(Rest.substr(i + 1)));
            } else {
                noteErrors(CommentInTag);
            }
            return;
        case '[':
            noteErrors(TagInTag);
            return;
        default: // NOT-BUGS: Stray text behind a section's "]" joins its name
            State.Section += Rest[i];
        }
    }
}

} // namespace quillINI
