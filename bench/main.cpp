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
};

constexpr std::array Ratios{
    Ratio{"drawing at 1280x720", "DrawBusyFrame/1280", "PlayBackBareCalls/1280", 1.10},
    Ratio{"drawing at 2560x720", "DrawBusyFrame/2560", "PlayBackBareCalls/2560", 1.10},
    Ratio{"the HUD", "DrawHudFrame/1280", "PlayBackBareHudCalls/1280", 1.10},
    Ratio{"start-up", "StartGame/iterations:20/manual_time", "StartBareProgram/iterations:20/manual_time",
        1.25},
    Ratio{"saving a busy run", "SaveBusyRun", "WriteSameBytes", 10.0},
};

void PrintRatios(const std::map<std::string, double> &Times) {
    std::printf("\nOur share:\n");
    for (const Ratio &ratio : Ratios) {
        const auto ours = Times.find(ratio.Ours);
        const auto bare = Times.find(ratio.Bare);
        if (ours != Times.end() && bare != Times.end()) {
            std::printf("  %-20s %.3f of the bare calls (target: at most %.2f)\n", ratio.Words,
                ours->second / bare->second, ratio.Target);
        }
    }
}

} // namespace

int main(int ArgumentCount, char **Arguments) {
    benchmark::Initialize(&ArgumentCount, Arguments);
    if (benchmark::ReportUnrecognizedArguments(ArgumentCount, Arguments)) {
        return 1;
    }
    RememberingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    PrintRatios(reporter.Times);
    return 0;
}
