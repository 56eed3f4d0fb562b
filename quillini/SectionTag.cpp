#include "quillini/Model.hpp"
#include "quillini/ReadState.hpp"
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
    // The end of the scan: a tag that is still open here is one error more.
    const auto endTag = [&State, &closed](std::string_view Error = {}) {
        State.Error += Error;
        State.Error += closed ? "" : TagNotClosed;
    };
    for (std::size_t i = 0; i < Rest.size(); ++i) {
        switch (Rest[i]) {
        case '\n':
            endTag();
            return;
        case ' ': // a section's name holds no blanks
            break;
        case ']':
            closed = true;
            break;
        case ';':
        case '#':
            if (closed) {
                SetIniSectionComment(
                    SectionToFill(State.Document, State.Section), CommentText(Rest.substr(i + 1)));
            } else {
                endTag(CommentInTag);
            }
            return;
        case '[':
            endTag(TagInTag);
            return;
        default: // behind the "]" too: stray text joins the name
            State.Section += Rest[i];
        }
    }
}

} // namespace quillINI
