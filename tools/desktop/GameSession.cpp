#include "tools/desktop/GameSession.hpp"

#include "tools/desktop/WaitUntil.hpp"

#include <csignal>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <utility>

namespace {

constexpr const char *TitlePrefix = "Kestrel Volley";

// What a program needs of its surroundings to run at all, a sanitizer's settings among them.
const std::vector<std::string> NeededNames{
    "PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS"};

} // namespace

Environment SessionEnvironment(
    const std::filesystem::path &Home, const std::string &DisplayName, const Environment &Settings) {
    Environment variables = InheritedEnvironment(NeededNames);
    variables["HOME"] = Home.string();
    for (const auto &[name, folder] : std::initializer_list<std::pair<const char *, const char *>>{
             {"XDG_CONFIG_HOME", ".config"}, {"XDG_DATA_HOME", DataFolder}, {"XDG_CACHE_HOME", ".cache"},
             {"XDG_STATE_HOME", ".local-state"}, {"XDG_RUNTIME_DIR", ".run"}}) {
        const std::filesystem::path path = Home / folder;
        std::filesystem::create_directories(path);
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        variables[name] = path.string();
    }
    variables["LANG"] = "C.UTF-8";
    variables["DISPLAY"] = DisplayName;
    // SDL's own renderer: it takes less of a processor than OpenGL does where no graphics card draws for it.
    variables["SDL_RENDER_DRIVER"] = "software";
    variables["SDL_FRAMEBUFFER_ACCELERATION"] = "0";
    // A sanitizer that finds something tells where, unless we were started with settings of our own for it.
    variables.try_emplace("UBSAN_OPTIONS", "print_stacktrace=1");
    // No session bus: it would be that of the person's own desktop.
    variables["DBUS_SESSION_BUS_ADDRESS"] = "disabled:";
    variables["SDL_AUDIO_DRIVER"] = "dummy";
    // An allowance for a controller that does not exist shuts out all that do.
    variables["SDL_GAMECONTROLLER_IGNORE_DEVICES_EXCEPT"] = "0xFFFF/0xFFFF";
    for (const auto &[name, value] : Settings) {
        variables[name] = value;
        if (value.empty()) {
            variables.erase(name);
        }
    }
    return variables;
}

GameSession::GameSession(const std::filesystem::path &Program, ScreenSize Screen, const Environment &Settings,
    const PreparedHome *Prepared, Desk Kind)
    : OwnHome(Prepared == nullptr ? std::make_unique<const PreparedHome>() : nullptr),
      UsedHome(Prepared == nullptr ? *OwnHome : *Prepared), Display(Screen), Client(Display.Name()),
      Manager(Kind == Desk::Managed ? std::make_unique<WindowManager>(Display.Name(), UsedHome.Path(), Client)
                                    : nullptr),
      Game(Program, {}, SessionEnvironment(UsedHome.Path(), Display.Name(), Settings)) {}

// One that is still there when nobody looks any more has nothing left to show, and its fade-out is not waited
// for.
GameSession::~GameSession() {
    Game.Send(SIGKILL);
}

std::optional<DesktopWindow> GameSession::WaitForWindow() {
    // While the renderer is made, SDL may put another window in the place of the first one.
    constexpr std::chrono::milliseconds attempt{200};
    std::optional<DesktopWindow> window;
    bool hasFocus = false;
    WaitUntil([&] {
        window = Client.FindWindow(TitlePrefix);
        hasFocus = window && Client.GiveFocus(*window, attempt);
        return hasFocus || !Game.IsRunning();
    });
    return hasFocus ? window : std::nullopt;
}

std::optional<int> GameSession::Close() {
    if (const std::optional<DesktopWindow> window = Client.FindWindow(TitlePrefix)) {
        Client.RequestClose(*window);
    }
    return Game.WaitForExit(PatientDeadline);
}

std::optional<Screenshot> GameSession::WaitForPicture(
    const Sight &Shows, std::chrono::milliseconds Deadline, std::chrono::milliseconds Rest) {
    Screenshot seen;
    bool shown = false;
    WaitUntil(
        [&] {
            seen = Client.Look();
            shown = Shows(seen);
            return shown || !Game.IsRunning();
        },
        Deadline, Rest);
    return shown ? std::optional(std::move(seen)) : std::nullopt;
}

std::optional<Screenshot> GameSession::Tap(
    Key Tapped, const Sight &Shows, std::chrono::milliseconds Deadline) {
    Client.PressKey(Tapped);
    std::optional<Screenshot> seen = WaitForPicture(Shows, Deadline);
    Client.ReleaseKey(Tapped);
    return seen;
}

XClient &GameSession::Person() {
    return Client;
}

ChildProcess &GameSession::Program() {
    return Game;
}

const std::filesystem::path &GameSession::Home() const {
    return UsedHome.Path();
}
