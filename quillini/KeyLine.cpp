#include "quillini/Model.hpp"
#include "quillini/ReadState.hpp"
#include "quillini/Text.hpp"
#include "quillini/ValueScan.hpp"
#include "quillini/quillini.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillINI {

namespace {

constexpr std::string_view Separators = "=:";

constexpr std::string_view NoSeparator = "No \"=\" or \":\" sign found!\n";
constexpr std::string_view TagInKey = "Start section tag within key tag!\n";
constexpr std::string_view TagEndInKey = "Close section tag within key tag!\n";
constexpr std::string_view CommentInKey = "Found comment tag within key tag!\n";

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

/// The name at the start of a line, up to the separator.
std::string CollectName(std::string_view Line, char Separator, KeyForm Form, std::string &Error) {
    std::string name;
    for (const char character : Line.substr(0, Line.find(Separator))) {
        if (character == '[' && Form != KeyForm::Plain) {
            break;
        }
        const std::string_view error = ErrorInName(character, Form);
        if (!error.empty()) {
            Error.append(error).append(KeyNotEnded(Separator));
            return name;
        }
        if (character != ' ') { // a key holds no blanks; tabs are kept
            name += character;
        }
    }
    if (name.empty()) {
        Error += KeyNotEnded(Separator);
    }
    return name;
}

void StoreValue(IniSection &Section, std::string_view Name, const ScannedValue &Scanned) {
    SetIniEntryComment(AddIniValue(Section, Name, Scanned.Value, Scanned.Quoted), Scanned.Comment);
}

void StoreElement(IniSection &Section, std::string_view Name, const ScannedValue &Scanned,
    std::string_view Index, bool HasIndex) {
    AddIniArrayElement(Section, Name, Scanned.Value, Scanned.Quoted, !Scanned.Comment.empty(),
        Scanned.Comment, Index, HasIndex);
}

void Store(
    IniSection &Section, std::string_view Name, const ScannedValue &Scanned, std::string_view KeyText) {
    switch (FormOf(KeyText)) {
    case KeyForm::NextElement:
        StoreElement(Section, Name, Scanned, "", false);
        break;
    case KeyForm::IndexedElement:
        StoreElement(Section, Name, Scanned, IndexOf(KeyText), true);
        break;
    case KeyForm::Plain:
    default:
        StoreValue(Section, Name, Scanned);
    }
}

} // namespace

void ReadKeyLine(ReadState &State, std::string_view Line) {
    const std::size_t separatorAt = Line.find_first_of(Separators);
    if (separatorAt == std::string_view::npos) {
        State.Error += NoSeparator;
        return;
    }
    const char separator = Line[separatorAt];
    const std::string_view keyText = TrimBlanks(Line.substr(0, separatorAt));
    const std::string name = CollectName(Line, separator, FormOf(keyText), State.Error);
    if (!State.Error.empty()) {
        return;
    }
    const ScannedValue scanned = ScanValue(Line.substr(separatorAt + 1), State.Error);
    if (State.Error.empty()) {
        State.HasLookalikes = State.HasLookalikes || name.starts_with(ReservedPrefix);
        Store(SectionToFill(State.Document, State.Section), name, scanned, keyText);
    }
}

} // namespace quillINI
