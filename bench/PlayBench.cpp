#include "bench/PlayBench.hpp"

#include "bench/BusyRoad.hpp"
#include "bench/ProcessUse.hpp"
#include "tests/e2e/PreparedRun.hpp"
#include "tools/desktop/GameSession.hpp"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr std::chrono::seconds MenuTime{5};
constexpr std::chrono::seconds Settling{2}; // after a screen has changed

/// A key that is pressed, what it leads to, and the name of what is measured there; null for nothing.
struct Step {
    Key Pressed;
    Sight Shows;
    const char *Measured = nullptr;
};

/// The main menu of a game that holds a run.
Sight MainMenuOn(int Row) {
    return MenuIs(SeenScreen::MainMenu, 6, Row);
}

std::vector<Step> WayThroughTheGame() {
    return {
        {Key::Down, MainMenuOn(1)},
        {Key::Up, MainMenuOn(0), "MainMenu"},
        {Key::Down, MainMenuOn(1)},
        {Key::Down, MainMenuOn(2)},
        {Key::Return, ScreenIs(SeenScreen::Options), "Options"},
        {Key::Escape, MainMenuOn(2)},
        {Key::Down, MainMenuOn(3)},
        {Key::Return, ScreenIs(SeenScreen::Help), "Help"},
        {Key::Escape, MainMenuOn(3)},
        {Key::Down, MainMenuOn(4)},
        {Key::Down, MainMenuOn(5)},
        {Key::Down, MainMenuOn(0)},
        {Key::Return, ScreenIs(SeenScreen::Playing), "Play"},
        {Key::Escape, ScreenIs(SeenScreen::Paused), "Paused"},
    };
}

/// A run in thick traffic whose car outlasts whatever hits it.
GameState LongRun() {
    GameState run = RoadOfStage30();
    run.Player.MaxHp = 1'000'000;
    run.Player.Hp = run.Player.MaxHp;
    run.InvincibilityPowerTimer = 0.0F;
    run.HasRunState = true;
    return run;
}

[[noreturn]] void Fail(GameSession &Session, const std::string &Words) {
    throw std::runtime_error(Words + ". The program says:\n" + Session.Program().Output());
}

void WaitForWindow(GameSession &Session, const Sight &Shows) {
    const std::optional<DesktopWindow> window = Session.WaitForWindow();
    if (!window || !Session.WaitForPicture(Shows)) {
        Fail(Session, "The program does not show its first picture");
    }
    // Looked for anew: it may be another window by now.
    Session.Person().GiveFocus(Session.Person().FindWindow(window->Title).value_or(*window));
}

void Take(GameSession &Session, const Step &Next) {
    if (!Session.Tap(Next.Pressed, Next.Shows)) {
        Fail(Session, "A key does not lead where it should");
    }
}

double MeasureScreen(GameSession &Session, const Step &Here, std::chrono::seconds Time) {
    std::this_thread::sleep_for(Settling);
    const double share = ProcessorShare(Session.Program().ProcessId(), Time);
    if (!Session.WaitForPicture(Here.Shows)) {
        Fail(Session, std::string(Here.Measured) + " was left while it was measured");
    }
    return share;
}

void NoteMemory(GameSession &Session, const std::string &Name, Measurements &Results) {
    const MemoryUse use = MemoryOf(Session.Program().ProcessId());
    Results["Resident/" + Name] = {use.Resident, "MiB"};
    Results["Private/" + Name] = {use.Private, "MiB"};
}

void Close(GameSession &Session) {
    if (Session.Close() != 0) {
        Fail(Session, "The program does not end as it should");
    }
}

void MeasureGame(const DrawingWay &Way, std::chrono::seconds PlayTime, Measurements &Results) {
    const PreparedHome home;
    PutRun(home, LongRun());
    GameSession session(GameProgram, {}, Way.Settings, &home, Desk::Managed);
    WaitForWindow(session, MainMenuOn(0));
    for (const Step &step : WayThroughTheGame()) {
        Take(session, step);
        if (step.Measured != nullptr) {
            const std::string name = step.Measured;
            const double share = MeasureScreen(session, step, name == "Play" ? PlayTime : MenuTime);
            Results["Share/" + name + "/" + Way.Name] = {share, "%"};
        }
    }
    NoteMemory(session, std::string(Way.Name) + "/Game", Results);
    Close(session);
}

void MeasureBareProgram(const DrawingWay &Way, Measurements &Results) {
    const PreparedHome home;
    GameSession session(BareProgram, {}, Way.Settings, &home, Desk::Managed);
    WaitForWindow(session, ShowsAnything);
    std::this_thread::sleep_for(MenuTime);
    NoteMemory(session, std::string(Way.Name) + "/Bare", Results);
    Close(session);
}

/// The size of the pieces of music beside the game, all of which it holds as they are, in MiB.
double SizeOfMusic() {
    std::uintmax_t bytes = 0;
    const std::filesystem::path folder = std::filesystem::path(GameProgram).parent_path() / "Music";
    for (const auto &file : std::filesystem::directory_iterator(folder)) {
        bytes += file.path().extension() == ".ogg" ? file.file_size() : 0;
    }
    return static_cast<double>(bytes) / (1024.0 * 1024.0);
}

} // namespace

void MeasurePlay(const DrawingWay &Way, std::chrono::seconds PlayTime, Measurements &Results) {
    std::printf("Playing for %d seconds (%s) ...\n", static_cast<int>(PlayTime.count()), Way.Name);
    MeasureGame(Way, PlayTime, Results);
    MeasureBareProgram(Way, Results);
    Results["Music"] = {SizeOfMusic(), "MiB"};
}
