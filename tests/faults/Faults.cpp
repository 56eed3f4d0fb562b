#include "tests/faults/Faults.hpp"

#include "tests/faults/FaultWatch.hpp"
#include "tests/faults/LostPatterns.hpp"

#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <random>
#include <regex>
#include <stdexcept>
#include <thread>
#include <utility>

namespace {

constexpr int CallsBetween = 20;
constexpr int Share = 50;

std::string Setting(const char *Name) {
    const char *const value = std::getenv(Name);
    return value != nullptr ? value : "";
}

bool AllAreWanted() {
    return Setting("KESTREL_FAULTS") == "all";
}

/// Which calls of a function are to fail, one in each session.
std::vector<int> NumbersOf(int Calls, int Frames) {
    std::vector<int> numbers;
    if (Calls < Frames || Calls <= CallsBetween + 2) {
        for (int number = 1; number <= Calls; ++number) {
            numbers.push_back(number);
        }
        return numbers;
    }
    for (int i = 0; i <= CallsBetween + 1; ++i) {
        numbers.push_back(1 + static_cast<int>(std::int64_t{Calls - 1} * i / (CallsBetween + 1)));
    }
    return numbers;
}

void AddFaults(std::vector<SessionPlan> &Faults, Launch Start, std::string_view Function) {
    const std::string_view without = RowOf(Function, 1).AskedWithout;
    const SessionEnd &plain = PlainSession(Start, without);
    for (const int number : NumbersOf(CallsOf(plain, Function), CallsOf(plain, "SDL_RenderPresent"))) {
        Faults.push_back({.Start = Start, .Function = Function, .Number = number, .Without = without});
    }
}

/// The fault of a name as NameOf gives it. Throws std::logic_error if there is none.
SessionPlan FaultOf(const std::string &Name) {
    static const std::regex pattern("(first|later):(\\w+):([1-9][0-9]*)");
    std::smatch match;
    if (!std::regex_match(Name, match, pattern)) {
        throw std::invalid_argument(Name + " is no fault");
    }
    const int number = std::stoi(match[3]);
    const FaultRow &row = RowOf(match[2].str(), number);
    return {.Start = match[1] == "first" ? Launch::First : Launch::Later,
        .Function = row.Function,
        .Number = number,
        .Without = row.AskedWithout};
}

/// Whether a line is as told: the same, but for what a "*" stands for.
bool IsAsTold(std::string_view Line, std::string_view Told) {
    const std::size_t star = Told.find('*');
    if (star == std::string_view::npos) {
        return Line == Told;
    }
    return Line.size() + 1 >= Told.size() && Line.starts_with(Told.substr(0, star)) &&
           Line.ends_with(Told.substr(star + 1));
}

/// Takes a line out of a list that is as one of the texts tells; false if there is none.
bool TakeLine(std::vector<std::string> &Lines, std::string_view Told) {
    while (!Told.empty()) {
        const std::string_view told = Told.substr(0, Told.find('|'));
        Told.remove_prefix(std::min(told.size() + 1, Told.size()));
        const auto found = std::ranges::find_if(Lines, [told](const std::string &Line) {
            return IsAsTold(Line, told);
        });
        if (found != Lines.end()) {
            Lines.erase(found);
            return true;
        }
    }
    return false;
}

/// What is wrong with the lines: those that miss, and those that are too many.
std::string VerdictOnLines(std::vector<std::string> Lines, const std::vector<std::string> &Wanted) {
    std::string verdict;
    for (const std::string &wanted : Wanted) {
        if (!wanted.empty() && !TakeLine(Lines, wanted)) {
            verdict += "Missing: " + wanted + "\n";
        }
    }
    for (const std::string &line : Lines) {
        verdict += "Unexpected: " + line + "\n";
    }
    return verdict;
}

/// The lines on standard error that must come of a fault.
std::vector<std::string> WantedLines(const SessionPlan &Fault, const FaultRow &Row, const SessionEnd &End) {
    std::vector<std::string> wanted(Row.Says.begin(), Row.Says.end());
    if (Row.LosesPattern) {
        wanted = LinesWithoutPattern(Row.Function, Fault.Number);
    } else if (Row.IsOfFiles && End.Report.During != Writing::Nothing) {
        wanted = {std::string(Row.SaysInWriting)};
    } else if (End.Report.IsOfMusic && !Row.SaysOfMusic.empty()) {
        wanted = {std::string(Row.SaysOfMusic)};
    }
    if (Row.IsOfFiles) {
        wanted.emplace_back(FileFailureLine(End.Report.During));
    }
    return wanted;
}

/// What is wrong with what was said and printed. What is said without a fault may be said, too: the program
/// may end before.
std::string VerdictOnOutput(const SessionPlan &Fault, const FaultRow &Row, const SessionEnd &End) {
    std::vector<std::string> said = End.Lines;
    for (const std::string &line : PlainSession(Fault.Start, Fault.Without).Lines) {
        TakeLine(said, line);
    }
    const bool isWriting = End.Report.During != Writing::Nothing;
    return VerdictOnLines(said, WantedLines(Fault, Row, End)) +
           VerdictOnLines(End.Printed, {std::string(isWriting ? Row.PrintsInWriting : Row.Prints)});
}

std::string VerdictOnProcess(int Status) {
    if (!WIFSIGNALED(Status)) {
        return "A sanitizer's finding, or a leak.\n";
    }
    const int signal = WTERMSIG(Status);
    return signal == SIGALRM ? "Hangs.\n" : "Ended by signal " + std::to_string(signal) + ".\n";
}

std::string VerdictOnFiles(const FaultRow &Row, const SessionReport &Report) {
    std::string verdict;
    if (Report.MixedFiles != 0) {
        verdict += "A file is neither the old one nor the new one.\n";
    }
    if (Report.StrayFiles != 0 && Row.Function != "remove") {
        verdict += "A staging file is left.\n";
    }
    return verdict;
}

/// What is wrong with how the game has gone on after it could not write a file. It tries the options again in
/// each frame, but not the first ones; and a save after a second at the latest, which a session may be over
/// before.
std::string VerdictOnRetry(const SessionPlan &Fault, const SessionEnd &End) {
    const SessionEnd &plain = PlainSession(Fault.Start, Fault.Without);
    switch (End.Report.During) {
    case Writing::FirstOptions:
        return !End.Options ? "" : "There are options.\n";
    case Writing::Options:
        return End.Options == plain.Options ? ""
                                            : "The options are not those of a session without a fault.\n";
    case Writing::SaveState:
        return End.Report.WasMadeUpFor || End.Report.FailedSave == plain.Report.SaveWrites
                   ? ""
                   : "The run was not saved later.\n";
    default:
        return {};
    }
}

} // namespace

