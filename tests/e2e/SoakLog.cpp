#include "tests/e2e/SoakLog.hpp"

#include "tests/e2e/Plot.hpp"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace {

using std::chrono::steady_clock;

// The memory that a program holds, in KiB.
int ResidentMemory(pid_t Id) {
    std::ifstream status("/proc/" + std::to_string(Id) + "/status");
    for (std::string word; status >> word;) {
        if (word == "VmRSS:") {
            int size = 0;
            status >> size;
            return size;
        }
    }
    return 0;
}

int OpenHandles(pid_t Id) {
    const std::filesystem::directory_iterator handles("/proc/" + std::to_string(Id) + "/fd");
    return static_cast<int>(std::distance(begin(handles), end(handles)));
}

// How long each picture of a second stood on the screen, in milliseconds. Nothing if no run is played, or it
// has been left by the end: only there every frame is another picture.
std::vector<double> WatchFrames(OpenedGame &Game) {
    constexpr std::chrono::seconds watched{1};
    Screenshot shown = Game.Person().Look();
    if (FindScreen(shown) != SeenScreen::Playing) {
        return {};
    }
    std::vector<double> lengths;
    const steady_clock::time_point end = steady_clock::now() + watched;
    std::optional<steady_clock::time_point> changed;
    for (steady_clock::time_point now; (now = steady_clock::now()) < end;) {
        Screenshot next = Game.Person().Look();
        if (next.Pixels == shown.Pixels) {
            continue;
        }
        if (changed) {
            lengths.push_back(std::chrono::duration<double, std::milli>(now - *changed).count());
        }
        changed = now;
        shown = std::move(next);
    }
    return FindScreen(shown) == SeenScreen::Playing ? lengths : std::vector<double>{};
}

void Print(const SoakRow &Row) {
    std::printf("%7.0f s  %7d KiB  %3d handles  %d log lines  frames %5.1f ms, at most %5.1f ms  (watching: "
                "%d KiB)\n",
        Row.Seconds, Row.Memory, Row.Handles, Row.LogLines, Row.UsualFrame, Row.WorstFrame, Row.OwnMemory);
    std::fflush(stdout);
}

} // namespace

SoakLog::SoakLog(OpenedGame &Watched, std::chrono::seconds Distance)
    : Game(Watched), RowDistance(Distance), Start(steady_clock::now()), Due(Start) {}

void SoakLog::Look() {
    const pid_t id = Game.Program().ProcessId();
    const int memory = ResidentMemory(id);
    if (!Rows.empty()) {
        Rows.back().Memory = std::max(Rows.back().Memory, memory);
    }
    if (steady_clock::now() < Due || !Game.Program().IsRunning()) {
        return;
    }
    std::vector<double> frames = WatchFrames(Game);
    if (frames.empty()) {
        return;
    }
    std::ranges::sort(frames);
    const std::string output = Game.Program().Output();
    const std::chrono::duration<double> time = steady_clock::now() - Start;
    Rows.push_back({.Seconds = time.count(),
        .Memory = memory,
        .Handles = OpenHandles(id),
        .LogLines = static_cast<int>(std::ranges::count(output, '\n')),
        .UsualFrame = frames[frames.size() / 2],
        .WorstFrame = frames.back(),
        .OwnMemory = ResidentMemory(getpid())});
    Print(Rows.back());
    Due = steady_clock::now() + RowDistance;
}

std::string PlotOf(const std::vector<SoakRow> &Rows) {
    std::vector<double> times;
    std::vector<PlotPanel> panels{{"memory in MiB", {{}}}, {"handles", {{}}}, {"log lines", {{}}},
        {"usual and worst frame in milliseconds", {{}, {}}}};
    for (const SoakRow &row : Rows) {
        times.push_back(row.Seconds);
        panels[0].Lines[0].push_back(row.Memory / 1024.0);
        panels[1].Lines[0].push_back(row.Handles);
        panels[2].Lines[0].push_back(row.LogLines);
        panels[3].Lines[0].push_back(row.UsualFrame);
        panels[3].Lines[1].push_back(row.WorstFrame);
    }
    return DrawPlot(times, panels);
}
