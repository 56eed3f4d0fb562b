#include "bench/DrawBench.hpp"
#include "bench/Measurements.hpp"
#include "bench/Page.hpp"
#include "bench/PlayBench.hpp"
#include "bench/Programs.hpp"
#include "bench/StartBench.hpp"
#include "bench/Table.hpp"
#include "tools/support/Files.hpp"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// kestrel-bench [calls] [start] [play] [--starts=30] [--play-seconds=60] [--page=<file>], and the options of
// Google Benchmark, which measures the calls: a filter of its own leaves out the other parts. Without a part
// named all are measured; only then is there a page.

namespace {

struct Wishes {
    std::set<std::string> Parts; ///< none for all
    int Starts = 30;
    int PlaySeconds = 60;
    std::string Page; ///< where it is written; empty for nowhere

    bool Has(const char *Part) const {
        return Parts.empty() || Parts.contains(Part);
    }
};

/// Prints as usual and remembers each benchmark's processor time, so that other programs do not count, and
/// its counters; of one that is repeated the median.
class RememberingReporter : public benchmark::ConsoleReporter {
public:
    explicit RememberingReporter(Measurements &Remembered) : Results(Remembered) {}

    void ReportRuns(const std::vector<Run> &Runs) override {
        ConsoleReporter::ReportRuns(Runs);
        for (const Run &run : Runs) {
            const bool isResult = run.run_type == Run::RT_Iteration || run.aggregate_name == "median";
            if (isResult && run.GetAdjustedCPUTime() > 0.0) { // none after an error
                Remember(run);
            }
        }
    }

private:
    /// A counter counts as a time in the same unit: those of SaveBusyRunInParts are what the table tells.
    void Remember(const Run &Done) {
        std::string name = Done.run_name.function_name;
        if (!Done.run_name.args.empty()) {
            name.append("/").append(Done.run_name.args);
        }
        const std::string unit = benchmark::GetTimeUnitString(Done.time_unit);
        Results[name] = {Done.GetAdjustedCPUTime(), unit};
        for (const auto &[counter, value] : Done.counters) {
            Results[std::string(name).append("/").append(counter)] = {value, unit};
        }
    }

    Measurements &Results;
};

/// Whether no filter leaves out benchmarks.
bool AreAllWanted() {
    const std::string filter = benchmark::GetBenchmarkFilter();
    return filter.empty() || filter == "all" || filter == ".";
}

/// Reads the number behind a name such as "--starts=". False if the argument has another name, or no number
/// above 0.
bool ReadNumber(std::string_view Argument, std::string_view Name, int &Out) {
    if (!Argument.starts_with(Name)) {
        return false;
    }
    Out = std::atoi(std::string(Argument.substr(Name.size())).c_str());
    return Out > 0;
}

bool ReadWish(std::string_view Argument, Wishes &Out) {
    constexpr std::string_view page = "--page=";
    if (Argument.starts_with(page)) {
        Out.Page = Argument.substr(page.size());
        return true;
    }
    if (Argument == "calls" || Argument == "start" || Argument == "play") {
        Out.Parts.emplace(Argument);
        return true;
    }
    return ReadNumber(Argument, "--starts=", Out.Starts) ||
           ReadNumber(Argument, "--play-seconds=", Out.PlaySeconds);
}

bool ReadWishes(const std::vector<std::string_view> &Arguments, Wishes &Out) {
    for (const std::string_view argument : Arguments) {
        if (!ReadWish(argument, Out)) {
            std::fprintf(stderr, "kestrel-bench does not know %s\n", std::string(argument).c_str());
            return false;
        }
    }
    if (!AreAllWanted()) {
        Out.Parts.emplace("calls");
    }
    if (!Out.Page.empty() && !Out.Parts.empty()) {
        std::fputs("A page is only written of all figures.\n", stderr);
        return false;
    }
    return true;
}

void MeasurePrograms(const Wishes &Wanted, const DrawingWay &Way, Measurements &Results) {
    if (Wanted.Has("start")) {
        MeasureStarts(Way, Wanted.Starts, Results);
    }
    if (Wanted.Has("play")) {
        MeasurePlay(Way, std::chrono::seconds(Wanted.PlaySeconds), Results);
    }
}

/// Measures what is wanted, prints it, and writes the page. False if a target was missed.
bool MeasureAll(const Wishes &Wanted) {
    const double load = LoadOfMachine();
    Measurements results;
    const bool hasOpenGl = (Wanted.Has("start") || Wanted.Has("play")) && CanDraw(OpenGl());
    if (Wanted.Has("calls")) {
        RememberingReporter reporter(results);
        if (benchmark::RunSpecifiedBenchmarks(&reporter) == 0) {
            return false;
        }
    }
    MeasurePrograms(Wanted, Software(), results);
    if (hasOpenGl) {
        MeasurePrograms(Wanted, OpenGl(), results);
    }
    const bool isWhole = Wanted.Parts.empty();
    // Only the whole table must know: of a part the rows that were not measured are left out anyway, and the
    // calls are drawn by OpenGL without asking.
    const Table table = TableOf(results, {isWhole, hasOpenGl || !isWhole});
    std::printf("\n%s", table.Text.c_str());
    if (!Wanted.Page.empty()) {
        WriteBytes(Wanted.Page, PageOf(table.Text, load, Wanted.Starts, Wanted.PlaySeconds));
    }
    return table.IsKept;
}

} // namespace

int main(int ArgumentCount, char **Arguments) {
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ); // each line at once, into a file or pipe as well
    RegisterDrawBenches();
    benchmark::Initialize(&ArgumentCount, Arguments);
    Wishes wishes;
    if (!ReadWishes({Arguments + 1, Arguments + ArgumentCount}, wishes)) {
        return EXIT_FAILURE;
    }
    try {
        return MeasureAll(wishes) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
