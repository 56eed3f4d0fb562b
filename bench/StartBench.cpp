#include "bench/StartBench.hpp"

#include "tools/desktop/GameSession.hpp"
#include "tools/desktop/SharedScreen.hpp"
#include "tools/desktop/WaitUntil.hpp"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// A picture counts from the moment in which the X server has it: what the screen shows is looked at some ten
// thousand times a second, in memory that the server shares, so that nobody waits for the one who looks.

namespace {

constexpr std::chrono::microseconds Glance{50};
constexpr std::chrono::milliseconds Pause{50}; // for the display to settle between two starts

/// A display whose screen can be watched without asking it. A window manager looks after it, as on any
/// desktop: without one SDL waits in vain for its answers.
struct WatchedDisplay {
    VirtualDisplay Display{ScreenSize{}, ScreenMemory::Shared};
    SharedScreen Screen{Display};
    PreparedHome Home;
    XClient Client{Display.Name()};
    WindowManager Manager{Display.Name(), Home.Path(), Client};
};

/// Waits until the program's picture has gone with its window.
void WaitForEmptyScreen(const WatchedDisplay &Watched) {
    const bool isEmpty = WaitUntil([&Watched] {
        return !Watched.Screen.ShowsAnything();
    });
    if (!isEmpty) {
        throw std::runtime_error("The screen does not become empty again");
    }
    std::this_thread::sleep_for(Pause);
}

/// Launches a program and kills it when it has shown its first picture. The time between, in milliseconds.
double TimeToFirstPicture(const std::filesystem::path &Program, const PreparedHome &Home,
    const DrawingWay &Way, const WatchedDisplay &Watched) {
    using std::chrono::steady_clock;
    const Environment variables = SessionEnvironment(Home.Path(), Watched.Display.Name(), Way.Settings);
    const steady_clock::time_point launch = steady_clock::now();
    ChildProcess program(Program, {}, variables);
    WaitUntil(
        [&] {
            return Watched.Screen.ShowsAnything() || !program.IsRunning();
        },
        PatientDeadline, Glance);
    const std::chrono::duration<double, std::milli> time = steady_clock::now() - launch;
    if (!Watched.Screen.ShowsAnything()) {
        throw std::runtime_error(Program.string() + " shows nothing. It says:\n" + program.Output());
    }
    program.Send(SIGKILL);
    return time.count();
}

/// One program and the times of its starts.
class StartSeries {
public:
    StartSeries(const char *StartedProgram, DrawingWay Way)
        : Program(StartedProgram), DrawnBy(std::move(Way)) {}

    /// From now on the program finds what it has left in an earlier run.
    void KeepHome() {
        Home.emplace();
        RunOnce(Program, *Home, DrawnBy);
    }

    void StartOnce(const WatchedDisplay &Watched) {
        const PreparedHome fresh;
        Times.push_back(TimeToFirstPicture(Program, Home ? *Home : fresh, DrawnBy, Watched));
        WaitForEmptyScreen(Watched);
    }

    Measurement Result() {
        std::ranges::sort(Times);
        const std::size_t count = Times.size();
        return {Times[count / 2], "ms", Times[count / 4], Times[count * 3 / 4]};
    }

private:
    std::filesystem::path Program;
    DrawingWay DrawnBy;
    std::optional<PreparedHome> Home;
    std::vector<double> Times;
};

void MeasureInTurn(const std::string &Name, StartSeries &Game, StartSeries &Bare, int Count,
    const WatchedDisplay &Watched, Measurements &Results) {
    for (int i = 0; i < Count; ++i) {
        Game.StartOnce(Watched);
        Bare.StartOnce(Watched);
    }
    Results[Name + "/Game"] = Game.Result();
    Results[Name + "/Bare"] = Bare.Result();
}

} // namespace

void MeasureStarts(const DrawingWay &Way, int Count, Measurements &Results) {
    std::printf("Starting the game and the bare program %d times each (%s) ...\n", 2 * Count, Way.Name);
    const WatchedDisplay desk;
    StartSeries firstGame(GameProgram, Way);
    StartSeries firstBare(BareProgram, Way);
    MeasureInTurn(std::string("FirstStart/") + Way.Name, firstGame, firstBare, Count, desk, Results);
    StartSeries laterGame(GameProgram, Way);
    StartSeries laterBare(BareProgram, Way);
    laterGame.KeepHome();
    laterBare.KeepHome();
    MeasureInTurn(std::string("LaterStart/") + Way.Name, laterGame, laterBare, Count, desk, Results);
}
