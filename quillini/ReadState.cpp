#include "quillini/ReadState.hpp"

#include "quillini/Model.hpp"
#include "quillini/quillini.hpp"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quillINI {

CurrentSection SectionToFill(ReadState &State) {
    std::vector<IniSection> &sections = State.Document.Sections;
    const auto present = State.Sections.FindOrAwait(sections, &IniSection::Name, State.Section);
    const auto place = static_cast<std::size_t>(present - sections.begin());
    if (place == sections.size()) {
        AppendSection(State.Document, State.Section);
    }
    State.Entries.resize(sections.size());
    return {sections[place], State.Entries[place], place};
}

EntryPlace FindOrAwaitEntry(const CurrentSection &Current, std::string_view Key) {
    return Current.Keys.FindOrAwait(Current.Section.Entries, &IniEntry::Key, Key);
}

} // namespace quillINI