const SessionEnd &PlainSession(Launch Start, std::string_view Without) {
    static std::map<std::pair<Launch, std::string_view>, SessionEnd> known;
    const auto key = std::pair(Start, Without);
    auto found = known.find(key);
    if (found == known.end()) {
        const SessionPlan plan{.Start = Start, .Without = Without};
        found = known.emplace(key, PlayAll({plan}, 1).front()).first;
    }
    return found->second;
}

int CallsOf(const SessionEnd &Plain, std::string_view Function) {
    return Plain.Report.Calls.at(static_cast<std::size_t>(&EntryOf(Function) - WatchedEntries().data()));
}

std::vector<SessionPlan> AllFaults() {
    std::vector<SessionPlan> faults;
    for (const std::string_view function : FaultyFunctions()) {
        AddFaults(faults, Launch::First, function);
        AddFaults(faults, Launch::Later, function);
    }
    return faults;
}

std::vector<SessionPlan> WantedFaults() {
    const std::string name = Setting("KESTREL_FAULTS");
    if (!name.empty() && !AllAreWanted()) {
        return {FaultOf(name)};
    }
    std::vector<SessionPlan> faults = AllFaults();
    if (AllAreWanted()) {
        return faults;
    }
    const std::string seed = Setting("KESTREL_FAULTS_SEED");
    std::ranges::shuffle(faults, std::mt19937(seed.empty() ? 1U : std::stoul(seed)));
    faults.resize(faults.size() / Share);
    return faults;
}

int SessionsAtOnce() {
    return AllAreWanted() ? static_cast<int>(std::thread::hardware_concurrency()) + 1 : 1;
}

std::string NameOf(const SessionPlan &Fault) {
    const std::string start = Fault.Start == Launch::First ? "first:" : "later:";
    return start + std::string(Fault.Function) + ":" + std::to_string(Fault.Number);
}

bool WasTried(const SessionPlan &Fault, const SessionEnd &End) {
    const bool mayStayAway = RowOf(Fault.Function, Fault.Number).IsAskedInRealTime;
    return End.Report.FaultCame || End.Status != 0 || !mayStayAway;
}

std::string Verdict(const SessionPlan &Fault, const SessionEnd &End) {
    if (End.Status != 0) {
        return VerdictOnProcess(End.Status);
    }
    if (!End.Report.FaultCame) {
        return "The call did not come.\n";
    }
    const FaultRow &row = RowOf(Fault.Function, Fault.Number);
    std::string verdict;
    if (End.Report.Result != row.Result) {
        verdict += "The result is " + std::to_string(End.Report.Result) + ".\n";
    }
    verdict += VerdictOnFiles(row, End.Report) + VerdictOnOutput(Fault, row, End);
    return row.IsOfFiles ? verdict + VerdictOnRetry(Fault, End) : verdict;
}
