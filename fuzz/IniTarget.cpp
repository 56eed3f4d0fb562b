#include "fuzz/support/ExpectedFailure.hpp"
#include "fuzz/support/Target.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <set>

// The input as an INI file: read, written in one of the twelve ways, and read again.

using namespace quillINI;

namespace {

constexpr std::size_t EncodingCount = 6;

/// Whether no two of the list have the same name.
template <typename List, typename Name> bool AreUnique(const List &Entries, Name Member) {
    std::set<std::string_view> names;
    return std::ranges::all_of(Entries, [&](const auto &Entry) {
        return names.insert(Entry.*Member).second;
    });
}

void DemandWholeEntry(const IniEntry &Entry) {
    Demand(AreUnique(Entry.Elements, &IniEntry::Key), "two elements of an array have the same key");
    Demand(std::ranges::all_of(Entry.Elements,
               [](const IniEntry &Element) {
                   return Element.Kind == IniEntryKind::Value;
               }),
        "an element is no value");
}

void DemandWholeDocument(const IniDocument &Document) {
    Demand(!Document.Sections.empty() && Document.Sections.front().Name == IniGlobalSection,
        "the global section is not the first");
    Demand(AreUnique(Document.Sections, &IniSection::Name), "two sections have the same name");
    for (const IniSection &section : Document.Sections) {
        Demand(AreUnique(section.Entries, &IniEntry::Key), "two entries of a section have the same key");
        std::ranges::for_each(section.Entries, DemandWholeEntry);
    }
}

/// Reads the file and writes what came of it, in a way that the length of the input picks.
void ReadAndWrite(const std::string &Path, const std::string &CopyPath, std::size_t Length) {
    IniDocument document;
    const bool wasRead = ReadIniFile(document, Path);
    Demand(wasRead == (Length >= 6), "the size of the file does not decide whether it is read");
    DemandWholeDocument(document);
    const auto encoding = static_cast<IniEncoding>(Length % EncodingCount);
    const bool spaced = Length / EncodingCount % 2 == 1;
    Demand(WriteIniFile(document, CopyPath, spaced, encoding), "the document was not written");
    IniDocument copy;
    ReadIniFile(copy, CopyPath);
    DemandWholeDocument(copy);
}

/// Writes the text as a quoted value and demands it back.
void SendThroughFile(std::string_view Text, const std::string &Path) {
    IniDocument document;
    SetIniString(document, "Section", "Key", Text);
    Demand(WriteIniFile(document, Path, false, static_cast<IniEncoding>(Text.size() % EncodingCount)),
        "the value was not written");
    IniDocument copy;
    Demand(ReadIniFile(copy, Path), "the file of a value was not read");
    Demand(GetIniValue(copy, "Section", "Key", "") == Text, "a quoted value did not come back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Data, std::size_t Size) {
    const std::string_view text = TextOf({Data, Size});
    const std::string path = Home().FilePath("Input.ini").string();
    const std::string copyPath = Home().FilePath("Copy.ini").string();
    WriteBytes(path, text);
    Succeeds([&] {
        ReadAndWrite(path, copyPath, Size);
    });
    if (SurvivesEscaping(text)) {
        SendThroughFile(text, copyPath);
    }
    return 0;
}
