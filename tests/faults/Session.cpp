#include "tests/faults/Session.hpp"

#include "app/Frame.hpp"
#include "app/Program.hpp"
#include "app/ShutDown.hpp"
#include "app/StartUp.hpp"
#include "tests/faults/FaultWatch.hpp"
#include "tests/support/EnvironmentScope.hpp"
#include "tests/support/Sdl.hpp"
#include "tools/support/Files.hpp"

#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <tuple>

namespace {

using Contents = std::optional<std::string>; // of a file, if it is there

/// Between frames, beside the 8 milliseconds that each sleeps: together the longest step.
constexpr Uint64 BetweenFrames = 25;

/// Longer than any storage is waited for.
constexpr Uint64 StorageWait = 2000;

/// After the request to quit.
constexpr int MostIdleFrames = 50;

class Session {
public:
    Session(const SessionPlan &Plan, const std::filesystem::path &HomeFolder, SessionReport &Into);

    void Play();

private:
    void RunClock();
    void FailAsPlanned(const SessionPlan &Plan);
    void NoteFault();
    int RunProgram();
    static bool WriteOptions(const GameState &State);
    static bool WriteRun(const GameState &State);
    bool Write(Writing What, const char *Name, StateWriter Writer, const GameState &State);
    Contents Found(const std::string &Name) const;
    void Put(const std::string &Name, const Contents &Bytes) const;
    void LookAtFiles();

    static inline Session *Playing = nullptr; ///< the game's writers are plain functions

    const std::filesystem::path Folder;
    SessionReport &Report;
    Hands Player;
    FaultWatch Watch;
    Uint64 Clock = 1000; ///< in milliseconds
    bool IsStarted = false;
    Writing Present = Writing::Nothing;
    std::map<std::string, Contents> Files; ///< as they were last seen
};

Session::Session(const SessionPlan &Plan, const std::filesystem::path &HomeFolder, SessionReport &Into)
    : Folder(HomeFolder / "Orrin" / "KestrelVolley"), Report(Into), Player(Plan.Start) {
    Playing = this;
    for (const char *name : {OptionsFileName, SaveStateFileName}) {
        Files[name] = Found(name);
    }
    Watch.SdlWatch::Init.Answer = [this](SDL_InitFlags Flags) {
        const bool isUp = SDL_Init(Flags);
        if (isUp) {
            Player.PlugInPad(); // so that the start finds it
        }
        return isUp;
    };
    RunClock();
    if (Plan.StorageIsLate) {
        Watch.StorageReady.Answer = [isReady = true](SDL_Storage * /*Storage*/) mutable {
            isReady = !isReady;
            return isReady;
        };
    }
    FailAsPlanned(Plan);
}

void Session::RunClock() {
    Watch.GetTicks.Answer = [this] {
        return Clock;
    };
    Watch.Delay.Answer = [this](Uint32 Milliseconds) {
        Clock += Milliseconds;
    };
    Watch.StorageReady.Failure = [this](SDL_Storage * /*Storage*/) {
        Clock += StorageWait; // it is not ready for a whole wait
        return false;
    };
}

void Session::FailAsPlanned(const SessionPlan &Plan) {
    if (!Plan.Without.empty()) {
        EntryOf(Plan.Without).Refuse(Watch, CallWatch::Always, 0);
    }
    if (!Plan.Function.empty()) {
        const WatchedEntry &entry = EntryOf(Plan.Function);
        entry.Refuse(Watch, 1, Plan.Number - 1);
        entry.OnCall(Watch, [this, left = Plan.Number]() mutable {
            if (--left == 0) {
                NoteFault();
            }
        });
        return;
    }
    std::size_t index = 0;
    for (const WatchedEntry &entry : WatchedEntries()) {
        entry.OnCall(Watch, [&calls = Report.Calls.at(index)] {
            ++calls;
        });
        ++index;
    }
}

void Session::NoteFault() {
    Report.FaultCame = true;
    Report.During = Present;
    Report.FailedSave = Present == Writing::SaveState ? Report.SaveWrites : 0;
    // The music's track is the first that is made.
    const auto &given = Watch.SetTrackAudio.Calls;
    Report.IsOfMusic = !given.empty() && std::get<0>(given.back()) == Watch.CreateTrack.Results.front();
}

void Session::Play() {
    Report.Result = RunProgram();
    const UnwatchedScope unwatched;
    LookAtFiles();
}

/// The same as in app/main.cpp, with a move of the player before each frame.
int Session::RunProgram() {
    Program program;
    program.Writers = {WriteOptions, WriteRun};
    if (!StartUp(program)) {
        return 1;
    }
    IsStarted = true;
    program.State.Rng.seed(1); // every session of a plan is the same
    while (program.State.Running) {
        {
            const UnwatchedScope unwatched;
            Player.Move();
        }
        if (Player.IdleFrames > MostIdleFrames) {
            return SessionReport::DidNotEnd;
        }
        RunFrame(program);
        Clock += BetweenFrames;
    }
    ShutDown(program);
    return 0;
}

bool Session::WriteOptions(const GameState &State) {
    return Playing->Write(
        Playing->IsStarted ? Writing::Options : Writing::FirstOptions, OptionsFileName, SaveOptions, State);
}

bool Session::WriteRun(const GameState &State) {
    return Playing->Write(Writing::SaveState, SaveStateFileName, WriteSaveState, State);
}

/// Writes as the program would, and looks whether the file is then the old one or, if the writing has worked,
/// the one that it becomes when nothing fails.
bool Session::Write(Writing What, const char *Name, StateWriter Writer, const GameState &State) {
    Present = What;
    Report.SaveWrites += What == Writing::SaveState ? 1 : 0;
    const bool hasWorked = Writer(State);
    Present = Writing::Nothing;
    Report.WasMadeUpFor = Report.WasMadeUpFor || (hasWorked && Report.FaultCame && Report.During == What);
    const UnwatchedScope unwatched;
    const Contents found = Found(Name);
    Contents wanted = Files[Name];
    if (hasWorked) {
        Writer(State);
        wanted = Found(Name);
        Put(Name, found);
    }
    Report.MixedFiles += found != wanted ? 1 : 0;
    Files[Name] = found;
    return hasWorked;
}

Contents Session::Found(const std::string &Name) const {
    return FindBytes(Folder / Name);
}

void Session::Put(const std::string &Name, const Contents &Bytes) const {
    std::filesystem::remove(Folder / Name);
    if (Bytes) {
        WriteBytes(Folder / Name, *Bytes);
    }
}

/// Outside of the writers no file has changed, and no other is left.
void Session::LookAtFiles() {
    for (const auto &[name, contents] : Files) {
        Report.MixedFiles += Found(name) != contents ? 1 : 0;
    }
    std::error_code none;
    for (const auto &entry : std::filesystem::directory_iterator(Folder, none)) {
        Report.StrayFiles += Files.contains(entry.path().filename().string()) ? 0 : 1;
    }
}

} // namespace

void PlaySession(const SessionPlan &Plan, const std::filesystem::path &Home, SessionReport &Report) {
    const EnvironmentScope home("XDG_DATA_HOME", Home.string());
    ChooseSoftwareDrivers();
    Session session(Plan, Home, Report);
    session.Play();
}
