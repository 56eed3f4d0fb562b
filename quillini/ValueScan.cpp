#include "quillini/ValueScan.hpp"

#include "quillini/Text.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace quillINI {

namespace {

constexpr std::string_view TagInValue = "Start section tag within value tag!\n";
constexpr std::string_view TagEndInValue = "Close section tag within value tag!\n";
constexpr std::string_view StringNotClosed = "String end tag not defined!\n";
constexpr std::string_view LineEndInString = "Value end tag (New line) was not found!\n";

/// Outside of a string. A NUL byte in a file opens none, so it is free for this.
constexpr char NoQuote = '\0';

struct ValueScan {
    std::string_view Rest;
    std::string &Error;
    ScannedValue Result;
    std::size_t Index = 0;
    char Quote = NoQuote;  ///< the one that closes the open string
    bool Appended = false; ///< whether the open string holds a character
    bool Ended = false;
};

void Append(ValueScan &Scan, char Character) {
    Scan.Result.Value += Character;
    Scan.Appended = true;
}

void End(ValueScan &Scan, std::string_view Error = {}) {
    Scan.Error += Error;
    Scan.Ended = true;
}

void StepOutside(ValueScan &Scan) {
    const char character = Scan.Rest[Scan.Index];
    switch (character) {
    case ' ': // an unquoted value holds no blanks
        break;
    case '[':
        End(Scan, TagInValue);
        break;
    case ']':
        End(Scan, TagEndInValue);
        break;
    case '"':
    case '\'':
        Scan.Quote = character;
        Scan.Appended = false;
        break;
    case ';':
    case '#':
        Scan.Result.Comment = CommentText(Scan.Rest.substr(Scan.Index + 1));
        End(Scan);
        break;
    case '\n':
        End(Scan);
        break;
    default:
        Append(Scan, character);
    }
}

void EndInside(ValueScan &Scan) {
    if (Scan.Appended) { // an empty string gets the second error alone
        Scan.Error += StringNotClosed;
    }
    End(Scan, LineEndInString);
}

/// Whether a backslash at Index takes away the meaning of the character behind it.
/// NOT-BUGS: `\n` and `\t` stay as they are
bool IsEscapeInside(const ValueScan &Scan) {
    const std::string_view pair = Scan.Rest.substr(Scan.Index, 2);
    return pair.size() == 2 && pair[0] == '\\' && (pair[1] == Scan.Quote || pair[1] == '\\');
}

void StepInside(ValueScan &Scan) {
    const char character = Scan.Rest[Scan.Index];
    if (character == '\n') {
        EndInside(Scan);
    } else if (character == Scan.Quote) {
        Scan.Quote = NoQuote;
        Scan.Result.Quoted = true;
    } else if (IsEscapeInside(Scan)) {
        ++Scan.Index;
        Append(Scan, Scan.Rest[Scan.Index]);
    } else {
        Append(Scan, character);
    }
}

} // namespace

ScannedValue ScanValue(std::string_view Rest, std::string &Error) {
    ValueScan scan{.Rest = Rest, .Error = Error, .Result = {}};
    scan.Result.Value.reserve(Rest.size());
    for (; scan.Index < Rest.size() && !scan.Ended; ++scan.Index) {
        if (scan.Quote == NoQuote) {
            StepOutside(scan);
        } else {
            StepInside(scan);
        }
    }
    return scan.Result;
}

} // namespace quillINI
