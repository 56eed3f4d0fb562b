#pragma once

#include "tests/faults/Session.hpp"

#include <array>
#include <span>
#include <string_view>
#include <vector>

/// What must come of a call that fails. Lines stand as they are said, with a "*" for what is not told here;
/// where a failure can mean one thing or another, all stand in one text with "|" between them. No others may
/// be said.
struct FaultRow {
    std::string_view Function;
    int LastCall = 0;                       ///< the row is for the calls up to this one; 0 for all
    int Result = 0;                         ///< of the program
    std::array<std::string_view, 2> Says{}; ///< lines on standard error, if not empty
    std::string_view SaysInWriting{};       ///< instead, while a file is being written
    std::string_view SaysOfMusic{};         ///< instead, if the call is for the music's track
    std::string_view Prints{};              ///< line on standard output, if not empty
    std::string_view PrintsInWriting{};     ///< instead, while a file is being written
    bool IsOfFiles = false;                 ///< whether a file that is being written then fails
    bool LosesPattern = false;              ///< the lines are then those of LinesWithoutPattern
    std::string_view AskedWithout{};        ///< the function is called only where this one fails
    bool IsAskedInRealTime = false;         ///< how often depends on how fast the sounds are played
};

/// A function whose calls cannot fail, or not so that the game could know.
struct SafeFunction {
    std::string_view Name;
    std::string_view Reason;
};

/// The first row for a call of a function. Throws std::logic_error if there is none.
const FaultRow &RowOf(std::string_view Function, int Number);

/// Every function that can fail, once.
std::vector<std::string_view> FaultyFunctions();

std::span<const SafeFunction> SafeFunctions();

/// The line that must be said when a file cannot be written; empty while nothing is being written.
std::string_view FileFailureLine(Writing During);
