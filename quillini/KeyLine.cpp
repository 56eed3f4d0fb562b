#include "quillini/Model.hpp"
#include "quillini/ReadState.hpp"
#include "quillini/Text.hpp"
#include "quillini/ValueScan.hpp"
#include "quillini/quillini.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillINI {

namespace {

constexpr std::string_view NoSeparator = "No \"=\" or \":\" sign found!\n";
constexpr std::string_view TagInKey = "Start section tag within key tag!\n";
constexpr std::string_view TagEndInKey = "Close section tag within key tag!\n";
constexpr std::string_view CommentInKey = "Found comment tag within key tag!\n";

/// From so many elements on, what the reader knows of an array is kept.
constexpr std::size_t LongArray = 8;

enum class KeyForm : std::uint8_t {
    Plain,
    NextElement,    ///< key[]
    IndexedElement, ///< key[index]
};

KeyForm FormOf(std::string_view KeyText) {
    if (KeyText.ends_with("[]")) {
        return KeyForm::NextElement;
    }
    if (KeyText.ends_with(']') && KeyText.find('[') != std::string_view::npos && !KeyText.starts_with('[')) {
        return KeyForm::IndexedElement;
    }
    return KeyForm::Plain;
}

/// The text behind the first "[", up to the next one or the end, without its last character.
std::string IndexOf(std::string_view KeyText) {
    std::string index = SplitAny(KeyText, "[").at(1);
    index.pop_back();
    return index;
}

std::string KeyNotEnded(char Separator) {
    return std::string("Key end tag (\"") + Separator + "\" sign) was not found!\n";
}

/// The error that a character of a key name is, or an empty text.
std::string_view ErrorInName(char Character, KeyForm Form) {
    switch (Character) {
    case '[':
        return TagInKey;
    case ']':
        return Form == KeyForm::Plain ? TagEndInKey : "";
    case ';':
    case '#':
        return CommentInKey;
    default:
        return "";
    }
}

/// The name in the text before a separator, in an array form up to its "[".
std::string CollectName(std::string_view Text, char Separator, KeyForm Form, std::string &Error) {
    if (Form != KeyForm::Plain) {
        Text = Text.substr(0, Text.find('['));
    }
    for (const char character : Text) {
        const std::string_view error = ErrorInName(character, Form);
        if (!error.empty()) {
            Error.append(error).append(KeyNotEnded(Separator));
            return {};
        }
    }
    std::string name(Text);
    std::erase(name, ' '); // a key holds no blanks; tabs are kept
    if (name.empty()) {
        Error += KeyNotEnded(Separator);
    }
    return name;
}

void StoreValue(ReadState &State, std::string_view Name, const ScannedValue &Scanned) {
    const CurrentSection current = SectionToFill(State);
    IniEntry &entry =
        SetValue(current.Section, FindOrAwaitEntry(current, Name), Name, Scanned.Value, Scanned.Quoted);
    SetIniEntryComment(entry, Scanned.Comment);
}

void StoreElement(ReadState &State, std::string_view Name, const ScannedValue &Scanned,
    const std::optional<std::string> &Index) {
    const CurrentSection current = SectionToFill(State);
    IniEntry &array = ArrayToFill(current.Section, FindOrAwaitEntry(current, Name), Name, Index.has_value());
    const auto place = static_cast<std::size_t>(&array - current.Section.Entries.data());
    // A short array's index is made anew for each element: those of thousands of arrays would take more room
    // than the arrays do.
    ElementIndex temporary;
    ElementIndex &elements =
        array.Elements.size() < LongArray ? temporary : State.Elements[{current.Place, place}];
    const auto present =
        Index ? elements.Keys.FindOrAwait(array.Elements, &IniEntry::Key, *Index) : array.Elements.end();
    SetElement(array, present, Index ? *Index : ChooseIndex(array, elements.Numbers), Scanned.Value,
        Scanned.Quoted, CommentOrNone(Scanned.Comment));
}

void Store(ReadState &State, std::string_view Name, const ScannedValue &Scanned, std::string_view KeyText,
    KeyForm Form) {
    switch (Form) {
    case KeyForm::NextElement:
        StoreElement(State, Name, Scanned, std::nullopt);
        break;
    case KeyForm::IndexedElement:
        StoreElement(State, Name, Scanned, IndexOf(KeyText));
        break;
    case KeyForm::Plain:
    default:
        StoreValue(State, Name, Scanned);
    }
}

} // namespace

void ReadKeyLine(ReadState &State, std::string_view Line) {
    const std::size_t separatorAt = Line.find_first_of("=:");
    if (separatorAt == std::string_view::npos) {
        State.Error += NoSeparator;
        return;
    }
    const std::string_view beforeSeparator = Line.substr(0, separatorAt);
    const std::string_view keyText = TrimBlanks(beforeSeparator);
    const KeyForm form = FormOf(keyText);
    const std::string name = CollectName(beforeSeparator, Line[separatorAt], form, State.Error);
    if (!State.Error.empty()) {
        return;
    }
    const ScannedValue scanned = ScanValue(Line.substr(separatorAt + 1), State.Error);
    if (State.Error.empty()) {
        Store(State, name, scanned, keyText, form);
    }
}

} // namespace quillINI
