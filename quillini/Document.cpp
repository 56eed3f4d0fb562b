#include "quillini/Model.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace quillINI {

namespace {

template <class DocumentType> auto &SectionAt(DocumentType &Document, std::ptrdiff_t Index) {
    if (Index < 0 || Index >= std::ssize(Document.Sections)) {
        throw std::out_of_range("Index is out of range!");
    }
    return Document.Sections[static_cast<std::size_t>(Index)];
}

} // namespace

IniDocument::IniDocument() {
    SectionToFill(*this, IniGlobalSection);
}

std::vector<IniSection>::iterator FindIniSection(IniDocument &Document, std::string_view Name) {
    return std::ranges::find(Document.Sections, Name, &IniSection::Name);
}

std::vector<IniSection>::const_iterator FindIniSection(const IniDocument &Document, std::string_view Name) {
    return std::ranges::find(Document.Sections, Name, &IniSection::Name);
}

bool HasIniSection(const IniDocument &Document, std::string_view Name) {
    return FindIniSection(Document, Name) != Document.Sections.end();
}

IniSection &IniSectionAt(IniDocument &Document, std::ptrdiff_t Index) {
    return SectionAt(Document, Index);
}

const IniSection &IniSectionAt(const IniDocument &Document, std::ptrdiff_t Index) {
    return SectionAt(Document, Index);
}

IniSection &SectionToFill(IniDocument &Document, std::string_view Name) {
    const auto present = FindIniSection(Document, Name);
    return present != Document.Sections.end() ? *present : AppendSection(Document, Name);
}

IniSection &AppendSection(IniDocument &Document, std::string_view Name) {
    IniSection section;
    section.Name = Name;
    return Document.Sections.emplace_back(std::move(section));
}

std::vector<IniEntry>::iterator FindIniEntry(IniSection &Section, std::string_view Key) {
    return std::ranges::find(Section.Entries, Key, &IniEntry::Key);
}

std::vector<IniEntry>::const_iterator FindIniEntry(const IniSection &Section, std::string_view Key) {
    return std::ranges::find(Section.Entries, Key, &IniEntry::Key);
}

} // namespace quillINI
