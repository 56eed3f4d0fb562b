#include "tests/faults/Faults.hpp"

#include "tests/faults/FaultWatch.hpp"

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

/// Takes a line out of a list that begins with one of the texts; false if there is none.
bool TakeLine(std::vector<std::string> &Lines, std::string_view Beginnings) {
    while (!Beginnings.empty()) {
        const std::string_view beginning = Beginnings.substr(0, Beginnings.find('|'));
        Beginnings.remove_prefix(std::min(beginning.size() + 1, Beginnings.size()));
        const auto found = std::ranges::find_if(Lines, [beginning](const std::string &Line) {
            return Line.starts_with(beginning);
        });
        if (found != Lines.end()) {
            Lines.erase(found);
            return true;
        }
    }
    return false;
}

/// What is wrong with the lines: those that miss, and those that are too many.
std::string VerdictOnLines(const SessionPlan &Fault, const FaultRow &Row, const SessionEnd &End) {
    std::string verdict;
    std::vector<std::string> lines = End.Lines;
    std::vector<std::string_view> wanted(Row.Says.begin(), Row.Says.end());
    if (Row.IsOfFiles && End.Report.During != Writing::Nothing) {
        wanted.push_back(FileFailureLine(End.Report.During));
    }
    for (const std::string_view beginning : wanted) {
        if (!beginning.empty() && !TakeLine(lines, beginning)) {
            verdict += "Missing: " + std::string(beginning) + "\n";
        }
    }
    for (const std::string &line : PlainSession(Fault.Start, Fault.Without).Lines) {
        TakeLine(lines, line);
    }
    while (TakeLine(lines, Row.MaySay)) {
    }
    for (const std::string &line : lines) {
        verdict += "Unexpected: " + line + "\n";
    }
    return verdict;
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
    return End.Report.FaultCame || !RowOf(Fault.Function, Fault.Number).IsAskedInRealTime;
}

std::string Verdict(const SessionPlan &Fault, const SessionEnd &End) {
    if (End.Status != 0) {
        return VerdictOnProcess(End.Status);
    }
    const FaultRow &row = RowOf(Fault.Function, Fault.Number);
    std::string verdict;
    if (!End.Report.FaultCame) {
        verdict += "The call did not come.\n";
    }
    if (End.Report.Result != row.Result) {
        verdict += "The result is " + std::to_string(End.Report.Result) + ".\n";
    }
    return verdict + VerdictOnFiles(row, End.Report) + VerdictOnLines(Fault, row, End);
}
