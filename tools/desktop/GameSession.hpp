#pragma once

#include "tools/desktop/ChildProcess.hpp"
#include "tools/desktop/PreparedHome.hpp"
#include "tools/desktop/Sights.hpp"
#include "tools/desktop/VirtualDisplay.hpp"
#include "tools/desktop/WindowManager.hpp"
#include "tools/desktop/XClient.hpp"

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

// Whether a window manager looks after the display. Without one a window stays as large as it was opened.
enum class Desk { Bare, Managed };

// The environment in which a session starts its program: nothing of the person's own, no sound, no
// controller, and SDL's own renderer. Settings come on top or replace these, or take them away where they are
// empty. Home exists; the folders for data, caches and the like are made in it.
Environment SessionEnvironment(
    const std::filesystem::path &Home, const std::string &DisplayName, const Environment &Settings);

// The real game on a display of its own, with a home folder of its own: it finds no options, no saved run and
// no controller of the person whose machine this is, makes no sound, and is drawn by SDL's own renderer. It
// is killed with this record if it still runs.
class GameSession {
public:
    // Starts the program. Settings are environment variables, as above. Prepared is the home folder, which
    // must outlive this record; without one it is a new, empty one. Throws std::runtime_error if the display,
    // its window manager or the program cannot be started.
    explicit GameSession(const std::filesystem::path &Program, ScreenSize Screen = {},
        const Environment &Settings = {}, const PreparedHome *Prepared = nullptr, Desk Kind = Desk::Bare);
    ~GameSession();
    GameSession(const GameSession &) = delete;
    GameSession &operator=(const GameSession &) = delete;

    // Waits until the game shows its window, and gives it the keyboard. Nothing if it shows none in time, or
    // ends before.
    std::optional<DesktopWindow> WaitForWindow();
    // Asks the game's window to close and gives the program's result; nothing if it does not end in time.
    std::optional<int> Close();

    // Takes pictures, with a rest after each, until one satisfies Shows, and gives that one; nothing if none
    // did in time, or the game ended before.
    std::optional<Screenshot> WaitForPicture(const Sight &Shows,
        std::chrono::milliseconds Deadline = PatientDeadline, std::chrono::milliseconds Rest = ShortRest);
    // Presses the key, waits until the screen shows what that does, and releases it: so a frame of the game
    // has surely seen the key, however slow the game is. Gives the picture, as above.
    std::optional<Screenshot> Tap(
        Key Tapped, const Sight &Shows, std::chrono::milliseconds Deadline = PatientDeadline);

    XClient &Person();
    ChildProcess &Program();
    const std::filesystem::path &Home() const;

private:
    // In this order, so that the game ends before the display does, and the folder goes last.
    std::unique_ptr<const PreparedHome> OwnHome;
    const PreparedHome &UsedHome;
    VirtualDisplay Display;
    XClient Client;
    std::unique_ptr<WindowManager> Manager;
    ChildProcess Game;
};
