#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

/// Prints as usual and remembers each benchmark's time for the ratios at the end: processor time, so that
/// other programs do not count, but for the start, where waiting for the display is part of it.
class RememberingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run> &Runs) override {
        ConsoleReporter::ReportRuns(Runs);
        for (const Run &run : Runs) {
            const bool isStart = run.benchmark_name().find("manual_time") != std::string::npos;
            Times[run.benchmark_name()] = isStart ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
        }
    }

    std::map<std::string, double> Times;
};

/// One figure of ours in terms of a bare one, and the most that it may be.
struct Ratio {
    const char *Words;
    const char *Ours;
    const char *Bare;
    double Target;
    const char *BareWords = "the bare calls";
};

constexpr const char *SimpleIni = "SimpleIni's time";

constexpr std::array Ratios{
    Ratio{"drawing at 1280x720", "DrawBusyFrame/1280", "PlayBackBareCalls/1280", 0.30},
    Ratio{"drawing at 2560x720", "DrawBusyFrame/2560", "PlayBackBareCalls/2560", 0.30},
    Ratio{"the HUD", "DrawHudFrame/1280", "PlayBackBareHudCalls/1280", 1.10},
    Ratio{"the paused game", "DrawPausedFrame/1280", "PlayBackBarePausedCalls/1280", 0.54},
    Ratio{"the main menu", "DrawMenuFrame/1280", "PlayBackBareMenuCalls/1280", 0.25},
    Ratio{"start-up", "StartGame/iterations:20/manual_time", "StartBareProgram/iterations:20/manual_time",
        1.25},
    Ratio{"saving a busy run", "SaveBusyRun", "WriteSameBytes", 10.0},
    Ratio{"1 MB of keys", "ReadIni/keys/1", "ReadBySimpleIni/keys/1", 3.0, SimpleIni},
    Ratio{"2 MB of keys", "ReadIni/keys/2", "ReadBySimpleIni/keys/2", 3.0, SimpleIni},
    Ratio{"4 MB of keys", "ReadIni/keys/4", "ReadBySimpleIni/keys/4", 3.0, SimpleIni},
    Ratio{"1 MB of sections", "ReadIni/sections/1", "ReadBySimpleIni/sections/1", 3.0, SimpleIni},
    Ratio{"2 MB of sections", "ReadIni/sections/2", "ReadBySimpleIni/sections/2", 3.0, SimpleIni},
    Ratio{"4 MB of sections", "ReadIni/sections/4", "ReadBySimpleIni/sections/4", 3.0, SimpleIni},
    Ratio{"1 MB of one array", "ReadIni/array/1", "ReadBySimpleIni/array/1", 3.0, SimpleIni},
    Ratio{"2 MB of one array", "ReadIni/array/2", "ReadBySimpleIni/array/2", 3.0, SimpleIni},
    Ratio{"4 MB of one array", "ReadIni/array/4", "ReadBySimpleIni/array/4", 3.0, SimpleIni},
    Ratio{"1 MB of indexes", "ReadIni/indexes/1", "ReadBySimpleIni/indexes/1", 3.0, SimpleIni},
    Ratio{"2 MB of indexes", "ReadIni/indexes/2", "ReadBySimpleIni/indexes/2", 3.0, SimpleIni},
    Ratio{"4 MB of indexes", "ReadIni/indexes/4", "ReadBySimpleIni/indexes/4", 3.0, SimpleIni},
    Ratio{"the German words", "ReadGermanWords", "ReadGermanWordsBySimpleIni", 3.0, SimpleIni},
};

/// Whether no filter leaves out benchmarks.
bool AreAllWanted() {
    const std::string filter = benchmark::GetBenchmarkFilter();
    return filter.empty() || filter == "all" || filter == ".";
}

/// A benchmark's time; 0 if it failed, and if there is none of that name.
double TimeOf(const std::map<std::string, double> &Times, const char *Name) {
    const auto found = Times.find(Name);
    return found != Times.end() ? found->second : 0.0;
}

/// Prints a ratio. False if it is above its target or could not be measured.
bool CheckRatio(const Ratio &Ratio, const std::map<std::string, double> &Times) {
    const double ours = TimeOf(Times, Ratio.Ours);
    const double bare = TimeOf(Times, Ratio.Bare);
    if (ours <= 0.0 || bare <= 0.0) {
        std::printf("  %-20s not measured: it takes %s and %s\n", Ratio.Words, Ratio.Ours, Ratio.Bare);
        return false;
    }
    const bool isKept = ours / bare <= Ratio.Target;
    std::printf("  %-20s %.3f of %s (target: at most %.2f%s)\n", Ratio.Words, ours / bare, Ratio.BareWords,
        Ratio.Target, isKept ? "" : ", which is missed");
    return isKept;
}

/// Prints the ratios whose benchmarks were wanted, and tells whether all are within their targets.
bool CheckRatios(const std::map<std::string, double> &Times) {
    std::printf("\nOur share:\n");
    bool areKept = true;
    for (const Ratio &ratio : Ratios) {
        if (AreAllWanted() || (Times.contains(ratio.Ours) && Times.contains(ratio.Bare))) {
            areKept = CheckRatio(ratio, Times) && areKept;
        }
    }
    return areKept;
}

} // namespace

int main(int ArgumentCount, char **Arguments) {
    benchmark::Initialize(&ArgumentCount, Arguments);
    if (benchmark::ReportUnrecognizedArguments(ArgumentCount, Arguments)) {
        return 1;
    }
    RememberingReporter reporter;
    const bool areAny = benchmark::RunSpecifiedBenchmarks(&reporter) > 0;
    const bool wereOnlyListed = areAny && reporter.Times.empty();
    return wereOnlyListed || (areAny && CheckRatios(reporter.Times)) ? 0 : 1;
}
